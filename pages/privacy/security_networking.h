// The Security and Networking page (tab 9, Frame4(9)): password, logon and
// dial-in policies in HKEY_LOCAL_MACHINE, the minimum password length and the
// legal notice shown before logon; its reader ref_net_sec and the Apply work
// of start_apply.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"

namespace pages {

class SecurityNetworking {
public:
  explicit SecurityNetworking(PageHost& host);
  SecurityNetworking(const SecurityNetworking&) = delete;
  SecurityNetworking& operator=(const SecurityNetworking&) = delete;

  // Elements 0 to 3 and 5 to 9; there is no element 4.
  runtime::ControlArray<runtime::CheckBox> Check26{"Check26"};
  runtime::TextBox* Text11 = nullptr; // minimum password length, two digits
  runtime::TextBox* Text18 = nullptr; // legal notice caption
  runtime::TextBox* Text17 = nullptr; // legal notice text

  void ref_net_sec();
  void start_apply_Click();

private:
  void Check26_Click(int index);
  PageHost& host_;
};

} // namespace pages
