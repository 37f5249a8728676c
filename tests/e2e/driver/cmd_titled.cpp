// Top-level windows of other programs (the HTML Help viewer, an installer),
// which carry no TL99.Name: found by their exact title.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/handles.h"
#include "tests/e2e/driver/input.h"

#include <tlhelp32.h>

namespace drive::cmd {
namespace {

struct Search {
  const char* title;
  HWND found;
};

BOOL CALLBACK matchTitle(HWND window, LPARAM data) {
  auto* search = reinterpret_cast<Search*>(data);
  char text[512] = {};
  ::GetWindowTextA(window, text, sizeof text);
  if (::lstrcmpA(text, search->title) == 0) {
    search->found = window;
    return FALSE;
  }
  return TRUE;
}

HWND findTitled(const std::string& title, Outcome* failure) {
  Search search{title.c_str(), nullptr};
  ::EnumWindows(matchTitle, reinterpret_cast<LPARAM>(&search));
  if (!search.found) *failure = fail("no top-level window is titled \"" + title + "\"");
  return search.found;
}

} // namespace

Outcome expectTitled(const Args& args) {
  Outcome failure;
  HWND window = findTitled(args[0], &failure);
  if (!window) return failure;
  return ::IsIconic(window) ? pass("minimised") : pass("shown");
}

Outcome restoreTitled(const Args& args) {
  Outcome failure;
  HWND window = findTitled(args[0], &failure);
  if (!window) return failure;
  ::ShowWindow(window, SW_RESTORE);
  ::SetForegroundWindow(window);
  if (::IsIconic(window) || !::IsWindowVisible(window)) return fail("the window stays minimised");
  return pass();
}

Outcome clickTitled(const Args& args) {
  Outcome failure;
  long x = 0, y = 0;
  HWND window = findTitled(args[0], &failure);
  if (!window || !number(args[1], &x, &failure) || !number(args[2], &y, &failure)) return failure;
  RECT frame{};
  ::GetWindowRect(window, &frame);
  const POINT at{frame.left + x, frame.top + y};
  HWND under = ::WindowFromPoint(at);
  if (!under || (under != window && !::IsChild(window, under)))
    return fail(format("%ld,%ld is not on the window", x, y));
  return clickAt(under, at);
}

Outcome closeTitled(const Args& args) {
  Outcome failure;
  HWND window = findTitled(args[0], &failure);
  if (!window) return failure;
  ::PostMessageA(window, WM_CLOSE, 0, 0);
  return pass();
}

Outcome expectRunning(const Args& args) {
  OwnedHandle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot.valid()) return fail("no process list");
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = ::Process32First(snapshot.get(), &entry); more;
       more = ::Process32Next(snapshot.get(), &entry)) {
    std::string name = entry.szExeFile;
    const std::size_t slash = name.find_last_of("\\/");
    if (slash != std::string::npos) name = name.substr(slash + 1);
    if (::lstrcmpiA(name.c_str(), args[0].c_str()) == 0) return pass();
  }
  return fail(args[0] + " is not running");
}

} // namespace drive::cmd
