// List boxes: their entries and how many there are.
#include "tests/e2e/driver/cmd_support.h"

#include <algorithm>
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
  // Asked for in wide characters, which Wine carries between processes as
  // they are, and turned into the system's code page here.
  DWORD_PTR length = 0;
  if (!::SendMessageTimeoutW(window, LB_GETTEXTLEN, index, 0, SMTO_ABORTIFHUNG, 2000, &length) ||
      static_cast<LRESULT>(length) == LB_ERR)
    return fail(format("entry %ld has no text", index));
  std::vector<wchar_t> wide(length + 1);
  DWORD_PTR copied = 0;
  if (!::SendMessageTimeoutW(window, LB_GETTEXT, index, reinterpret_cast<LPARAM>(wide.data()),
                             SMTO_ABORTIFHUNG, 2000, &copied))
    return fail("the list does not answer");
  const int wideLength = static_cast<int>(std::min(copied, length));
  std::string entry(static_cast<std::size_t>(wideLength) * 2, '\0');
  const int bytes = ::WideCharToMultiByte(CP_ACP, 0, wide.data(), wideLength, entry.data(),
                                          static_cast<int>(entry.size()), nullptr, nullptr);
  entry.resize(static_cast<std::size_t>(bytes > 0 ? bytes : 0));
  if (entry == args[2]) return pass();
  return fail("entry is \"" + entry + "\"");
}

} // namespace drive::cmd
