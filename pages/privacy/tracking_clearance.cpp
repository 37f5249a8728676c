#include "pages/privacy/tracking_clearance.h"

#include "pages/privacy/temp_clearing.h"
#include "pages/shell/named_tweaks.h"
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "sysaccess/system_helpers.h"

#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKCU;
using sysaccess::HKU;
using sysaccess::kNotFound;

namespace {

constexpr const char* kPolicies = tweak::kPOL;
// With its trailing backslash, as both the reader and the writer name it.
constexpr const char* kDesktop = "Control Panel\\Desktop\\";
constexpr const char* kExplorer =
    ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

// What Clear does for a ticked List box.
enum class Wipe {
  Key,         // delete the key with everything in it, then make it again, empty
  SplitKey,    // the same, but deleted in HKEY_CURRENT_USER and made in HKEY_USERS
  RecentFiles, // delete windir\recent\*.*
  TempFolder,  // EmptyTempFolder
};

struct MruList {
  const char* caption;
  Wipe wipe;
  sysaccess::Hive hive;
  std::string key;
};

// Seven of the nine keys are those of the .DEFAULT profile, not the user's.
const MruList kLists[11] = {
    {"RUN MRU", Wipe::Key, HKU, std::string(kExplorer) + "RunMRU"},
    {"FIND MRU", Wipe::Key, HKU, std::string(kExplorer) + "Doc Find Spec MRU"},
    {"DOCUMENT MRU", Wipe::Key, HKU, std::string(kExplorer) + "RecentDocs"},
    {"WORDPAD Files MRU", Wipe::Key, HKCU,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Wordpad\\Recent File List"},
    {"Start Menu Folder MRU", Wipe::RecentFiles, HKU, ""},
    {"Empty from Windows Temporary Folder", Wipe::TempFolder, HKU, ""},
    {"Power Toys' Send to Other Folder MRU", Wipe::Key, HKU,
     std::string(kExplorer) + "OtherFolder"},
    // The same bare word below the root of two hives: the key under
    // HKEY_CURRENT_USER is only ever deleted, the one under HKEY_USERS only
    // ever made.
    {"Windows Installation Files Locations MRU", Wipe::SplitKey, HKCU, "InstallLocationsMRU"},
    {"PRINTERS MRU", Wipe::Key, HKU, std::string(kExplorer) + "PrnPortsMRU"},
    {"FIND Computer MRU", Wipe::Key, HKU, std::string(kExplorer) + "FindComputerMRU"},
    {"PAINT Files MRU", Wipe::Key, HKU,
     ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Paint\\Recent File List"},
};
// Clear wipes them in this order.
constexpr int kWipingOrder[11] = {0, 1, 2, 3, 4, 5, 9, 10, 6, 7, 8};

// The special folders of the Start Menu. The writer's names of rows 6 to 9
// carry a minus sign behind the brace, which makes them plain folders; the
// names the reader looks for have none.
struct StartMenuFolder {
  const char* caption;
  const char* written; // below windir
  const char* sought;  // the bare name the reader searches for
};
constexpr StartMenuFolder kFolders[10] = {
    {"Control Panel ", "\\start menu\\Control Panel.{21ec2020-3aea-1069-a2dd-08002b30309d}",
     "Control Panel.{21ec2020-3aea-1069-a2dd-08002b30309d}"},
    {"Printers", "\\start menu\\Printers.{2227A280-3AEA-1069-A2DE-08002B30309D}",
     "Printers.{2227A280-3AEA-1069-A2DE-08002B30309D}"},
    {"Recycle Bin", "\\start menu\\Recycle Bin.{645FF040-5081-101B-9F08-00AA002F954E}",
     "Recycle Bin.{645FF040-5081-101B-9F08-00AA002F954E}"},
    {"Scheduled Tasks", "\\start menu\\Scheduled Tasks.{D6277990-4C6A-11CF-8D87-00AA0060F5BF}",
     "Scheduled Tasks.{D6277990-4C6A-11CF-8D87-00AA0060F5BF}"},
    {"Subscription Folder",
     "\\start menu\\Subscription Folder.{F5175861-2688-11d0-9C5E-00AA00A45957}",
     "Subscription Folder.{F5175861-2688-11d0-9C5E-00AA00A45957}"},
    {"Url History Folder",
     "\\start menu\\Url History Folder.{FF393560-C2A7-11CF-BFF4-444553540000}",
     "Url History Folder.{FF393560-C2A7-11CF-BFF4-444553540000}"},
    {"Dial-Up Networking",
     "\\start menu\\Dial-Up Networking.{-992CFFA0-F557-101A-88EC-00DD010CCC48}",
     "Dial-Up Networking.{992CFFA0-F557-101A-88EC-00DD010CCC48}"},
    {"My Computer", "\\start menu\\My Computer.{-20D04FE0-3AEA-1069-A2D8-08002B30309D}",
     "My Computer.{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
    {"InBox", "\\start menu\\InBox.{-00020D75-0000-0000-C000-000000000046}",
     "InBox.{00020D75-0000-0000-C000-000000000046}"},
    {"Network Neighborhood",
     "\\start menu\\Network Neighborhood.{-208D2C60-3AEA-1069-A2D7-08002B30309D}",
     "Network Neighborhood.{208D2C60-3AEA-1069-A2D7-08002B30309D}"},
};

// The reader's ten folder tests: the folder looked for and the box that gets
// the answer. The first five all land in stmenu_add(0); stmenu_add(6) to (9)
// are never set by a routine.
struct FolderTest {
  int folder;
  int box;
};
constexpr FolderTest kFolderTests[10] = {{9, 0}, {6, 0}, {7, 0}, {8, 0}, {0, 0},
                                         {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};

// The seven restrictions in the order Clear writes them. A tick keeps the item
// in the Start Menu, so the value written is the opposite of the tick.
// NoFind follows st_m(5), the box of NoSetTaskbar; st_m(6) is never read.
struct Restriction {
  const char* value;
  int box;
};
constexpr Restriction kRestrictions[7] = {
    {"NoRun", 2},        {"NoRecentDocsMenu", 1}, {"NoLogOff", 3}, {"NoFavoritesMenu", 0},
    {"NoSetFolders", 4}, {"NoSetTaskbar", 5},     {"NoFind", 5},
};
// The words the reader gives ref_tweak, in its order.
constexpr const char* kRestrictionWords[7] = {
    tweak::kRun, tweak::kDocuments, tweak::kUserLogOff, tweak::kFavorites,
    tweak::kSF,  tweak::kST,        tweak::kNF};
// Captions of the design; st_m(0) to (3) get theirs from the load routine.
constexpr const char* kRestrictionCaptions[7] = {
    "", "", "", "", "Settings/Folders", "Settings/Taskbar", "Find"};

// The layout, below the page title band. The left column stands in Frame4(0); the right column
// stands on the tab itself, above the frame, at these places relative to the frame.
constexpr int kLeft = 120, kLeftWidth = 3900, kRow = 240, kHeadingTop = 480;
constexpr int kRight = 4140, kRightWidth = 2220;
constexpr int kListTop = 780, kFoldersTop = 1020, kRestrictionsTop = 3540;
// The slider's extent (6906 x 1138 himetric) in twips.
constexpr runtime::Bounds kSliderBounds{kLeft, 4020, 3915, 645};

const std::string kHistoryOn("\x01\0\0\0", 4);

} // namespace

TrackingClearance::TrackingClearance(PageHost& host)
    : host_(host), menu_delay_slider(host.mainForm(), "menu_delay_slider", &host.pageFrame(0),
                                     kSliderBounds, {.max = 1}) {
  Form& form = host.mainForm();
  Frame& page = host.pageFrame(0);
  const Font heading{"MS Sans Serif", 8, true};

  auto& label1 = form.add<Label>("Label1", -1, &page, {kLeft, kHeadingTop, kLeftWidth, kRow});
  label1.setCaption("Clear Recent Lists (MRU's)");
  label1.setFont(heading);
  for (int i = 0; i < 11; ++i)
    List.add(form, i, &page, {kLeft, kListTop + i * kRow, kLeftWidth, kRow})
        .setCaption(kLists[i].caption);
  noHistory = &form.add<CheckBox>("noHistory", -1, &page, {kLeft, 3480, kLeftWidth, kRow});
  noHistory->setCaption("Dissable DOCUMENT History Feature");
  SMDS = &form.add<CheckBox>("SMDS", -1, &page, {kLeft, 3750, kLeftWidth, kRow});
  SMDS->setCaption("Set/Change Start Menu Display Speed");
  Text2 = &form.add<TextBox>(
      "Text2", -1, &page,
      {kLeft, kSliderBounds.top + kSliderBounds.height + 45, kSliderBounds.width, 285});
  Text2->setText("slow" + std::string(60, ' ') + "fast");

  // The right column belongs to the tab strip's tab of this page.
  Control* tabStrip = page.container();
  const int tab = page.containerTab();
  const auto onTab = [&](auto& control) -> auto& {
    control.placeOnTab(tab);
    return control;
  };
  const auto beside = [&](int top, int height) {
    return runtime::Bounds{page.left() + kRight, page.top() + top, kRightWidth, height};
  };
  auto& label17 = form.add<Label>("Label17", -1, tabStrip, beside(kHeadingTop, 2 * kRow));
  label17.setCaption("Add / Remove Items from Start Menu");
  label17.setFont(heading);
  onTab(label17);
  for (int i = 0; i < 10; ++i)
    onTab(stmenu_add.add(form, i, tabStrip, beside(kFoldersTop + i * kRow, kRow)))
        .setCaption(kFolders[i].caption);
  for (int i = 0; i < 7; ++i)
    onTab(st_m.add(form, i, tabStrip, beside(kRestrictionsTop + i * kRow, kRow)))
        .setCaption(kRestrictionCaptions[i]);

  const auto arm = [&host] { host.buttons().Clear->setEnabled(true); };
  noHistory->onClick = arm;
  st_m.onClick = [arm](int) { arm(); };
  stmenu_add.onClick = [arm](int) { arm(); };
  List.onClick = [this](int) { List_Click(); };
  SMDS->onClick = [this] { SMDS_Click(); };
  // Moving the slider arms nothing: no handler listens to it.

  host.buttons().Ref_st->onClick = [this] { Ref_st_Click(); };
  host.buttons().Clear->onClick = [this] { Clear_Click(); };
}

void TrackingClearance::List_Click() {
  // This looks at the List boxes alone: unticking the last of them disarms
  // Clear even when another change of the page is pending.
  host_.buttons().Clear->setEnabled(true);
  bool anyTicked = false;
  for (int i = 0; i < 11; ++i)
    if (List(i).value() == 1) anyTicked = true;
  if (!anyTicked) host_.buttons().Clear->setEnabled(false);
}

void TrackingClearance::SMDS_Click() {
  if (SMDS->value() == 1) {
    host_.buttons().Clear->setEnabled(true);
    menu_delay_slider.setEnabled(true);
  }
  if (SMDS->value() == 0) {
    host_.buttons().Clear->setEnabled(false);
    menu_delay_slider.setEnabled(false);
  }
}

void TrackingClearance::Ref_st_Click() {
  ref_tracking();
  host_.buttons().Clear->setEnabled(false);
  for (int i = 0; i < 11; ++i)
    List(i).setValue(0);
  // The Apply button of the Troubleshooting page is disarmed as well.
  host_.buttons().ondAp->setEnabled(false);
}

void TrackingClearance::ref_tracking() {
  // Document history: the REG_BINARY policy's two forms; any other text (a
  // REG_DWORD of that name reads "001") leaves the box as it is.
  const std::string history =
      host_.throughHidden(sysaccess::GetRegValue(HKCU, kPolicies, "NoRecentDocsHistory"));
  if (history == kNotFound) noHistory->setValue(0);
  if (history == "00000000") noHistory->setValue(0);
  if (history == "01000000") noHistory->setValue(1);

  // The Start Menu delay becomes the slider's min, 10.24 units a millisecond.
  // A delay that is no number raises Type mismatch, one of 3200 or more
  // Overflow; nothing here catches either.
  std::string delay = host_.throughHidden(sysaccess::GetRegValue(HKCU, kDesktop, "MenuShowDelay"));
  if (delay == kNotFound) delay = host_.throughHidden(std::string("0"));
  SMDS->setValue(0);
  const std::string scaled = toText(toDouble(delay) * 10.24);
  menu_delay_slider.setMin(toInteger(scaled));

  for (const char* word : kRestrictionWords)
    ref_tweak(host_, word);

  // The folder tests look for the bare name in the current folder of the
  // process, not below windir; the full path stored first is never used.
  for (const FolderTest& test : kFolderTests) {
    const StartMenuFolder& folder = kFolders[test.folder];
    host_.throughHidden(host_.fields().windir + "\\start menu\\" + folder.sought);
    const std::string name = host_.throughHidden(std::string(folder.sought));
    if (DirSearch(name, vbDirectory).name() == name)
      stmenu_add(test.box).setValue(1);
    else
      stmenu_add(test.box).setValue(0);
  }

  host_.buttons().Clear->setEnabled(false);
}

void TrackingClearance::Clear_Click() {
  using sysaccess::SetRegValue;
  const std::string& windir = host_.fields().windir;

  // 1. Document history: on writes the policy, off deletes it.
  if (noHistory->value() == 1)
    sysaccess::SetRegValueEx(HKCU, kPolicies, "", "NoRecentDocsHistory", kHistoryOn,
                             sysaccess::kRegBinary);
  if (noHistory->value() == 0) sysaccess::DelRegValue(HKCU, kPolicies, "NoRecentDocsHistory");

  // 2. The restrictions, never deleted.
  for (const Restriction& row : kRestrictions) {
    if (st_m(row.box).value() == 0)
      SetRegValue(HKCU, kPolicies, row.value, sysaccess::kRegDword, std::int16_t{1});
    if (st_m(row.box).value() == 1)
      SetRegValue(HKCU, kPolicies, row.value, sysaccess::kRegDword, std::int16_t{0});
  }

  // 3. From here on every failing statement is skipped.
  ResumeNext resume;

  // 4. Every folder row acts: ticked makes the folder, unticked removes it;
  // an existing, missing or non-empty folder makes the statement fail.
  for (int i = 0; i < 10; ++i) {
    const std::string folder = windir + kFolders[i].written;
    if (stmenu_add(i).value() == 1) resume([&] { MkDir(folder); });
    if (stmenu_add(i).value() == 0) resume([&] { RmDir(folder); });
  }

  // 5. The system's temporary folder passes through Hidden and goes nowhere.
  resume([&] { host_.throughHidden(sysaccess::TempPath()); });

  // 6. The slider's Enabled answers with its stored state, which is True for
  // this instance, so the delay is written on every Clear, SMDS ticked or not:
  // 100 x min / 1024, rounded, as REG_SZ digits.
  resume([&] {
    if (!menu_delay_slider.Enabled()) return;
    const double steps = toDouble(toText(menu_delay_slider.min() / 1024.0));
    const std::int16_t delay = toInteger(toText(steps * 100));
    SetRegValue(HKCU, kDesktop, "MenuShowDelay", sysaccess::kRegSz, delay);
  });

  // 7. The lists, in their wiping order. List boxes stay ticked afterwards.
  for (const int index : kWipingOrder) {
    if (List(index).value() != 1) continue;
    const MruList& list = kLists[index];
    switch (list.wipe) {
    case Wipe::Key:
      resume([&] { sysaccess::DelRegSubKey(list.hive, list.key); });
      resume([&] { SetRegValue(list.hive, list.key, "", sysaccess::kRegSz, std::string()); });
      break;
    case Wipe::SplitKey:
      resume([&] { sysaccess::DelRegSubKey(HKCU, list.key); });
      resume([&] { SetRegValue(HKU, list.key, "", sysaccess::kRegSz, std::string()); });
      break;
    case Wipe::RecentFiles: resume([&] { Kill(windir + "\\recent\\*.*"); }); break;
    case Wipe::TempFolder: resume([&] { EmptyTempFolder(windir); }); break;
    }
  }

  // 8. Read back; an error there leaves the rest of the page unread.
  resume([&] { ref_tracking(); });
}

} // namespace pages
