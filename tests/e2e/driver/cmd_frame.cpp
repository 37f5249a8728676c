// The pointer moving without a click, the keyboard focus, a window's client
// size, what a window shows on the screen compared with a picture file, a
// text that holds still, and the number of message boxes up.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/input.h"

#include <algorithm>
#include <vector>

namespace drive::cmd {
namespace {

// The pointer goes to a point on the screen as a user's mouse takes it there:
// one move through the system's input queue.
Outcome moveTo(HWND target, POINT screen) {
  HWND hit = ::WindowFromPoint(screen);
  if (hit != target && !::IsChild(target, hit) && !::IsChild(hit, target))
    return fail(format("(%ld,%ld) is covered by %s", screen.x, screen.y, describe(hit).c_str()));
  ::SetCursorPos(screen.x, screen.y);
  const int width = ::GetSystemMetrics(SM_CXSCREEN), height = ::GetSystemMetrics(SM_CYSCREEN);
  ::mouse_event(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
                static_cast<DWORD>((screen.x * 65535 + width / 2) / (width - 1)),
                static_cast<DWORD>((screen.y * 65535 + height / 2) / (height - 1)), 0, 0);
  settle(target);
  return pass(format("to (%ld,%ld)", screen.x, screen.y));
}

std::string windowsPathOf(const std::string& path) {
  if (path.empty() || path[0] != '/') return path;
  std::string converted = "Z:" + path;
  for (char& c : converted)
    if (c == '/') c = '\\';
  return converted;
}

// The pixels of a bitmap as 32-bit 0x00RRGGBB values, top row first.
bool pixelsOf(HDC dc, HBITMAP bitmap, int width, int height, std::vector<DWORD>* pixels) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  pixels->assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
  return ::GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), pixels->data(), &info,
                     DIB_RGB_COLORS) == height;
}

} // namespace

Outcome move(const Args& args) {
  Outcome failure;
  HWND window = lookupVisible(args[0], &failure);
  if (!window) return failure;
  RECT area{};
  ::GetWindowRect(window, &area);
  return moveTo(window, POINT{(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

Outcome moveInside(const Args& args) {
  Outcome failure;
  long x = 0, y = 0;
  HWND window = lookupVisible(args[0], &failure);
  if (!window || !number(args[1], &x, &failure) || !number(args[2], &y, &failure)) return failure;
  POINT at{x, y};
  ::ClientToScreen(window, &at);
  return moveTo(window, at);
}

Outcome expectFocus(const Args& args) {
  Outcome failure;
  HWND window = lookupVisible(args[0], &failure);
  if (!window) return failure;
  HWND focus = focusOf(window);
  if (focus == window || (focus && ::IsChild(window, focus))) return pass();
  return fail("the focus is on " + (focus ? describe(focus) : std::string("no window")));
}

Outcome expectClientSize(const Args& args) {
  Outcome failure;
  long width = 0, height = 0;
  HWND window = lookup(args[0], &failure);
  if (!window || !number(args[1], &width, &failure) || !number(args[2], &height, &failure))
    return failure;
  RECT client{};
  ::GetClientRect(window, &client);
  if (client.right == width && client.bottom == height) return pass();
  return fail(format("the client area is %ld x %ld, expected %ld x %ld", client.right,
                     client.bottom, width, height));
}

Outcome expectPicture(const Args& args) {
  Outcome failure;
  HWND window = lookupVisible(args[0], &failure);
  if (!window) return failure;
  const std::string file = windowsPathOf(args[1]);
  auto* picture = static_cast<HBITMAP>(
      ::LoadImageA(nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
  if (!picture) return fail("can't read the picture " + args[1]);
  BITMAP size{};
  ::GetObjectA(picture, sizeof size, &size);
  RECT client{};
  ::GetClientRect(window, &client);
  const int width = std::min<int>(size.bmWidth, client.right);
  const int height = std::min<int>(size.bmHeight, client.bottom);
  // What the window shows: its client area as it stands on the screen.
  HDC screen = ::GetDC(nullptr);
  HDC shown = ::CreateCompatibleDC(screen);
  HBITMAP copy = ::CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ old = ::SelectObject(shown, copy);
  POINT origin{0, 0};
  ::ClientToScreen(window, &origin);
  ::BitBlt(shown, 0, 0, width, height, screen, origin.x, origin.y, SRCCOPY);
  ::SelectObject(shown, old);
  // The picture cut to the same size.
  HDC source = ::CreateCompatibleDC(screen);
  HDC cut = ::CreateCompatibleDC(screen);
  HBITMAP part = ::CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ oldSource = ::SelectObject(source, picture);
  HGDIOBJ oldCut = ::SelectObject(cut, part);
  ::BitBlt(cut, 0, 0, width, height, source, 0, 0, SRCCOPY);
  ::SelectObject(cut, oldCut);
  ::SelectObject(source, oldSource);
  std::vector<DWORD> onScreen, inFile;
  const bool read = pixelsOf(screen, copy, width, height, &onScreen) &&
                    pixelsOf(screen, part, width, height, &inFile);
  ::DeleteObject(part);
  ::DeleteDC(cut);
  ::DeleteDC(source);
  ::DeleteObject(copy);
  ::DeleteDC(shown);
  ::ReleaseDC(nullptr, screen);
  ::DeleteObject(picture);
  if (!read) return fail("can't read the pixels");
  std::size_t differing = 0;
  for (std::size_t i = 0; i < onScreen.size(); ++i)
    if ((onScreen[i] & 0xFFFFFF) != (inFile[i] & 0xFFFFFF)) ++differing;
  // The focus rectangle or a line of a neighbour may lie over a few pixels.
  if (differing * 50 <= onScreen.size())
    return pass(format("%lu pixels differ", static_cast<unsigned long>(differing)));
  return fail(format("%lu of %lu pixels differ from %s", static_cast<unsigned long>(differing),
                     static_cast<unsigned long>(onScreen.size()), args[1].c_str()));
}

Outcome expectSteady(const Args& args) {
  Outcome failure;
  long ms = 0;
  HWND window = lookup(args[0], &failure);
  if (!window || !number(args[1], &ms, &failure)) return failure;
  const std::string first = windowText(window);
  const DWORD start = ::GetTickCount();
  while (::GetTickCount() - start < static_cast<DWORD>(ms)) {
    ::Sleep(50);
    const std::string now = windowText(window);
    if (now != first) return fail("\"" + first + "\" became \"" + now + "\"");
  }
  return pass("\"" + first + "\"");
}

namespace {
struct BoxCount {
  const std::string* caption;
  long count = 0;
};
BOOL CALLBACK countBox(HWND window, LPARAM lParam) {
  auto* search = reinterpret_cast<BoxCount*>(lParam);
  if (className(window) == "#32770" && ::IsWindowVisible(window) &&
      windowText(window) == *search->caption)
    ++search->count;
  return TRUE;
}
} // namespace

Outcome expectMsgboxes(const Args& args) {
  Outcome failure;
  long expected = 0;
  if (!number(args[1], &expected, &failure)) return failure;
  BoxCount search{&args[0]};
  ::EnumWindows(countBox, reinterpret_cast<LPARAM>(&search));
  return compare("the number of boxes \"" + args[0] + "\"", search.count, expected);
}

} // namespace drive::cmd
