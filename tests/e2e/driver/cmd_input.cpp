// The mouse and the keyboard.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/input.h"

namespace drive::cmd {
namespace {

// Waits up to a second for the keyboard focus to reach `window` or a child
// of it (a combo box's edit); the window with the focus, or null.
HWND waitForFocus(HWND window) {
  const DWORD start = ::GetTickCount();
  do {
    HWND focus = focusOf(window);
    if (focus && (focus == window || ::IsChild(window, focus))) return focus;
    ::Sleep(20);
  } while (::GetTickCount() - start < 1000);
  return nullptr;
}

} // namespace

Outcome click(const Args& args) {
  Outcome failure;
  HWND window = lookupVisible(args[0], &failure);
  if (!window) return failure;
  return clickWindow(window);
}

Outcome clickInside(const Args& args) {
  Outcome failure;
  long x = 0, y = 0;
  HWND window = lookupVisible(args[0], &failure);
  if (!window || !number(args[1], &x, &failure) || !number(args[2], &y, &failure)) return failure;
  RECT client{};
  ::GetClientRect(window, &client);
  POINT at{x, y};
  if (!::PtInRect(&client, at)) return fail(format("%ld,%ld lies outside the window", x, y));
  ::ClientToScreen(window, &at);
  return clickAt(window, at);
}

Outcome clickItem(const Args& args) {
  Outcome failure;
  long index = 0;
  HWND list = lookupVisible(args[0], &failure);
  if (!list || !number(args[1], &index, &failure)) return failure;
  // LB_GETITEMRECT is one of the messages the system carries across
  // processes, so a local RECT will do.
  RECT item{}, client{};
  if (ask(list, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item)) == LB_ERR)
    return fail(format("no item %ld", index));
  ::GetClientRect(list, &client);
  POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
  if (!::PtInRect(&client, middle)) return fail(format("item %ld is scrolled out of view", index));
  ::ClientToScreen(list, &middle);
  return clickAt(list, middle);
}

Outcome type(const Args& args) {
  Outcome failure;
  HWND window = lookupVisible(args[0], &failure);
  if (!window) return failure;
  Outcome clicked = clickWindow(window);
  if (!clicked.ok) return clicked;
  HWND focus = waitForFocus(window);
  if (!focus) return fail(args[0] + " did not take the focus");
  // Select what is there, so that the typing replaces it.
  std::string error;
  strikeKey("Ctrl+Home", &error);
  strikeKey("Ctrl+Shift+End", &error);
  typeText(focus, args[1]);
  settle(window);
  return pass();
}

Outcome key(const Args& args) {
  std::string error;
  HWND target = ::GetForegroundWindow();
  if (!strikeKey(args[0], &error)) return fail(error);
  if (!target) return pass();
  settle(target);
  HWND focus = focusOf(target);
  return focus ? pass("to " + describe(focus)) : pass();
}

} // namespace drive::cmd
