// Message boxes: top-level dialogs of class "#32770" with a static text.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/input.h"

#include <cstring>

namespace drive::cmd {
namespace {

// The message text's control id, in Windows' and in Wine's message box.
constexpr int kTextId = 0xFFFF;

struct BoxSearch {
  const std::string* caption; // null: any caption
  HWND found = nullptr;
};

BOOL CALLBACK findBox(HWND window, LPARAM lParam) {
  auto* search = reinterpret_cast<BoxSearch*>(lParam);
  if (className(window) != "#32770" || !::IsWindowVisible(window)) return TRUE;
  if (search->caption && windowText(window) != *search->caption) return TRUE;
  search->found = window;
  return FALSE;
}

HWND findBoxWithCaption(const std::string* caption) {
  BoxSearch search{caption};
  ::EnumWindows(findBox, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string boxText(HWND box) {
  HWND text = ::GetDlgItem(box, kTextId);
  return text ? windowText(text) : std::string();
}

struct ButtonName {
  const char* name;
  int id;
};

constexpr ButtonName kButtons[] = {
    {"IDOK", IDOK},         {"IDCANCEL", IDCANCEL}, {"IDABORT", IDABORT}, {"IDRETRY", IDRETRY},
    {"IDIGNORE", IDIGNORE}, {"IDYES", IDYES},       {"IDNO", IDNO},
};

} // namespace

Outcome expectMsgbox(const Args& args) {
  HWND box = findBoxWithCaption(&args[0]);
  if (!box) return fail("no message box \"" + args[0] + "\"");
  const std::string text = boxText(box);
  if (text.find(args[1]) == std::string::npos) return fail("its text is \"" + text + "\"");
  return pass();
}

Outcome pressMsgbox(const Args& args) {
  int id = 0;
  for (const auto& button : kButtons)
    if (args[0] == button.name) id = button.id;
  if (id == 0) return fail("unknown button " + args[0]);
  HWND box = findBoxWithCaption(args.size() > 1 ? &args[1] : nullptr);
  if (!box) return fail("no message box is shown");
  HWND button = ::GetDlgItem(box, id);
  if (!button || !::IsWindowVisible(button)) return fail("the box has no " + args[0] + " button");
  return clickWindow(button);
}

} // namespace drive::cmd
