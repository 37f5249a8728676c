// The load routine runs the ten pages' readers in their order and leaves every
// Apply button disabled.
#include "tests/host/connection_fixture.h"

#include <string>
#include <vector>

namespace {

class LoadSequence : public ProgramTest {};

// The position of the first logged call from `from` on that holds `text`, or
// the log's size.
std::size_t callWith(const std::vector<std::string>& log, const std::string& text,
                     std::size_t from) {
  for (std::size_t i = from; i < log.size(); ++i)
    if (log[i].find(text) != std::string::npos) return i;
  return log.size();
}

// Each reader of the load sequence, by a call that only it makes first.
struct ReaderMark {
  const char* reader;
  const char* call;
};
constexpr ReaderMark kReaderOrder[] = {
    {"ref_oem_page", "oeminfo.ini"},
    {"ref_boot", "msdos.sys"},
    {"ref_connection", "386Enh"},
    {"ref_net_sec", "MinPwdLen"},
    {"ref_scanreg", "\"Files\""},
    {"mtu_opt", "MaxMSS"},
    {"ref_uninstall_list", "Uninstall"},
    {"ref_desk", "Shell Icon Size"},
    {"ref_access", "NoDispCPL"},
    {"ref_trouble", "ContigFileAllocSize"},
    {"ref_tracking", "NoRecentDocsHistory"},
};

TEST_F(LoadSequence, TheReadersRunInTheirOrder) {
  writeFile("C:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n");
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  start();
  platform::sim::setCallLogging(false);
  const auto& log = platform::sim::callLog();
  // Every reader's mark stands after the mark of the reader before it.
  std::size_t at = 0;
  for (const ReaderMark& mark : kReaderOrder) {
    at = callWith(log, mark.call, at);
    ASSERT_LT(at, log.size()) << mark.reader << " (" << mark.call << ") out of its place";
    ++at;
  }
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
