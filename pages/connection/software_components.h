// The Software Components page (Frame4(8)).
#pragma once

#include "pages/page_host.h"

namespace pages {

class SoftwareComponents {
public:
  explicit SoftwareComponents(PageHost& host);
  SoftwareComponents(const SoftwareComponents&) = delete;
  SoftwareComponents& operator=(const SoftwareComponents&) = delete;

  void ref_uninstall_list();
  void ref_run_list();

private:
  PageHost& host_;
};

} // namespace pages
