// The Software Components page (tab 8, Frame4(8)): the entries of the
// Add/Remove list (Uninstall keys) or of the programs that start with Windows
// (Run values of the machine and of the user), one set at a time. The user
// ticks entries, they gather in prg_to_remove_list, and Apply deletes their
// registry entries. Nothing is uninstalled and nothing can be taken back.
#pragma once

#include "pages/page_host.h"
#include "runtime/form.h"

#include <array>
#include <cstdint>
#include <string>

namespace pages {

class SoftwareComponents {
public:
  explicit SoftwareComponents(PageHost& host);
  SoftwareComponents(const SoftwareComponents&) = delete;
  SoftwareComponents& operator=(const SoftwareComponents&) = delete;

  runtime::Label* Label21 = nullptr;
  runtime::ListBox* prg_list = nullptr; // with check marks
  runtime::Label* Label19 = nullptr;
  runtime::ListBox* prg_to_remove_list = nullptr;
  runtime::CheckBox* Check4 = nullptr; // installed software (Uninstall keys)
  runtime::CheckBox* Check5 = nullptr; // startup software (Run values)

  // Keys walked by the last Uninstall listing, those without a display name
  // included.
  std::int16_t uninst_count = 0;

  void ref_uninstall_list();
  void ref_run_list();
  void RefUL_Click();
  void ApplyUL_Click();
  void prg_list_ItemCheck(int item);
  void Check4_Click();
  void Check5_Click();

private:
  void removeUninstallEntries();
  void removeRunEntries();
  PageHost& host_;
};

} // namespace pages
