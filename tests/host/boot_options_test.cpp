// The Boot Options page on the simulated Windows 98: msdos.sys found on c: to
// h:, its rows with their inversions, the cache schemes on the slider, the
// registry row, the eighteen writes of Apply and the failures as they are.
#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"
#include "tests/host/page_buttons.h"
#include "tests/host/sim_fixture.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace runtime;
using sysaccess::HKLM;

namespace {

const std::string kSystemIni = "C:\\WINDOWS\\system.ini";
const std::string kWinlogon = "Software\\Microsoft\\Windows\\CurrentVersion\\Winlogon";
// The msdos.sys rows in the order Apply writes them: index and key.
const std::vector<std::pair<int, std::string>> kRows = {
    {13, "SystemReg"}, {0, "DblSpace"},  {5, "DrvSpace"},  {7, "BootGUI"},  {8, "BootMulti"},
    {2, "BootKeys"},   {1, "BootDelay"}, {10, "BootMenu"}, {14, "Logo"},    {12, "DoubleBuffer"},
    {11, "AutoScan"},  {9, "LoadTop"},   {4, "BootWin"},   {6, "BootSafe"}, {3, "BootWarn"}};

class BootPage : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    Application::instance().onEnd = [this] { ended_ = true; };
    // A scanreg.ini with the marker, so that start-up leaves it alone.
    writeFile("C:\\WINDOWS\\scanreg.ini",
              "[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n");
    installNetworkAdapter();
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
    program_->fmain.MainTab->userSelectTab(5);
  }
  pages::BootOptions& boot() { return program_->fmain.pages->boot; }
  PictureBox& button(const std::string& name) { return pageButton(program_->fmain, name); }
  std::string& bootDrive() { return program_->fmain.boot_drive; }
  void drive(char letter) { std::filesystem::create_directories(root_ + "/" + letter); }
  void writeFile(const std::string& windowsPath, const std::string& content) {
    std::ofstream(platform::sim::hostPath(windowsPath), std::ios::binary) << content;
  }
  std::string readFile(const std::string& windowsPath) {
    std::ifstream in(platform::sim::hostPath(windowsPath), std::ios::binary);
    if (!in) return "<missing>";
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }
  std::vector<std::string> record(const std::function<void()>& action) {
    platform::sim::clearCallLog();
    platform::sim::setCallLogging(true);
    action();
    platform::sim::setCallLogging(false);
    return platform::sim::callLog();
  }
  static std::vector<std::string> profileWrites(const std::vector<std::string>& log) {
    std::vector<std::string> writes;
    for (const std::string& line : log)
      if (line.rfind("WritePrivateProfileStringA", 0) == 0) writes.push_back(line);
    return writes;
  }
  std::vector<int> ticked() {
    std::vector<int> indexes;
    for (int i = 0; i < 17; ++i)
      if (boot().dos_opt(i).value() == 1) indexes.push_back(i);
    return indexes;
  }
  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};

TEST_F(BootPage, TheRowsStandWithTheirCaptions) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  start();
  EXPECT_EQ(17, boot().dos_opt.count());
  EXPECT_EQ("Display Last Username", boot().dos_opt(16).caption());
  EXPECT_EQ("Load DriveSpacem Driver", boot().dos_opt(5).caption());
  EXPECT_EQ("Do not Use Stacks", boot().dos_opt(15).caption());
  EXPECT_EQ("Safe Mode Warning", boot().dos_opt(3).caption());
  EXPECT_EQ("Cache Schemes", boot().Label37->caption());
  EXPECT_EQ("CD-Writer System", boot().cache_op(4).caption());
  EXPECT_EQ("Game Machine", boot().cache_op(5).caption());
  EXPECT_EQ("Minimum Cache Size", boot().Text1(0).text());
  EXPECT_EQ("Maximum Cache Size", boot().Text1(1).text());
  EXPECT_EQ("Certain System Information Cannot be Found. This Page will Remain Dissabled.",
            boot().Label39(1).caption());
  EXPECT_EQ(255u, boot().Label39(0).foreColor());
  EXPECT_EQ(0x80000001u, boot().Label39(1).foreColor());
  EXPECT_FALSE(boot().Label39(0).visible());
  EXPECT_EQ("", boot().Label36->caption());
}

TEST_F(BootPage, NoControlOfThePageOverlapsAnotherOrTheMemoryGroup) {
  start();
  const Control& page = program_->fmain.Frame4(1);
  std::vector<const Control*> parts;
  for (const Control* child : page.children())
    if (child->name() != "Label39") parts.push_back(child);
  ASSERT_GE(parts.size(), 29u);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const Bounds& a = parts[i]->bounds();
    EXPECT_GE(a.left, 0) << parts[i]->designName();
    EXPECT_LE(a.left + a.width, 6435) << parts[i]->designName();
    EXPECT_LE(a.top + a.height, 5475) << parts[i]->designName();
    for (std::size_t j = i + 1; j < parts.size(); ++j) {
      const Bounds& b = parts[j]->bounds();
      const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left ||
                         a.top + a.height <= b.top || b.top + b.height <= a.top;
      EXPECT_TRUE(apart) << parts[i]->designName() << " overlaps " << parts[j]->designName();
    }
  }
  EXPECT_TRUE(program_->fmain.Frame6->shown());
  EXPECT_TRUE(program_->fmain.txtPhysicalMemory->shown());
}

TEST_F(BootPage, TheShippedMachineShowsItsOptionsAndCacheSizes) {
  writeFile("C:\\msdos.sys", "[Paths]\r\nWinDir=C:\\WINDOWS\r\n[Options]\r\nBootMulti=1\r\n"
                             "BootGUI=1\r\nDoubleBuffer=1\r\nAutoScan=1\r\nWinVer=4.10.1998\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=8192\r\n");
  start();
  EXPECT_EQ("c:", bootDrive());
  EXPECT_EQ((std::vector<int>{7, 8, 11, 12}), ticked());
  EXPECT_EQ(2048, boot().sl.min());
  EXPECT_EQ(8192, boot().sl.max());
  EXPECT_EQ("2048 Bytes", boot().sl.Frame1(0).caption());
  EXPECT_EQ("8192 Bytes", boot().sl.Frame1(1).caption());
  EXPECT_FALSE(boot().sl.Frame1(0).enabled()); // locked at load
  EXPECT_FALSE(button("Dos_apply").enabled());
}

TEST_F(BootPage, ASystemIniWithoutVcacheShowsZerosAndApplyCreatesTheSection) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  writeFile(kSystemIni, "[boot]\r\nshell=Explorer.exe\r\n");
  start();
  EXPECT_EQ(0, boot().sl.min());
  EXPECT_EQ(0, boot().sl.max());
  EXPECT_EQ("0 Bytes", boot().sl.Frame1(0).caption());
  boot().dos_opt(15).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ("[boot]\r\nshell=Explorer.exe\r\n[vcache]\r\nMinFileCache=0\r\nMaxFileCache=0\r\n",
            readFile(kSystemIni));
}

TEST_F(BootPage, OnlyBootGuiTicksOneBoxAndApplyWritesAllFifteenKeys) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  start();
  EXPECT_EQ((std::vector<int>{7}), ticked());
  EXPECT_FALSE(button("Dos_apply").enabled());
  boot().dos_opt(15).userClick(); // arms Apply, stands for nothing
  EXPECT_TRUE(button("Dos_apply").enabled());
  button("Dos_apply").userClick();
  // The key that was there keeps its line; the others are added in order.
  std::string expected = "[Options]\r\nBootGUI=1\r\n";
  for (const auto& [index, key] : kRows)
    if (index != 7) expected += key + "=0\r\n";
  EXPECT_EQ(expected, readFile("C:\\msdos.sys"));
  EXPECT_FALSE(button("Dos_apply").enabled());
  EXPECT_EQ((std::vector<int>{7, 15}), ticked()); // dos_opt(15) is neither read nor written
}

TEST_F(BootPage, ApplyMakesItsEighteenWritesInOrderThroughTheProfileInterface) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=1024\r\nMaxFileCache=4096\r\n");
  start();
  boot().dos_opt(16).userClick();
  const auto log = record([&] { button("Dos_apply").userClick(); });
  const auto writes = profileWrites(log);
  ASSERT_GE(writes.size(), 17u);
  EXPECT_EQ("WritePrivateProfileStringA \"vcache\" \"MinFileCache\" \"1024\" "
            "\"C:\\WINDOWS\\system.ini\"",
            writes[0]);
  EXPECT_EQ("WritePrivateProfileStringA \"vcache\" \"MaxFileCache\" \"4096\" "
            "\"C:\\WINDOWS\\system.ini\"",
            writes[1]);
  for (std::size_t i = 0; i < kRows.size(); ++i)
    EXPECT_EQ("WritePrivateProfileStringA \"Options\" \"" + kRows[i].second + "\" \"" +
                  (kRows[i].first == 7 ? "1" : "0") + "\" \"c:\\msdos.sys\"",
              writes[2 + i]);
  EXPECT_EQ(17u, writes.size());
  // The registry value comes first of all.
  std::size_t firstRegistrySet = log.size(), firstProfileWrite = log.size();
  for (std::size_t i = 0; i < log.size(); ++i) {
    if (firstRegistrySet == log.size() && log[i].rfind("RegSetValueExA", 0) == 0)
      firstRegistrySet = i;
    if (firstProfileWrite == log.size() && log[i].rfind("WritePrivateProfileStringA", 0) == 0)
      firstProfileWrite = i;
  }
  EXPECT_LT(firstRegistrySet, firstProfileWrite);
  EXPECT_EQ("1", sysaccess::GetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName"));
  for (const std::string& line : log)
    EXPECT_EQ(std::string::npos, line.find("Attributes")) << line;
}

TEST_F(BootPage, BootDelayOfThreeShowsClearAndApplyWritesZero) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootDelay=3\r\nBootMulti=1 \r\n");
  start();
  EXPECT_EQ(0, boot().dos_opt(1).value());
  EXPECT_EQ(1, boot().dos_opt(8).value()); // a trailing blank still converts
  boot().dos_opt(15).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ("0", sysaccess::GetFromINI("Options", "BootDelay", "c:\\msdos.sys"));
  EXPECT_EQ("1", sysaccess::GetFromINI("Options", "BootMulti", "c:\\msdos.sys"));
}

TEST_F(BootPage, NumbersEqualToOneTickOthersClear) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1.0\r\nBootMulti=2\r\nLogo=&H1\r\n"
                             "BootKeys=-1\r\nAutoScan=0\r\nBootWin=1e0\r\n");
  start();
  EXPECT_EQ((std::vector<int>{4, 7, 14}), ticked());
}

TEST_F(BootPage, ATextThatIsNoNumberSetsTheBoxToOneThenZeroFiringBothClicks) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=yes\r\nLogo=1\r\n");
  start();
  std::vector<std::string> clicks;
  const auto handler = boot().dos_opt.onClick;
  boot().dos_opt.onClick = [&](int index) {
    clicks.push_back(std::to_string(index) + "=" + std::to_string(boot().dos_opt(index).value()));
    handler(index);
  };
  boot().dos_opt(14).setValue(0); // so that the read ticks it again
  clicks.clear();
  button("Dos_ref").userClick();
  // BootGUI: non-numeric, 1 then 0; SystemReg and the other missing keys are
  // empty texts, which fail the same way.
  EXPECT_EQ((std::vector<std::string>{"13=1", "13=0", "0=1",  "0=0",  "5=1",  "5=0", "7=1",  "7=0",
                                      "8=1",  "8=0",  "2=1",  "2=0",  "1=1",  "1=0", "10=1", "10=0",
                                      "14=1", "12=1", "12=0", "11=1", "11=0", "9=1", "9=0",  "4=1",
                                      "4=0",  "6=1",  "6=0",  "3=1",  "3=0"}),
            clicks);
  EXPECT_EQ((std::vector<int>{14}), ticked());
  EXPECT_FALSE(button("Dos_apply").enabled()); // disarmed last of all
}

TEST_F(BootPage, MsdosSysOnlyOnEIsFoundAndSearchedFirstFromThenOn) {
  drive('e');
  drive('d');
  writeFile("E:\\msdos.sys", "[Options]\r\nLogo=1\r\n");
  start();
  EXPECT_EQ("e:", bootDrive());
  EXPECT_EQ((std::vector<int>{14}), ticked());
  // A file that appears on d: later is never seen: the next read starts at e:.
  writeFile("D:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  button("Dos_ref").userClick();
  EXPECT_EQ("e:", bootDrive());
  EXPECT_EQ((std::vector<int>{14}), ticked());
  boot().dos_opt(3).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ("1", sysaccess::GetFromINI("Options", "BootWarn", "e:\\msdos.sys"));
  EXPECT_EQ("[Options]\r\nBootGUI=1\r\n", readFile("D:\\msdos.sys"));
  EXPECT_EQ("<missing>", readFile("C:\\msdos.sys"));
}

TEST_F(BootPage, NoMsdosSysOnAnyDriveDisablesThePageForGood) {
  drive('d');
  drive('h');
  start();
  EXPECT_EQ("none", bootDrive());
  for (int i = 0; i < 17; ++i)
    EXPECT_FALSE(boot().dos_opt(i).visible()) << i;
  EXPECT_TRUE(boot().Label39(0).visible());
  EXPECT_TRUE(boot().Label39(1).visible());
  EXPECT_EQ(boot().Label39(1).left() - 10, boot().Label39(0).left());
  EXPECT_EQ(boot().Label39(1).top() - 10, boot().Label39(0).top());
  EXPECT_FALSE(boot().sl.Frame1(0).enabled());
  EXPECT_FALSE(boot().Label36->enabled());
  for (int i = 0; i < 6; ++i)
    EXPECT_FALSE(boot().cache_op(i).enabled()) << i;
  EXPECT_FALSE(button("Dos_apply").enabled());
  const int shiftedLeft = boot().Label39(0).left();
  // A second read starts from "none" and walks d: to h: again: nothing changes.
  button("Dos_ref").userClick();
  EXPECT_EQ("none", bootDrive());
  EXPECT_EQ(shiftedLeft, boot().Label39(0).left()); // placed again from its partner: the same
  EXPECT_FALSE(boot().dos_opt(0).visible());
}

TEST_F(BootPage, AFileFoundLaterDoesNotBringThePageBack) {
  drive('f');
  start();
  ASSERT_EQ("none", bootDrive());
  writeFile("F:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  button("Dos_ref").userClick();
  EXPECT_EQ("f:", bootDrive());
  EXPECT_EQ(1, boot().dos_opt(7).value());
  EXPECT_FALSE(boot().dos_opt(7).visible());
  EXPECT_TRUE(boot().Label39(0).visible());
  EXPECT_FALSE(boot().cache_op(0).enabled());
}

TEST_F(BootPage, DisplayLastUsernameReadsOneAsTickedAndWritesText) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  sysaccess::SetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName", sysaccess::kRegSz,
                         std::string("1"));
  start();
  EXPECT_EQ(1, boot().dos_opt(16).value());
  boot().dos_opt(16).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ("0", sysaccess::GetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName"));
  EXPECT_EQ(0, boot().dos_opt(16).value());
}

TEST_F(BootPage, DontDisplayLastUserNameAsDwordLeavesTheBoxAndApplyMakesItText) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  sysaccess::SetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName", sysaccess::kRegDword,
                         std::int32_t{1});
  start();
  ASSERT_EQ("001", sysaccess::GetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName"));
  EXPECT_EQ(0, boot().dos_opt(16).value()); // design state
  boot().dos_opt(16).setValue(1);
  button("Dos_ref").userClick();
  EXPECT_EQ(1, boot().dos_opt(16).value()); // "001" leaves it as it stands
  button("Dos_apply").setEnabled(true);
  button("Dos_apply").userClick();
  platform::RegKey key = 0;
  ASSERT_EQ(0, platform::RegOpenKeyA(platform::kLocalMachine, kWinlogon.c_str(), &key));
  platform::Dword type = 0, size = 8;
  std::uint8_t data[8] = {};
  EXPECT_EQ(0, platform::RegQueryValueExA(key, "DontDisplayLastUserName", &type, data, &size));
  platform::RegCloseKey(key);
  EXPECT_EQ(1u, type);
  EXPECT_EQ(std::string("1\0", 2), std::string(reinterpret_cast<char*>(data), size));
}

TEST_F(BootPage, CacheSchemesSetTheSliderAndLockIt) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  start();
  const struct {
    int index;
    int min, max;
    bool unlocked;
  } rows[] = {{1, 1024, 2048, false}, {2, 2048, 4096, false}, {3, 4096, 4096, false},
              {4, 2048, 2048, false}, {5, 0, 2048, false},    {0, 0, 2048, true}};
  for (const auto& row : rows) {
    button("Dos_apply").setEnabled(false);
    boot().cache_op(row.index).userClick();
    EXPECT_EQ(row.min, boot().sl.min()) << row.index;
    EXPECT_EQ(row.max, boot().sl.max()) << row.index;
    EXPECT_EQ(row.unlocked, boot().sl.Frame1(0).enabled()) << row.index;
    EXPECT_TRUE(button("Dos_apply").enabled()) << row.index;
  }
  EXPECT_TRUE(boot().sl.Enabled()); // the stored answer, whatever was set
}

TEST_F(BootPage, GameMachineThenApplyWritesItsSizesAndStaysLockedUntilRefresh) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=8192\r\n");
  start();
  boot().cache_op(5).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ("0", sysaccess::GetFromINI("vcache", "MinFileCache", kSystemIni));
  EXPECT_EQ("2048", sysaccess::GetFromINI("vcache", "MaxFileCache", kSystemIni));
  EXPECT_TRUE(boot().cache_op(5).value()); // the selection stands after Apply
  EXPECT_FALSE(boot().sl.Frame1(0).enabled());
  EXPECT_FALSE(button("Dos_apply").enabled());
  button("Dos_ref").userClick();
  EXPECT_FALSE(boot().cache_op(5).value());
  EXPECT_FALSE(boot().sl.Frame1(1).enabled());
  boot().cache_op(0).userClick();
  EXPECT_TRUE(boot().sl.Frame1(1).enabled());
}

TEST_F(BootPage, MovingAKnobEnablesNothingByItself) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=8192\r\n");
  start();
  boot().cache_op(0).userClick();
  button("Dos_apply").userClick(); // read back: disarmed, the slider still unlocked
  ASSERT_FALSE(button("Dos_apply").enabled());
  ASSERT_TRUE(boot().sl.Frame1(1).enabled());
  Image& knob = boot().sl.knob(1);
  knob.userMouseDown(1, 0, 50, 50);
  knob.userMouseMove(1, 0, 50 - 640, 50);
  boot().sl.Timer1().tick();
  knob.userMouseUp(1, 0, 50, 50);
  EXPECT_EQ(6144, boot().sl.max());
  EXPECT_FALSE(button("Dos_apply").enabled());
  button("Dos_ref").userClick();
  EXPECT_EQ(8192, boot().sl.max()); // nothing was written
}

TEST_F(BootPage, AReadOnlyMsdosSysRefusesTheWriteSilently) {
  const std::string content = "[Options]\r\nBootGUI=1\r\n";
  writeFile("C:\\msdos.sys", content);
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=8192\r\n");
  ASSERT_TRUE(platform::SetFileAttributesA("C:\\msdos.sys", platform::kAttributeReadOnly |
                                                                platform::kAttributeHidden |
                                                                platform::kAttributeSystem));
  start();
  boot().dos_opt(7).userClick(); // untick BootGUI
  boot().cache_op(1).userClick();
  button("Dos_apply").userClick();
  EXPECT_EQ(content, readFile("C:\\msdos.sys"));
  EXPECT_EQ(7u, platform::GetFileAttributesA("C:\\msdos.sys") & 7u);
  EXPECT_EQ(1, boot().dos_opt(7).value()); // the read-back shows the file as it stands
  EXPECT_EQ("1024", sysaccess::GetFromINI("vcache", "MinFileCache", kSystemIni));
  EXPECT_EQ("0", sysaccess::GetRegValue(HKLM, kWinlogon, "DontDisplayLastUserName"));
  EXPECT_TRUE(platform::sim::shownMessageBoxes().empty());
  EXPECT_FALSE(ended_);
}

TEST_F(BootPage, ACacheSizeThatOverflowsAbandonsTheReadAtStartUp) {
  // A foreign scanreg.ini puts the load into resume-next mode before the
  // page readers run.
  writeFile("C:\\WINDOWS\\scanreg.ini", "[Scanreg]\r\nBackup=1\r\n");
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=32768\r\nMaxFileCache=8192\r\n");
  start();
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(program_->fmain.form.visible());
  EXPECT_EQ(0, boot().dos_opt(7).value()); // the rest of the page stays unread
  EXPECT_TRUE(platform::sim::shownMessageBoxes().empty());
}

TEST_F(BootPage, ACacheSizeThatOverflowsEndsTheProgramFromRefresh) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=4000\r\n");
  start();
  ASSERT_FALSE(ended_);
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=40000\r\n");
  button("Dos_ref").userClick();
  EXPECT_TRUE(ended_);
  ASSERT_FALSE(platform::sim::shownMessageBoxes().empty());
  EXPECT_EQ("Run-time error '6':\n\nOverflow", platform::sim::shownMessageBoxes().back().text);
}

TEST_F(BootPage, CacheSizesTakeTheirNumericPrefixRoundedHalfToEven) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  writeFile(kSystemIni, "[vcache]\r\nMinFileCache=1024 KB\r\nMaxFileCache=2048.5\r\n");
  start();
  EXPECT_EQ(1024, boot().sl.min());
  EXPECT_EQ(2048, boot().sl.max());
}

TEST_F(BootPage, RefreshLocksTheSliderAndClearsTheSchemes) {
  writeFile("C:\\msdos.sys", "[Options]\r\n");
  start();
  boot().cache_op(0).userClick();
  ASSERT_TRUE(boot().sl.Frame1(0).enabled());
  button("Dos_ref").userClick();
  EXPECT_FALSE(boot().sl.Frame1(0).enabled());
  for (int i = 0; i < 6; ++i)
    EXPECT_FALSE(boot().cache_op(i).value()) << i;
  EXPECT_FALSE(button("Dos_apply").enabled());
}

} // namespace
