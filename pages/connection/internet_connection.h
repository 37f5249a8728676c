// The Internet Connection page (Frame4(6)).
#pragma once

#include "controls/veld_slider.h"
#include "pages/page_host.h"

namespace pages {

class InternetConnection {
public:
  explicit InternetConnection(PageHost& host);
  InternetConnection(const InternetConnection&) = delete;
  InternetConnection& operator=(const InternetConnection&) = delete;

  void ref_connection();
  void mtu_opt();
  void other_in_at_load();

private:
  PageHost& host_;

public:
  controls::VeldSlider Slider_rwin_;
};

} // namespace pages
