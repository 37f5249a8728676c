// Mouse-over feedback of the page buttons, and the routine that restores
// every face when the mouse is elsewhere. Disabled buttons are never touched.
#include "frame/fmain.h"
#include "frame/page_table.h"

#include <algorithm>

namespace frame {

using runtime::PictureBox;

void FMain::pageButtonHover(const PageRow& page, bool overRefresh) {
  PictureBox& refresh = *(pageButtons.*page.refresh);
  PictureBox& apply = *(pageButtons.*page.apply);
  if (overRefresh) {
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
  for (const ButtonSlot slot : kRestoreOrder) {
    PictureBox& face = *(pageButtons.*slot);
    if (!face.enabled()) continue;
    const bool isRefresh = std::any_of(
        kPages.begin(), kPages.end(), [slot](const PageRow& page) { return page.refresh == slot; });
    face.setPicture(isRefresh ? Picture8->picture() : Picture9->picture());
  }
}

} // namespace frame
