#include "pages/privacy/tracking_clearance.h"

namespace pages {

TrackingClearance::TrackingClearance(PageHost& host)
    : host_(host),
      menu_delay_slider(host.mainForm(), "menu_delay_slider", &host.pageFrame(0), {}, {.max = 1}) {
  // Ref_st also disables the Apply button of the Troubleshooting page.
  host.buttons().Ref_st->onClick = [this] {
    ref_tracking();
    host_.buttons().Clear->setEnabled(false);
    host_.buttons().ondAp->setEnabled(false);
  };
}

void TrackingClearance::ref_tracking() {}

} // namespace pages
