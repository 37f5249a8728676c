// The application frame on the simulated Windows 98: start-up, navigation,
// hover faces, status band, exit dialog, About window and system gate.
#include "frame/page_set.h"
#include "frame/page_table.h"
#include "frame/program.h"
#include "frame/regions.h"
#include "runtime/application.h"
#include "tests/host/page_buttons.h"
#include "tests/host/sim_fixture.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

using namespace runtime;
using frame::kPages;

namespace {

class Frame : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    installNetworkAdapter(); // a Windows 98 with TCP/IP, as the Internet page expects
    Application::instance().reset();
    Application::instance().onEnd = [this] { ended_ = true; };
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  frame::FMain& fmain() { return program_->fmain; }
  frame::WinExit& winExit() { return program_->winExit; }
  frame::FrmShape& about() { return program_->frmShape; }
  PictureBox& button(const std::string& name) { return pageButton(fmain(), name); }
  std::string tipAt(platform::Dword ticks) {
    platform::sim::setTickCount(ticks);
    fmain().Timer1->tick();
    return fmain().tip_text->caption();
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};

TEST_F(Frame, StartUpShowsTheMainFormOnTabZeroWithItsTitle) {
  // msdos.sys on c:, where the load routine's boot_drive points.
  std::ofstream(platform::sim::hostPath("C:\\msdos.sys"), std::ios::binary) << "[Options]\r\n";
  start();
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_FALSE(about().form.visible());
  EXPECT_TRUE(about().form.loaded());
  EXPECT_EQ(0, fmain().MainTab->tab());
  EXPECT_TRUE(fmain().MainTab->visible());
  EXPECT_TRUE(fmain().Picture10->visible());
  EXPECT_TRUE(fmain().Picture11->visible());
  EXPECT_EQ("Desktop && Explorer Settings", fmain().PLabel0->caption());
  EXPECT_EQ("Desktop && Explorer Settings", fmain().PLabel1->caption());
  EXPECT_EQ("c:", fmain().boot_drive);
  EXPECT_EQ("C:\\WINDOWS", fmain().windir);
  EXPECT_EQ(1, fmain().is_win98);
  EXPECT_TRUE(fmain().form.region() != nullptr);
}

TEST_F(Frame, AfterStartUpAllTabCaptionsAreEmptyAndOnlyTabZeroIsLit) {
  start();
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ("", fmain().MainTab->tabCaption(i));
    EXPECT_EQ(Picture{"tab" + std::to_string(i) + (i == 0 ? "_hi.bmp" : ".bmp")},
              fmain().MainTab->tabPicture(i));
  }
}

TEST_F(Frame, ApplyMAndRefaAreDisabledAfterStartUpWhateverTheReadersDid) {
  start();
  for (const auto& page : kPages) {
    EXPECT_FALSE(button(page.applyName).enabled()) << page.applyName;
    EXPECT_TRUE(button(page.refreshName).enabled()) << page.refreshName;
  }
}

TEST_F(Frame, ATabClickLightsOneIconAndShowsTheTitleInBothLabels) {
  start();
  for (const auto& page : kPages) {
    fmain().MainTab->userSelectTab(page.tab);
    EXPECT_EQ(page.title, fmain().PLabel0->caption());
    EXPECT_EQ(page.title, fmain().PLabel1->caption());
    for (int i = 0; i < 10; ++i) {
      const bool lit = fmain().MainTab->tabPicture(i).resource.find("_hi") != std::string::npos;
      EXPECT_EQ(i == page.tab, lit) << "tab " << i << " with tab " << page.tab << " in front";
    }
    EXPECT_TRUE(fmain().Frame4(page.frame).shown());
    EXPECT_TRUE(button(page.applyName).shown());
  }
}

TEST_F(Frame, ChangingTabsKeepsAPagesControlValuesAndApplyState) {
  start();
  auto& access = fmain().pages->access;
  fmain().MainTab->userSelectTab(1);
  const int before = access.net_check(0).value();
  access.net_check(0).userClick(); // an unapplied change
  ASSERT_TRUE(button("app_b").enabled());
  fmain().MainTab->userSelectTab(5);
  EXPECT_FALSE(button("app_b").shown());
  EXPECT_FALSE(access.net_check(0).shown());
  fmain().MainTab->userSelectTab(1);
  EXPECT_TRUE(button("app_b").shown());
  EXPECT_TRUE(button("app_b").enabled());
  EXPECT_EQ(1 - before, access.net_check(0).value());
}

TEST_F(Frame, RefStDisablesTheTroubleshootingApplyButton) {
  start();
  button("ondAp").setEnabled(true);
  button("Clear").setEnabled(true);
  fmain().MainTab->userSelectTab(7);
  button("Ref_st").userClick();
  EXPECT_FALSE(button("ondAp").enabled());
  EXPECT_FALSE(button("Clear").enabled());
}

TEST_F(Frame, CornerButtonsLightTogetherAndTheFormRestoresThem) {
  start();
  fmain().Picture2(0).userMouseMove(0, 0, 10, 10);
  EXPECT_EQ(Picture{"help_h.bmp"}, fmain().Picture0(0).picture());
  EXPECT_EQ(Picture{"about_h.bmp"}, fmain().Picture4(0).picture());
  EXPECT_EQ(Picture{"min_h.bmp"}, fmain().Picture2(0).picture());
  EXPECT_EQ(Picture{"exit_h.bmp"}, fmain().Picture3(0).picture());
  fmain().form.userMouseMove(0, 0, 100, 100);
  EXPECT_EQ(Picture{"help_n.bmp"}, fmain().Picture0(0).picture());
  EXPECT_EQ(Picture{"exit_n.bmp"}, fmain().Picture3(0).picture());
}

TEST_F(Frame, MovingFromApplyOntoRefreshSwapsTheHighlights) {
  start();
  button("applyb").setEnabled(true);
  button("applyb").userMouseMove(0, 0, 5, 5);
  EXPECT_EQ(Picture{"apply_h.bmp"}, button("applyb").picture());
  EXPECT_EQ(Picture{"refresh_n.bmp"}, button("refreshb").picture());
  button("refreshb").userMouseMove(0, 0, 5, 5);
  EXPECT_EQ(Picture{"refresh_h.bmp"}, button("refreshb").picture());
  EXPECT_EQ(Picture{"apply_n.bmp"}, button("applyb").picture());
}

TEST_F(Frame, ADisabledButtonKeepsItsFace) {
  start();
  button("app_b").setEnabled(true);
  fmain().MainTab->userSelectTab(1);
  button("app_b").userMouseMove(0, 0, 5, 5);
  EXPECT_EQ(Picture{"apply_h.bmp"}, button("app_b").picture());
  button("app_b").setEnabled(false);         // disabled while lit
  button("ref_b").userMouseMove(0, 0, 5, 5); // passing over the partner
  EXPECT_EQ(Picture{"apply_h.bmp"}, button("app_b").picture());
  EXPECT_EQ(Picture{"refresh_h.bmp"}, button("ref_b").picture());
  fmain().MainTab->userMouseMove(0, 0, 5, 5); // mouse elsewhere
  EXPECT_EQ(Picture{"apply_h.bmp"}, button("app_b").picture());
  EXPECT_EQ(Picture{"refresh_n.bmp"}, button("ref_b").picture());
}

TEST_F(Frame, RestoreRoutineResetsEveryEnabledPageButton) {
  start();
  for (const auto& page : kPages) {
    button(page.applyName).setEnabled(true);
    button(page.applyName).setPicture({"apply_h.bmp"});
    button(page.refreshName).setPicture({"refresh_h.bmp"});
  }
  fmain().restoreImages();
  for (const auto& page : kPages) {
    EXPECT_EQ(Picture{"apply_n.bmp"}, button(page.applyName).picture()) << page.applyName;
    EXPECT_EQ(Picture{"refresh_n.bmp"}, button(page.refreshName).picture()) << page.refreshName;
  }
}

// Records the order in which buttons change their faces.
struct FaceLog : ControlView {
  FaceLog(std::vector<std::string>& log, std::string name) : log(log), name(std::move(name)) {}
  void changed(Property property) override {
    if (property == Property::Picture) log.push_back(name);
  }
  std::vector<std::string>& log;
  std::string name;
};

TEST_F(Frame, RestoreRoutineGoesThroughThePairsInItsOrderAndSkipsDisabledButtons) {
  start();
  std::vector<std::string> log;
  std::vector<std::unique_ptr<FaceLog>> views;
  for (const auto& page : kPages) {
    for (const char* name : {page.applyName, page.refreshName}) {
      button(name).setEnabled(std::string(name) != "ondAp" && std::string(name) != "Dos_ref");
      button(name).setPicture({"lit.bmp"}); // a face that every restore changes
      views.push_back(std::make_unique<FaceLog>(log, name));
      button(name).attachView(views.back().get());
    }
  }
  fmain().restoreImages();
  for (const auto& page : kPages) {
    button(page.applyName).attachView(nullptr);
    button(page.refreshName).attachView(nullptr);
  }
  const std::vector<std::string> expected{
      "ref_b",   "app_b",    "ref_mtu", "ApplyM",        "ref_oem",     "Oem_apply",
      "ref_ond", "ref_scan", "refa",    "Ref_st",        "Clear",       "refreshb",
      "applyb",  "RefUL",    "ApplyUL", "start_refresh", "start_apply", "Dos_apply"};
  EXPECT_EQ(expected, log);
  EXPECT_EQ(Picture{"lit.bmp"}, button("ondAp").picture());
  EXPECT_EQ(Picture{"lit.bmp"}, button("Dos_ref").picture());
}

TEST_F(Frame, StatusBandVersionLineAndUserName) {
  platform::sim::setUserName("Ann");
  start();
  EXPECT_EQ("OS Version: 4.10.1998", fmain().lblWininfO->caption());
  EXPECT_EQ("Ann is logged in for 01.02.05", tipAt(3725000));
}

TEST_F(Frame, UpTimeRoundsHoursUpAfterHalfAnHour) {
  platform::sim::setUserName("Ann");
  start();
  EXPECT_EQ("Ann is logged in for 00.29.00", tipAt(29 * 60 * 1000));
  EXPECT_EQ("Ann is logged in for 01.31.00", tipAt(31 * 60 * 1000));
  EXPECT_EQ("Ann is logged in for 10.00.00", tipAt(10 * 3600 * 1000));
  EXPECT_EQ("Ann is logged in for 12.05.09", tipAt((12 * 3600 + 5 * 60 + 9) * 1000));
}

TEST_F(Frame, TheTickCountIsTakenAsSigned) {
  platform::sim::setUserName("Ann");
  start();
  const std::string line = tipAt(0xFFFFFFFFu - 60000u); // one minute before the count wraps
  // -60001 ms: seconds -60 Mod 60 = 0, hours CInt(-0.0167) = 0, minutes -1.
  EXPECT_EQ("Ann is logged in for 00.0-1.00", line);
}

TEST_F(Frame, AFailingUserNameReadsAnonymous) {
  platform::sim::setUserName(std::nullopt);
  start();
  EXPECT_EQ(0u, tipAt(1000).find("Anonymous is logged in for "));
}

TEST_F(Frame, VersionPrefixesByPlatform) {
  const struct {
    platform::Dword id;
    const char* caption;
  } rows[] = {{0, "4.10.1998"}, {1, "OS Version: 4.10.1998"}, {2, "Windows NT - 4.10.1998"}};
  for (const auto& row : rows) {
    platform::sim::setVersion({4, 10, 0x040A07CE, row.id, ""});
    start();
    EXPECT_EQ(row.caption, fmain().lblWininfO->caption());
  }
}

TEST_F(Frame, MemoryFiguresInMegabytes) {
  platform::sim::setMemoryStatus(
      {30, 64u << 20, 21u << 20, 192u << 20, 150u << 20, 2047u << 20, 2000u << 20});
  start();
  fmain().Timer1->tick();
  EXPECT_EQ("64 Mb", fmain().txtPhysicalMemory->text());
  EXPECT_EQ("21 Mb", fmain().txtFreePhysical->text());
  EXPECT_EQ("2047 Mb", fmain().txtVirtualMemory->text());
  EXPECT_EQ("192 Mb", fmain().txtSwapSize->text());
}

TEST_F(Frame, OkWithTheDefaultOptionEndsWithoutAnySystemCall) {
  start();
  fmain().Picture3(0).userClick();
  EXPECT_FALSE(fmain().form.visible());
  ASSERT_TRUE(winExit().form.visible());
  EXPECT_TRUE(winExit().Logoff->value());
  EXPECT_TRUE(winExit().Yes->hasFocus());
  EXPECT_EQ(frame::WinExit::kDesignCaption, winExit().Areyousurelabel->caption());
  winExit().Yes->userClick();
  EXPECT_TRUE(ended_);
  EXPECT_TRUE(platform::sim::exitRequests().empty());
  EXPECT_FALSE(fmain().form.loaded());
  EXPECT_FALSE(about().form.loaded());
}

TEST_F(Frame, ShutdownAndRestartAskTheSystem) {
  start();
  fmain().Picture3(0).userClick();
  winExit().Shutdown->userClick();
  winExit().Yes->userClick();
  winExit().Restart->userClick();
  winExit().Yes->userClick();
  EXPECT_EQ((std::vector<platform::Dword>{1, 2}), platform::sim::exitRequests());
  EXPECT_FALSE(ended_);
}

TEST_F(Frame, EscReturnsToTheMainFormWithItsPageStatesKept) {
  start();
  fmain().MainTab->userSelectTab(1);
  button("app_b").setEnabled(true);
  fmain().Picture3(0).userClick();
  winExit().Restart->userClick();
  winExit().form.userKey(kVbKeyEscape);
  EXPECT_FALSE(winExit().form.loaded());
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_EQ(1, fmain().MainTab->tab());
  EXPECT_TRUE(button("app_b").enabled());
  fmain().Picture3(0).userClick(); // a fresh dialog: Logoff again
  EXPECT_TRUE(winExit().Logoff->value());
  EXPECT_FALSE(winExit().Restart->value());
  EXPECT_TRUE(platform::sim::exitRequests().empty());
}

TEST_F(Frame, AnotherBuildIsRefusedAtTheFirstPaint) {
  platform::sim::setVersion({4, 10, 0x040A08AE, 1, " A "}); // 4.10.2222
  start();
  EXPECT_EQ(0, fmain().is_win98);
  fmain().form.userPaint();
  EXPECT_FALSE(fmain().form.visible());
  ASSERT_TRUE(winExit().form.visible());
  EXPECT_EQ("Tweakloom supports only MS Windows 98", winExit().Areyousurelabel->caption());
  EXPECT_FALSE(winExit().No->visible());
  EXPECT_TRUE(winExit().Yes->visible());
  winExit().Yes->userClick();
  EXPECT_TRUE(ended_);
}

TEST_F(Frame, OnBuild1998PaintDoesNothing) {
  start();
  fmain().form.userPaint();
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_FALSE(winExit().form.loaded());
}

TEST_F(Frame, AboutWindowLeavesOnAKeyOrAClick) {
  start();
  fmain().MainTab->userSelectTab(4);
  fmain().Picture4(0).userClick();
  EXPECT_FALSE(fmain().form.visible());
  EXPECT_TRUE(about().form.visible());
  about().form.userKeyDown('A', 0);
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_FALSE(about().form.visible());
  fmain().Picture4(0).userClick();
  about().form.userClick();
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_EQ(4, fmain().MainTab->tab());
}

TEST_F(Frame, AClickOnTheSplashShowsTheMainFormEarly) {
  program_ = std::make_unique<frame::Program>();
  int pumps = 0;
  bool shownEarly = false;
  Application::instance().pumpEvents = [&] {
    if (++pumps == 10) about().form.userClick(); // the user clicks during the delay
    if (pumps == 11) shownEarly = fmain().form.visible();
  };
  program_->start();
  EXPECT_EQ(frame::FrmShape::kSplashPumps, pumps);
  EXPECT_TRUE(shownEarly);
  EXPECT_TRUE(fmain().form.visible());
  EXPECT_FALSE(about().form.visible());
}

TEST_F(Frame, HelpRunsTheHelpViewerMinimisedWithFocus) {
  start();
  fmain().Picture0(0).userClick();
  ASSERT_EQ(1u, platform::sim::startedCommands().size());
  EXPECT_EQ("hh.exe Tweakloom 99.chm", platform::sim::startedCommands()[0].commandLine);
  EXPECT_EQ(2u, platform::sim::startedCommands()[0].showCommand);
}

TEST_F(Frame, MinimiseSetsTheWindowState) {
  start();
  fmain().Picture2(0).userClick();
  EXPECT_EQ(1, fmain().form.windowState());
}

// ---- The exit dialog from the keyboard ----------------------------------------

TEST_F(Frame, EnterInTheExitDialogPressesOnlyAFocusedButton) {
  start();
  fmain().Picture3(0).userClick();
  ASSERT_TRUE(winExit().Yes->hasFocus());
  // The dialog has no default button: with the focus on an option, Enter
  // does nothing at all.
  winExit().Shutdown->userClick();
  winExit().Shutdown->setFocus();
  EXPECT_FALSE(winExit().form.userKey(kVbKeyReturn));
  EXPECT_TRUE(platform::sim::exitRequests().empty());
  EXPECT_TRUE(winExit().form.visible());
  // Enter on a focused Cancel cancels, and doesn't end the program.
  winExit().No->setFocus();
  EXPECT_TRUE(winExit().form.userKey(kVbKeyReturn));
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(platform::sim::exitRequests().empty());
  EXPECT_FALSE(winExit().form.loaded());
  EXPECT_TRUE(fmain().form.visible());
  // Enter on OK (it has the focus when the dialog opens) with the default
  // option ends the program.
  fmain().Picture3(0).userClick();
  ASSERT_TRUE(winExit().Yes->hasFocus());
  EXPECT_TRUE(winExit().form.userKey(kVbKeyReturn));
  EXPECT_TRUE(ended_);
}

TEST_F(Frame, TabGoesThroughTheExitDialogInTabIndexOrder) {
  start();
  fmain().Picture3(0).userClick();
  auto& form = winExit().form;
  EXPECT_EQ(0, winExit().Shutdown->tabIndex());
  EXPECT_EQ(1, winExit().Restart->tabIndex());
  EXPECT_EQ(2, winExit().Logoff->tabIndex());
  EXPECT_EQ(3, winExit().Yes->tabIndex());
  EXPECT_EQ(5, winExit().No->tabIndex());
  // The option group is one stop, at its selected button.
  std::vector<Control*> seen;
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, 0));
    seen.push_back(form.activeControl());
  }
  EXPECT_EQ((std::vector<Control*>{winExit().No, winExit().Logoff, winExit().Yes, winExit().No}),
            seen);
  EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, kShiftMask));
  EXPECT_EQ(winExit().Yes, form.activeControl());
  EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, kShiftMask));
  EXPECT_EQ(winExit().Logoff, form.activeControl());
}

TEST_F(Frame, ArrowKeysSelectTheExitOptionsAndAccessKeysPressTheButtons) {
  start();
  fmain().Picture3(0).userClick();
  auto& form = winExit().form;
  winExit().Logoff->setFocus();
  EXPECT_TRUE(form.userNavigationKey(kVbKeyUp, 0));
  EXPECT_TRUE(winExit().Restart->value());
  EXPECT_TRUE(winExit().Restart->hasFocus());
  EXPECT_FALSE(winExit().Logoff->value());
  EXPECT_TRUE(form.userNavigationKey(kVbKeyUp, 0));
  EXPECT_TRUE(winExit().Shutdown->value());
  EXPECT_TRUE(form.userNavigationKey(kVbKeyUp, 0)); // round to the last
  EXPECT_TRUE(winExit().Logoff->value());
  EXPECT_TRUE(form.userNavigationKey(kVbKeyDown, 0));
  EXPECT_TRUE(winExit().Shutdown->value());
  // Alt+C is Cancel; Alt+O on a fresh dialog is OK.
  EXPECT_TRUE(form.userAccessKey('c'));
  EXPECT_FALSE(winExit().form.loaded());
  EXPECT_TRUE(platform::sim::exitRequests().empty());
  fmain().Picture3(0).userClick();
  EXPECT_TRUE(winExit().form.userAccessKey('O'));
  EXPECT_TRUE(ended_);
}

TEST_F(Frame, TheSystemGateDialogHasNoCancelForEsc) {
  platform::sim::setVersion({4, 10, 0x040A08AE, 1, " A "});
  start();
  fmain().form.userPaint();
  ASSERT_TRUE(winExit().form.visible());
  EXPECT_FALSE(winExit().form.userKey(kVbKeyEscape)); // No is invisible
  EXPECT_FALSE(winExit().form.userAccessKey('c'));
  EXPECT_TRUE(winExit().form.visible());
}

// ---- The main form from the keyboard -------------------------------------------

TEST_F(Frame, TheMainFormStartsWithTheFocusOnTheTabStrip) {
  start();
  EXPECT_EQ(fmain().MainTab, fmain().form.activeControl());
}

TEST_F(Frame, TabOnTheMainFormGoesThroughTheFrontPageAndTheFramesButtons) {
  start();
  auto& form = fmain().form;
  fmain().MainTab->userSelectTab(1);
  const std::vector<Control*> stops = form.tabStops();
  ASSERT_FALSE(stops.empty());
  EXPECT_EQ(fmain().MainTab, stops.front());
  // Every stop is on the tab in front or belongs to the frame itself.
  for (Control* stop : stops) {
    EXPECT_TRUE(stop->shown()) << stop->designName();
    EXPECT_TRUE(stop->takesUserInput()) << stop->designName();
  }
  const auto position = [&](const std::string& name) {
    for (std::size_t i = 0; i < stops.size(); ++i)
      if (stops[i]->designName() == name) return static_cast<int>(i);
    return -1;
  };
  // The page's check boxes, then its Refresh button (Apply is disabled),
  // then the four corner buttons; nothing of another page, no image store,
  // not the hidden text box.
  EXPECT_LT(0, position("net_check(0)"));
  EXPECT_LT(position("net_check(0)"), position("ref_b"));
  EXPECT_EQ(-1, position("app_b"));
  EXPECT_LT(position("ref_b"), position("Picture0(0)"));
  EXPECT_LT(position("Picture0(0)"), position("Picture4(0)"));
  EXPECT_LT(position("Picture4(0)"), position("Picture2(0)"));
  EXPECT_LT(position("Picture2(0)"), position("Picture3(0)"));
  EXPECT_EQ(-1, position("Picture0(1)"));
  EXPECT_EQ(-1, position("Hidden"));
  EXPECT_EQ(-1, position("refreshb"));
  // Tab walks the whole round and comes back.
  for (std::size_t i = 0; i < stops.size(); ++i) {
    EXPECT_EQ(stops[i], form.activeControl());
    form.userNavigationKey(kVbKeyTab, 0);
  }
  EXPECT_EQ(fmain().MainTab, form.activeControl());
}

TEST_F(Frame, SpaceAndEnterPressAFocusedPictureButton) {
  start();
  fmain().MainTab->userSelectTab(1);
  auto& access = fmain().pages->access;
  access.net_check(0).setFocus();
  EXPECT_TRUE(fmain().form.userNavigationKey(kVbKeySpace, 0));
  ASSERT_TRUE(button("app_b").enabled());
  button("app_b").setFocus();
  platform::sim::setCallLogging(true);
  EXPECT_TRUE(fmain().form.userKey(kVbKeyReturn));
  EXPECT_FALSE(platform::sim::callLog().empty()); // Apply wrote the page
  EXPECT_FALSE(button("app_b").enabled());
  // The button disabled itself: the focus went on to the next stop.
  ASSERT_NE(nullptr, fmain().form.activeControl());
  EXPECT_TRUE(fmain().form.activeControl()->takesUserInput());
}

TEST_F(Frame, CtrlTabTurnsTheTabsAsAClickDoes) {
  start();
  auto& form = fmain().form;
  EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, kCtrlMask));
  EXPECT_EQ(1, fmain().MainTab->tab());
  EXPECT_EQ("Access Restriction Settings", fmain().PLabel0->caption());
  EXPECT_EQ(Picture{"tab1_hi.bmp"}, fmain().MainTab->tabPicture(1));
  EXPECT_EQ(Picture{"tab0.bmp"}, fmain().MainTab->tabPicture(0));
  EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, kCtrlMask | kShiftMask));
  EXPECT_TRUE(form.userNavigationKey(kVbKeyTab, kCtrlMask | kShiftMask));
  EXPECT_EQ(9, fmain().MainTab->tab());
  EXPECT_EQ("Security && Networking Settings", fmain().PLabel1->caption());
  // From a control of the page too, and the focus stays on the page in front.
  form.userNavigationKey(kVbKeyTab, kCtrlMask);
  form.userNavigationKey(kVbKeyTab, kCtrlMask);
  fmain().pages->access.net_check(3).setFocus();
  form.userNavigationKey(kVbKeyTab, kCtrlMask);
  EXPECT_EQ(2, fmain().MainTab->tab());
  ASSERT_NE(nullptr, form.activeControl());
  EXPECT_TRUE(form.activeControl()->shown());
}

TEST_F(Frame, CtrlTabFromInsideTheDesktopPagesOwnTabsTurnsTheMainTabs) {
  start();
  auto& desktop = fmain().pages->desktop;
  desktop.Check1->setFocus(); // on SSTab1, inside tab 0 of MainTab
  EXPECT_TRUE(fmain().form.userNavigationKey(kVbKeyTab, kCtrlMask));
  EXPECT_EQ(1, fmain().MainTab->tab());
  EXPECT_EQ(0, desktop.SSTab1->tab());
}

// ---- A run-time error that nothing catches ----------------------------------------

TEST_F(Frame, AFatalErrorStopsEveryHandlerWhileItsBoxIsUpAndEndsTheProgram) {
  platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
  platform::sim::setUserName("Ann");
  start();
  // Unapplied changes on two pages.
  fmain().MainTab->userSelectTab(1);
  fmain().pages->access.net_check(0).userClick();
  ASSERT_TRUE(button("app_b").enabled());
  fmain().MainTab->userSelectTab(2);
  fmain().pages->safety.Check22->userClick();
  ASSERT_TRUE(button("refa").enabled());
  // The backup directory goes away; the page's Refresh lists it.
  platform::WritePrivateProfileStringA("1", "BackupDirectory", "C:\\NOTHERE",
                                       "C:\\WINDOWS\\scanreg.ini");
  const std::string tipBefore = fmain().tip_text->caption();
  bool boxWasUp = false;
  Application::instance().beforeFailureBox = [&] {
    boxWasUp = true;
    // While the box is up: a tick, the two Apply buttons, a tab change and
    // keys reach no handler and touch nothing.
    platform::sim::setCallLogging(true);
    platform::sim::clearCallLog();
    platform::sim::setTickCount(3725000);
    fmain().Timer1->tick();
    button("refa").userClick();
    button("app_b").userClick();
    fmain().MainTab->userSelectTab(5);
    fmain().form.userKey(kVbKeyReturn);
    fmain().form.userNavigationKey(kVbKeyTab, kCtrlMask);
    EXPECT_TRUE(platform::sim::callLog().empty());
    EXPECT_EQ(tipBefore, fmain().tip_text->caption());
    EXPECT_EQ(2, fmain().MainTab->tab());
    EXPECT_TRUE(button("refa").enabled());
  };
  button("ref_scan").userClick();
  EXPECT_TRUE(boxWasUp);
  ASSERT_EQ(1u, platform::sim::shownMessageBoxes().size());
  const auto& box = platform::sim::shownMessageBoxes()[0];
  EXPECT_EQ("Run-time error '76':\n\nPath not found", box.text);
  EXPECT_EQ("Tweakloom 99", box.caption);
  EXPECT_EQ(0x2010u, box.type); // OK, stop sign, modal to every window of the program
  EXPECT_TRUE(ended_);
  // Once the program has ended nothing more runs.
  fmain().Timer1->tick();
  EXPECT_EQ(tipBefore, fmain().tip_text->caption());
  EXPECT_EQ(1u, platform::sim::shownMessageBoxes().size());
}

// ---- Timer1, Resize, the display -----------------------------------------------------

TEST_F(Frame, Timer1TicksOnlyOnceTheMainFormsLoadHasRun) {
  platform::sim::setUserName("Ann");
  program_ = std::make_unique<frame::Program>();
  bool runningDuringSplash = true;
  std::string tipDuringSplash = "untouched";
  Application::instance().pumpEvents = [&] {
    runningDuringSplash = fmain().Timer1->running();
    fmain().Timer1->tick(); // a tick the splash's pump would deliver
    tipDuringSplash = fmain().tip_text->caption();
  };
  program_->start();
  EXPECT_FALSE(runningDuringSplash);
  EXPECT_EQ("", tipDuringSplash);
  EXPECT_TRUE(fmain().Timer1->running());
  EXPECT_EQ("Ann is logged in for 01.02.05", tipAt(3725000));
}

// Counts the redraw requests of a form.
struct RedrawCount : ControlView {
  void changed(Property property) override {
    if (property == Property::Drawing) ++redraws;
  }
  int redraws = 0;
};

TEST_F(Frame, TheAboutWindowsResizeHandlerRunsWhenItIsShown) {
  program_ = std::make_unique<frame::Program>();
  RedrawCount count;
  about().form.attachView(&count);
  program_->start();
  about().form.attachView(nullptr);
  // Form_Resize calls the paint routine, which asks for one redraw.
  EXPECT_EQ(1, count.redraws);
}

TEST_F(Frame, FormsHaveTheirDesignClientSizeAtTheDisplaysTwipsPerPixel) {
  auto& app = Application::instance();
  program_ = std::make_unique<frame::Program>();
  // At 96 dots per inch: 8265 x 7125 twips are 551 x 475 pixels, and the
  // frame adds a 3-pixel border and a 19-pixel caption.
  EXPECT_EQ((551 + 6) * 15, fmain().form.width());
  EXPECT_EQ((475 + 6 + 19) * 15, fmain().form.height());
  EXPECT_EQ((291 + 6) * 15, winExit().form.width());
  EXPECT_EQ((187 + 6 + 19) * 15, winExit().form.height());
  // The display is read after the forms were built (large fonts, a wider
  // caption): the forms follow.
  app.setDisplay({12, 12, 1024, 768, 3, 22});
  EXPECT_EQ(8265, fmain().form.clientWidth());
  EXPECT_EQ((689 + 6) * 12, fmain().form.width());       // 8265 / 12 = 688.75
  EXPECT_EQ((594 + 6 + 22) * 12, fmain().form.height()); // 7125 / 12 = 593.75
  program_->start();
  EXPECT_EQ((1024 * 12 - fmain().form.width()) / 2, fmain().form.left());
  // The region rests on the width in pixels at 12 twips a pixel: w = 695.
  ASSERT_NE(nullptr, fmain().form.region());
  EXPECT_EQ(695 - 59, fmain().form.region()->source1.top);
  EXPECT_EQ(695, fmain().form.region()->source2.top);
}

// Counts every change a control reports to its window.
struct ChangeCount : ControlView {
  void changed(Property) override { ++changes; }
  int changes = 0;
};

TEST_F(Frame, ATickThatChangesNoTextRepaintsNothing) {
  platform::sim::setUserName("Ann");
  start();
  platform::sim::setTickCount(3725000);
  fmain().Timer1->tick();
  std::vector<std::unique_ptr<ChangeCount>> counts;
  for (const auto& control : fmain().form.controls()) {
    counts.push_back(std::make_unique<ChangeCount>());
    control->attachView(counts.back().get());
  }
  fmain().Timer1->tick(); // the same second, the same memory figures
  int changes = 0;
  for (const auto& count : counts)
    changes += count->changes;
  // The next second rewrites the status line only.
  platform::sim::setTickCount(3726000);
  fmain().Timer1->tick();
  int afterASecond = 0;
  for (const auto& count : counts)
    afterASecond += count->changes;
  for (const auto& control : fmain().form.controls())
    control->attachView(nullptr);
  EXPECT_EQ(0, changes);
  EXPECT_EQ(1, afterASecond);
  EXPECT_EQ("Ann is logged in for 01.02.06", fmain().tip_text->caption());
}

TEST_F(Frame, TheHiddenTextBoxIsTheTextNormaliser) {
  start();
  // A number becomes its text, a system buffer is cut at its first NUL, and
  // the box holds what came back.
  EXPECT_EQ("12", fmain().throughHidden(std::int16_t{12}));
  EXPECT_EQ("12", fmain().Hidden().text());
  EXPECT_EQ("C:\\WIN", fmain().throughHidden(std::string("C:\\WIN\0   x", 10)));
  EXPECT_EQ("C:\\WIN", fmain().Hidden().text());
  EXPECT_EQ("0.5", fmain().throughHidden(0.5));
  // Start-up's Windows directory came the same way: no NUL, no blanks.
  EXPECT_EQ("C:\\WINDOWS", fmain().windir);
}

TEST(Regions, MainFormRegionArithmetic) {
  const WindowRegion region = frame::ShapeMainForm(8355, 15); // w = 557
  EXPECT_EQ(3, region.combineMode);
  // CombineRgn(result, second region, first region, RGN_XOR): the round
  // outline is the second region, the thin rectangle below the edge the first.
  EXPECT_EQ((RegionShape{RegionShape::Kind::RoundRect, 6, 498, 551, 27, 34, 50}), region.source1);
  EXPECT_EQ((RegionShape{RegionShape::Kind::Rect, 6, 557, 551, 551, 0, 0}), region.source2);
  // w / 21 rounds half to even: 525 / 21 = 25 exactly, 546 / 21 = 26, 567 / 21 = 27.
  EXPECT_EQ(25, frame::ShapeMainForm(525 * 15, 15).source1.bottom);
  EXPECT_EQ(26, frame::ShapeMainForm(556 * 15, 15).source1.bottom);      // 26.476
  EXPECT_EQ(27, frame::ShapeMainForm(557 * 15 + 14, 15).source1.bottom); // cut to whole pixels
  // At 120 dots per inch (12 twips a pixel) the same width is more pixels.
  EXPECT_EQ(696, frame::ShapeMainForm(8355, 12).source2.top); // 8355 \ 12 = 696
}

TEST(Regions, AboutFormRegionArithmetic) {
  const WindowRegion region = frame::ShapeAboutForm(5685, 15); // w = 379
  EXPECT_EQ(2, region.combineMode);
  EXPECT_EQ((RegionShape{RegionShape::Kind::RoundRect, 4, 28, 375, 474, 440, 240}),
            region.source1); // 473.75
  EXPECT_EQ((RegionShape{RegionShape::Kind::Rect, 4, 28, 375, 341, 0, 0}), region.source2); // 341.1
  EXPECT_EQ(45, frame::ShapeAboutForm(50 * 15, 15).source2.bottom);                         // 45.0
  EXPECT_EQ(62, frame::ShapeAboutForm(50 * 15, 15).source1.bottom); // 62.5 rounds to even
}

} // namespace
