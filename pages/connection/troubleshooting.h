// The Troubleshooting page (tab 4, Frame4(2)): four health checks of
// registry entries with one repair button, the system items on the desktop,
// the application fault log, the file-system switches (Check2(15..20) and
// three combo boxes) and the contiguous-allocation size. Its reader and
// writer also carry wit and icn_desc(0..2), which stand on the Desktop page's
// Icons tab and arm this page's Apply button.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"
#include "runtime/form.h"

namespace pages {

class Troubleshooting {
public:
  explicit Troubleshooting(PageHost& host);
  Troubleshooting(const Troubleshooting&) = delete;
  Troubleshooting& operator=(const Troubleshooting&) = delete;

  runtime::Label* Label11 = nullptr;
  runtime::ControlArray<runtime::CheckBox> ondesk{"ondesk"}; // desktop items
  runtime::ControlArray<runtime::Label> Label18{"Label18"};
  runtime::ControlArray<runtime::OptionButton> defgrag{"defgrag"}; // 512, 1024, 2048
  runtime::ControlArray<runtime::Label> Label14{"Label14"};
  runtime::ComboBox* Combo2 = nullptr; // 32-bit disk access
  runtime::ComboBox* Combo3 = nullptr; // write-behind cache
  runtime::ComboBox* Combo4 = nullptr; // buffer commits
  runtime::Label* Label35 = nullptr;   // the shaded panel behind the checks
  runtime::Label* Label38 = nullptr;
  runtime::ControlArray<runtime::Label> dsc{"dsc"};      // the checks' captions
  runtime::ControlArray<runtime::CheckBox> dsce{"dsce"}; // their indicators
  runtime::CommandButton* fix_ = nullptr;                // "Fix Error(s)"
  runtime::CheckBox* Check3 = nullptr;                   // fault log

  void ref_trouble();
  void ondAp_Click();
  void fix__Click();
  // Check2(20) ticked enables defgrag(0..2), clear disables them.
  void defgragFollowsCheck2();

private:
  // The Desktop page's wit and icn_desc(i), when that page has made them.
  runtime::CheckBox* desktopBox(const char* designName) const;
  void readHealthChecks();
  void writeFileSystemRows();
  PageHost& host_;
};

} // namespace pages
