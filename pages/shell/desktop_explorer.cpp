#include "pages/shell/desktop_explorer.h"

#include "pages/shell/named_tweaks.h"
#include "runtime/basic_error.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKCR;
using sysaccess::HKCU;
using sysaccess::HKLM;
using sysaccess::HKU;
using sysaccess::kNotFound;
namespace tw = tweak;

namespace {

// The default profile's window metrics: icon size and spacing, animation.
constexpr char kWM[] = ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics";
// The small d is kept where the values are written.
constexpr char kDESKL[] = "Control Panel\\desktop";

// The words ref_desk reads, in its order.
constexpr std::array<const char*, 26> kDeskWords{
    tw::kUseHiColorIcons,
    tw::kShowWindowsVersion,
    tw::kSaveDesktopSettings,
    tw::kUseShortcutArrows,
    tw::kPrefixShortcutTo,
    tw::kWinSmCcr,
    tw::kQVOFAF,
    tw::kBeepOnErrors,
    tw::kMoreCpuInfo,
    tw::kXMouseAutoRaise,
    tw::kOpenWithAlwaysEnabled,
    tw::kDDM,
    tw::kFullWindowDraging,
    tw::kSmallIconsOnStartMenu,
    tw::kExploreFromHere,
    tw::kSmoothFonts,
    tw::kOpenFolderInMsDos,
    tw::kFindOnTheInternet,
    tw::kClockStaticCaption,
    tw::kUse24hTimeFormat,
    tw::kOpenUnknownInNotepad,
    tw::kFlexibleRycycleBin,
    tw::kTurnOffWindowAnimation,
    tw::kTurnOffStartBanner,
    tw::kBlinkingTextCursor,
    tw::kShowTipsOnStartup,
};

// Four-byte REG_BINARY data, one character a byte.
const std::string kBytes00("\0\0\0\0", 4);
const std::string kBytes01("\x01\0\0\0", 4);
const std::string kRecycleBinFlexible("\x70\x01\0\x20", 4);
const std::string kRecycleBinPlain("\x40\x01\0\x20", 4);

// ---- Layout -------------------------------------------------------------
// SSTab1 fills the page frame below the title band. Each of its tabs holds
// one borderless panel over the strip's body, so that the controls stand on
// the button face whatever colour the system gives a tab control's body; the
// controls' positions are twips from their panel's top-left corner.
constexpr Bounds kStrip{60, 480, 6315, 4935};
constexpr Bounds kPanel{45, 375, 6225, 4500};
constexpr int kFirstRow = 120, kRowHeight = 255;
constexpr int kColumnLeft[2] = {150, 3225};
constexpr int kColumnWidth = 3015;

enum class BoxKind { Check2, CD2, Single };
struct MiscBox {
  BoxKind kind;
  int index;                          // Check2 and CD2
  CheckBox* DesktopExplorer::*single; // Single
  const char* name;                   // Single
  const char* designCaption;          // replaced at form load unless noted
  int column;
};
constexpr MiscBox kMiscBoxes[] = {
    // Left column: the shell and Explorer.
    {BoxKind::CD2, 0, nullptr, nullptr, "Check6", 0},
    {BoxKind::CD2, 1, nullptr, nullptr, "Check6", 0},
    {BoxKind::CD2, 3, nullptr, nullptr, "Check6", 0},
    {BoxKind::CD2, 4, nullptr, nullptr, "Check6", 0},
    {BoxKind::CD2, 6, nullptr, nullptr, "Check6", 0},
    {BoxKind::Check2, 2, nullptr, nullptr, "Check2", 0},
    {BoxKind::Check2, 5, nullptr, nullptr, "Check2", 0},
    {BoxKind::Check2, 4, nullptr, nullptr, "Check2", 0},
    {BoxKind::Single, 0, &DesktopExplorer::Check12, "Check12", "Check1", 0},
    {BoxKind::Check2, 14, nullptr, nullptr, "QuickView Option for All Files", 0}, // kept
    {BoxKind::Check2, 1, nullptr, nullptr, "Check2", 0},
    {BoxKind::Check2, 3, nullptr, nullptr, "Check2", 0},
    {BoxKind::Single, 0, &DesktopExplorer::Check10, "Check10", "Check1", 0},
    // Right column: the desktop, keyboard, mouse and clock.
    {BoxKind::Single, 0, &DesktopExplorer::Check1, "Check1", "Check1", 1},
    {BoxKind::Check2, 0, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 6, nullptr, nullptr, "Windows Smooth Scrolling ", 1}, // kept
    {BoxKind::Check2, 8, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 9, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 10, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 11, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 12, nullptr, nullptr, "Check2", 1},
    {BoxKind::Check2, 13, nullptr, nullptr, "Check2", 1},
    {BoxKind::Single, 0, &DesktopExplorer::Check11, "Check11", "Check1", 1},
    {BoxKind::Check2, 7, nullptr, nullptr, "Check2", 1},
    {BoxKind::Single, 0, &DesktopExplorer::Check14, "Check14", "Check1", 1},
};

// The Icons tab: a label heading each number box, whose spin control stands
// at its right.
struct IconRow {
  Label* DesktopExplorer::*label;
  const char* labelName;
  const char* caption;
  TextBox* DesktopExplorer::*box;
  const char* boxName;
  SpinControl* DesktopExplorer::*spin;
  const char* spinName;
};
constexpr IconRow kIconRows[] = {
    {&DesktopExplorer::icnW, "icnW", "Icon Size", &DesktopExplorer::icnWset, "icnWset",
     &DesktopExplorer::UpDown3, "UpDown3"},
    {&DesktopExplorer::icnVspac, "icnVspac", "Icon Vertical Spacing", &DesktopExplorer::icnVset,
     "icnVset", &DesktopExplorer::UpDown2, "UpDown2"},
    {&DesktopExplorer::icnHspac, "icnHspac", "Icon Horzontal Spacing", &DesktopExplorer::icnHset,
     "icnHset", &DesktopExplorer::UpDown1, "UpDown1"},
};
constexpr const char* kIconDescriptions[] = {"DLL (Dynamin Link Libraries)", "CPL (Control Panels)",
                                             "BMP (Bitmap files)"};

// The Task Management tab: two headed pairs of time-out boxes.
struct TimeoutPair {
  const char* heading;
  CheckBox* DesktopExplorer::*byDefault;
  const char* defaultName;
  CheckBox* DesktopExplorer::*minimum;
  const char* minimumName;
};
constexpr TimeoutPair kTimeoutPairs[] = {
    {"Taks Manager End Task Timeout", &DesktopExplorer::timeout1, "timeout1",
     &DesktopExplorer::timeout2, "timeout2"},
    {"Automatic End Task Timeout", &DesktopExplorer::timeout3, "timeout3",
     &DesktopExplorer::timeout4, "timeout4"},
};

enum Tab { kMiscellaneus = 0, kIcons = 1, kTaskManagement = 2 };
constexpr const char* kTabCaptions[] = {"Miscellaneus", "Icons", "Task Management"};

// ---- Writing --------------------------------------------------------------

std::string parentOf(const std::string& key) { return key.substr(0, key.rfind('\\')); }

void writeText(sysaccess::Hive hive, const std::string& key, const std::string& name,
               const std::string& text) {
  sysaccess::SetRegValue(hive, key, name, sysaccess::kRegSz, text);
}

void writeBinary(sysaccess::Hive hive, const std::string& key, const std::string& name,
                 const std::string& bytes) {
  sysaccess::SetRegValueEx(hive, key, "", name, bytes, sysaccess::kRegBinary);
}

// A box whose two states write two texts to the value of a catalogue row.
void textByBox(const CheckBox& box, const tw::Row& row, const char* ticked, const char* clear) {
  if (box.value() == 1) writeText(row.hive, row.key, row.value, ticked);
  if (box.value() == 0) writeText(row.hive, row.key, row.value, clear);
}

void binaryByBox(const CheckBox& box, const tw::Row& row, const std::string& ticked,
                 const std::string& clear) {
  if (box.value() == 1) writeBinary(row.hive, row.key, row.value, ticked);
  if (box.value() == 0) writeBinary(row.hive, row.key, row.value, clear);
}

} // namespace

DesktopExplorer::DesktopExplorer(PageHost& host) : host_(host) {
  build();
  connectHandlers();
}

void DesktopExplorer::build() {
  Form& form = host_.mainForm();
  SSTab1 = &form.add<TabStrip>("SSTab1", -1, &host_.pageFrame(5), kStrip);
  SSTab1->setTabs(3);
  SSTab1->setTabsPerRow(3);
  for (int tab = 0; tab < 3; ++tab)
    SSTab1->setTabCaption(tab, kTabCaptions[tab]);
  SSTab1->setTab(kMiscellaneus);
  for (int tab = 0; tab < 3; ++tab) {
    Frame& panel = SSTab1Panel.add(form, tab, SSTab1, kPanel);
    panel.setBordered(false);
    panel.placeOnTab(tab);
  }
  Control* const misc = &SSTab1Panel(kMiscellaneus);
  Control* const icons = &SSTab1Panel(kIcons);
  Control* const tasks = &SSTab1Panel(kTaskManagement);

  // Miscellaneus: two columns of boxes, the clock caption's text box and the
  // menu alignment under the right one.
  int top[2] = {kFirstRow, kFirstRow};
  for (const MiscBox& row : kMiscBoxes) {
    const Bounds at{kColumnLeft[row.column], top[row.column], kColumnWidth, kRowHeight};
    top[row.column] += kRowHeight;
    CheckBox* box = nullptr;
    switch (row.kind) {
    case BoxKind::Check2: box = &host_.Check2().add(form, row.index, misc, at); break;
    case BoxKind::CD2: box = &CD2.add(form, row.index, misc, at); break;
    case BoxKind::Single:
      box = &form.add<CheckBox>(row.name, -1, misc, at);
      this->*row.single = box;
      break;
    }
    box->setCaption(row.designCaption);
  }
  const int right = kColumnLeft[1];
  Text6 = &form.add<TextBox>("Text6", -1, misc, {right + 240, top[1] + 15, 2535, 285});
  Text6->setEnabled(false);
  const int below = top[1] + 420;
  auto& alignment = Label14.add(form, 0, misc, {right, below, kColumnWidth, 255});
  alignment.setCaption("Drop-Down Menus Alignment");
  Combo1 = &form.add<ComboBox>("Combo1", -1, misc, {right + 240, below + 255, 1455, 315});
  Combo1->addItem("Left");
  Combo1->addItem("Right");

  // Icons: three number boxes, each driven by its spin control (0 to 99 in
  // steps of 2, starting at 16, never set from the text), then the title
  // wrap and the descriptive icons of the Troubleshooting page.
  int iconTop = kFirstRow + 120;
  for (const IconRow& row : kIconRows) {
    auto& label = form.add<Label>(row.labelName, -1, icons, {240, iconTop + 30, 2040, 255});
    label.setCaption(row.caption);
    this->*row.label = &label;
    auto& box = form.add<TextBox>(row.boxName, -1, icons, {2400, iconTop, 615, 285});
    box.setLocked(true);
    this->*row.box = &box;
    auto& spin = form.add<SpinControl>(row.spinName, -1, icons, {3015, iconTop, 255, 285});
    spin.setRange(0, 99);
    spin.setIncrement(2);
    spin.setValue(16);
    this->*row.spin = &spin;
    iconTop += 405;
  }
  wit = &form.add<CheckBox>("wit", -1, icons, {240, iconTop + 120, 3000, kRowHeight});
  wit->setCaption("Wrap Icon Titles");
  Label5 = &form.add<Label>("Label5", -1, icons, {240, iconTop + 600, 3000, 255});
  Label5->setCaption("Use Descriptive Icons");
  for (int i = 0; i < 3; ++i) {
    auto& box =
        icn_desc.add(form, i, icons, {480, iconTop + 855 + kRowHeight * i, 3600, kRowHeight});
    box.setCaption(kIconDescriptions[i]);
  }

  // Task Management: the automatic end of tasks, then the two time-out pairs.
  auto& endTasks = ex_opt.add(form, 0, tasks, {240, kFirstRow + 120, 5835, kRowHeight});
  endTasks.setCaption("Forced Automatic End of Pending Tasks on Windows Exit");
  int pairTop = kFirstRow + 600;
  for (const TimeoutPair& pair : kTimeoutPairs) {
    const int index = static_cast<int>(&pair - kTimeoutPairs);
    auto& heading = Label4.add(form, index, tasks, {240, pairTop, 4000, 255});
    heading.setCaption(pair.heading);
    auto& byDefault =
        form.add<CheckBox>(pair.defaultName, -1, tasks, {480, pairTop + 255, 1455, kRowHeight});
    byDefault.setCaption("Default");
    auto& minimum =
        form.add<CheckBox>(pair.minimumName, -1, tasks, {2040, pairTop + 255, 1455, kRowHeight});
    minimum.setCaption("Minimum");
    this->*pair.byDefault = &byDefault;
    this->*pair.minimum = &minimum;
    pairTop += 720;
  }
}

void DesktopExplorer::connectHandlers() {
  PageButtons& buttons = host_.buttons();
  buttons.applyb->onClick = [this] { applyb_Click(); };
  buttons.refreshb->onClick = [this] { refreshb_Click(); };

  CD2.onClick = [this](int) { armApply(); };
  Combo1->onClick = [this] { armApply(); };
  ex_opt.onClick = [this](int) { armApply(); };
  // These four also leave "No" or "Yes" in Hidden; nothing reads it.
  for (CheckBox* box : {Check1, Check10, Check11, Check12}) {
    box->onClick = [this, box] {
      armApply();
      host_.Hidden().setText(box->value() == 0 ? "No" : "Yes");
    };
  }
  Check14->onClick = [this] { Check14_Click(); };
  timeout1->onClick = [this] { pairTimeouts(*timeout1, *timeout2); };
  timeout2->onClick = [this] { pairTimeouts(*timeout2, *timeout1); };
  timeout3->onClick = [this] { pairTimeouts(*timeout3, *timeout4); };
  timeout4->onClick = [this] { pairTimeouts(*timeout4, *timeout3); };
  const auto spinShows = [this](SpinControl* spin, TextBox* box) {
    spin->onChange = [this, spin, box] {
      box->setText(std::to_string(spin->value()));
      armApply();
    };
  };
  spinShows(UpDown1, icnHset);
  spinShows(UpDown2, icnVset);
  spinShows(UpDown3, icnWset);
  // Read and written by the Troubleshooting page: they arm its Apply button.
  wit->onClick = [this] { host_.buttons().ondAp->setEnabled(true); };
  icn_desc.onClick = [this](int) { host_.buttons().ondAp->setEnabled(true); };
}

void DesktopExplorer::armApply() { host_.buttons().applyb->setEnabled(true); }

void DesktopExplorer::Check14_Click() {
  armApply();
  const bool ticked = Check14->value() == 1;
  Text6->setEnabled(ticked);
  // From the second click on, a tick sends the user to the caption's text.
  // A control on an inner tab that isn't in front can't hold the focus here,
  // so the move is left out then rather than failing.
  if (ticked && toDouble(host_.fields().clock_focus_armed) == 1 && Text6->takesUserInput())
    Text6->setFocus();
  host_.fields().clock_focus_armed = std::int16_t{1};
}

void DesktopExplorer::pairTimeouts(CheckBox& clicked, CheckBox& other) {
  if (clicked.value() == 0) other.setValue(1);
  if (clicked.value() == 1) other.setValue(0);
  armApply();
}

std::string DesktopExplorer::gapText(const std::string& size, const std::string& spacing) {
  const std::int16_t twips = toInteger(std::fabs(Val(spacing)));
  return generalForm((32 - Val(size)) + (twips - 480) / 15.0);
}

std::string DesktopExplorer::spacingText(const std::string& size, const std::string& gap) {
  const std::int16_t inner = toInteger(((Val(size) - 32) + Val(gap)) * 15 + 480);
  // The sign change is 16-bit as well: -32768 has no positive counterpart.
  if (inner == std::numeric_limits<std::int16_t>::min()) raiseError(kOverflow);
  return std::to_string(-inner);
}

void DesktopExplorer::readTimeouts(const char* value, const char* byDefault, CheckBox& defaultBox,
                                   CheckBox& minimumBox) {
  const std::string text = host_.throughHidden(sysaccess::GetRegValue(HKCU, kDESKL, value));
  if (text == byDefault || text == kNotFound) {
    defaultBox.setValue(1);
    minimumBox.setValue(0);
  }
  if (text == "1000") {
    defaultBox.setValue(0);
    minimumBox.setValue(1);
  }
}

void DesktopExplorer::ref_desk() {
  icnWset->setText(generalForm(Val(sysaccess::GetRegValue(HKU, kWM, "Shell Icon Size"))));
  icnHset->setText(gapText(icnWset->text(), sysaccess::GetRegValue(HKU, kWM, "IconSpacing")));
  icnVset->setText(
      gapText(icnWset->text(), sysaccess::GetRegValue(HKU, kWM, "IconVerticalSpacing")));
  Text6->setEnabled(false);
  Check14->setValue(0);
  for (const char* word : kDeskWords)
    ref_tweak(host_, word);
  const std::string autoEnd =
      host_.throughHidden(sysaccess::GetRegValue(HKCU, kDESKL, "AutoEndTasks"));
  if (autoEnd == kNotFound || autoEnd == "0") ex_opt(0).setValue(0);
  if (autoEnd == "1") ex_opt(0).setValue(1);
  readTimeouts("HungAppTimeout", "5000", *timeout1, *timeout2);
  readTimeouts("WaitToKillAppTimeout", "20000", *timeout3, *timeout4);
  // The reads above fired click handlers that armed the button.
  host_.buttons().applyb->setEnabled(false);
}

void DesktopExplorer::refreshb_Click() {
  ref_desk();
  if (Control* strip = host_.mainForm().find("MainTab"); strip && strip->takesUserInput())
    strip->setFocus();
}

void DesktopExplorer::applyb_Click() {
  auto& Check2 = host_.Check2();
  const std::string& windir = host_.fields().windir;

  // Icon size and spacing. The three boxes are enabled only for these writes.
  for (TextBox* box : {icnWset, icnHset, icnVset})
    box->setEnabled(true);
  writeText(HKU, kWM, "Shell Icon Size", icnWset->text());
  writeText(HKU, kWM, "IconSpacing", spacingText(icnWset->text(), icnHset->text()));
  writeText(HKU, kWM, "IconVerticalSpacing", spacingText(icnWset->text(), icnVset->text()));
  for (TextBox* box : {icnWset, icnHset, icnVset})
    box->setEnabled(false);

  // Pending tasks; a clear time-out box writes nothing, so the last ticked box
  // of a pair wins.
  if (ex_opt(0).value() == 0) writeText(HKCU, kDESKL, "AutoEndTasks", "0");
  if (ex_opt(0).value() == 1) writeText(HKCU, kDESKL, "AutoEndTasks", "1");
  if (timeout1->value() == 1) writeText(HKCU, kDESKL, "HungAppTimeout", "5000");
  if (timeout2->value() == 1) writeText(HKCU, kDESKL, "HungAppTimeout", "1000");
  if (timeout3->value() == 1) writeText(HKCU, kDESKL, "WaitToKillAppTimeout", "20000");
  if (timeout4->value() == 1) writeText(HKCU, kDESKL, "WaitToKillAppTimeout", "1000");

  textByBox(CD2(3), tw::row(39), "1", "0");
  binaryByBox(CD2(6), tw::row(35), kBytes01, kBytes00);
  textByBox(CD2(4), tw::row(38), "16", "8");

  // "link" is a value, so the key delete of a tick removes nothing.
  const tw::Row& link = tw::row(31);
  if (CD2(1).value() == 0) writeBinary(link.hive, link.key, link.value, kBytes00);
  if (CD2(1).value() == 1) sysaccess::DelRegSubKey(link.hive, std::string(link.key) + "\\link");

  // The shortcut prefix is written for .lnk and .pif files; only lnkfile is read.
  const tw::Row& prefix = tw::row(30);
  const std::string pifKey = parentOf(prefix.key) + "\\piffile";
  if (CD2(0).value() == 1) {
    writeText(prefix.hive, prefix.key, prefix.value, "");
    writeText(prefix.hive, pifKey, prefix.value, "");
  }
  if (CD2(0).value() == 0) {
    sysaccess::DelRegValue(prefix.hive, prefix.key, prefix.value);
    sysaccess::DelRegValue(prefix.hive, pifKey, prefix.value);
  }

  binaryByBox(Check2(6), tw::row(2), kBytes01, kBytes00);
  binaryByBox(Check2(10), tw::row(10), kBytes01, kBytes00);
  textByBox(Check2(14), tw::row(4), "*", "");

  const tw::Row& menus = tw::row(23);
  if (Combo1->text() == "Right") writeText(menus.hive, menus.key, menus.value, "1");
  if (Combo1->text() == "Left") writeText(menus.hive, menus.key, menus.value, "0");

  // Written for the default profile; the catalogue reads the current user's.
  const char* animation = tw::row(28).value;
  if (Check2(8).value() == 1) writeText(HKU, kWM, animation, "0");
  if (Check2(8).value() == 0) writeText(HKU, kWM, animation, "1");

  // "Turn Off Start Banner" ticked writes a zero.
  binaryByBox(Check2(9), tw::row(27), kBytes00, kBytes01);

  // The beep is written under a key path with a leading backslash.
  const tw::Row& beep = tw::row(1);
  const std::string beepKey = std::string("\\") + beep.key;
  if (Check1->value() == 1) writeText(beep.hive, beepKey, beep.value, "Yes");
  if (Check1->value() == 0) writeText(beep.hive, beepKey, beep.value, "No");

  textByBox(Check2(0), tw::row(12), "Genuine Intel", "GenuineIntel");
  textByBox(*Check10, tw::row(21), "Yes", "No");
  textByBox(*Check11, tw::row(33), "1", "0");
  textByBox(Check2(13), tw::row(32), "1", "0");

  // The Find extension: three keys when ticked, the whole extension key when clear.
  const tw::Row& find = tw::row(17);
  const std::string inetFind = parentOf(find.key);
  if (Check2(1).value() == 1) {
    writeText(find.hive, inetFind, "", "{37865980-75d1-11cf-bfc7-444553540000}");
    writeText(find.hive, find.key, "", "On the &Internet...");
    writeText(find.hive, std::string(find.key) + "\\DefaultIcon", "",
              windir + "\\SYSTEM\\ShellExt\\InetFind.dll,0");
  }
  if (Check2(1).value() == 0) sysaccess::DelRegKey(find.hive, inetFind);

  const tw::Row& notepad = tw::row(45);
  if (Check12->value() == 1) writeText(notepad.hive, notepad.key, "", "Notepad %1");
  if (Check12->value() == 0) sysaccess::DelRegSubKey(notepad.hive, parentOf(notepad.key));

  textByBox(Check2(12), tw::row(36), "800", "65535");

  // The verb is written through the machine's classes, and read through
  // HKEY_CLASSES_ROOT: the same key.
  const std::string explore = "Software\\CLASSES\\" + parentOf(tw::row(40).key);
  if (Check2(2).value() == 1) {
    writeText(HKLM, explore, "", "Explore from Here");
    writeText(HKLM, explore + "\\Command", "", "explorer.exe /e,/root,/idlist,%I");
  }
  if (Check2(2).value() == 0) sysaccess::DelRegSubKey(HKLM, explore);

  binaryByBox(Check2(3), tw::row(34), kRecycleBinFlexible, kRecycleBinPlain);

  // An empty default value makes the key's name the menu text.
  const tw::Row& prompt = tw::row(37);
  if (Check2(5).value() == 1) {
    writeText(prompt.hive, parentOf(prompt.key), "", "");
    writeText(prompt.hive, prompt.key, "", "command.com /k cd %1");
  }
  if (Check2(5).value() == 0) sysaccess::DelRegSubKey(prompt.hive, parentOf(prompt.key));

  const tw::Row& openWith = tw::row(22);
  if (Check2(4).value() == 1) {
    writeText(openWith.hive, parentOf(openWith.key), "", "Op&en With ...");
    writeText(openWith.hive, openWith.key, "", windir + tw::kOpenAsCommand);
  }
  if (Check2(4).value() == 0) sysaccess::DelRegSubKey(openWith.hive, parentOf(openWith.key));

  textByBox(Check2(11), tw::row(3), "1", "0");

  // The clock format. Clear removes the whole International key, with all the
  // user's regional settings, and makes it again empty; on every Apply.
  const tw::Row& clock = tw::row(29);
  if (Check2(7).value() == 1) {
    writeText(clock.hive, clock.key, "iTime", "1");
    writeText(clock.hive, clock.key, "iTLZero", "1");
    writeText(clock.hive, clock.key, "sTime", "");
    writeText(clock.hive, clock.key, "sTimeFormat", "HHmm tt");
    writeText(clock.hive, clock.key, tw::kClockMorning, "");
    writeText(clock.hive, clock.key, tw::kClockAfternoon, "");
  }
  if (Check2(7).value() == 0) {
    sysaccess::DelRegSubKey(clock.hive, clock.key);
    writeText(clock.hive, clock.key, "", "");
  }

  // The clock caption, one text for morning and afternoon, only while its
  // box can be typed in.
  if (Text6->enabled()) {
    writeText(clock.hive, clock.key, tw::kClockMorning, Text6->text());
    writeText(clock.hive, clock.key, tw::kClockAfternoon, Text6->text());
  }

  ref_desk();
}

} // namespace pages
