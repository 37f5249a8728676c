// The items of a list box, by their text.
#include "tests/e2e/driver/cmd_support.h"

#include <vector>

namespace drive::cmd {

Outcome expectListed(const Args& args) {
  Outcome failure;
  HWND list = lookup(args[0], &failure);
  if (!list) return failure;
  const LRESULT count = ::SendMessageA(list, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const LRESULT length = ::SendMessageA(list, LB_GETTEXTLEN, i, 0);
    if (length < 0) continue;
    std::vector<char> text(static_cast<std::size_t>(length) + 1);
    ::SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data()));
    if (args[1] == text.data()) return pass(format("item %ld", static_cast<long>(i)));
  }
  return fail(format("none of the %ld items is \"%s\"", static_cast<long>(count), args[1].c_str()));
}

} // namespace drive::cmd
