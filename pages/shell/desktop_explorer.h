// The Desktop and Explorer page (tab 0, Frame4(5)): shell and desktop tweaks
// on the three tabs of SSTab1 ("Miscellaneus", "Icons", "Task Management").
// Most boxes are read through the named-tweak catalogue; ref_desk reads the
// page, the applyb handler writes all of it in a fixed order and reads it back,
// refreshb reads it again.
//
// Two groups of the Icons tab belong to the Troubleshooting page: `wit` and
// `icn_desc` are shown here but read by ref_trouble and written by ondAp, and
// a click on them arms ondAp, not applyb. That page finds them on the form by
// their design names ("wit", "icn_desc(0)" ...) or through these members.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"

#include <string>

namespace pages {

class DesktopExplorer {
public:
  explicit DesktopExplorer(PageHost& host);
  DesktopExplorer(const DesktopExplorer&) = delete;
  DesktopExplorer& operator=(const DesktopExplorer&) = delete;

  void ref_desk();
  void applyb_Click();
  void refreshb_Click();

  // Icon spacing in the registry (twips, negative, as text) against the gap
  // the page shows (pixels beyond the icon size). Overflow (6) when a number
  // leaves the 16-bit range.
  static std::string spacingText(const std::string& size, const std::string& gap);
  static std::string gapText(const std::string& size, const std::string& spacing);

  runtime::TabStrip* SSTab1 = nullptr;
  // One panel a tab, holding that tab's controls.
  runtime::ControlArray<runtime::Frame> SSTab1Panel{"SSTab1Panel"};

  // "Miscellaneus"; Check2(0) to Check2(14) are the host's shared array.
  runtime::CheckBox* Check1 = nullptr;
  runtime::CheckBox* Check10 = nullptr;
  runtime::CheckBox* Check11 = nullptr;
  runtime::CheckBox* Check12 = nullptr;
  runtime::CheckBox* Check14 = nullptr;
  runtime::ControlArray<runtime::CheckBox> CD2{"CD2"}; // elements 0, 1, 3, 4, 6
  runtime::TextBox* Text6 = nullptr;
  runtime::ControlArray<runtime::Label> Label14{"Label14"};
  runtime::ComboBox* Combo1 = nullptr;

  // "Icons"
  runtime::Label* icnW = nullptr;
  runtime::Label* icnVspac = nullptr;
  runtime::Label* icnHspac = nullptr;
  runtime::TextBox* icnWset = nullptr;
  runtime::TextBox* icnVset = nullptr;
  runtime::TextBox* icnHset = nullptr;
  runtime::SpinControl* UpDown1 = nullptr; // drives icnHset
  runtime::SpinControl* UpDown2 = nullptr; // drives icnVset
  runtime::SpinControl* UpDown3 = nullptr; // drives icnWset
  runtime::CheckBox* wit = nullptr;
  runtime::Label* Label5 = nullptr;
  runtime::ControlArray<runtime::CheckBox> icn_desc{"icn_desc"};

  // "Task Management"
  runtime::ControlArray<runtime::CheckBox> ex_opt{"ex_opt"};
  runtime::ControlArray<runtime::Label> Label4{"Label4"};
  runtime::CheckBox* timeout1 = nullptr;
  runtime::CheckBox* timeout2 = nullptr;
  runtime::CheckBox* timeout3 = nullptr;
  runtime::CheckBox* timeout4 = nullptr;

private:
  void build();
  void connectHandlers();
  void Check14_Click();
  void pairTimeouts(runtime::CheckBox& clicked, runtime::CheckBox& other);
  void readTimeouts(const char* value, const char* byDefault, runtime::CheckBox& defaultBox,
                    runtime::CheckBox& minimumBox);
  void armApply();

  PageHost& host_;
};

} // namespace pages
