// List boxes: their entries and how many there are. The system carries the
// list box messages across processes, so a local buffer will do.
#include "tests/e2e/driver/cmd_support.h"

#include <vector>

namespace drive::cmd {

Outcome expectCount(const Args& args) {
  return expectNumber(args, "entry count", [](HWND window) -> long {
    return static_cast<long>(ask(window, LB_GETCOUNT));
  });
}

Outcome expectList(const Args& args) {
  Outcome failure;
  long index = 0;
  HWND window = lookup(args[0], &failure);
  if (!window || !number(args[1], &index, &failure)) return failure;
  const LRESULT count = ask(window, LB_GETCOUNT);
  if (index < 0 || index >= count)
    return fail(format("no entry %ld (the list has %ld)", index, static_cast<long>(count)));
  const LRESULT length = ask(window, LB_GETTEXTLEN, index);
  if (length < 0) return fail(format("entry %ld has no text", index));
  std::vector<char> text(static_cast<std::size_t>(length) + 1);
  DWORD_PTR copied = 0;
  if (!::SendMessageTimeoutA(window, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()),
                             SMTO_ABORTIFHUNG, 2000, &copied))
    return fail("the list does not answer");
  const std::string entry(text.data(), static_cast<std::size_t>(copied));
  if (entry == args[2]) return pass();
  return fail("entry is \"" + entry + "\"");
}

} // namespace drive::cmd
