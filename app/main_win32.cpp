// Program entry of the Win32 build: a plain main window until the
// application frame takes over.
#include <windows.h>

namespace {

constexpr char kClassName[] = "Tweakloom99Main";

LRESULT CALLBACK mainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcA(window, message, wParam, lParam);
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int showCommand) {
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = mainWindowProc;
  windowClass.hInstance = instance;
  windowClass.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = kClassName;
  if (!::RegisterClassA(&windowClass)) return 1;
  // 8265 by 7125 twips of client area at 15 twips a pixel.
  RECT frame{0, 0, 551, 475};
  ::AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
  HWND window = ::CreateWindowExA(0, kClassName, "Tweakloom 99", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                  CW_USEDEFAULT, frame.right - frame.left, frame.bottom - frame.top,
                                  nullptr, nullptr, instance, nullptr);
  if (!window) return 1;
  ::ShowWindow(window, showCommand);
  MSG message;
  while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
  return static_cast<int>(message.wParam);
}
