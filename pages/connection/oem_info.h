// The OEM Info page (tab 3, Frame4(3)): what the System control panel shows
// about the machine's maker (oeminfo.ini and oemlogo.bmp in the system
// folder) and five identity strings of the registry. The page is locked: a
// text box takes input only after its own check box, or the master box
// Check17, has been clicked.
#pragma once

#include "pages/page_host.h"
#include "runtime/form.h"

#include <string>

namespace pages {

class OemInfo {
public:
  explicit OemInfo(PageHost& host);
  OemInfo(const OemInfo&) = delete;
  OemInfo& operator=(const OemInfo&) = delete;

  runtime::CheckBox* Check17 = nullptr; // "Allow OEM Info Changes "
  runtime::CheckBox* Check18 = nullptr; // copy the logo on Apply
  runtime::Frame* Frame3 = nullptr;
  runtime::PictureBox* Picture5 = nullptr; // the sample logo
  runtime::TextBox* Text12 = nullptr;      // Model
  runtime::TextBox* Text13 = nullptr;      // Manufacturer
  runtime::TextBox* Text14 = nullptr;      // Support Information, Line1
  runtime::CheckBox* Check7 = nullptr;     // System's Name
  runtime::TextBox* Text3 = nullptr;
  runtime::CheckBox* Check9 = nullptr; // Registered Organization
  runtime::TextBox* Text5 = nullptr;
  runtime::CheckBox* Check8 = nullptr; // Registered User
  runtime::TextBox* Text4 = nullptr;
  runtime::CheckBox* Check27 = nullptr; // Default User Name
  runtime::TextBox* Text19 = nullptr;
  runtime::CheckBox* Check28 = nullptr; // Default Company Name
  runtime::TextBox* Text20 = nullptr;

  // Safe to call twice in a row, and meant to be: see the reader.
  void ref_oem_page();
  void Oem_apply_Click();
  void Check17_Click();

  // windir + "\system\oeminfo.ini"
  std::string oemInfoIni() const;

private:
  void rowCheckClicked(runtime::TextBox* box);
  PageHost& host_;
};

} // namespace pages
