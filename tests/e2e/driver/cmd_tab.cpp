// Tab controls (SysTabControl32): which tab is selected, each tab's picture,
// and clicks on a tab.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/input.h"
#include "tests/e2e/driver/remote_memory.h"

#include <commctrl.h>

#include <cstddef>

namespace drive::cmd {
namespace {

// A tab control and one of its tabs, from the arguments NAME INDEX.
HWND tabOf(const Args& args, long* index, Outcome* failure) {
  HWND tabs = lookup(args[0], failure);
  if (!tabs || !number(args[1], index, failure)) return nullptr;
  const LRESULT count = ask(tabs, TCM_GETITEMCOUNT);
  if (*index < 0 || *index >= count) {
    *failure = fail(format("no tab %ld (there are %ld)", *index, static_cast<long>(count)));
    return nullptr;
  }
  return tabs;
}

} // namespace

Outcome clickTab(const Args& args) {
  Outcome failure;
  long index = 0;
  HWND tabs = tabOf(args, &index, &failure);
  if (!tabs) return failure;
  if (!::IsWindowVisible(tabs)) return fail(args[0] + " is hidden");
  RemoteMemory memory(tabs, sizeof(RECT));
  RECT item{};
  if (!memory.valid() || !ask(tabs, TCM_GETITEMRECT, index, memory.address()) ||
      !memory.read(&item, sizeof item))
    return fail("could not read the tab's rectangle");
  POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
  ::ClientToScreen(tabs, &middle);
  Outcome clicked = clickAt(tabs, middle);
  if (!clicked.ok) return clicked;
  // A click that a program just shown hasn't taken yet is tried again.
  if (ask(tabs, TCM_GETCURSEL) != index)
    return fail(format("tab %ld did not come to the front", index));
  return clicked;
}

Outcome expectTab(const Args& args) {
  return expectNumber(args, "selected tab",
                      [](HWND tabs) -> long { return ask(tabs, TCM_GETCURSEL); });
}

Outcome expectTabImage(const Args& args) {
  Outcome failure;
  long index = 0, expected = 0;
  HWND tabs = tabOf(args, &index, &failure);
  if (!tabs || !number(args[2], &expected, &failure)) return failure;
  TCITEMA item{};
  item.mask = TCIF_IMAGE;
  RemoteMemory memory(tabs, sizeof item);
  if (!memory.valid() || !memory.write(&item, sizeof item) ||
      !ask(tabs, TCM_GETITEMA, index, memory.address()) || !memory.read(&item, sizeof item))
    return fail("could not read the tab");
  return compare(format("picture of tab %ld", index), item.iImage, expected);
}

Outcome expectTabText(const Args& args) {
  Outcome failure;
  long index = 0;
  HWND tabs = tabOf(args, &index, &failure);
  if (!tabs) return failure;
  // The item and its text buffer in one block of the program's memory.
  struct Block {
    TCITEMA item;
    char text[260];
  } block{};
  RemoteMemory memory(tabs, sizeof block);
  if (!memory.valid()) return fail("could not read the tab");
  block.item.mask = TCIF_TEXT;
  block.item.pszText = reinterpret_cast<char*>(memory.address() + offsetof(Block, text));
  block.item.cchTextMax = sizeof block.text;
  if (!memory.write(&block, sizeof block) || !ask(tabs, TCM_GETITEMA, index, memory.address()) ||
      !memory.read(&block, sizeof block))
    return fail("could not read the tab");
  block.text[sizeof block.text - 1] = '\0';
  if (args[2] == block.text) return pass();
  return fail(format("tab %ld reads \"%s\"", index, block.text));
}

} // namespace drive::cmd
