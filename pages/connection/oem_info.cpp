#include "pages/connection/oem_info.h"

#include "pages/shell/named_tweaks.h"
#include "platform/platform.h"
#include "runtime/basic_files.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"

namespace pages {

using namespace runtime;
using sysaccess::HKCU;
using sysaccess::HKLM;

namespace {

// The picture beside the program that Apply copies into the system folder.
// It has no directory, so the process's current directory is searched.
constexpr const char* kLogoSource = "Tweakloom 99.bmp";

// The lines of oeminfo.ini the page shows, each through the profile calls,
// so that the rest of the file stays as it is.
struct IniLine {
  TextBox* OemInfo::*box;
  const char* section;
  const char* key;
};
constexpr IniLine kIniLines[] = {
    {&OemInfo::Text12, "General", "Model"},
    {&OemInfo::Text13, "General", "Manufacturer"},
    {&OemInfo::Text14, "Support Information", "Line1"},
};

// The identity strings of the registry, all REG_SZ, in the order Apply
// writes them. The first three are rows of
// the named-tweak catalogue, which reads them (the computer name's key is
// ...\Control\ComputerName, with the word once only); the other two are read
// by the page itself.
struct IdentityRow {
  TextBox* OemInfo::*box;
  int tweakRow; // 0: the hive, key and value below
  sysaccess::Hive hive;
  const char* key;
  const char* value;
};
constexpr const char* kSetupUserKey = "Software\\Microsoft\\MS Setup (ACME)\\User Info";
constexpr IdentityRow kIdentityRows[] = {
    {&OemInfo::Text3, 42, 0, nullptr, nullptr},
    {&OemInfo::Text4, 43, 0, nullptr, nullptr},
    {&OemInfo::Text5, 44, 0, nullptr, nullptr},
    {&OemInfo::Text19, 0, HKCU, kSetupUserKey, "DefName"},
    {&OemInfo::Text20, 0, HKCU, kSetupUserKey, "DefCompany"},
};

// The words of the named-tweak reader that fill Text3, Text4 and Text5.
constexpr const char* kTweakWords[] = {tweak::kSystemsName, tweak::kRegisteredUser,
                                       tweak::kRegisteredOrganization};

// The reader's order of disabling the boxes, and of clearing the check boxes.
constexpr TextBox* OemInfo::*kDisableOrder[] = {&OemInfo::Text20, &OemInfo::Text19, &OemInfo::Text3,
                                                &OemInfo::Text4, &OemInfo::Text5};
constexpr CheckBox* OemInfo::*kClearOrder[] = {
    &OemInfo::Check27, &OemInfo::Check28, &OemInfo::Check7, &OemInfo::Check8, &OemInfo::Check9};

// The page's layout, top to bottom.
struct LabelledBox {
  const char* labelName;
  int labelIndex;
  const char* caption;
  TextBox* OemInfo::*box;
  const char* boxName;
  int top; // of the label; the box stands 180 lower
};
constexpr LabelledBox kLabelledBoxes[] = {
    {"L", 2, "Model", &OemInfo::Text12, "Text12", 2280},
    {"L", 0, "Manufacturer", &OemInfo::Text13, "Text13", 2760},
    {"L", 1, "Support Information", &OemInfo::Text14, "Text14", 3270},
};
struct CheckedBox {
  CheckBox* OemInfo::*check;
  const char* checkName;
  const char* caption; // Check7 to Check9 get theirs at form load
  TextBox* OemInfo::*box;
  const char* boxName;
  int top;
};
constexpr CheckedBox kCheckedBoxes[] = {
    {&OemInfo::Check7, "Check7", "", &OemInfo::Text3, "Text3", 3870},
    {&OemInfo::Check9, "Check9", "", &OemInfo::Text5, "Text5", 4170},
    {&OemInfo::Check8, "Check8", "", &OemInfo::Text4, "Text4", 4470},
    {&OemInfo::Check27, "Check27", "Default User Name", &OemInfo::Text19, "Text19", 4770},
    {&OemInfo::Check28, "Check28", "Default Company Name", &OemInfo::Text20, "Text20", 5070},
};

} // namespace

OemInfo::OemInfo(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(3);
  Check17 = &form.add<CheckBox>("Check17", -1, page, {300, 690, 2715, 195});
  Check17->setCaption("Allow OEM Info Changes ");
  Check18 = &form.add<CheckBox>("Check18", -1, page, {300, 990, 2475, 195});
  Check18->setCaption("Use Veldane's OEM Logo");
  Check18->setEnabled(false);
  Frame3 = &form.add<Frame>("Frame3", -1, page, {3390, 450, 2745, 1875});
  Picture5 = &form.add<PictureBox>("Picture5", -1, Frame3, {172, 262, 2400, 1500});
  Picture5->setPicture({"oemlogo.bmp"});
  for (const LabelledBox& row : kLabelledBoxes) {
    form.add<Label>(row.labelName, row.labelIndex, page, {300, row.top, 5865, 195})
        .setCaption(row.caption);
    this->*row.box = &form.add<TextBox>(row.boxName, -1, page, {300, row.top + 180, 5865, 285});
    (this->*row.box)->setEnabled(false);
  }
  for (const CheckedBox& row : kCheckedBoxes) {
    this->*row.check = &form.add<CheckBox>(row.checkName, -1, page, {300, row.top, 2160, 285});
    (this->*row.check)->setCaption(row.caption);
    this->*row.box = &form.add<TextBox>(row.boxName, -1, page, {2580, row.top, 3585, 285});
    (this->*row.box)->setEnabled(false);
  }

  PictureBox* apply = host.buttons().Oem_apply;
  Check17->onClick = [this] { Check17_Click(); };
  Check18->onClick = [apply] { apply->setEnabled(true); };
  for (const CheckedBox& row : kCheckedBoxes) {
    TextBox* box = this->*row.box;
    (this->*row.check)->onClick = [this, box] { rowCheckClicked(box); };
  }
  for (TextBox* box : {Text3, Text4, Text5, Text12, Text13, Text14, Text19, Text20})
    box->onChange = [apply] { apply->setEnabled(true); };
  host.buttons().ref_oem->onClick = [this] {
    ref_oem_page();
    ref_oem_page();
  };
  apply->onClick = [this] { Oem_apply_Click(); };
}

std::string OemInfo::oemInfoIni() const {
  return host_.windowsDirectory() + "\\system\\oeminfo.ini";
}

void OemInfo::ref_oem_page() {
  for (const char* word : kTweakWords)
    ref_tweak(host_, word);
  Text19->setText(sysaccess::GetRegValue(HKCU, kSetupUserKey, "DefName"));
  Text20->setText(sysaccess::GetRegValue(HKCU, kSetupUserKey, "DefCompany"));
  // The boxes are disabled before their check boxes are cleared, and
  // clearing a ticked box runs its handler, which enables its text box
  // again: only a second pass, which finds the boxes clear, leaves every
  // box disabled. Callers therefore read the page twice.
  for (TextBox* OemInfo::*box : kDisableOrder)
    (this->*box)->setEnabled(false);
  for (CheckBox* OemInfo::*check : kClearOrder)
    (this->*check)->setValue(0);
  // The focus doesn't stay on a box that has just been locked: it goes back
  // to the box's check box.
  for (const CheckedBox& row : kCheckedBoxes) {
    CheckBox* check = this->*row.check;
    if ((this->*row.box)->hasFocus() && !(this->*row.box)->enabled() && check->takesUserInput() &&
        check->form().visible())
      check->setFocus();
  }
  const std::string ini = oemInfoIni();
  for (const IniLine& line : kIniLines)
    (this->*line.box)->setText(sysaccess::GetFromINI(line.section, line.key, ini));
  host_.buttons().Oem_apply->setEnabled(false);
}

void OemInfo::Oem_apply_Click() {
  const std::string ini = oemInfoIni();
  // A missing picture or a write-protected oemlogo.bmp fails here, and
  // nothing below is written.
  if (Check18->value() == 1)
    FileCopy(kLogoSource, host_.windowsDirectory() + "\\system\\oemlogo.bmp");
  // An enabled box is written whatever its check box shows; a disabled one
  // never is.
  for (const IdentityRow& row : kIdentityRows) {
    const TextBox* box = this->*row.box;
    if (!box->enabled()) continue;
    if (row.tweakRow != 0) {
      const tweak::Row& read = tweak::row(row.tweakRow);
      sysaccess::SetRegValue(read.hive, read.key, read.value, sysaccess::kRegSz, box->text());
    } else {
      sysaccess::SetRegValue(row.hive, row.key, row.value, sysaccess::kRegSz, box->text());
    }
  }
  // The three lines are written every time; a failed write goes unnoticed.
  for (const IniLine& line : kIniLines)
    platform::WritePrivateProfileStringA(line.section, line.key, (this->*line.box)->text().c_str(),
                                         ini.c_str());
  ref_oem_page();
  ref_oem_page();
}

void OemInfo::Check17_Click() {
  PictureBox* apply = host_.buttons().Oem_apply;
  if (Check17->value() == 1) {
    for (TextBox* box : {Text12, Text13, Text14})
      box->setEnabled(true);
    Text12->setFocus();
    Check18->setEnabled(true);
    apply->setEnabled(true);
  }
  if (Check17->value() == 0) {
    for (TextBox* box : {Text12, Text13, Text14})
      box->setEnabled(false);
    Check18->setEnabled(false);
    apply->setEnabled(false);
  }
  // Typed text is thrown away, and Apply waits for a change.
  ref_oem_page();
}

void OemInfo::rowCheckClicked(TextBox* box) {
  // The tick isn't looked at: clearing the box by hand leaves its text box
  // enabled, and Apply writes it.
  host_.buttons().Oem_apply->setEnabled(true);
  box->setEnabled(true);
  box->setFocus();
}

} // namespace pages
