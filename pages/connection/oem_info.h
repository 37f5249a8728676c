// The OEM Info page (Frame4(3)).
#pragma once

#include "pages/page_host.h"

namespace pages {

class OemInfo {
public:
  explicit OemInfo(PageHost& host);
  OemInfo(const OemInfo&) = delete;
  OemInfo& operator=(const OemInfo&) = delete;

  void ref_oem_page();

private:
  PageHost& host_;
};

} // namespace pages
