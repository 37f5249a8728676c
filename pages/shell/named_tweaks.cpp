#include "pages/shell/named_tweaks.h"

#include "runtime/basic_error.h"

namespace pages {

using namespace runtime;
using namespace tweak;
using sysaccess::HKCR;
using sysaccess::HKCU;
using sysaccess::HKLM;
using sysaccess::HKU;
using sysaccess::kNotFound;

namespace {

// Longer key paths that only one row uses.
constexpr char kSound[] = ".DEFAULT\\Control Panel\\Sound";
constexpr char kTips[] = ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Tips";
constexpr char kCpu[] = "Hardware\\Description\\System\\CentralProcessor\\0";
constexpr char kSmallIcons[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SmallIcons";
constexpr char kOpenWith[] = "Software\\CLASSES\\*\\Shell\\OpenWith\\Command";
constexpr char kRecycleBin[] = "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder";
constexpr char kCurrentVersion[] = "Software\\Microsoft\\Windows\\CurrentVersion";

// Row 41 fills a second control besides Check14.
constexpr char kClockText[] = "Text6";

using R = Rule;
// clang-format off
constexpr std::array<Row, kRowCount> kRows{{
  {1,  kBeepOnErrors,          HKU,  kSound,  "Beep",              "Check1",     R::Pair,     "Yes", "No"},
  {2,  kWinSmCcr,              HKCU, kDESK,   "SmoothScroll",      "Check2(6)",  R::Pair,     "00000001", "00000000"},
  {3,  kXMouseAutoRaise,       HKCU, "Control Panel\\Mouse", "ActiveWindowTracking", "Check2(11)", R::Pair, "1", "0"},
  {4,  kQVOFAF,                HKCR, "QuickView", "",              "Check2(14)", R::TickedIf, "*"},
  {5,  k31FS,                  HKLM, kFSYS,   "Win31FileSystem",   "Check2(15)", R::TickedIf, "000"},
  {6,  kPMH,                   HKLM, kFSYS,   "VirtualHDIRQ",      "Check2(16)", R::TickedIf, "01000000"},
  {7,  kFSA,                   HKLM, kFSYS,   "SoftCompatMode",    "Check2(17)", R::TickedIf, "01000000"},
  {8,  kRSF,                   HKLM, kFSYS,   "NameNumericTail",   "Check2(18)", R::TickedIf, "001"},
  {9,  kPLF,                   HKLM, kFSYS,   "PreserveLongNames", "Check2(19)", R::TickedIf, "FFFFFFFF"},
  {10, kShowTipsOnStartup,     HKU,  kTips,   "Show",              "Check2(10)", R::Pair,     "00000001", "00000000"},
  // The same word as row 1: the search never gets this far.
  {11, kBeepOnErrors,          HKU,  kSound,  "Beep",              "Check1",     R::Pair,     "Yes", "No"},
  {12, kMoreCpuInfo,           HKLM, kCpu,    "VendorIdentifier",  "Check2(0)",  R::Pair,     "Genuine Intel", "GenuineIntel"},
  {13, kSF,                    HKCU, kPOL,    "NoSetFolders",      "st_m(4)",    R::PairPlus, "000", "001"},
  {14, kNF,                    HKCU, kPOL,    "NoFind",            "st_m(6)",    R::PairPlus, "000", "001"},
  {15, kST,                    HKCU, kPOL,    "NoSetTaskbar",      "st_m(5)",    R::PairPlus, "000", "001"},
  {16, kRun,                   HKCU, kPOL,    "NoRun",             "st_m(2)",    R::Pair,     "000", "001"},
  {17, kFindOnTheInternet,     HKLM, kINET0,  "",                  "Check2(1)",  R::TickedIf, "On the &Internet..."},
  {18, kDocuments,             HKCU, kPOL,    "NoRecentDocsMenu",  "st_m(1)",    R::Pair,     "000", "001"},
  {19, kUserLogOff,            HKCU, kPOL,    "NoLogOff",          "st_m(3)",    R::Pair,     "000", "001"},
  {20, kFavorites,             HKCU, kPOL,    "NoFavoritesMenu",   "st_m(0)",    R::Pair,     "000", "001"},
  {21, kSmallIconsOnStartMenu, HKCU, kSmallIcons, "SmallIcons",    "Check10",    R::Pair,     "Yes", "No"},
  {22, kOpenWithAlwaysEnabled, HKLM, kOpenWith, "",                "Check2(4)",  R::OpenWithVerb, kOpenAsCommand},
  {23, kDDM,                   HKCU, kDESK,   "MenuDropAlignment", "Combo1",     R::Choice,   "1", "0", "Right", "Left"},
  {24, kFS1,                   HKLM, kFSYS,   "ForceRMIO",         "Combo2",     R::Choice,   "00000000", "01000000", "Protected", "Real"},
  {25, kFS2,                   HKLM, kFSYS,   "DriveWriteBehind",  "Combo3",     R::Choice,   "FFFFFFFF", "00000000", "Protected", "Real"},
  {26, kFS3,                   HKLM, kFSYS,   "AsyncFileCommit",   "Combo4",     R::Choice,   "01", "00", "Asynchronous", "Synchronous"},
  {27, kTurnOffStartBanner,    HKCU, kPOL,    "NoStartBanner",     "Check2(9)",  R::Pair,     "00000000", "00000001"},
  {28, kTurnOffWindowAnimation, HKCU, "Control Panel\\Desktop\\WindowMetrics", "MinAnimate", "Check2(8)", R::Pair, "0", "1"},
  {29, kUse24hTimeFormat,      HKCU, kINTL,   "",                  "Check2(7)",  R::TimeFormat, kTimeFormatTicked},
  // Rows 30 and 31 are crossed: the word "Prefix ..." fills the box captioned
  // "Use Shortcut Arrows" and the other way round; each box shows the value its
  // own caption concerns.
  {30, kPrefixShortcutTo,      HKLM, "Software\\CLASSES\\lnkfile", "IsShortCut", "CD2(0)", R::ClearIf, kNotFound},
  {31, kUseShortcutArrows,     HKU,  kUPOL,   "link",              "CD2(1)",     R::ClearIf,  "00000000"},
  {32, kFullWindowDraging,     HKCU, kDESK,   "DragFullWindows",   "Check2(13)", R::Pair,     "1", "0"},
  {33, kSmoothFonts,           HKCU, kDESK,   "FontSmoothing",     "Check11",    R::Pair,     "1", "0"},
  {34, kFlexibleRycycleBin,    HKCR, kRecycleBin, "Attributes",    "Check2(3)",  R::Pair,     "70010020", "40010020"},
  {35, kSaveDesktopSettings,   HKCU, kPOL,    "NoSaveSettings",    "CD2(6)",     R::Pair,     "01000000", "00000000"},
  {36, kBlinkingTextCursor,    HKU,  ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate", "Check2(12)", R::ClearIf, "65535"},
  {37, kOpenFolderInMsDos,     HKCR, "Directory\\shell\\MSDOS Prompt here\\Command", "", "Check2(5)", R::TickedIf, "command.com /k cd %1"},
  {38, kUseHiColorIcons,       HKCU, "Control Panel\\desktop\\WindowMetrics", "Shell Icon BPP", "CD2(4)", R::Pair, "16", "8"},
  {39, kShowWindowsVersion,    HKCU, "Control Panel\\desktop", "PaintDesktopVersion", "CD2(3)", R::Pair, "1", "0"},
  {40, kExploreFromHere,       HKCR, "Directory\\shell\\ExploreHere\\Command", "", "Check2(2)", R::ClearIf, kNotFound},
  {41, kClockStaticCaption,    HKCU, kINTL,   kClockMorning,       "Check14",    R::ClockCaption},
  {42, kSystemsName,           HKLM, "System\\CurrentControlSet\\Control\\ComputerName", "ComputerName", "Text3", R::Copy},
  {43, kRegisteredUser,        HKLM, kCurrentVersion, "RegisteredOwner", "Text4",  R::Copy},
  {44, kRegisteredOrganization, HKLM, kCurrentVersion, "RegisteredOrganization", "Text5", R::Copy},
  {45, kOpenUnknownInNotepad,  HKCR, "Unknown\\shell\\Open in Notepad\\Command", "", "Check12", R::TickedIf, "Notepad %1"},
}};
// clang-format on

template <class T> T* as(Control* control, ControlKind kind) {
  return control && control->kind() == kind ? static_cast<T*>(control) : nullptr;
}

// The two-statement form of every check-box rule: one test that ticks, one
// that clears, each against the text as it was read (the click handlers that a
// tick fires may overwrite Hidden, never this text).
void tickOrClear(CheckBox& box, const std::string& text, const Row& row) {
  switch (row.rule) {
  case R::Pair:
    if (text == row.a) box.setValue(1);
    if (text == row.b) box.setValue(0);
    break;
  case R::PairPlus:
    if (text == row.a) box.setValue(1);
    if (text == row.b) box.setValue(0);
    if (text == kNotFound) box.setValue(1);
    break;
  case R::TickedIf:
    if (text == row.a) box.setValue(1);
    if (text != row.a) box.setValue(0);
    break;
  case R::ClearIf:
    if (text == row.a) box.setValue(0);
    if (text != row.a) box.setValue(1);
    break;
  default: break;
  }
}

void readClockCaption(PageHost& host, const Row& row, CheckBox& check14, TextBox& text6) {
  const std::string morning =
      host.throughHidden(sysaccess::GetRegValue(row.hive, row.key, kClockMorning));
  text6.setText(sysaccess::GetRegValue(row.hive, row.key, kClockAfternoon));
  if (morning != text6.text()) text6.setText("");
  // Never cleared here: ref_desk clears the box before it asks for this row.
  if (morning == text6.text() && !text6.text().empty()) check14.setValue(1);
  // Also after the tick above, whose click handler has just enabled it.
  text6.setEnabled(false);
}

} // namespace

namespace tweak {

const std::array<Row, kRowCount>& rows() { return kRows; }

const Row& row(int number) {
  if (number < 1 || number > static_cast<int>(kRowCount)) raiseError(kSubscriptOutOfRange);
  return kRows[static_cast<std::size_t>(number - 1)];
}

const Row* find(const std::string& word) {
  for (const Row& candidate : kRows)
    if (word == candidate.word) return &candidate;
  return nullptr;
}

} // namespace tweak

void ref_tweak(PageHost& host, const std::string& word) {
  const Row* found = tweak::find(word);
  if (!found) return;
  const Row& row = *found;
  Form& form = host.mainForm();
  Control* target = form.find(row.target);
  if (!target) return; // its page isn't on the form

  switch (row.rule) {
  case R::Copy:
    if (auto* box = as<TextBox>(target, ControlKind::TextBox))
      box->setText(sysaccess::GetRegValue(row.hive, row.key, row.value));
    return;
  case R::Choice:
    if (auto* combo = as<ComboBox>(target, ControlKind::ComboBox)) {
      const std::string text =
          host.throughHidden(sysaccess::GetRegValue(row.hive, row.key, row.value));
      if (text == row.a) combo->setText(row.shownA);
      if (text == row.b) combo->setText(row.shownB);
    }
    return;
  case R::ClockCaption: {
    auto* check14 = as<CheckBox>(target, ControlKind::CheckBox);
    auto* text6 = as<TextBox>(form.find(kClockText), ControlKind::TextBox);
    if (check14 && text6) readClockCaption(host, row, *check14, *text6);
    return;
  }
  default: break;
  }

  auto* box = as<CheckBox>(target, ControlKind::CheckBox);
  if (!box) return;
  switch (row.rule) {
  case R::OpenWithVerb: {
    const std::string text =
        host.throughHidden(sysaccess::GetRegValue(row.hive, row.key, row.value));
    // The comparison text is made anew from windir for each test.
    if (text == host.fields().windir + row.a) box->setValue(1);
    if (text != host.fields().windir + row.a) box->setValue(0);
    return;
  }
  case R::TimeFormat: {
    std::string joined;
    for (std::size_t i = 0; i < kTimeFormatValues.size(); ++i) {
      if (i > 0) joined += "-";
      joined += sysaccess::GetRegValue(row.hive, row.key, kTimeFormatValues[i]);
    }
    const std::string text = host.throughHidden(joined);
    if (text == row.a) box->setValue(1);
    if (text != row.a) box->setValue(0);
    return;
  }
  default:
    tickOrClear(*box, host.throughHidden(sysaccess::GetRegValue(row.hive, row.key, row.value)),
                row);
    return;
  }
}

} // namespace pages
