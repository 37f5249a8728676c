// The Access Restriction page (tab 1, Frame4(7)): 28 check boxes, each bound
// to one policy value under HKEY_USERS\.DEFAULT\...\Policies\<key>; a pure
// table with its reader ref_access and the Apply work of app_b.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"

namespace pages {

class AccessRestriction {
public:
  explicit AccessRestriction(PageHost& host);
  AccessRestriction(const AccessRestriction&) = delete;
  AccessRestriction& operator=(const AccessRestriction&) = delete;

  runtime::ControlArray<runtime::CheckBox> net_check{"net_check"};

  void ref_access();
  void app_b_Click();

private:
  PageHost& host_;
};

} // namespace pages
