// The Desktop and Explorer page (Frame4(5)).
#pragma once

#include "pages/page_host.h"

namespace pages {

class DesktopExplorer {
public:
  explicit DesktopExplorer(PageHost& host);
  DesktopExplorer(const DesktopExplorer&) = delete;
  DesktopExplorer& operator=(const DesktopExplorer&) = delete;

  void ref_desk();

private:
  PageHost& host_;
};

} // namespace pages
