// Mouse-over feedback of the page buttons, and the routine that restores
// every face when the mouse is elsewhere. Disabled buttons are never touched.
#include "frame/fmain.h"
#include "frame/page_table.h"

#include <string_view>

namespace frame {

namespace {

struct ButtonPair {
  const char* refresh;
  const char* apply;
};

ButtonPair pairOf(std::string_view name) {
  for (const PageRow& page : kPages)
    if (name == page.refresh || name == page.apply) return {page.refresh, page.apply};
  return {"", ""};
}

bool isRefresh(std::string_view name) {
  for (const PageRow& page : kPages)
    if (name == page.refresh) return true;
  return false;
}

} // namespace

void FMain::pageButtonHover(const std::string& name) {
  const ButtonPair pair = pairOf(name);
  auto& refresh = button(pair.refresh);
  auto& apply = button(pair.apply);
  if (isRefresh(name)) {
    if (refresh.enabled()) refresh.setPicture(Picture6->picture());
    if (apply.enabled()) apply.setPicture(Picture9->picture());
  } else {
    if (apply.enabled()) apply.setPicture(Picture7->picture());
    if (refresh.enabled()) refresh.setPicture(Picture8->picture());
  }
}

void FMain::restoreImages() {
  Picture3(0).setPicture(Picture3(2).picture());
  Picture2(0).setPicture(Picture2(2).picture());
  Picture4(0).setPicture(Picture4(2).picture());
  Picture0(0).setPicture(Picture0(2).picture());
  for (const char* name : kRestoreOrder) {
    auto& face = button(name);
    if (!face.enabled()) continue;
    face.setPicture(isRefresh(name) ? Picture8->picture() : Picture9->picture());
  }
}

} // namespace frame
