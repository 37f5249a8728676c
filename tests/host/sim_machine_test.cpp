// The simulated machine's own settings and its mapping of Windows paths.
#include "runtime/text_functions.h"
#include "sysaccess/system_helpers.h"
#include "tests/host/sim_fixture.h"

#include <fstream>
#include <sys/stat.h>

namespace {

using SimMachine = SimMachineTest;

TEST_F(SimMachine, PathsMapCaseInsensitivelyOntoTheHostFolder) {
  ASSERT_TRUE(platform::CreateDirectoryA("C:\\WINDOWS\\System"));
  EXPECT_EQ(root_ + "/c/WINDOWS/System/oeminfo.ini",
            platform::sim::hostPath("c:\\windows\\SYSTEM\\oeminfo.ini"));
  EXPECT_EQ(root_ + "/c/WINDOWS", platform::sim::hostPath("C:/Windows/./System/.."));
  EXPECT_EQ("", platform::sim::hostPath("a:\\x"));
  EXPECT_EQ("", platform::sim::hostPath("d:\\msdos.sys")); // only c: exists at first
}

TEST_F(SimMachine, DrivesDToHAppearWhenTheirFolderExists) {
  EXPECT_EQ(platform::kInvalidFileAttributes, platform::GetFileAttributesA("d:\\msdos.sys"));
  EXPECT_EQ(platform::kErrorPathNotFound, platform::GetLastError());
  ::mkdir((root_ + "/d").c_str(), 0777);
  std::ofstream(root_ + "/d/MSDOS.SYS") << "[Options]\r\n";
  EXPECT_EQ(platform::kAttributeArchive, platform::GetFileAttributesA("d:\\msdos.sys"));
  EXPECT_FALSE(platform::CreateDirectoryA("i:\\x"));
}

TEST_F(SimMachine, RelativeProfileNamesLieInTheWindowsFolder) {
  EXPECT_TRUE(platform::WritePrivateProfileStringA("a", "b", "c", "tl99.ini"));
  EXPECT_EQ("c", sysaccess::GetFromINI("a", "b", "C:\\WINDOWS\\TL99.INI"));
}

TEST_F(SimMachine, CurrentDirectoryResolvesRelativeFileNames) {
  platform::CreateDirectoryA("C:\\PROGRA~1");
  platform::sim::setCurrentDirectory("C:\\PROGRA~1");
  std::ofstream(root_ + "/c/PROGRA~1/Tweakloom 99.sam") << "[1]\r\n";
  EXPECT_TRUE(sysaccess::FileExists("Tweakloom 99.sam"));
  EXPECT_TRUE(platform::CopyFileA("Tweakloom 99.sam", "C:\\WINDOWS\\scanreg.ini", false));
  EXPECT_TRUE(sysaccess::FileExists("C:\\WINDOWS\\SCANREG.INI"));
}

TEST_F(SimMachine, SettableVersionUserClockAndMemory) {
  platform::sim::setVersion({4, 10, 0x040A08AE, 1, " A "});
  platform::VersionInfo version;
  ASSERT_TRUE(platform::GetVersionExA(&version));
  EXPECT_EQ(2222u, version.build & 0xFFFF);
  platform::sim::setUserName(std::nullopt);
  char name[50];
  platform::Dword size = 49;
  EXPECT_FALSE(platform::GetUserNameA(name, &size));
  platform::sim::setUserName("Ann");
  size = 2;
  EXPECT_FALSE(platform::GetUserNameA(name, &size));
  EXPECT_EQ(4u, size);
  size = 49;
  ASSERT_TRUE(platform::GetUserNameA(name, &size));
  EXPECT_STREQ("Ann", name);
  EXPECT_EQ(4u, size);
  platform::sim::setTickCount(3725000);
  EXPECT_EQ(3725000u, platform::GetTickCount());
  platform::sim::setMemoryStatus({10, 1u << 26, 1u << 25, 1u << 27, 1u << 26, 1u << 31, 1u << 30});
  EXPECT_EQ(1u << 26, platform::GlobalMemoryStatus().totalPhys);
}

TEST_F(SimMachine, ShellAndExitRequestsAreRecorded) {
  EXPECT_EQ(33u, platform::WinExec("hh.exe Tweakloom 99.chm", 2));
  ASSERT_EQ(1u, platform::sim::startedCommands().size());
  EXPECT_EQ("hh.exe Tweakloom 99.chm", platform::sim::startedCommands()[0].commandLine);
  EXPECT_EQ(2u, platform::sim::startedCommands()[0].showCommand);
  EXPECT_TRUE(platform::ExitWindowsEx(2, 0));
  EXPECT_EQ(std::vector<platform::Dword>{2}, platform::sim::exitRequests());
}

TEST_F(SimMachine, WindowsAndTempFoldersAreSettable) {
  platform::sim::setWindowsDirectory("D:\\WIN98");
  EXPECT_EQ("D:\\WIN98", runtime::cutAtNul(sysaccess::GetWinDir()));
  platform::sim::setTempPath("C:\\TEMP\\");
  EXPECT_EQ("C:\\TEMP\\", sysaccess::TempPath());
  platform::sim::setTempPath(std::string(60, 'x'));
  EXPECT_EQ(std::string(50, '\0'), sysaccess::TempPath()); // too long: nothing filled in
}

TEST_F(SimMachine, FindFilesListsDotEntriesBelowTheRootOnly) {
  platform::CreateDirectoryA("C:\\WINDOWS\\RECENT");
  std::ofstream(root_ + "/c/WINDOWS/RECENT/a.lnk") << "x";
  const auto all = platform::FindFiles("C:\\WINDOWS\\RECENT\\*.*");
  ASSERT_EQ(3u, all.size());
  EXPECT_EQ(".", all[0].name);
  EXPECT_EQ("..", all[1].name);
  EXPECT_EQ("a.lnk", all[2].name);
  for (const auto& f : platform::FindFiles("C:\\*.*"))
    EXPECT_NE(".", f.name);
}

} // namespace
