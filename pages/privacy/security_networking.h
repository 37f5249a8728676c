// The Security and Networking page (Frame4(9)).
#pragma once

#include "pages/page_host.h"

namespace pages {

class SecurityNetworking {
public:
  explicit SecurityNetworking(PageHost& host);
  SecurityNetworking(const SecurityNetworking&) = delete;
  SecurityNetworking& operator=(const SecurityNetworking&) = delete;

  void ref_net_sec();

private:
  PageHost& host_;
};

} // namespace pages
