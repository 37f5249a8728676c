// The Access Restriction and Registry Safety pages, and the scanreg.ini
// template of start-up, on the simulated Windows 98.
#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "sysaccess/system_helpers.h"
#include "tests/host/page_buttons.h"
#include "tests/host/sim_fixture.h"

#include <array>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace runtime;
using sysaccess::HKU;

namespace {

const std::string kPolicies = ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\";
const std::string kScanreg = "C:\\WINDOWS\\scanreg.ini";
constexpr std::array<int, 28> kIndexes{0,  1,  2,  3,  4,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                                       15, 16, 17, 18, 19, 21, 22, 23, 24, 25, 26, 27, 28, 29};

class Pages : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    Application::instance().onEnd = [this] { ended_ = true; };
    platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
    installNetworkAdapter();
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  pages::AccessRestriction& access() { return program_->fmain.pages->access; }
  pages::RegistrySafety& safety() { return program_->fmain.pages->safety; }
  PictureBox& button(const std::string& name) { return pageButton(program_->fmain, name); }
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
  // A scanreg.ini that start-up leaves alone: it carries the marker.
  void markedScanreg(const std::string& sectionOne) {
    writeFile(kScanreg,
              "[1]\r\n" + sectionOne +
                  "[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n");
  }
  std::vector<std::string> record(const std::function<void()>& action) {
    platform::sim::clearCallLog();
    platform::sim::setCallLogging(true);
    action();
    platform::sim::setCallLogging(false);
    return platform::sim::callLog();
  }

  // A user's click on a page button: its tab comes to the front first.
  void pressOnTab(int tab, const std::string& name) {
    program_->fmain.MainTab->userSelectTab(tab);
    button(name).userClick();
  }
  static std::string storedBytes(const std::string& key, const char* name) {
    platform::RegKey handle = 0;
    platform::RegOpenKeyA(platform::kUsers, key.c_str(), &handle);
    std::uint8_t data[16];
    platform::Dword size = sizeof data, type = 0;
    const auto rc = platform::RegQueryValueExA(handle, name, &type, data, &size);
    platform::RegCloseKey(handle);
    return rc == 0 ? std::string(reinterpret_cast<char*>(data), size) : "<missing>";
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};

// ---- Access Restriction ------------------------------------------------

TEST_F(Pages, NothingSetShowsAllBoxesClearAndApplyDisabled) {
  start();
  EXPECT_EQ(28, access().net_check.count());
  for (int index : kIndexes)
    EXPECT_EQ(0, access().net_check(index).value()) << index;
  EXPECT_FALSE(button("app_b").enabled());
}

TEST_F(Pages, IndexesFiveAndTwentyAreNoControls) {
  start();
  EXPECT_FALSE(access().net_check.exists(5));
  EXPECT_FALSE(access().net_check.exists(20));
  EXPECT_EQ(nullptr, program_->fmain.form.find("net_check(5)"));
  EXPECT_THROW(access().net_check(20), RuntimeError);
}

TEST_F(Pages, CaptionsStandAsDesigned) {
  start();
  EXPECT_EQ("Identification Page             ", access().net_check(18).caption());
  EXPECT_EQ("Disable Vitual Memory Settings", access().net_check(13).caption());
  EXPECT_EQ("Disable Deletion Permition", access().net_check(16).caption());
  EXPECT_EQ("Hide HD Drives (exept A and B)", access().net_check(22).caption());
  EXPECT_EQ("Printers Panel ",
            static_cast<Label*>(program_->fmain.form.find("Label29"))->caption());
}

TEST_F(Pages, TickedBoxesApplyThePolicyBytesAndTheDriveMask) {
  start();
  program_->fmain.MainTab->userSelectTab(1);
  access().net_check(0).userClick();
  access().net_check(22).userClick();
  access().net_check(27).userClick();
  EXPECT_TRUE(button("app_b").enabled());
  button("app_b").userClick();
  platform::RegKey key = 0;
  ASSERT_EQ(0, platform::RegOpenKeyA(platform::kUsers, (kPolicies + "System").c_str(), &key));
  platform::Dword type = 0;
  std::uint8_t data[16];
  platform::Dword size = sizeof data;
  ASSERT_EQ(0, platform::RegQueryValueExA(key, "NoDispCPL", &type, data, &size));
  EXPECT_EQ(platform::kRegBinary, type);
  EXPECT_EQ(std::string("\0\0\0\x20", 4), std::string(reinterpret_cast<char*>(data), size));
  platform::RegCloseKey(key);
  ASSERT_EQ(0, platform::RegOpenKeyA(platform::kUsers, (kPolicies + "Explorer").c_str(), &key));
  size = sizeof data;
  ASSERT_EQ(0, platform::RegQueryValueExA(key, "NoDrives", &type, data, &size));
  EXPECT_EQ(platform::kRegDword, type);
  EXPECT_EQ(sysaccess::DwordToBytes(67108860), std::string(reinterpret_cast<char*>(data), size));
  platform::RegCloseKey(key);
  EXPECT_EQ("00000020", sysaccess::GetRegValue(HKU, kPolicies + "WinOldApp", "NoRealMode"));
  EXPECT_EQ(1, access().net_check(0).value());
  EXPECT_EQ(1, access().net_check(22).value());
  EXPECT_FALSE(button("app_b").enabled());
}

TEST_F(Pages, ForeignFormatsShowClearAndTheNextApplyDeletesThem) {
  platform::sim::storeRawValue(platform::kUsers, kPolicies + "System", "NoDispCPL",
                               platform::kRegBinary, {1, 0, 0, 0});
  platform::sim::storeRawValue(platform::kUsers, kPolicies + "Explorer", "NoClose",
                               platform::kRegDword, {1, 0, 0, 0});
  start();
  EXPECT_EQ("01000000", sysaccess::GetRegValue(HKU, kPolicies + "System", "NoDispCPL"));
  EXPECT_EQ("001", sysaccess::GetRegValue(HKU, kPolicies + "Explorer", "NoClose"));
  EXPECT_EQ(0, access().net_check(0).value());
  EXPECT_EQ(0, access().net_check(26).value());
  program_->fmain.MainTab->userSelectTab(1);
  access().net_check(9).userClick(); // a different box
  button("app_b").userClick();
  EXPECT_EQ("Not Found", sysaccess::GetRegValue(HKU, kPolicies + "System", "NoDispCPL"));
  EXPECT_EQ("Not Found", sysaccess::GetRegValue(HKU, kPolicies + "Explorer", "NoClose"));
  EXPECT_EQ("00000020", sysaccess::GetRegValue(HKU, kPolicies + "System", "NoSecCPL"));
}

TEST_F(Pages, AnyNoDrivesWhoseTextStartsWith671ShowsTicked) {
  for (const std::uint32_t mask : {671u, 67108860u, 6710u}) {
    platform::sim::storeRawValue(
        platform::kUsers, kPolicies + "Explorer", "NoDrives", platform::kRegDword,
        {static_cast<std::uint8_t>(mask), static_cast<std::uint8_t>(mask >> 8),
         static_cast<std::uint8_t>(mask >> 16), static_cast<std::uint8_t>(mask >> 24)});
    start();
    EXPECT_EQ(1, access().net_check(22).value()) << mask;
    program_->fmain.MainTab->userSelectTab(1);
    access().net_check(0).userClick();
    button("app_b").userClick();
    EXPECT_EQ(sysaccess::DwordToBytes(67108860), storedBytes(kPolicies + "Explorer", "NoDrives"))
        << mask;
  }
}

TEST_F(Pages, NoDrivesHeldAsBinaryShowsClear) {
  platform::sim::storeRawValue(platform::kUsers, kPolicies + "Explorer", "NoDrives",
                               platform::kRegBinary, {0xFC, 0xFF, 0xFF, 0x03});
  start();
  EXPECT_EQ(0, access().net_check(22).value());
}

TEST_F(Pages, AllClearApplyRemovesEveryValueAndKeepsTheKeys) {
  for (const char* key : {"System", "Network", "Explorer", "WinOldApp"})
    platform::sim::storeRawValue(platform::kUsers, kPolicies + key, "Other", platform::kRegSz,
                                 {'x', 0});
  start();
  program_->fmain.MainTab->userSelectTab(1);
  for (int index : kIndexes)
    access().net_check(index).setValue(1);
  button("app_b").userClick();
  for (int index : kIndexes)
    access().net_check(index).setValue(0);
  button("app_b").userClick();
  const std::string exported = platform::sim::exportRegistry();
  for (const char* key : {"System", "Network", "Explorer", "WinOldApp"}) {
    EXPECT_NE(std::string::npos,
              exported.find("[HKEY_USERS\\" + kPolicies + key + "]\n\"Other\" type 1: 78 00\n"))
        << key;
  }
  EXPECT_EQ(std::string::npos, exported.find("NoDispCPL"));
  EXPECT_EQ(std::string::npos, exported.find("NoDrives"));
  for (int index : kIndexes)
    EXPECT_EQ(0, access().net_check(index).value());
}

TEST_F(Pages, ReaderReadsInItsOrderAndWriterWritesInRisingOrder) {
  start();
  const auto reads = record([&] { access().ref_access(); });
  std::vector<std::string> readNames;
  for (const auto& line : reads)
    if (line.rfind("RegQueryValueExA", 0) == 0) readNames.push_back(line.substr(line.find('"')));
  const std::vector<std::string> expectedReads = {"\"NoDispCPL\"",
                                                  "\"NoDispBackgroundPage\"",
                                                  "\"NoDispScrSavPage\"",
                                                  "\"NoDispAppearancePage\"",
                                                  "\"NoDispSettingsPage\"",
                                                  "\"NoSecCPL\"",
                                                  "\"NoPwdPage\"",
                                                  "\"NoAdminPage\"",
                                                  "\"NoProfilePage\"",
                                                  "\"NoNetSetupSecurityPage\"",
                                                  "\"NoNetSetupIDPage\"",
                                                  "\"NoNetSetup\"",
                                                  "\"NoAddPrinter\"",
                                                  "\"NoDeletePrinter\"",
                                                  "\"NoDevMgrPage\"",
                                                  "\"NoConfigPage\"",
                                                  "\"NoFileSysPage\"",
                                                  "\"NoVirtMemPage\"",
                                                  "\"NoFileSharingControl\"",
                                                  "\"NoPrintSharingControl\"",
                                                  "\"NoDrives\"",
                                                  "\"NoWorkgroupContents\"",
                                                  "\"NoEntireNetwork\"",
                                                  "\"NoDesktop\"",
                                                  "\"NoClose\"",
                                                  "\"NoRealMode\"",
                                                  "\"Disabled\"",
                                                  "\"NoCommonGroups\""};
  EXPECT_EQ(expectedReads, readNames);

  access().net_check(2).setValue(1);
  access().net_check(22).setValue(1);
  const auto writes = record([&] { access().app_b_Click(); });
  std::vector<std::string> written;
  for (const auto& line : writes) {
    if (line.rfind("RegSetValueExA", 0) == 0 || line.rfind("RegDeleteValueA", 0) == 0)
      written.push_back(
          line.substr(0, line.find(' ')) + " " +
          line.substr(line.find('"'), line.find('"', line.find('"') + 1) - line.find('"') + 1));
    if (line.rfind("RegQueryValueExA", 0) == 0) break; // the closing read begins
  }
  ASSERT_EQ(28u, written.size());
  EXPECT_EQ("RegDeleteValueA \"NoDispCPL\"", written[0]);
  EXPECT_EQ("RegSetValueExA \"NoDispScrSavPage\"", written[2]);
  EXPECT_EQ("RegDeleteValueA \"NoDispAppearancePage\"", written[3]);
  EXPECT_EQ("RegSetValueExA \"NoDrives\"", written[20]);
  EXPECT_EQ("RegDeleteValueA \"NoCommonGroups\"", written[27]);
}

TEST_F(Pages, RefreshDropsAnUnappliedTick) {
  start();
  program_->fmain.MainTab->userSelectTab(1);
  access().net_check(4).userClick();
  EXPECT_TRUE(button("app_b").enabled());
  button("ref_b").userClick();
  EXPECT_EQ(0, access().net_check(4).value());
  EXPECT_FALSE(button("app_b").enabled());
}

// ---- Registry Safety -------------------------------------------------------

TEST_F(Pages, FilesEntryForAllEightCombinations) {
  start();
  const struct {
    int a, c, m;
    const char* files;
  } rows[] = {{0, 0, 0, ""},
              {1, 0, 0, "30,autoexec.bat"},
              {0, 1, 0, "30,,config.sys"},
              {0, 0, 1, "30,,msdos.sys"},
              {1, 1, 0, "30,autoexec.bat,config.sys"},
              {1, 0, 1, "30,autoexec.bat,msdos.sys"},
              {0, 1, 1, "30,,config.sys,msdos.sys"},
              {1, 1, 1, "30,autoexec.bat,config.sys,msdos.sys"}};
  for (const auto& row : rows) {
    safety().Check21->setValue(row.a);
    safety().Check22->setValue(row.c);
    safety().Check23->setValue(row.m);
    EXPECT_EQ(row.files, safety().filesEntry());
    safety().refa_Click();
    EXPECT_EQ(row.files, sysaccess::GetFromINI("1", "Files", kScanreg));
  }
}

TEST_F(Pages, ApplyWritesTheExactFile) {
  markedScanreg("");
  start();
  program_->fmain.MainTab->userSelectTab(2);
  safety().Check24->userClick();
  safety().Check22->userClick();
  safety().Text16->setText("7");
  button("refa").userClick();
  EXPECT_EQ(
      "[1]\r\nOptimize=1\r\nBackup=0\r\nFiles=30,,config.sys\r\nBackupDirectory=C:"
      "\\WINDOWS\\sysbckup\r\n"
      "MaxBackupCopies=7\r\n[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n",
      readFile(kScanreg));
  EXPECT_FALSE(button("refa").enabled());
  EXPECT_EQ(1, safety().Check22->value());
}

TEST_F(Pages, NoSectionOneOrNoFileReadsEmpty) {
  start(); // no template beside the program: scanreg.ini is gone
  EXPECT_EQ("<missing>", readFile(kScanreg));
  EXPECT_EQ("C:\\WINDOWS\\sysbckup", safety().Text15->text());
  EXPECT_EQ("", safety().Text16->text());
  for (CheckBox* box :
       {safety().Check21, safety().Check22, safety().Check23, safety().Check24, safety().Check25})
    EXPECT_EQ(0, box->value());
  safety().refa_Click();
  EXPECT_EQ("", sysaccess::GetFromINI("1", "MaxBackupCopies", kScanreg));
  EXPECT_NE(std::string::npos, readFile(kScanreg).find("MaxBackupCopies=\r\n"));
}

TEST_F(Pages, UpperCaseFileNamesTickNothing) {
  markedScanreg("Files=30,AUTOEXEC.BAT\r\n");
  start();
  EXPECT_EQ(0, safety().Check21->value());
  safety().refa_Click();
  EXPECT_EQ("", sysaccess::GetFromINI("1", "Files", kScanreg));
}

TEST_F(Pages, TheReaderOnlyTicksFileBoxes) {
  markedScanreg("Files=30,autoexec.bat,config.sys,msdos.sys\r\n");
  start();
  EXPECT_EQ(1, safety().Check21->value());
  writeFile(kScanreg, "[1]\r\nFiles=\r\n");
  pressOnTab(2, "ref_scan");
  EXPECT_EQ(1, safety().Check21->value()); // still ticked though the file no longer names it
  safety().Check21->setValue(0);
  safety().Check22->setValue(0);
  safety().Check23->setValue(0);
  safety().refa_Click();
  EXPECT_EQ("", sysaccess::GetFromINI("1", "Files", kScanreg));
  EXPECT_EQ(0, safety().Check21->value());
}

TEST_F(Pages, BackupDirectoryZeroKeepsTheFormerText) {
  markedScanreg("BackupDirectory=C:\\WINDOWS\\SYSBCKUP\r\n");
  start();
  EXPECT_EQ("C:\\WINDOWS\\SYSBCKUP", safety().Text15->text());
  writeFile(kScanreg, "[1]\r\nBackupDirectory=0\r\n");
  pressOnTab(2, "ref_scan");
  EXPECT_EQ("C:\\WINDOWS\\SYSBCKUP", safety().Text15->text());
  safety().refa_Click();
  EXPECT_EQ("C:\\WINDOWS\\SYSBCKUP", sysaccess::GetFromINI("1", "BackupDirectory", kScanreg));
}

TEST_F(Pages, ConfigSysAloneKeepsItsDoubledComma) {
  markedScanreg("");
  start();
  safety().Check22->setValue(1);
  safety().refa_Click();
  safety().refa_Click();
  EXPECT_EQ("30,,config.sys", sysaccess::GetFromINI("1", "Files", kScanreg));
  EXPECT_EQ(1, safety().Check22->value());
}

TEST_F(Pages, OptimizeOfTwoLeavesTheBoxAndApplyWritesZeroOrOne) {
  markedScanreg("Optimize=2\r\nBackup=1\r\n");
  start();
  EXPECT_EQ(0, safety().Check24->value());
  EXPECT_EQ(1, safety().Check25->value());
  safety().refa_Click();
  EXPECT_EQ("0", sysaccess::GetFromINI("1", "Optimize", kScanreg));
}

TEST_F(Pages, TheFileListShowsCabFilesOnlyAndPickingDoesNothing) {
  for (const char* name : {"rb000.cab", "rb001.cab", "notes.txt"})
    writeFile(std::string("C:\\WINDOWS\\SYSBCKUP\\") + name, "x");
  markedScanreg("");
  start();
  ASSERT_EQ(2, safety().File1->listCount());
  EXPECT_EQ("rb000.cab", safety().File1->list(0));
  program_->fmain.MainTab->userSelectTab(2);
  safety().File1->userSelect(1);
  EXPECT_FALSE(button("refa").enabled());
}

TEST_F(Pages, RefreshArmsApplyOnlyWhenTheReadChangesSomething) {
  markedScanreg("Optimize=1\r\n");
  start();
  EXPECT_FALSE(button("refa").enabled());
  pressOnTab(2, "ref_scan");
  EXPECT_FALSE(button("refa").enabled()); // nothing changed
  writeFile(kScanreg, "[1]\r\nOptimize=0\r\n");
  pressOnTab(2, "ref_scan");
  EXPECT_TRUE(button("refa").enabled()); // the read changed a box, and refresh doesn't disarm
}

TEST_F(Pages, MaxCopiesTakesTwoDigitsAtMost) {
  markedScanreg("MaxBackupCopies=\r\n");
  start();
  program_->fmain.MainTab->userSelectTab(2);
  safety().Text16->userType("a9x95");
  EXPECT_EQ("99", safety().Text16->text());
  safety().Text16->userType("\b");
  EXPECT_EQ("9", safety().Text16->text());
}

TEST_F(Pages, ABackupDirectoryThatDoesntExistIsFatalOnApply) {
  markedScanreg("");
  start();
  program_->fmain.MainTab->userSelectTab(2);
  safety().Text15->userSetText("C:\\NOWHERE");
  safety().Check24->userClick();
  button("refa").userClick();
  EXPECT_TRUE(ended_);
  ASSERT_FALSE(platform::sim::shownMessageBoxes().empty());
  EXPECT_EQ("Run-time error '76':\n\nPath not found",
            platform::sim::shownMessageBoxes().back().text);
  // Every key was written before the failing read.
  EXPECT_EQ("C:\\NOWHERE", sysaccess::GetFromINI("1", "BackupDirectory", kScanreg));
  EXPECT_EQ("1", sysaccess::GetFromINI("1", "Optimize", kScanreg));
  EXPECT_EQ("Please do not edit manually",
            sysaccess::GetFromINI("-=Note=-", "Altered by Tweakloom 99", kScanreg));
}

TEST_F(Pages, AtStartUpABackupDirectoryThatDoesntExistIsPassedOver) {
  markedScanreg("BackupDirectory=C:\\NOWHERE\r\n");
  start();
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(program_->fmain.form.visible());
  EXPECT_EQ("C:\\NOWHERE", safety().Text15->text());
}

// ---- The template at start-up ----------------------------------------------

TEST_F(Pages, AMarkedScanregIsLeftAlone) {
  const std::string marked =
      "[1]\r\nBackup=1\r\n[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n";
  writeFile(kScanreg, marked);
  writeFile("C:\\Tweakloom 99.sam", "[1]\r\nBackup=0\r\n");
  start();
  EXPECT_EQ(marked, readFile(kScanreg));
}

TEST_F(Pages, AForeignScanregIsReplacedByTheTemplate) {
  writeFile(kScanreg, "[Scanreg]\r\nBackup=1\r\n");
  writeFile("C:\\Tweakloom 99.sam", "[1]\r\nBackup=0\r\nMaxBackupCopies=9\r\n");
  start();
  EXPECT_EQ("[1]\r\nBackup=0\r\nMaxBackupCopies=9\r\n", readFile(kScanreg));
  EXPECT_EQ("9", safety().Text16->text());
}

TEST_F(Pages, AnotherMarkerValueOrAMissingFileIsReplacedToo) {
  writeFile("C:\\Tweakloom 99.sam", "[1]\r\nBackup=1\r\n");
  start();
  EXPECT_EQ("[1]\r\nBackup=1\r\n", readFile(kScanreg));
  writeFile(kScanreg, "[-=Note=-]\r\nAltered by Tweakloom 99=please do not edit manually\r\n");
  start();
  EXPECT_EQ("[1]\r\nBackup=1\r\n", readFile(kScanreg));
}

TEST_F(Pages, AMissingTemplateDeletesTheFileAndStartUpGoesOn) {
  writeFile(kScanreg, "[Scanreg]\r\nBackup=1\r\n");
  start();
  EXPECT_EQ("<missing>", readFile(kScanreg));
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(program_->fmain.form.visible());
  EXPECT_EQ(0, program_->fmain.MainTab->tab());
}

} // namespace
