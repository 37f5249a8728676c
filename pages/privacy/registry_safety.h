// The Registry Safety page (tab 2, Frame4(4)): the settings of the registry
// backup tool in scanreg.ini, section "1", and the backups that exist.
#pragma once

#include "pages/page_host.h"
#include "runtime/form.h"

#include <string>

namespace pages {

class RegistrySafety {
public:
  explicit RegistrySafety(PageHost& host);
  RegistrySafety(const RegistrySafety&) = delete;
  RegistrySafety& operator=(const RegistrySafety&) = delete;

  runtime::CheckBox* Check21 = nullptr; // AUTOEXEC.BAT
  runtime::CheckBox* Check22 = nullptr; // CONFIG.SYS
  runtime::CheckBox* Check23 = nullptr; // MSDOS.SYS
  runtime::CheckBox* Check24 = nullptr; // Optimize
  runtime::CheckBox* Check25 = nullptr; // Backup
  runtime::TextBox* Text15 = nullptr;   // BackupDirectory
  runtime::TextBox* Text16 = nullptr;   // MaxBackupCopies
  runtime::FileListBox* File1 = nullptr;

  void ref_scanreg();
  void refa_Click();
  // The Files entry the three boxes make: "30," and the names, with the
  // doubled comma when the first box is clear.
  std::string filesEntry() const;

private:
  std::string scanregIni() const;
  PageHost& host_;
};

} // namespace pages
