// Finding windows by design name and reading their state.
#include "tests/e2e/driver/cmd_support.h"

namespace drive::cmd {

Outcome wait(const Args& args) {
  long ms = 0;
  Outcome failure;
  if (!number(args[1], &ms, &failure)) return failure;
  const DWORD start = ::GetTickCount();
  while (true) {
    HWND window = findNamed(args[0]);
    if (window && ::IsWindowVisible(window))
      return pass(format("after %lu ms", ::GetTickCount() - start));
    if (::GetTickCount() - start >= static_cast<DWORD>(ms))
      return fail(window ? args[0] + " is still hidden" : "no window is named " + args[0]);
    ::Sleep(100);
  }
}

Outcome expectGone(const Args& args) {
  HWND window = findNamed(args[0]);
  if (window && ::IsWindowVisible(window)) return fail(args[0] + " is still shown");
  return pass();
}

Outcome expectText(const Args& args) {
  Outcome failure;
  HWND window = lookup(args[0], &failure);
  if (!window) return failure;
  const std::string text = windowText(window);
  if (text == args[1]) return pass();
  return fail("text is \"" + text + "\"");
}

Outcome expectCheck(const Args& args) {
  return expectNumber(args, "check state",
                      [](HWND window) -> long { return ask(window, BM_GETCHECK); });
}

Outcome expectEnabled(const Args& args) {
  return expectNumber(args, "enabled",
                      [](HWND window) -> long { return ::IsWindowEnabled(window) ? 1 : 0; });
}

Outcome expectVisible(const Args& args) {
  return expectNumber(args, "visible",
                      [](HWND window) -> long { return ::IsWindowVisible(window) ? 1 : 0; });
}

Outcome expectItem(const Args& args) {
  Outcome failure;
  long index = 0, expected = 0;
  HWND window = lookup(args[0], &failure);
  if (!window || !number(args[1], &index, &failure) || !number(args[2], &expected, &failure))
    return failure;
  const LRESULT count = ask(window, LB_GETCOUNT);
  if (index < 0 || index >= count)
    return fail(format("no item %ld (the list has %ld)", index, static_cast<long>(count)));
  return compare("item selected", ask(window, LB_GETSEL, index) > 0 ? 1 : 0, expected);
}

} // namespace drive::cmd
