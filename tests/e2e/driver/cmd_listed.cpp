// A list box item found by its text, wherever it stands in the list.
#include "tests/e2e/driver/cmd_support.h"

#include <vector>

namespace drive::cmd {
namespace {

// The text of item `index`, read in wide characters (which Wine carries
// between processes unchanged) and given in the system's code page.
bool itemText(HWND list, LRESULT index, std::string* text) {
  DWORD_PTR length = 0;
  if (!::SendMessageTimeoutW(list, LB_GETTEXTLEN, index, 0, SMTO_ABORTIFHUNG, 2000, &length) ||
      static_cast<LRESULT>(length) == LB_ERR)
    return false;
  std::vector<wchar_t> wide(length + 1);
  DWORD_PTR copied = 0;
  if (!::SendMessageTimeoutW(list, LB_GETTEXT, index, reinterpret_cast<LPARAM>(wide.data()),
                             SMTO_ABORTIFHUNG, 2000, &copied) ||
      static_cast<LRESULT>(copied) == LB_ERR)
    return false;
  const int count = static_cast<int>(copied < length ? copied : length);
  text->assign(static_cast<std::size_t>(count) * 2 + 1, '\0');
  const int bytes = ::WideCharToMultiByte(CP_ACP, 0, wide.data(), count, text->data(),
                                          static_cast<int>(text->size()), nullptr, nullptr);
  text->resize(static_cast<std::size_t>(bytes > 0 ? bytes : 0));
  return true;
}

} // namespace

Outcome expectListed(const Args& args) {
  Outcome failure;
  HWND list = lookup(args[0], &failure);
  if (!list) return failure;
  DWORD_PTR count = 0;
  if (!::SendMessageTimeoutW(list, LB_GETCOUNT, 0, 0, SMTO_ABORTIFHUNG, 2000, &count))
    return fail("the list does not answer");
  std::string text;
  for (LRESULT i = 0; i < static_cast<LRESULT>(count); ++i)
    if (itemText(list, i, &text) && text == args[1])
      return pass(format("item %ld", static_cast<long>(i)));
  return fail(format("none of the %ld items is \"%s\"", static_cast<long>(count), args[1].c_str()));
}

} // namespace drive::cmd
