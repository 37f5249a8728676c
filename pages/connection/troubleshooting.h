// The Troubleshooting page (Frame4(2)).
#pragma once

#include "pages/page_host.h"

namespace pages {

class Troubleshooting {
public:
  explicit Troubleshooting(PageHost& host);
  Troubleshooting(const Troubleshooting&) = delete;
  Troubleshooting& operator=(const Troubleshooting&) = delete;

  void ref_trouble();
  // Check2(20) ticked enables defgrag(0..2), clear disables them.
  void defgragFollowsCheck2();

private:
  PageHost& host_;
};

} // namespace pages
