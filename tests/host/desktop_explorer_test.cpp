// The Desktop and Explorer page on the simulated Windows 98: its controls and
// captions, ref_desk, the Apply order with its stated oddities, Refresh, the
// icon spacing arithmetic and the enabling rules.
#include "frame/page_set.h"
#include "frame/program.h"
#include "pages/shell/named_tweaks.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "tests/host/sim_fixture.h"

#include <memory>
#include <string>
#include <vector>

using namespace runtime;
using platform::Dword;
using sysaccess::GetRegValue;
using sysaccess::HKCR;
using sysaccess::HKCU;
using sysaccess::HKLM;
using sysaccess::HKU;

namespace {

// The first double-quoted part of a logged call, quotes included.
std::string quoted(const std::string& call) {
  const std::size_t open = call.find('"');
  if (open == std::string::npos) return "";
  return call.substr(open, call.find('"', open + 1) - open + 1);
}

const std::string kWM = ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics";
const std::string kDeskl = "Control Panel\\desktop";
const std::string kIntl = "Control Panel\\International";
const std::string kPol = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kIFind =
    "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\FindExtensions\\Static\\InetFind";

std::vector<std::uint8_t> sz(const std::string& text) {
  std::vector<std::uint8_t> bytes(text.begin(), text.end());
  bytes.push_back(0);
  return bytes;
}

class Desktop : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    Application::instance().onEnd = [this] { ended_ = true; };
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  frame::FMain& fmain() { return program_->fmain; }
  pages::DesktopExplorer& page() { return fmain().pages->desktop; }
  CheckBox& Check2(int i) { return fmain().Check2_(i); }
  PictureBox& applyb() { return *fmain().pageButtons.applyb; }
  PictureBox& refreshb() { return *fmain().pageButtons.refreshb; }
  PictureBox& ondAp() { return *fmain().pageButtons.ondAp; }
  Control& named(const std::string& name) {
    Control* found = fmain().form.find(name);
    if (!found) throw std::runtime_error("no control " + name);
    return *found;
  }
  // The inner tab that holds a control: its ancestor's place on SSTab1.
  int innerTabOf(Control& control) {
    for (Control* at = &control; at->container(); at = at->container())
      if (at->container() == page().SSTab1) return at->containerTab();
    return -1;
  }
  // The user brings an inner tab to the front.
  void innerTab(int tab) { page().SSTab1->userSelectTab(tab); }
  void click(Control& control) { control.userClick(); }
  void apply() { applyb().userClick(); }

  static void put(platform::RegKey hive, const std::string& key, const std::string& name,
                  const std::string& text) {
    platform::sim::storeRawValue(hive, key, name, platform::kRegSz, sz(text));
  }
  // The stored type and bytes of a value: "1: 2D 31 31 32 35 00", or "missing".
  static std::string stored(platform::RegKey hive, const std::string& key,
                            const std::string& name) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return "missing";
    std::vector<std::uint8_t> data(4096);
    Dword size = static_cast<Dword>(data.size()), type = 0;
    const auto rc = platform::RegQueryValueExA(handle, name.c_str(), &type, data.data(), &size);
    platform::RegCloseKey(handle);
    if (rc != 0) return "missing";
    std::string text = std::to_string(type) + ":";
    for (Dword i = 0; i < size; ++i) {
      char hex[4];
      std::snprintf(hex, sizeof hex, " %02X", data[i]);
      text += hex;
    }
    return text;
  }
  static bool keyExists(platform::RegKey hive, const std::string& key) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return false;
    platform::RegCloseKey(handle);
    return true;
  }
  std::vector<std::string> record(const std::function<void()>& action) {
    platform::sim::clearCallLog();
    platform::sim::setCallLogging(true);
    action();
    platform::sim::setCallLogging(false);
    return platform::sim::callLog();
  }
  bool failedWith(int number) {
    for (const auto& box : platform::sim::shownMessageBoxes())
      if (box.text == Application::failureText(number)) return true;
    return false;
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};

// ---- Controls and captions ----------------------------------------------

TEST_F(Desktop, ThreeInnerTabsInsideThePageFrame) {
  start();
  TabStrip& tabs = *page().SSTab1;
  EXPECT_EQ(&fmain().Frame4(5), tabs.container());
  ASSERT_EQ(3, tabs.tabs());
  EXPECT_EQ("Miscellaneus", tabs.tabCaption(0));
  EXPECT_EQ("Icons", tabs.tabCaption(1));
  EXPECT_EQ("Task Management", tabs.tabCaption(2));
  EXPECT_EQ(0, tabs.tab());
}

TEST_F(Desktop, EveryBoxOfTheMiscellaneousTabHasItsCaption) {
  start();
  const std::vector<std::pair<const char*, const char*>> captions{
      {"Check1", "Beep on Errors"},
      {"Check2(0)", "More CPU Info"},
      {"Check2(1)", "Find on the Internet Option"},
      {"Check2(2)", "Explore from Here"},
      {"Check2(3)", "Flexible Rycycle Bin"},
      {"Check2(4)", "Open With Always Enabled"},
      {"Check2(5)", "Open Folder in MS-DOS"},
      {"Check2(6)", "Windows Smooth Scrolling "},
      {"Check2(7)", "Use 24h Time Format HHMM"},
      {"Check2(8)", "Turn Off Window Animation"},
      {"Check2(9)", "Turn Off Start Banner"},
      {"Check2(10)", "Show Tips on Startup"},
      {"Check2(11)", "X Mouse Auto Raise"},
      {"Check2(12)", "Blinking Text Cursor"},
      {"Check2(13)", "Full Window Draging"},
      {"Check2(14)", "QuickView Option for All Files"},
      {"CD2(0)", "Use Shortcut Arrows"},
      {"CD2(1)", "Prefix 'Shortcut To' on New Shortcuts"},
      {"CD2(3)", "Show Windows Version on Desktop"},
      {"CD2(4)", "Use Hi-Color Icons"},
      {"CD2(6)", "Save Desktop Settings on Exit"},
      {"Check10", "Small Icons on Start Menu"},
      {"Check11", "Smooth Fonts"},
      {"Check12", "Open Unknown File Types in Notepad"},
      {"Check14", "Clock Static Caption"},
      {"Label14(0)", "Drop-Down Menus Alignment"},
  };
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(caption, static_cast<Captioned&>(named(name)).caption()) << name;
    EXPECT_EQ(0, innerTabOf(named(name))) << name;
  }
  for (int missing : {2, 5})
    EXPECT_EQ(nullptr, fmain().form.find("CD2(" + std::to_string(missing) + ")"));
  EXPECT_EQ(2, page().Combo1->listCount());
  EXPECT_EQ("Left", page().Combo1->list(0));
  EXPECT_EQ("Right", page().Combo1->list(1));
  EXPECT_FALSE(page().Text6->enabled());
}

TEST_F(Desktop, TheIconsAndTaskManagementTabsHoldTheirControls) {
  start();
  const std::vector<std::tuple<const char*, const char*, int>> captions{
      {"icnW", "Icon Size", 1},
      {"icnVspac", "Icon Vertical Spacing", 1},
      {"icnHspac", "Icon Horzontal Spacing", 1},
      {"wit", "Wrap Icon Titles", 1},
      {"Label5", "Use Descriptive Icons", 1},
      {"icn_desc(0)", "DLL (Dynamin Link Libraries)", 1},
      {"icn_desc(1)", "CPL (Control Panels)", 1},
      {"icn_desc(2)", "BMP (Bitmap files)", 1},
      {"ex_opt(0)", "Forced Automatic End of Pending Tasks on Windows Exit", 2},
      {"Label4(0)", "Taks Manager End Task Timeout", 2},
      {"timeout1", "Default", 2},
      {"timeout2", "Minimum", 2},
      {"Label4(1)", "Automatic End Task Timeout", 2},
      {"timeout3", "Default", 2},
      {"timeout4", "Minimum", 2},
  };
  for (const auto& [name, caption, tab] : captions) {
    EXPECT_EQ(caption, static_cast<Captioned&>(named(name)).caption()) << name;
    EXPECT_EQ(tab, innerTabOf(named(name))) << name;
  }
  for (const char* name : {"icnWset", "icnVset", "icnHset", "UpDown1", "UpDown2", "UpDown3"})
    EXPECT_EQ(1, innerTabOf(named(name))) << name;
  for (SpinControl* spin : {page().UpDown1, page().UpDown2, page().UpDown3}) {
    EXPECT_EQ(0, spin->min());
    EXPECT_EQ(99, spin->max());
    EXPECT_EQ(2, spin->increment());
    EXPECT_EQ(16, spin->value());
  }
  for (TextBox* box : {page().icnWset, page().icnVset, page().icnHset})
    EXPECT_TRUE(box->locked());
}

TEST_F(Desktop, OnlyTheControlsOfTheInnerTabInFrontAreShown) {
  start();
  EXPECT_TRUE(Check2(3).shown());
  EXPECT_FALSE(page().wit->shown());
  EXPECT_FALSE(page().timeout1->shown());
  innerTab(1);
  EXPECT_FALSE(Check2(3).shown());
  EXPECT_TRUE(page().wit->shown());
  innerTab(2);
  EXPECT_TRUE(page().timeout1->shown());
  fmain().MainTab->userSelectTab(1);
  EXPECT_FALSE(page().timeout1->shown());
}

// ---- Reading ---------------------------------------------------------------

TEST_F(Desktop, AnEmptyRegistryReadsWithoutFailureAndDisablesApply) {
  start();
  EXPECT_FALSE(ended_);
  EXPECT_FALSE(applyb().enabled());
  EXPECT_EQ("0", page().icnWset->text());
  EXPECT_EQ("0", page().icnHset->text());
  EXPECT_EQ("0", page().icnVset->text());
  EXPECT_EQ(1, page().timeout1->value());
  EXPECT_EQ(0, page().timeout2->value());
  EXPECT_EQ(1, page().timeout3->value());
  EXPECT_EQ(0, page().timeout4->value());
  EXPECT_EQ(0, page().ex_opt(0).value());
  // Both clock values missing: equal texts "Not Found".
  EXPECT_EQ(1, page().Check14->value());
  EXPECT_EQ("Not Found", page().Text6->text());
  EXPECT_EQ(1, Check2(12).value());    // no blink rate
  EXPECT_EQ(1, page().CD2(1).value()); // no "link"
}

TEST_F(Desktop, ReadsTheTwentySixWordsInTheirOrder) {
  start();
  const auto calls = record([&] { page().ref_desk(); });
  std::vector<std::string> names;
  for (const std::string& call : calls)
    if (call.rfind("RegQueryValueExA", 0) == 0) names.push_back(quoted(call));
  const std::vector<std::string> expected{"\"Shell Icon Size\"",
                                          "\"IconSpacing\"",
                                          "\"IconVerticalSpacing\"",
                                          "\"Shell Icon BPP\"",
                                          "\"PaintDesktopVersion\"",
                                          "\"NoSaveSettings\"",
                                          "\"link\"",
                                          "\"IsShortCut\"",
                                          "\"SmoothScroll\"",
                                          "\"\"",
                                          "\"Beep\"",
                                          "\"VendorIdentifier\"",
                                          "\"ActiveWindowTracking\"",
                                          "\"\"",
                                          "\"MenuDropAlignment\"",
                                          "\"DragFullWindows\"",
                                          "\"SmallIcons\"",
                                          "\"\"",
                                          "\"FontSmoothing\"",
                                          "\"\"",
                                          "\"\"",
                                          "\"s1159\"",
                                          "\"s2359\"",
                                          "\"iTime\"",
                                          "\"iTLZero\"",
                                          "\"sTime\"",
                                          "\"STimeFormat\"",
                                          "\"\"",
                                          "\"Attributes\"",
                                          "\"MinAnimate\"",
                                          "\"NoStartBanner\"",
                                          "\"CursorBlinkRate\"",
                                          "\"Show\"",
                                          "\"AutoEndTasks\"",
                                          "\"HungAppTimeout\"",
                                          "\"WaitToKillAppTimeout\""};
  ASSERT_EQ(expected.size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(0u, names[i].find(expected[i])) << i << ": " << names[i];
}

TEST_F(Desktop, AutoEndTasksReadsOneTicksZeroAndMissingClearOtherLeaves) {
  start();
  put(HKCU, kDeskl, "AutoEndTasks", "1");
  page().ref_desk();
  EXPECT_EQ(1, page().ex_opt(0).value());
  put(HKCU, kDeskl, "AutoEndTasks", "2");
  page().ref_desk();
  EXPECT_EQ(1, page().ex_opt(0).value());
  put(HKCU, kDeskl, "AutoEndTasks", "0");
  page().ref_desk();
  EXPECT_EQ(0, page().ex_opt(0).value());
}

TEST_F(Desktop, TimeoutsReadIntoTheirPairs) {
  put(HKCU, kDeskl, "HungAppTimeout", "1000");
  put(HKCU, kDeskl, "WaitToKillAppTimeout", "1000");
  start();
  EXPECT_EQ(0, page().timeout1->value());
  EXPECT_EQ(1, page().timeout2->value());
  EXPECT_EQ(0, page().timeout3->value());
  EXPECT_EQ(1, page().timeout4->value());
  put(HKCU, kDeskl, "HungAppTimeout", "5000");
  put(HKCU, kDeskl, "WaitToKillAppTimeout", "20000");
  page().ref_desk();
  EXPECT_EQ(1, page().timeout1->value());
  EXPECT_EQ(0, page().timeout2->value());
  EXPECT_EQ(1, page().timeout3->value());
  EXPECT_EQ(0, page().timeout4->value());
}

TEST_F(Desktop, AHungAppTimeoutOf2000LeavesThePairAndApplyWritesTheBoxLeftTicked) {
  put(HKCU, kDeskl, "HungAppTimeout", "1000");
  start();
  put(HKCU, kDeskl, "HungAppTimeout", "2000");
  page().ref_desk();
  EXPECT_EQ(0, page().timeout1->value());
  EXPECT_EQ(1, page().timeout2->value());
  page().applyb_Click();
  EXPECT_EQ("1000", GetRegValue(HKCU, kDeskl, "HungAppTimeout"));
}

TEST_F(Desktop, AHungAppTimeoutHeldAsDwordReadsFiveHundredAndMatchesNothing) {
  put(HKCU, kDeskl, "HungAppTimeout", "1000");
  start();
  platform::sim::storeRawValue(HKCU, kDeskl, "HungAppTimeout", platform::kRegDword,
                               {0x88, 0x13, 0, 0}); // 5000
  EXPECT_EQ("500", GetRegValue(HKCU, kDeskl, "HungAppTimeout"));
  page().ref_desk();
  EXPECT_EQ(0, page().timeout1->value());
  EXPECT_EQ(1, page().timeout2->value());
}

// ---- Icon size and spacing --------------------------------------------------

TEST_F(Desktop, SpacingOf1125AboveSize32ShowsAGapOf43AndIsWrittenBack) {
  put(HKU, kWM, "Shell Icon Size", "32");
  put(HKU, kWM, "IconSpacing", "-1125");
  put(HKU, kWM, "IconVerticalSpacing", "1125");
  start();
  EXPECT_EQ("32", page().icnWset->text());
  EXPECT_EQ("43", page().icnHset->text());
  EXPECT_EQ("43", page().icnVset->text());
  page().Check1->setValue(1 - page().Check1->value());
  apply();
  EXPECT_EQ("1: 2D 31 31 32 35 00", stored(HKU, kWM, "IconSpacing")); // "-1125"
  EXPECT_EQ("1: 2D 31 31 32 35 00", stored(HKU, kWM, "IconVerticalSpacing"));
  EXPECT_EQ("1: 33 32 00", stored(HKU, kWM, "Shell Icon Size"));
}

TEST_F(Desktop, AllThreeMissingShowNoughtAndSize32AloneShowsMinus32) {
  start();
  EXPECT_EQ("0", page().icnWset->text());
  EXPECT_EQ("0", page().icnHset->text());
  put(HKU, kWM, "Shell Icon Size", "32");
  page().ref_desk();
  EXPECT_EQ("32", page().icnWset->text());
  EXPECT_EQ("-32", page().icnHset->text());
  EXPECT_EQ("-32", page().icnVset->text());
  page().applyb_Click();
  EXPECT_EQ("0", GetRegValue(HKU, kWM, "IconSpacing"));
  EXPECT_EQ("0", GetRegValue(HKU, kWM, "IconVerticalSpacing"));
}

TEST_F(Desktop, ASpacingOffTheFifteenTwipGridShowsAFraction) {
  put(HKU, kWM, "Shell Icon Size", "32");
  put(HKU, kWM, "IconSpacing", "-1130");
  start();
  EXPECT_EQ("43.3333333333333", page().icnHset->text());
  apply();
  EXPECT_EQ("-1130", GetRegValue(HKU, kWM, "IconSpacing"));
}

TEST_F(Desktop, SpacingArithmeticRoundsHalvesToEven) {
  EXPECT_EQ("-510", pages::DesktopExplorer::spacingText("32", "2"));
  EXPECT_EQ("-488", pages::DesktopExplorer::spacingText("32.5", "0")); // 487.5
  EXPECT_EQ("-502", pages::DesktopExplorer::spacingText("32.5", "1")); // 502.5
  EXPECT_EQ("0", pages::DesktopExplorer::gapText("32", "480.5"));      // 480.5 rounds to 480
  EXPECT_EQ("0.133333333333333", pages::DesktopExplorer::gapText("32", "-481.5")); // 482
  EXPECT_EQ("-32", pages::DesktopExplorer::gapText("32", "Not Found"));
  EXPECT_EQ("2", pages::DesktopExplorer::gapText("32 px", "510 twips"));
}

TEST_F(Desktop, SpacingOutsideSixteenBitsIsAnOverflow) {
  EXPECT_EQ(kOverflow, errorOf([] { pages::DesktopExplorer::gapText("32", "-32768"); }));
  EXPECT_EQ("2152.46666666667", pages::DesktopExplorer::gapText("32", "32767"));
  EXPECT_EQ(kOverflow, errorOf([] { pages::DesktopExplorer::spacingText("2200", "0"); }));
  EXPECT_EQ(kOverflow, errorOf([] { pages::DesktopExplorer::spacingText("-2200", "0"); }));
  // -32768 fits inside, but its sign change doesn't.
  EXPECT_EQ(kOverflow,
            errorOf([] { pages::DesktopExplorer::spacingText("32", "-2216.53333333333"); }));
  EXPECT_EQ("-32767", pages::DesktopExplorer::spacingText("32", "2152.46666666667"));
}

TEST_F(Desktop, AnOverflowingSpacingIsSwallowedAtLoadAndEndsTheProgramOnRefresh) {
  put(HKU, kWM, "Shell Icon Size", "32");
  put(HKU, kWM, "IconSpacing", "-40000");
  start(); // load resumes at the next statement
  EXPECT_FALSE(ended_);
  refreshb().userClick();
  EXPECT_TRUE(ended_);
  EXPECT_TRUE(failedWith(kOverflow));
}

TEST_F(Desktop, AnApplyWhoseSpacingOverflowsStopsAfterTheIconSize) {
  put(HKU, kWM, "Shell Icon Size", "3000");
  start();
  EXPECT_EQ("3000", page().icnWset->text());
  EXPECT_EQ("-3000", page().icnHset->text());
  innerTab(1);
  page().UpDown1->userUp(); // a gap of 18 above 3000 pixels
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_TRUE(failedWith(kOverflow));
  EXPECT_EQ("1: 33 30 30 30 00", stored(HKU, kWM, "Shell Icon Size"));
  EXPECT_EQ("missing", stored(HKU, kWM, "IconSpacing"));
  EXPECT_EQ("missing", stored(HKU, ".DEFAULT\\Control Panel\\Sound", "Beep"));
}

TEST_F(Desktop, TheFirstSpinClickStartsFromTheSpinsOwnValueNotTheText) {
  put(HKU, kWM, "Shell Icon Size", "32");
  put(HKU, kWM, "IconSpacing", "-1125");
  start();
  innerTab(1);
  page().UpDown3->userUp();
  EXPECT_EQ("18", page().icnWset->text());
  EXPECT_TRUE(applyb().enabled());
  page().UpDown1->userDown();
  EXPECT_EQ("14", page().icnHset->text());
  page().UpDown2->userUp();
  EXPECT_EQ("18", page().icnVset->text());
  page().ref_desk();
  EXPECT_EQ("32", page().icnWset->text());
  page().UpDown3->userUp(); // continues from its own 18
  EXPECT_EQ("20", page().icnWset->text());
}

TEST_F(Desktop, TheSizeAndGapBoxesLookDisabledFromTheFirstApplyOn) {
  start();
  EXPECT_TRUE(page().icnWset->enabled());
  apply(); // disabled button: nothing happens
  EXPECT_TRUE(page().icnWset->enabled());
  page().Check1->userClick();
  apply();
  for (TextBox* box : {page().icnWset, page().icnVset, page().icnHset})
    EXPECT_FALSE(box->enabled());
  innerTab(1);
  page().UpDown3->userUp();
  EXPECT_EQ("18", page().icnWset->text());
}

// ---- Apply ------------------------------------------------------------------

// The writes and deletes among logged calls, each as its call and the value
// or key it names: RegSetValueExA "IconSpacing".
std::vector<std::string> writesOf(const std::vector<std::string>& calls) {
  std::vector<std::string> writes;
  for (const std::string& call : calls)
    if (call.rfind("RegSetValueExA", 0) == 0 || call.rfind("RegDeleteKeyA", 0) == 0 ||
        call.rfind("RegDeleteValueA", 0) == 0)
      writes.push_back(call.substr(0, call.find(' ')) + " " + quoted(call));
  return writes;
}

TEST_F(Desktop, ApplyWritesInItsOrderWithEveryBoxTicked) {
  start();
  page().Combo1->setText("Right");
  for (int i = 0; i < 15; ++i)
    Check2(i).setValue(1);
  for (int i : {0, 1, 3, 4, 6})
    page().CD2(i).setValue(1);
  for (CheckBox* box : {page().Check1, page().Check10, page().Check11, page().Check12})
    box->setValue(1);
  page().ex_opt(0).setValue(1);
  page().timeout2->setValue(1);
  page().timeout4->setValue(1);
  const auto names = writesOf(record([&] { page().applyb_Click(); }));
  const std::vector<std::string> expected{
      "RegSetValueExA \"Shell Icon Size\"",
      "RegSetValueExA \"IconSpacing\"",
      "RegSetValueExA \"IconVerticalSpacing\"",
      "RegSetValueExA \"AutoEndTasks\"",
      "RegSetValueExA \"HungAppTimeout\"",
      "RegSetValueExA \"WaitToKillAppTimeout\"",
      "RegSetValueExA \"PaintDesktopVersion\"",
      "RegSetValueExA \"NoSaveSettings\"",
      "RegSetValueExA \"Shell Icon BPP\"",
      "RegDeleteKeyA \".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\link\"",
      "RegSetValueExA \"IsShortCut\"",
      "RegSetValueExA \"IsShortCut\"",
      "RegSetValueExA \"SmoothScroll\"",
      "RegSetValueExA \"Show\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"MenuDropAlignment\"",
      "RegSetValueExA \"MinAnimate\"",
      "RegSetValueExA \"NoStartBanner\"",
      "RegSetValueExA \"Beep\"",
      "RegSetValueExA \"VendorIdentifier\"",
      "RegSetValueExA \"SmallIcons\"",
      "RegSetValueExA \"FontSmoothing\"",
      "RegSetValueExA \"DragFullWindows\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"CursorBlinkRate\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"Attributes\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"ActiveWindowTracking\"",
      "RegSetValueExA \"iTime\"",
      "RegSetValueExA \"iTLZero\"",
      "RegSetValueExA \"sTime\"",
      "RegSetValueExA \"sTimeFormat\"",
      "RegSetValueExA \"s1159\"",
      "RegSetValueExA \"s2359\"",
  };
  EXPECT_EQ(expected, names);
}

TEST_F(Desktop, ApplyWritesInItsOrderWithEveryBoxClear) {
  start();
  page().Combo1->setText("Left");
  for (int i = 0; i < 15; ++i)
    Check2(i).setValue(0);
  for (int i : {0, 1, 3, 4, 6})
    page().CD2(i).setValue(0);
  for (CheckBox* box : {page().Check1, page().Check10, page().Check11, page().Check12})
    box->setValue(0);
  page().Check14->setValue(0); // Text6 disabled: no caption write
  const auto writes = writesOf(record([&] { page().applyb_Click(); }));
  const std::vector<std::string> expected{
      "RegSetValueExA \"Shell Icon Size\"",
      "RegSetValueExA \"IconSpacing\"",
      "RegSetValueExA \"IconVerticalSpacing\"",
      "RegSetValueExA \"AutoEndTasks\"",
      "RegSetValueExA \"HungAppTimeout\"",
      "RegSetValueExA \"WaitToKillAppTimeout\"",
      "RegSetValueExA \"PaintDesktopVersion\"",
      "RegSetValueExA \"NoSaveSettings\"",
      "RegSetValueExA \"Shell Icon BPP\"",
      "RegSetValueExA \"link\"",
      "RegDeleteValueA \"IsShortCut\"",
      "RegDeleteValueA \"IsShortCut\"",
      "RegSetValueExA \"SmoothScroll\"",
      "RegSetValueExA \"Show\"",
      "RegSetValueExA \"\"",
      "RegSetValueExA \"MenuDropAlignment\"",
      "RegSetValueExA \"MinAnimate\"",
      "RegSetValueExA \"NoStartBanner\"",
      "RegSetValueExA \"Beep\"",
      "RegSetValueExA \"VendorIdentifier\"",
      "RegSetValueExA \"SmallIcons\"",
      "RegSetValueExA \"FontSmoothing\"",
      "RegSetValueExA \"DragFullWindows\"",
      "RegDeleteKeyA \"" + kIFind + "\"",
      "RegDeleteKeyA \"Unknown\\shell\\Open in Notepad\"",
      "RegSetValueExA \"CursorBlinkRate\"",
      "RegDeleteKeyA \"Software\\CLASSES\\Directory\\shell\\ExploreHere\"",
      "RegSetValueExA \"Attributes\"",
      "RegDeleteKeyA \"Directory\\shell\\MSDOS Prompt here\"",
      "RegDeleteKeyA \"Software\\CLASSES\\*\\Shell\\OpenWith\"",
      "RegSetValueExA \"ActiveWindowTracking\"",
      "RegDeleteKeyA \"Control Panel\\International\"",
      "RegSetValueExA \"\"",
  };
  EXPECT_EQ(expected, writes);
}

// What each box writes, ticked and clear, with the exact type and bytes.
struct Written {
  const char* control;
  platform::RegKey hive;
  std::string key;
  const char* value;
  std::string ticked;
  std::string clear;
};

TEST_F(Desktop, EveryBoxWritesItsExactBytes) {
  const std::string cpu = "Hardware\\Description\\System\\CentralProcessor\\0";
  const std::vector<Written> rows{
      {"CD2(3)", HKCU, kDeskl, "PaintDesktopVersion", "1: 31 00", "1: 30 00"},
      {"CD2(6)", HKCU, kPol, "NoSaveSettings", "3: 01 00 00 00", "3: 00 00 00 00"},
      {"CD2(4)", HKCU, "Control Panel\\desktop\\WindowMetrics", "Shell Icon BPP", "1: 31 36 00",
       "1: 38 00"},
      {"Check2(6)", HKCU, "Control Panel\\Desktop", "SmoothScroll", "3: 01 00 00 00",
       "3: 00 00 00 00"},
      {"Check2(10)", HKU, ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Tips",
       "Show", "3: 01 00 00 00", "3: 00 00 00 00"},
      {"Check2(14)", HKCR, "QuickView", "", "1: 2A 00", "1: 00"},
      {"Check2(8)", HKU, kWM, "MinAnimate", "1: 30 00", "1: 31 00"},
      {"Check2(9)", HKCU, kPol, "NoStartBanner", "3: 00 00 00 00", "3: 01 00 00 00"},
      {"Check1", HKU, ".DEFAULT\\Control Panel\\Sound", "Beep", "1: 59 65 73 00", "1: 4E 6F 00"},
      {"Check2(0)", HKLM, cpu, "VendorIdentifier", "1: 47 65 6E 75 69 6E 65 20 49 6E 74 65 6C 00",
       "1: 47 65 6E 75 69 6E 65 49 6E 74 65 6C 00"},
      {"Check10", HKCU, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SmallIcons",
       "SmallIcons", "1: 59 65 73 00", "1: 4E 6F 00"},
      {"Check11", HKCU, "Control Panel\\Desktop", "FontSmoothing", "1: 31 00", "1: 30 00"},
      {"Check2(13)", HKCU, "Control Panel\\Desktop", "DragFullWindows", "1: 31 00", "1: 30 00"},
      {"Check2(12)", HKU, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate", "1: 38 30 30 00",
       "1: 36 35 35 33 35 00"},
      {"Check2(3)", HKCR, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder",
       "Attributes", "3: 70 01 00 20", "3: 40 01 00 20"},
      {"Check2(11)", HKCU, "Control Panel\\Mouse", "ActiveWindowTracking", "1: 31 00", "1: 30 00"},
      {"Check12", HKCR, "Unknown\\shell\\Open in Notepad\\Command", "",
       "1: 4E 6F 74 65 70 61 64 20 25 31 00", "missing"},
      {"Check2(5)", HKCR, "Directory\\shell\\MSDOS Prompt here\\Command", "",
       "1: 63 6F 6D 6D 61 6E 64 2E 63 6F 6D 20 2F 6B 20 63 64 20 25 31 00", "missing"},
      {"Check2(5)", HKCR, "Directory\\shell\\MSDOS Prompt here", "", "1: 00", "missing"},
      {"Check2(2)", HKLM, "Software\\CLASSES\\Directory\\shell\\ExploreHere", "",
       "1: 45 78 70 6C 6F 72 65 20 66 72 6F 6D 20 48 65 72 65 00", "missing"},
      {"CD2(0)", HKLM, "Software\\CLASSES\\lnkfile", "IsShortCut", "1: 00", "missing"},
      {"CD2(0)", HKLM, "Software\\CLASSES\\piffile", "IsShortCut", "1: 00", "missing"},
  };
  start();
  for (const bool tick : {true, false}) {
    for (const Written& row : rows)
      static_cast<CheckBox&>(named(row.control)).setValue(tick ? 1 : 0);
    page().applyb_Click();
    for (const Written& row : rows)
      EXPECT_EQ(tick ? row.ticked : row.clear, stored(row.hive, row.key, row.value))
          << row.control << " " << row.value << (tick ? " ticked" : " clear");
  }
}

TEST_F(Desktop, ComboWritesOneForRightAndNoughtForLeft) {
  start();
  page().Combo1->setText("Right");
  apply();
  page().Combo1->setText("Right");
  page().applyb_Click();
  EXPECT_EQ("1: 31 00", stored(HKCU, "Control Panel\\Desktop", "MenuDropAlignment"));
  EXPECT_EQ("Right", page().Combo1->text());
  page().Combo1->setText("Left");
  page().applyb_Click();
  EXPECT_EQ("1: 30 00", stored(HKCU, "Control Panel\\Desktop", "MenuDropAlignment"));
  EXPECT_EQ("Left", page().Combo1->text());
}

TEST_F(Desktop, WhatTheReaderMakesOfWhatApplyWrote) {
  start();
  // Rows that read back what they wrote.
  const std::vector<const char*> roundTrip{
      "CD2(3)",     "CD2(4)",     "CD2(6)",    "Check1",     "Check2(0)", "Check10",   "Check11",
      "Check2(13)", "Check2(12)", "Check2(3)", "Check2(11)", "Check12",   "Check2(5)", "Check2(2)",
      "CD2(0)",     "Check2(4)",  "Check2(1)", "Check2(14)", "Check2(7)"};
  for (const int tick : {1, 0, 1}) {
    for (const char* name : roundTrip)
      static_cast<CheckBox&>(named(name)).setValue(tick);
    page().applyb_Click();
    for (const char* name : roundTrip)
      EXPECT_EQ(tick, static_cast<CheckBox&>(named(name)).value()) << name << " " << tick;
  }
}

TEST_F(Desktop, TheStatedMismatchesOfReaderAndWriter) {
  start();
  // Smooth scrolling and tips: 01 00 00 00 matches neither text; the box keeps
  // its state on a refresh.
  for (int i : {6, 10}) {
    Check2(i).setValue(1);
    page().applyb_Click();
    EXPECT_EQ(1, Check2(i).value()) << i;
    Check2(i).setValue(0);
    page().ref_desk();
    EXPECT_EQ(0, Check2(i).value()) << i;
  }
  // The start banner: clear writes 01 00 00 00, which matches nothing.
  Check2(9).setValue(0);
  page().applyb_Click();
  EXPECT_EQ("01000000", GetRegValue(HKCU, kPol, "NoStartBanner"));
  Check2(9).setValue(1);
  page().ref_desk();
  EXPECT_EQ(1, Check2(9).value());
  // The animation: written for the default profile, read for the user.
  put(HKCU, "Control Panel\\Desktop\\WindowMetrics", "MinAnimate", "1");
  Check2(8).setValue(1);
  page().applyb_Click();
  EXPECT_EQ("0", GetRegValue(HKU, kWM, "MinAnimate"));
  EXPECT_EQ(0, Check2(8).value()); // jumps back
  // The beep key with its leading backslash lands on the key the reader reads.
  page().Check1->setValue(1);
  page().applyb_Click();
  EXPECT_EQ("Yes", GetRegValue(HKU, ".DEFAULT\\Control Panel\\Sound", "Beep"));
  // Any other blink rate shows ticked, and Apply writes 800 over it.
  put(HKU, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate", "530");
  page().ref_desk();
  EXPECT_EQ(1, Check2(12).value());
  page().applyb_Click();
  EXPECT_EQ("800", GetRegValue(HKU, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate"));
}

TEST_F(Desktop, ShortcutPrefixOnceClearAndAppliedCannotBeTickedAgain) {
  start();
  page().CD2(1).setValue(0);
  page().applyb_Click();
  EXPECT_EQ("00000000", GetRegValue(HKU, pages::tweak::kUPOL, "link"));
  EXPECT_EQ(0, page().CD2(1).value());
  page().CD2(1).userClick();
  EXPECT_EQ(1, page().CD2(1).value());
  const auto calls = record([&] { page().applyb_Click(); });
  EXPECT_EQ("00000000", GetRegValue(HKU, pages::tweak::kUPOL, "link"));
  EXPECT_EQ(0, page().CD2(1).value());
  bool triedTheKey = false;
  for (const std::string& call : calls)
    if (call.find("RegDeleteKeyA") == 0 && call.find("Explorer\\link") != std::string::npos)
      triedTheKey = true;
  EXPECT_TRUE(triedTheKey);
}

TEST_F(Desktop, TheFindExtensionGoesWithItsSubkeysInOneCall) {
  start();
  Check2(1).setValue(1);
  page().applyb_Click();
  EXPECT_EQ("{37865980-75d1-11cf-bfc7-444553540000}", GetRegValue(HKLM, kIFind, ""));
  EXPECT_EQ("On the &Internet...", GetRegValue(HKLM, kIFind + "\\0", ""));
  EXPECT_EQ("C:\\WINDOWS\\SYSTEM\\ShellExt\\InetFind.dll,0",
            GetRegValue(HKLM, kIFind + "\\0\\DefaultIcon", ""));
  EXPECT_EQ(1, Check2(1).value());
  Check2(1).setValue(0);
  const auto calls = record([&] { page().applyb_Click(); });
  int deletes = 0;
  for (const std::string& call : calls)
    if (call.find("RegDeleteKeyA") == 0 && call.find("InetFind") != std::string::npos) ++deletes;
  EXPECT_EQ(1, deletes);
  EXPECT_FALSE(keyExists(HKLM, kIFind));
  EXPECT_TRUE(keyExists(HKLM, "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\"
                              "FindExtensions\\Static"));
}

TEST_F(Desktop, OpenWithIsWrittenWithTheWindowsDirectory) {
  start();
  Check2(4).setValue(1);
  page().applyb_Click();
  EXPECT_EQ("Op&en With ...", GetRegValue(HKLM, "Software\\CLASSES\\*\\Shell\\OpenWith", ""));
  EXPECT_EQ("C:\\WINDOWS\\rundll32.exe shell32.dll,OpenAs_RunDLL %1",
            GetRegValue(HKCR, "*\\Shell\\OpenWith\\Command", ""));
  EXPECT_EQ(1, Check2(4).value());
  Check2(4).setValue(0);
  page().applyb_Click();
  EXPECT_FALSE(keyExists(HKLM, "Software\\CLASSES\\*\\Shell\\OpenWith"));
  EXPECT_TRUE(keyExists(HKLM, "Software\\CLASSES\\*\\Shell"));
}

// ---- The clock ---------------------------------------------------------------

TEST_F(Desktop, ApplyWithTheTimeFormatClearRemakesTheInternationalKeyEmpty) {
  put(HKCU, kIntl, "sCountry", "United States");
  put(HKCU, kIntl, "s1159", "AM");
  put(HKCU, kIntl, "s2359", "PM");
  platform::sim::storeRawValue(HKCU, kIntl + "\\Sub", "x", platform::kRegSz, sz("y"));
  start();
  EXPECT_EQ(0, Check2(7).value());
  EXPECT_EQ(0, page().Check14->value());
  page().Check1->userClick();
  apply();
  EXPECT_TRUE(keyExists(HKCU, kIntl));
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, ""));
  for (const char* gone : {"sCountry", "s1159", "s2359"})
    EXPECT_EQ("missing", stored(HKCU, kIntl, gone)) << gone;
  EXPECT_FALSE(keyExists(HKCU, kIntl + "\\Sub"));
  // Two equal "Not Found": the caption box comes back ticked, disabled.
  EXPECT_EQ(1, page().Check14->value());
  EXPECT_EQ("Not Found", page().Text6->text());
  EXPECT_FALSE(page().Text6->enabled());
  // The next Apply doesn't write that text.
  page().Check1->userClick();
  apply();
  EXPECT_EQ("missing", stored(HKCU, kIntl, "s1159"));
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, ""));
}

TEST_F(Desktop, TheTimeFormatTickedAndACaptionTypedWriteTheCaptionIntoBoth) {
  put(HKCU, kIntl, "s1159", "AM");
  put(HKCU, kIntl, "s2359", "PM");
  start();
  Check2(7).userClick();
  page().Check14->userClick();
  EXPECT_TRUE(page().Text6->enabled());
  page().Text6->userSetText("Tea");
  apply();
  EXPECT_EQ("1: 54 65 61 00", stored(HKCU, kIntl, "s1159"));
  EXPECT_EQ("1: 54 65 61 00", stored(HKCU, kIntl, "s2359"));
  EXPECT_EQ("1: 31 00", stored(HKCU, kIntl, "iTime"));
  EXPECT_EQ("1: 31 00", stored(HKCU, kIntl, "iTLZero"));
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, "sTime"));
  EXPECT_EQ("1: 48 48 6D 6D 20 74 74 00", stored(HKCU, kIntl, "sTimeFormat"));
  EXPECT_EQ(1, Check2(7).value());
  EXPECT_EQ(1, page().Check14->value());
  EXPECT_EQ("Tea", page().Text6->text());
  EXPECT_FALSE(page().Text6->enabled());
}

TEST_F(Desktop, TheTimeFormatTickedWithoutACaptionEmptiesBoth) {
  start();
  Check2(7).setValue(1);
  page().Check14->setValue(0);
  page().applyb_Click();
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, "s1159"));
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, "s2359"));
  EXPECT_EQ(0, page().Check14->value()); // two empty texts
}

TEST_F(Desktop, AfterARefreshTheCaptionIsRewrittenOnlyOnceItsBoxIsTickedAgain) {
  const auto clockValues = [] {
    put(HKCU, kIntl, "s1159", "Tea");
    put(HKCU, kIntl, "s2359", "Tea");
    put(HKCU, kIntl, "iTime", "1");
    put(HKCU, kIntl, "iTLZero", "1");
    put(HKCU, kIntl, "sTime", "");
    put(HKCU, kIntl, "sTimeFormat", "HHmm tt");
  };
  clockValues();
  start();
  EXPECT_EQ(1, Check2(7).value());
  EXPECT_EQ(1, page().Check14->value());
  EXPECT_EQ("Tea", page().Text6->text());
  page().Check1->userClick();
  apply();
  // The time format empties both captions, and the disabled box writes none.
  EXPECT_EQ("1: 00", stored(HKCU, kIntl, "s1159"));
  clockValues();
  refreshb().userClick();
  page().Check14->userClick();
  page().Check14->userClick();
  EXPECT_TRUE(page().Text6->enabled());
  apply();
  EXPECT_EQ("1: 54 65 61 00", stored(HKCU, kIntl, "s1159"));
  EXPECT_EQ("1: 54 65 61 00", stored(HKCU, kIntl, "s2359"));
}

TEST_F(Desktop, TheCaptionBoxTakesTheFocusFromItsSecondTickOn) {
  put(HKCU, kIntl, "s1159", "AM");
  put(HKCU, kIntl, "s2359", "PM");
  start();
  EXPECT_EQ(0, toInteger(fmain().clock_focus_armed));
  page().Check14->userClick(); // the first click after load: armed only now
  EXPECT_TRUE(page().Text6->enabled());
  EXPECT_FALSE(page().Text6->hasFocus());
  EXPECT_EQ(1, toInteger(fmain().clock_focus_armed));
  page().Check14->userClick();
  EXPECT_FALSE(page().Text6->enabled());
  page().Check14->userClick();
  EXPECT_TRUE(page().Text6->hasFocus());
}

TEST_F(Desktop, ARefreshOnAnotherInnerTabTicksTheCaptionBoxWithoutFailing) {
  start(); // both clock values missing: Check14 is ticked at load
  page().Check14->userClick();
  page().Check14->userClick();
  innerTab(1);
  refreshb().userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ(1, page().Check14->value());
  EXPECT_TRUE(fmain().MainTab->hasFocus());
}

// ---- Enabling rules and Refresh ------------------------------------------------

TEST_F(Desktop, EveryChangeOnThePageArmsApply) {
  start();
  const std::vector<std::function<void()>> changes{
      [&] { Check2(3).userClick(); },
      [&] { Check2(14).userClick(); },
      [&] { page().CD2(4).userClick(); },
      [&] { page().Check1->userClick(); },
      [&] { page().Check10->userClick(); },
      [&] { page().Check11->userClick(); },
      [&] { page().Check12->userClick(); },
      [&] { page().Check14->userClick(); },
      [&] { page().Combo1->userSelect(page().Combo1->listIndex() == 1 ? 0 : 1); },
      [&] {
        innerTab(1);
        page().UpDown1->userUp();
      },
      [&] {
        innerTab(2);
        page().ex_opt(0).userClick();
      },
      [&] {
        innerTab(2);
        page().timeout3->userClick();
      },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    innerTab(0);
    page().ref_desk();
    ASSERT_FALSE(applyb().enabled());
    changes[i]();
    EXPECT_TRUE(applyb().enabled()) << i;
  }
}

TEST_F(Desktop, WitAndTheDescriptiveIconsArmTheTroubleshootingApplyOnly) {
  start();
  innerTab(1);
  page().wit->userClick();
  EXPECT_FALSE(applyb().enabled());
  EXPECT_TRUE(ondAp().enabled());
  ondAp().setEnabled(false);
  page().icn_desc(2).userClick();
  EXPECT_FALSE(applyb().enabled());
  EXPECT_TRUE(ondAp().enabled());
}

TEST_F(Desktop, ApplyLeavesWitAndTheDescriptiveIconsAlone) {
  start();
  page().wit->setValue(1);
  page().icn_desc(0).setValue(1);
  page().Check1->userClick();
  const auto calls = record([&] { apply(); });
  for (const std::string& call : calls) {
    EXPECT_EQ(std::string::npos, call.find("IconTitleWrap")) << call;
    EXPECT_EQ(std::string::npos, call.find("DefaultIcon\\")) << call;
  }
}

TEST_F(Desktop, TheTimeoutBoxesActAsTwoPairsOfOptions) {
  start();
  innerTab(2);
  page().timeout2->userClick();
  EXPECT_EQ(0, page().timeout1->value());
  EXPECT_EQ(1, page().timeout2->value());
  page().timeout2->userClick(); // clearing one ticks the other
  EXPECT_EQ(1, page().timeout1->value());
  EXPECT_EQ(0, page().timeout2->value());
  page().timeout4->userClick();
  EXPECT_EQ(0, page().timeout3->value());
  EXPECT_EQ(1, page().timeout1->value());
  apply();
  EXPECT_EQ("5000", GetRegValue(HKCU, kDeskl, "HungAppTimeout"));
  EXPECT_EQ("1000", GetRegValue(HKCU, kDeskl, "WaitToKillAppTimeout"));
}

TEST_F(Desktop, TheFourTextBoxesLeaveYesOrNoInHidden) {
  start();
  for (CheckBox* box : {page().Check1, page().Check10, page().Check11, page().Check12}) {
    box->setValue(1);
    EXPECT_EQ("Yes", fmain().Hidden().text());
    box->setValue(0);
    EXPECT_EQ("No", fmain().Hidden().text());
  }
}

TEST_F(Desktop, RefreshDropsUnappliedChangesAndGivesTheStripTheFocus) {
  put(HKU, ".DEFAULT\\Control Panel\\Sound", "Beep", "Yes");
  start();
  EXPECT_EQ(1, page().Check1->value());
  page().Check1->userClick();
  EXPECT_TRUE(applyb().enabled());
  refreshb().userClick();
  EXPECT_EQ(1, page().Check1->value());
  EXPECT_FALSE(applyb().enabled());
  EXPECT_TRUE(fmain().MainTab->hasFocus());
}

TEST_F(Desktop, ApplyEndsDisabledAndShowsWhatTheSystemNowHolds) {
  start();
  Check2(5).userClick();
  EXPECT_TRUE(applyb().enabled());
  apply();
  EXPECT_FALSE(applyb().enabled());
  EXPECT_EQ(1, Check2(5).value());
  EXPECT_EQ("command.com /k cd %1",
            GetRegValue(HKCR, "Directory\\shell\\MSDOS Prompt here\\Command", ""));
}

TEST_F(Desktop, ApplyLeavesOpenOnlyTheKeysOfItsBinaryWrites) {
  start();
  page().CD2(1).setValue(0); // link: a binary write
  Check2(1).setValue(0);     // the Find extension, absent: its key delete opens nothing
  const std::size_t before = platform::sim::openKeyHandles();
  page().applyb_Click();
  // NoSaveSettings, link, SmoothScroll, Show, NoStartBanner and Attributes keep
  // their key open, as SetRegValueEx does; every other call closes its own.
  EXPECT_EQ(before + 6, platform::sim::openKeyHandles());
}

// ---- Values another program may have left -----------------------------------

TEST_F(Desktop, ForeignFormsOfThePagesOwnValues) {
  // A REG_DWORD size reads "032"; a binary spacing reads as hex digits, whose
  // leading number is 0; a five-byte binary blink rate is "any other rate".
  platform::sim::storeRawValue(HKU, kWM, "Shell Icon Size", platform::kRegDword, {32, 0, 0, 0});
  platform::sim::storeRawValue(HKU, kWM, "IconSpacing", platform::kRegBinary, {0xFB, 0xFB, 0, 0});
  platform::sim::storeRawValue(HKU, kWM, "IconVerticalSpacing", platform::kRegSz, {});
  platform::sim::storeRawValue(HKCU, kDeskl, "AutoEndTasks", platform::kRegDword, {1, 0, 0, 0});
  platform::sim::storeRawValue(HKCU, kDeskl, "WaitToKillAppTimeout", platform::kRegSz,
                               sz("1000\xFF"));
  platform::sim::storeRawValue(HKU, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate",
                               platform::kRegBinary, {0xFF, 0xFF, 0, 0, 0});
  start();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("32", page().icnWset->text());
  EXPECT_EQ("-32", page().icnHset->text());
  EXPECT_EQ("-32", page().icnVset->text()); // 2048 blanks: no number
  EXPECT_EQ(0, page().ex_opt(0).value());   // "001" leaves the design state
  // "1000\xFF" matches nothing: both boxes keep their clear design state.
  EXPECT_EQ(0, page().timeout3->value());
  EXPECT_EQ(0, page().timeout4->value());
  EXPECT_EQ(1, Check2(12).value());
}

TEST_F(Desktop, ACaptionWithHighBytesGoesBackAsItCame) {
  put(HKCU, kIntl, "s1159", "\xE9t\xE9");
  put(HKCU, kIntl, "s2359", "\xE9t\xE9");
  start();
  EXPECT_EQ("\xE9t\xE9", page().Text6->text());
  EXPECT_EQ(1, page().Check14->value());
  page().Check14->userClick();
  page().Check14->userClick();
  Check2(7).userClick();
  apply();
  EXPECT_EQ("1: E9 74 E9 00", stored(HKCU, kIntl, "s1159"));
  EXPECT_EQ("1: E9 74 E9 00", stored(HKCU, kIntl, "s2359"));
}

} // namespace
