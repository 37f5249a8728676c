// The Boot Options page (Frame4(1)).
#pragma once

#include "controls/veld_slider.h"
#include "pages/page_host.h"

namespace pages {

class BootOptions {
public:
  explicit BootOptions(PageHost& host);
  BootOptions(const BootOptions&) = delete;
  BootOptions& operator=(const BootOptions&) = delete;

  void ref_boot();

private:
  PageHost& host_;

public:
  controls::VeldSlider sl;
};

} // namespace pages
