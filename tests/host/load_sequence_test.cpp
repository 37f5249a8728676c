// The load routine runs the readers of this pages at their places:
// ref_oem_page first, ref_uninstall_list after ref_scanreg and before
// ref_desk, ref_trouble after ref_access; each page shows what it read.
#include "tests/host/connection_fixture.h"

#include <string>
#include <vector>

namespace {

class LoadSequence : public ProgramTest {};

// The position of the first logged call that holds `text`, or -1.
long firstCall(const std::vector<std::string>& log, const std::string& text) {
  for (std::size_t i = 0; i < log.size(); ++i)
    if (log[i].find(text) != std::string::npos) return static_cast<long>(i);
  return -1;
}

TEST_F(LoadSequence, TheReadersRunInTheirOrder) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  start();
  platform::sim::setCallLogging(false);
  const auto& log = platform::sim::callLog();
  const long oem = firstCall(log, "oeminfo.ini");
  const long boot = firstCall(log, "msdos.sys");
  const long scanreg = firstCall(log, "\"Files\"");
  const long uninstall = firstCall(log, "Uninstall");
  const long access = firstCall(log, "NoDispCPL");
  const long trouble = firstCall(log, "ContigFileAllocSize");
  ASSERT_GE(oem, 0);
  EXPECT_LT(oem, boot);
  EXPECT_LT(boot, scanreg);
  EXPECT_LT(scanreg, uninstall);
  EXPECT_LT(uninstall, access);
  EXPECT_LT(access, trouble);
  EXPECT_LT(trouble, static_cast<long>(log.size()));
  // Two reads of oeminfo.ini's three lines would be six; start-up reads once.
  long oemReads = 0;
  for (const std::string& call : log)
    if (call.find("oeminfo.ini") != std::string::npos) ++oemReads;
  EXPECT_EQ(3, oemReads);
}

TEST_F(LoadSequence, EveryApplyButtonIsDisabledAfterStartUpOnAPopulatedMachine) {
  storeText(platform::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\A",
            "DisplayName", "Alpha");
  storeText(platform::kLocalMachine,
            "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\"
            "{645FF040-5081-101B-9F08-00AA002F954E}",
            "", "Recycle Bin");
  storeDword(platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem",
             "ContigFileAllocSize", 1024);
  storeText(platform::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Fault",
            "LogFile", "C:\\WINDOWS\\FAULTLOG.TXT");
  writeFile("C:\\WINDOWS\\SYSTEM\\oeminfo.ini", "[General]\r\nModel=M1\r\n");
  start();
  for (const char* apply : {"applyb", "app_b", "refa", "Oem_apply", "ondAp", "Dos_apply", "ApplyM",
                            "Clear", "ApplyUL", "start_apply"})
    EXPECT_FALSE(button(apply).enabled()) << apply;
  EXPECT_EQ(1, fmain().pages->software.prg_list->listCount());
  EXPECT_EQ(1, fmain().pages->trouble.ondesk(3).value());
  EXPECT_EQ(1, fmain().pages->trouble.Check3->value());
  EXPECT_TRUE(fmain().pages->trouble.defgrag(1).value());
  EXPECT_EQ("M1", fmain().pages->oem.Text12->text());
}

} // namespace
