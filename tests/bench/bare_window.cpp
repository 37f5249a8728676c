// The floor for start-up time under Wine: a bare Win32 program that opens one
// window, named "Bare" for the driver, and waits. With "--timer" the window
// has a 20 ms timer that does nothing: the floor for idle CPU.
#include <windows.h>

namespace {
LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcA(window, message, wParam, lParam);
}
} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int) {
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = proc;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = "TL99Bare";
  ::RegisterClassA(&windowClass);
  HWND window = ::CreateWindowExA(0, "TL99Bare", "Bare", WS_OVERLAPPEDWINDOW, 100, 100, 300, 200,
                                  nullptr, nullptr, instance, nullptr);
  const ATOM name = ::GlobalAddAtomA("Bare");
  ::SetPropA(window, "TL99.Name", reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(name)));
  ::ShowWindow(window, SW_SHOW);
  if (commandLine && ::lstrcmpA(commandLine, "--timer") == 0) ::SetTimer(window, 1, 20, nullptr);
  MSG message;
  while (::GetMessageA(&message, nullptr, 0, 0) > 0)
    ::DispatchMessageA(&message);
  ::GlobalDeleteAtom(name);
  return 0;
}
