// The Tracking Clearance page (Frame4(0)).
#pragma once

#include "controls/veld_slider.h"
#include "pages/page_host.h"

namespace pages {

class TrackingClearance {
public:
  explicit TrackingClearance(PageHost& host);
  TrackingClearance(const TrackingClearance&) = delete;
  TrackingClearance& operator=(const TrackingClearance&) = delete;

  void ref_tracking();

private:
  PageHost& host_;

public:
  controls::VeldSlider menu_delay_slider;
};

} // namespace pages
