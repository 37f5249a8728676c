#include "pages/connection/troubleshooting.h"

#include "pages/shell/named_tweaks.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"

#include <array>
#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKCR;
using sysaccess::HKCU;
using sysaccess::HKLM;
using sysaccess::HKU;
using sysaccess::kNotFound;

namespace {

constexpr const char* kFileSystem = tweak::kFSYS;
constexpr const char* kNameSpace =
    "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace";
constexpr const char* kFault = "Software\\Microsoft\\Windows\\CurrentVersion\\Fault";
// The reader asks with a trailing backslash that the writer's path lacks.
constexpr const char* kFaultRead = "Software\\Microsoft\\Windows\\CurrentVersion\\Fault\\";
constexpr const char* kWindowMetrics = ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics";
constexpr const char* kDllIcon = "Software\\CLASSES\\dllfile\\DefaultIcon\\";
constexpr const char* kCplIcon = "Software\\CLASSES\\cplfile\\DefaultIcon\\";
constexpr const char* kBitmapIcon = "Software\\CLASSES\\Paint.Picture\\DefaultIcon\\";
constexpr const char* kShellIcon = "\\SYSTEM\\shell32.dll,-154"; // after windir

// The system items of the desktop: a subkey of NameSpace per item, whose
// default value is the name shown. The rows stand in the order of the writes.
struct DesktopItem {
  int index;
  const char* caption;
  const char* classId;
  const char* name; // written, and expected by the reader
};
constexpr DesktopItem kDesktopItems[] = {
    {0, "My Documents", "{450d8fba-ad25-11d0-98a8-0800361b1103}", "My Documents"},
    {1, "Dial-Up Networking", "{992CFFA0-F557-101A-88EC-00DD010CCC48}", "Dial-Up Networking"},
    {3, "Recycle Bin", "{645FF040-5081-101B-9F08-00AA002F954E}", "Recycle Bin"},
    {2, "Scheduled Tasks", "{D6277990-4C6A-11CF-8D87-00AA0060F5BF}", "Scheduled Tasks"},
    {4, "Control Panel", "{21EC2020-3AEA-1069-A2DD-08002B30309D}", "Control Panel"},
    {5, "Printers", "{2227A280-3AEA-1069-A2DE-08002B30309D}", "Printers"},
    {6, "Subscription Folder", "{F5175861-2688-11d0-9C5E-00AA00A45957}", "Subscription Folder"},
    {7, "URL History Folder", "{FF393560-C2A7-11CF-BFF4-444553540000}", "Url History Folder"},
    {8, "InBox", "{00020D75-0000-0000-C000-000000000046}", "Inbox"},
    {10, "My Computer", "{20D04FE0-3AEA-1069-A2D8-08002B30309D}", "My Computer"},
    {9, "Network Neighborhood", "{208D2C60-3AEA-1069-A2D7-08002B30309D}", "Network Neighborhood"},
};
constexpr std::array<int, 11> kDesktopReadingOrder{0, 1, 3, 2, 4, 5, 6, 7, 8, 9, 10};

const DesktopItem& itemOf(int index) {
  for (const DesktopItem& item : kDesktopItems)
    if (item.index == index) return item;
  raiseError(kSubscriptOutOfRange);
}

// The four health checks, in the reader's order. Each row says where its
// entry lives, when it counts as healthy and where its caption stands.
enum class Healthy { WhenEqual, WhenMissing };
struct HealthCheck {
  int index; // dsc(i), dsce(i)
  const char* caption;
  sysaccess::Hive hive;
  const char* key;
  const char* value;
  Healthy rule;
  const char* healthyText;
  bool hidesFix; // only the first check hides the repair button
};
constexpr const char* kNewLinkCommand = "RunDLL32 AppWiz.Cpl,NewLinkHere %2";
constexpr const char* kNewMenuHandler = "{D969A300-E7FF-11d0-A93B-00A0C90F2719}";
constexpr const char* kNewMenuKey =
    "Software\\CLASSES\\Directory\\Background\\shellex\\ContextMenuHandlers\\New";
constexpr const char* kExplorerPolicies = tweak::kPOL;
constexpr HealthCheck kHealthChecks[] = {
    {0, "Desktop Shortcut Creation", HKCR, ".lnk\\ShellNew", "Command", Healthy::WhenEqual,
     kNewLinkCommand, true},
    {3, "CD-ROM AutoRun Feature", HKCU, kExplorerPolicies, "NoDriveTypeAutoRun", Healthy::WhenEqual,
     "149", false},
    // NameNumericTail of 0 or 1 is what Check2(18) writes: a legal state that
    // is left unjudged, so the row keeps whatever it showed.
    {1, "Windows 98 Long File Names", HKLM, kFileSystem, "NameNumericTail", Healthy::WhenMissing,
     kNotFound, false},
    {2, "Windows Explorer File Menu", HKLM, kNewMenuKey, "", Healthy::WhenEqual, kNewMenuHandler,
     false},
};
constexpr std::uint32_t kFailingColor = 0xFF;   // pure red
constexpr std::uint32_t kPanelColor = 0xD0D0D0; // the shaded panel behind the checks

// ContigFileAllocSize: the three sizes, their three-character texts and the
// option of each.
struct AllocationSize {
  const char* text;
  std::int32_t bytes;
};
constexpr AllocationSize kAllocationSizes[] = {{"512", 512}, {"102", 1024}, {"204", 2048}};

// The file-system rows of the writer, in their order, each with its row of
// the named-tweak catalogue (which reads it back) and what it stores for a
// tick (or the first combo entry) and for the other state.
enum class Stored { Dword, Binary };
struct FileSystemRow {
  int check; // Check2(i), or -1 for a combo box
  ComboBox* Troubleshooting::*combo;
  const char* firstEntry; // the combo entry that stores `first`
  const char* otherEntry;
  int tweakRow; // its key and value name
  Stored stored;
  std::string_view first; // ticked, or firstEntry
  std::string_view other; // clear, or otherEntry
};
using namespace std::string_view_literals;
const FileSystemRow kFileSystemRows[] = {
    // "Long Filename Support" ticked means Win31FileSystem 0.
    {15, nullptr, nullptr, nullptr, 5, Stored::Dword, "0", "1"},
    {16, nullptr, nullptr, nullptr, 6, Stored::Binary, "\1\0\0\0"sv, "\0\0\0\0"sv},
    {17, nullptr, nullptr, nullptr, 7, Stored::Binary, "\1\0\0\0"sv, "\0\0\0\0"sv},
    {18, nullptr, nullptr, nullptr, 8, Stored::Dword, "1", "0"},
    {19, nullptr, nullptr, nullptr, 9, Stored::Binary, "\xFF\xFF\xFF\xFF"sv, "\0\0\0\0"sv},
    {-1, &Troubleshooting::Combo2, "Protected", "Real", 24, Stored::Binary, "\0\0\0\0"sv,
     "\1\0\0\0"sv},
    {-1, &Troubleshooting::Combo3, "Protected", "Real", 25, Stored::Binary, "\xFF\xFF\xFF\xFF"sv,
     "\0\0\0\0"sv},
    {-1, &Troubleshooting::Combo4, "Asynchronous", "Synchronous", 26, Stored::Binary, "\1"sv,
     "\0"sv},
};

// The words of the named-tweak reader for this page's file-system rows.
constexpr const char* kTweakWords[] = {tweak::kFS1, tweak::kFS2, tweak::kFS3, tweak::k31FS,
                                       tweak::kPMH, tweak::kFSA, tweak::kRSF, tweak::kPLF};

// ---- Layout -----------------------------------------------------------------

struct Check2Row {
  int index;
  const char* caption;
  int top;
  int width;
};
constexpr Check2Row kCheck2Rows[] = {
    {16, "Protected-Mode HD Interrupt Handling", 810, 3060},
    {17, "File Sharing and Locking Symantics ", 1050, 3000},
    {15, "Long Filename Support", 1290, 3090},
    {18, "Remove Short Filename Tildes", 1530, 3000},
    {19, "Preserve LFN for Legacy Applications ", 1770, 3090},
    {20, "Optimize Contiguous File Allocation Size", 2010, 3150},
};
constexpr const char* kDefgragCaptions[] = {" 512 bytes", "1024 bytes", "2048 bytes"};
constexpr int kDefgragTops[] = {2250, 2460, 2670};

struct ComboRow {
  int label;
  const char* caption;
  ComboBox* Troubleshooting::*combo;
  const char* name;
  int left, top, width;
  const char* entries[2];
};
constexpr ComboRow kComboRows[] = {
    {1,
     "32-bit Disk Access Mode",
     &Troubleshooting::Combo2,
     "Combo2",
     5220,
     2940,
     1110,
     {"Protected", "Real"}},
    {3,
     "Write Behind Cache Mode",
     &Troubleshooting::Combo3,
     "Combo3",
     5220,
     3270,
     1110,
     {"Protected", "Real"}},
    {2,
     "Buffer Commits",
     &Troubleshooting::Combo4,
     "Combo4",
     4920,
     3600,
     1410,
     {"Asynchronous", "Synchronous"}},
};

struct CheckPlace {
  int index;
  int labelLeft, labelTop, boxLeft, boxTop;
};
constexpr CheckPlace kCheckPlaces[] = {
    {0, 150, 4560, 2280, 4590},
    {1, 3360, 4350, 5550, 4350},
    {2, 150, 4320, 2280, 4350},
    {3, 3360, 4590, 5550, 4590},
};

const HealthCheck& checkOf(int index) {
  for (const HealthCheck& check : kHealthChecks)
    if (check.index == index) return check;
  raiseError(kSubscriptOutOfRange);
}

} // namespace

Troubleshooting::Troubleshooting(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(2);
  const Font heading{"MS Sans Serif", 8, true};

  Label11 = &form.add<Label>("Label11", -1, page, {240, 540, 2745, 225});
  Label11->setCaption("Add / Remove from Desktop");
  Label11->setFont(heading);
  for (int i = 0; i <= 10; ++i)
    ondesk.add(form, i, page, {240, 810 + 240 * i, 2745, 225}).setCaption(itemOf(i).caption);

  Label18.add(form, 0, page, {3180, 540, 1665, 195}).setCaption("File System");
  Label18(0).setFont(heading);
  for (const Check2Row& row : kCheck2Rows)
    host.Check2()
        .add(form, row.index, page, {3180, row.top, row.width, 195})
        .setCaption(row.caption);
  for (int i = 0; i < 3; ++i) {
    OptionButton& option = defgrag.add(form, i, page, {3420, kDefgragTops[i], 1215, 195});
    option.setCaption(kDefgragCaptions[i]);
    option.setEnabled(false);
  }
  for (const ComboRow& row : kComboRows) {
    Label14.add(form, row.label, page, {3180, row.top + 45, row.left - 3180 - 60, 255})
        .setCaption(row.caption);
    ComboBox& combo = form.add<ComboBox>(row.name, -1, page, {row.left, row.top, row.width, 315});
    for (const char* entry : row.entries)
      combo.addItem(entry);
    this->*row.combo = &combo;
  }

  Label35 = &form.add<Label>("Label35", -1, page, {0, 3990, 6435, 1485});
  Label35->setBackColor(kPanelColor);
  Label38 = &form.add<Label>("Label38", -1, page, {120, 4050, 2985, 195});
  Label38->setCaption("Common Registry Problems Checks");
  Label38->setFont(heading);
  Label38->setTransparent(true);
  for (const CheckPlace& place : kCheckPlaces) {
    dsc.add(form, place.index, page,
            {place.labelLeft, place.labelTop, place.boxLeft - place.labelLeft - 30, 195})
        .setCaption(checkOf(place.index).caption);
    CheckBox& indicator =
        dsce.add(form, place.index, page, {place.boxLeft, place.boxTop, 195, 195});
    indicator.setEnabled(false); // an indicator only
    indicator.setBackColor(kPanelColor);
  }
  fix_ = &form.add<CommandButton>("fix_", -1, page, {150, 4830, 1095, 285});
  fix_->setCaption("Fix Error(s)");
  fix_->setVisible(false);
  Check3 = &form.add<CheckBox>("Check3", -1, page, {150, 5190, 3225, 195});
  Check3->setCaption("Log Application Errors (FAULTLOG.TXT)");
  Check3->setBackColor(kPanelColor);

  PictureBox* apply = host.buttons().ondAp;
  const auto arm = [apply] { apply->setEnabled(true); };
  const auto armIndexed = [apply](int) { apply->setEnabled(true); };
  ondesk.onClick = armIndexed;
  defgrag.onClick = armIndexed;
  Combo2->onClick = arm;
  Combo3->onClick = arm;
  Combo4->onClick = arm;
  Check3->onClick = arm;
  fix_->onClick = [this] { fix__Click(); };
  host.buttons().ref_ond->onClick = [this] { ref_trouble(); };
  apply->onClick = [this] { ondAp_Click(); };
}

CheckBox* Troubleshooting::desktopBox(const char* designName) const {
  Control* control = host_.mainForm().find(designName);
  if (!control || control->kind() != ControlKind::CheckBox) return nullptr;
  return static_cast<CheckBox*>(control);
}

void Troubleshooting::defgragFollowsCheck2() {
  const int value = host_.Check2()(20).value();
  if (value == 1)
    for (int i = 0; i < 3; ++i)
      defgrag(i).setEnabled(true);
  if (value == 0)
    for (int i = 0; i < 3; ++i)
      defgrag(i).setEnabled(false);
}

void Troubleshooting::readHealthChecks() {
  for (const HealthCheck& check : kHealthChecks) {
    const std::string text = sysaccess::GetRegValue(check.hive, check.key, check.value);
    bool healthy = text == check.healthyText;
    bool failing = !healthy;
    if (check.rule == Healthy::WhenMissing && (text == "000" || text == "001"))
      failing = false; // neither branch: the row stays as it was
    Label& caption = dsc(check.index);
    CheckBox& indicator = dsce(check.index);
    if (healthy) {
      indicator.setValue(1);
      if (check.hidesFix) fix_->setVisible(false);
      indicator.setVisible(true);
      caption.setCaption(check.caption);
      caption.setBackColor(kButtonFace);
    }
    if (failing) {
      indicator.setValue(0);
      fix_->setVisible(true);
      indicator.setVisible(false);
      // Appended to what the label shows: each failing pass adds one more.
      caption.setCaption(caption.caption() + " Error");
      caption.setBackColor(kFailingColor);
    }
  }
}

void Troubleshooting::ref_trouble() {
  for (const char* word : kTweakWords)
    ref_tweak(host_, word);

  if (sysaccess::GetRegValue(HKLM, kFaultRead, "LogFile") == kNotFound)
    Check3->setValue(0);
  else
    Check3->setValue(1);

  // A REG_DWORD reads as three characters: 1024 reads "102", so 1020 and
  // 1025 count as 1024 as well.
  ControlArray<CheckBox>& check2 = host_.Check2();
  const std::string allocation =
      host_.throughHidden(sysaccess::GetRegValue(HKLM, kFileSystem, "ContigFileAllocSize"));
  bool known = false;
  for (int option = 0; option < 3; ++option) {
    if (allocation != kAllocationSizes[option].text) continue;
    known = true;
    for (int i = 0; i < 3; ++i)
      defgrag(i).setEnabled(true);
    check2(20).setValue(1);
    defgrag(option).setValue(true);
    if (option == 2) defgrag(1).setEnabled(true);
  }
  if (!known) check2(20).setValue(0);

  readHealthChecks();

  if (CheckBox* wit = desktopBox("wit")) {
    const std::string wrap = sysaccess::GetRegValue(HKU, kWindowMetrics, "IconTitleWrap");
    if (wrap == "0") wit->setValue(0);
    if (wrap == "1") wit->setValue(1);
    if (wrap == kNotFound) wit->setValue(0);
  }

  for (const int index : kDesktopReadingOrder) {
    const DesktopItem& item = itemOf(index);
    const std::string name =
        sysaccess::GetRegValue(HKLM, std::string(kNameSpace) + "\\" + item.classId, "");
    // A name of another kind (a translated one, say) leaves the box alone.
    if (name == item.name) ondesk(index).setValue(1);
    if (name == kNotFound) ondesk(index).setValue(0);
  }

  const std::string shellIcon = host_.windowsDirectory() + kShellIcon;
  for (auto [key, name] :
       {std::pair{kDllIcon, "icn_desc(0)"}, std::pair{kCplIcon, "icn_desc(1)"}}) {
    if (CheckBox* box = desktopBox(name)) {
      if (sysaccess::GetRegValue(HKLM, key, "") == shellIcon)
        box->setValue(1);
      else
        box->setValue(0);
    }
  }
  if (CheckBox* box = desktopBox("icn_desc(2)")) {
    const std::string icon = sysaccess::GetRegValue(HKLM, kBitmapIcon, "");
    if (icon == "%1") box->setValue(1);
    if (icon.empty()) box->setValue(0);
  }

  host_.buttons().ondAp->setEnabled(false);
}

void Troubleshooting::ondAp_Click() {
  const std::string windir = host_.windowsDirectory();
  // Windows' own fault-log switch; clearing it removes the whole Fault key.
  if (Check3->value() == 0) sysaccess::DelRegSubKey(HKLM, kFault);
  if (Check3->value() == 1)
    sysaccess::SetRegValue(HKLM, kFault, "LogFile", sysaccess::kRegSz, windir + "\\FAULTLOG.TXT");
  host_.buttons().ondAp->setEnabled(false);

  ControlArray<CheckBox>& check2 = host_.Check2();
  if (check2(20).value() == 1) {
    // No option selected writes nothing and leaves the old value.
    for (int option = 0; option < 3; ++option)
      if (defgrag(option).value())
        sysaccess::SetRegValue(HKLM, kFileSystem, "ContigFileAllocSize", sysaccess::kRegDword,
                               kAllocationSizes[option].bytes);
  }
  if (check2(20).value() == 0) sysaccess::DelRegValue(HKLM, kFileSystem, "ContigFileAllocSize");

  // Writes first, then deletions, each pass in the table's order. Deleting
  // an item takes its key with anything else that stood in it.
  for (const DesktopItem& item : kDesktopItems)
    if (ondesk(item.index).value() == 1)
      sysaccess::SetRegValue(HKLM, std::string(kNameSpace) + "\\" + item.classId, "",
                             sysaccess::kRegSz, std::string(item.name));
  for (const DesktopItem& item : kDesktopItems)
    if (ondesk(item.index).value() == 0)
      sysaccess::DelRegSubKey(HKLM, std::string(kNameSpace) + "\\" + item.classId);

  if (CheckBox* wit = desktopBox("wit")) {
    if (wit->value() == 1)
      sysaccess::SetRegValue(HKU, kWindowMetrics, "IconTitleWrap", sysaccess::kRegSz,
                             std::string("1"));
    if (wit->value() == 0)
      sysaccess::SetRegValue(HKU, kWindowMetrics, "IconTitleWrap", sysaccess::kRegSz,
                             std::string("0"));
  }
  const std::string shellIcon = windir + kShellIcon;
  for (auto [key, name] :
       {std::pair{kDllIcon, "icn_desc(0)"}, std::pair{kCplIcon, "icn_desc(1)"}}) {
    if (CheckBox* box = desktopBox(name)) {
      if (box->value() == 1) sysaccess::SetRegValue(HKLM, key, "", sysaccess::kRegSz, shellIcon);
      if (box->value() == 0)
        sysaccess::SetRegValue(HKLM, key, "", sysaccess::kRegSz, std::string("%1"));
    }
  }
  if (CheckBox* box = desktopBox("icn_desc(2)")) {
    if (box->value() == 1)
      sysaccess::SetRegValue(HKLM, kBitmapIcon, "", sysaccess::kRegSz, std::string("%1"));
    if (box->value() == 0)
      sysaccess::SetRegValue(HKLM, kBitmapIcon, "", sysaccess::kRegSz, std::string());
  }

  writeFileSystemRows();
  ref_trouble();
}

void Troubleshooting::writeFileSystemRows() {
  // The binary values go through SetRegValueEx as one character a byte.
  const auto store = [](const FileSystemRow& row, std::string_view data) {
    const tweak::Row& read = tweak::row(row.tweakRow);
    if (row.stored == Stored::Dword)
      sysaccess::SetRegValue(read.hive, read.key, read.value, sysaccess::kRegDword,
                             std::string(data));
    else
      sysaccess::SetRegValueEx(read.hive, read.key, "", read.value, std::string(data),
                               sysaccess::kRegBinary);
  };
  for (const FileSystemRow& row : kFileSystemRows) {
    if (row.check >= 0) {
      const int value = host_.Check2()(row.check).value();
      if (value == 1) store(row, row.first);
      if (value == 0) store(row, row.other);
    } else {
      // A combo box with nothing selected writes nothing.
      const std::string text = (this->*row.combo)->text();
      if (text == row.firstEntry) store(row, row.first);
      if (text == row.otherEntry) store(row, row.other);
    }
  }
}

void Troubleshooting::fix__Click() {
  // All four entries are set right whatever the checks found.
  sysaccess::SetRegValue(HKCR, ".lnk\\ShellNew", "Command", sysaccess::kRegSz,
                         std::string(kNewLinkCommand));
  sysaccess::DelRegValue(HKLM, kFileSystem, "NameNumericTail");
  sysaccess::SetRegValue(HKLM, kNewMenuKey, "", sysaccess::kRegSz, std::string(kNewMenuHandler));
  sysaccess::SetRegValue(HKCU, kExplorerPolicies, "NoDriveTypeAutoRun", sysaccess::kRegDword,
                         std::int32_t{149});
  ref_trouble();
}

} // namespace pages
