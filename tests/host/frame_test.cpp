// The application frame on the simulated Windows 98: start-up, navigation,
// hover faces, status band, exit dialog, About window and system gate.
#include "frame/page_set.h"
#include "frame/page_table.h"
#include "frame/program.h"
#include "frame/regions.h"
#include "runtime/application.h"
#include "tests/host/sim_fixture.h"

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
  PictureBox& button(const std::string& name) { return fmain().button(name); }
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

TEST_F(Frame, ChangingTabsKeepsAPagesApplyState) {
  start();
  button("app_b").setEnabled(true);
  fmain().MainTab->userSelectTab(1);
  fmain().MainTab->userSelectTab(5);
  fmain().MainTab->userSelectTab(1);
  EXPECT_TRUE(button("app_b").enabled());
  EXPECT_FALSE(button("app_b").shown() && fmain().MainTab->tab() != 1);
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
  EXPECT_EQ(20u, frame::kRestoreOrder.size());
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

TEST(Regions, MainFormRegionArithmetic) {
  const WindowRegion region = frame::ShapeMainForm(8355, 15); // w = 557
  EXPECT_EQ(3, region.combineMode);
  EXPECT_EQ((RegionShape{RegionShape::Kind::RoundRect, 6, 498, 551, 27, 34, 50}), region.first);
  EXPECT_EQ((RegionShape{RegionShape::Kind::Rect, 6, 557, 551, 551, 0, 0}), region.second);
  // w / 21 rounds half to even: 525 / 21 = 25 exactly, 546 / 21 = 26, 567 / 21 = 27.
  EXPECT_EQ(25, frame::ShapeMainForm(525 * 15, 15).first.bottom);
  EXPECT_EQ(26, frame::ShapeMainForm(556 * 15, 15).first.bottom); // 26.476
  EXPECT_EQ(
      27, frame::ShapeMainForm(557 * 15 + 14, 15).first.bottom); // the width is cut to whole pixels
}

TEST(Regions, AboutFormRegionArithmetic) {
  const WindowRegion region = frame::ShapeAboutForm(5685, 15); // w = 379
  EXPECT_EQ(2, region.combineMode);
  EXPECT_EQ((RegionShape{RegionShape::Kind::RoundRect, 4, 28, 375, 474, 440, 240}),
            region.first);                                                                 // 473.75
  EXPECT_EQ((RegionShape{RegionShape::Kind::Rect, 4, 28, 375, 341, 0, 0}), region.second); // 341.1
  EXPECT_EQ(45, frame::ShapeAboutForm(50 * 15, 15).second.bottom);                         // 45.0
  EXPECT_EQ(62, frame::ShapeAboutForm(50 * 15, 15).first.bottom); // 62.5 rounds to even
}

} // namespace
