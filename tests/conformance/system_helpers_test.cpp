// Profile files, folders, files and the disk-error message on the machine.
#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/text_functions.h"
#include "sysaccess/file_errors.h"
#include "sysaccess/system_helpers.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

using namespace sysaccess;
using conformance::kScratch;
using runtime::cutAtNul;

namespace {

const std::string kIni = std::string(kScratch) + "\\scanreg.ini";

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

class SystemHelpers : public ::testing::Test {
protected:
  void SetUp() override { conformance::prepareMachine(); }
  void TearDown() override { runtime::Err().clear(); }
};

TEST_F(SystemHelpers, GetFromINIReadsValuesWithoutCaseOrBlanks) {
  conformance::writeFile(kIni, "[Scanreg]\r\nBackup = 1 \r\n; "
                               "note\r\nMaxBackupCopies=5\r\n[1]\r\nFiles=30,AUTOEXEC.BAT\r\n");
  EXPECT_EQ("1", GetFromINI("scanreg", "BACKUP", kIni));
  EXPECT_EQ("5", GetFromINI("Scanreg", "MaxBackupCopies", kIni));
  EXPECT_EQ("30,AUTOEXEC.BAT", GetFromINI("1", "Files", kIni));
  EXPECT_EQ("", GetFromINI("Scanreg", "Missing", kIni));
  EXPECT_EQ("", GetFromINI("Nothing", "Backup", kIni));
}

TEST_F(SystemHelpers, GetFromINIStripsOnePairOfQuotes) {
  conformance::writeFile(kIni, "[s]\r\nq=\"quoted\"\r\nr='single'\r\nh=\"half\r\n");
  EXPECT_EQ("quoted", GetFromINI("s", "q", kIni));
  EXPECT_EQ("single", GetFromINI("s", "r", kIni));
  EXPECT_EQ("\"half", GetFromINI("s", "h", kIni));
}

TEST_F(SystemHelpers, GetFromINIOnAMissingFileIsEmpty) {
  EXPECT_EQ("", GetFromINI("Options", "BootGUI", std::string(kScratch) + "\\none.ini"));
  EXPECT_EQ("", GetFromINI("Options", "BootGUI", "c:\\nowhere\\msdos.sys"));
}

TEST_F(SystemHelpers, GetFromINIOnAnEmptyFileOrAFolderIsEmpty) {
  conformance::writeFile(kIni, "");
  EXPECT_EQ("", GetFromINI("Scanreg", "Backup", kIni));
  EXPECT_EQ("", GetFromINI("Scanreg", "Backup", kScratch));
}

TEST_F(SystemHelpers, GetFromINIReadsTheLastLineWithoutALineEnd) {
  conformance::writeFile(kIni, "[vcache]\nMinFileCache=1024\nMaxFileCache=4096");
  EXPECT_EQ("4096", GetFromINI("vcache", "MaxFileCache", kIni));
  EXPECT_EQ("1024", GetFromINI("vcache", "MinFileCache", kIni));
}

TEST_F(SystemHelpers, GetFromINIReturnsAtMost254Characters) {
  const std::string longValue(300, 'v');
  conformance::writeFile(kIni, "[s]\r\nk=" + longValue + "\r\n");
  EXPECT_EQ(std::string(254, 'v'), GetFromINI("s", "k", kIni));
  conformance::writeFile(kIni, "[s]\r\nk=" + std::string(254, 'w') + "\r\n");
  EXPECT_EQ(std::string(254, 'w'), GetFromINI("s", "k", kIni));
}

TEST_F(SystemHelpers, GetFromINIReadsAReadOnlyFile) {
  conformance::writeFile(kIni, "[Options]\r\nBootGUI=1\r\n");
  ASSERT_TRUE(platform::SetFileAttributesA(kIni.c_str(), platform::kAttributeReadOnly));
  EXPECT_EQ("1", GetFromINI("Options", "BootGUI", kIni));
}

TEST_F(SystemHelpers, HighBytesPassThroughProfileFiles) {
  EXPECT_TRUE(platform::WritePrivateProfileStringA("General", "Manufacturer",
                                                   "Soci\xE9t\xE9 \xC0\xFF", kIni.c_str()));
  EXPECT_EQ("Soci\xE9t\xE9 \xC0\xFF", GetFromINI("General", "Manufacturer", kIni));
}

TEST_F(SystemHelpers, ProfileWriteCreatesTheFileInTheSystemsFormat) {
  EXPECT_TRUE(platform::WritePrivateProfileStringA("1", "Files", "30,AUTOEXEC.BAT", kIni.c_str()));
  EXPECT_TRUE(platform::WritePrivateProfileStringA("-=Note=-", "Altered by Tweakloom 99",
                                                   "Please do not edit manually", kIni.c_str()));
  EXPECT_TRUE(platform::WritePrivateProfileStringA("1", "Backup", "  1", kIni.c_str()));
  EXPECT_EQ("[1]\r\nFiles=30,AUTOEXEC.BAT\r\nBackup=1\r\n[-=Note=-]\r\nAltered by Tweakloom "
            "99=Please do not edit manually\r\n",
            conformance::readFile(kIni));
}

TEST_F(SystemHelpers, ProfileWriteKeepsCommentsAndDropsBlankLines) {
  conformance::writeFile(kIni, "; header\r\n\r\n[vcache]\r\n\r\nMinFileCache = 512\r\nbare "
                               "line\r\n[386Enh]\r\nCOMBoostTime=2");
  EXPECT_TRUE(platform::WritePrivateProfileStringA("vcache", "MaxFileCache", "4096", kIni.c_str()));
  EXPECT_EQ("; header\r\n[vcache]\r\nMinFileCache=512\r\nbare "
            "line\r\nMaxFileCache=4096\r\n[386Enh]\r\nCOMBoostTime=2\r\n",
            conformance::readFile(kIni));
}

TEST_F(SystemHelpers, ProfileWriteOfANullValueDeletesTheKey) {
  conformance::writeFile(kIni, "[a]\r\nx=1\r\ny=2\r\n");
  EXPECT_TRUE(platform::WritePrivateProfileStringA("A", "X", nullptr, kIni.c_str()));
  EXPECT_EQ("[a]\r\ny=2\r\n", conformance::readFile(kIni));
  EXPECT_TRUE(platform::WritePrivateProfileStringA("a", nullptr, nullptr, kIni.c_str()));
  EXPECT_EQ("", conformance::readFile(kIni));
}

TEST_F(SystemHelpers, ProfileWriteFailsOnReadOnlyFilesAndFolders) {
  conformance::writeFile(kIni, "[Options]\r\nBootGUI=1\r\n");
  ASSERT_TRUE(platform::SetFileAttributesA(kIni.c_str(), platform::kAttributeReadOnly));
  EXPECT_FALSE(platform::WritePrivateProfileStringA("Options", "BootGUI", "0", kIni.c_str()));
  EXPECT_EQ("1", GetFromINI("Options", "BootGUI", kIni));
  EXPECT_FALSE(platform::WritePrivateProfileStringA("Options", "BootGUI", "0", kScratch));
  EXPECT_FALSE(
      platform::WritePrivateProfileStringA("Options", "BootGUI", "0", "c:\\nowhere\\x.ini"));
}

TEST_F(SystemHelpers, ProfileReadOfWholeSectionsAndSectionNames) {
  conformance::writeFile(kIni, "[a]\r\nx=1\r\n;c=3\r\ny=2\r\n[b]\r\n");
  char buffer[64];
  const auto keys =
      platform::GetPrivateProfileStringA("a", nullptr, "", buffer, sizeof buffer, kIni.c_str());
  EXPECT_EQ(std::string("x\0y\0", 4), std::string(buffer, keys));
  const auto sections =
      platform::GetPrivateProfileStringA(nullptr, nullptr, "", buffer, sizeof buffer, kIni.c_str());
  EXPECT_EQ(std::string("a\0b\0", 4), std::string(buffer, sections));
}

TEST_F(SystemHelpers, WindowsDirectoryAndTheHiddenNormaliser) {
  const std::string raw = GetWinDir();
  EXPECT_EQ(256u, raw.size());
  const std::string windir = cutAtNul(raw);
  EXPECT_EQ("C:\\WINDOWS", upper(windir));
  EXPECT_EQ('\0', raw[windir.size()]);
  EXPECT_EQ(' ', raw[windir.size() + 1]);
  EXPECT_EQ("12", cutAtNul(runtime::toText(std::int16_t{12})));
}

TEST_F(SystemHelpers, TempPathEndsWithABackslash) {
  const std::string temp = TempPath();
  ASSERT_FALSE(temp.empty());
  EXPECT_EQ('\\', temp.back());
  EXPECT_EQ(std::string::npos, temp.find('\0'));
}

TEST_F(SystemHelpers, FileExists) {
  const std::string file = std::string(kScratch) + "\\oemlogo.bmp";
  conformance::writeFile(file, "BM");
  EXPECT_TRUE(FileExists(file));
  ASSERT_TRUE(platform::SetFileAttributesA(file.c_str(), platform::kAttributeReadOnly));
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FileExists(kScratch));
  EXPECT_FALSE(FileExists(cutAtNul(GetWinDir())));
  EXPECT_FALSE(FileExists(std::string(kScratch) + "\\missing.bmp"));
  EXPECT_FALSE(FileExists(std::string(kScratch) + "\\bad|name.bmp"));
  EXPECT_FALSE(FileExists(std::string(kScratch) + "\\what?.bmp"));
  EXPECT_FALSE(FileExists("c:\\nowhere\\x.bmp"));
  EXPECT_FALSE(FileExists(""));
}

TEST_F(SystemHelpers, FileErrorsWithoutARowShowsNothing) {
  runtime::Err().number = 53;
  EXPECT_EQ(kNotRecognised, FileErrors());
  EXPECT_FALSE(conformance::lastMessageBox().shown);
}

TEST_F(SystemHelpers, FileErrorsSharingViolationShowsThreeLinesAndRetriesAfterOk) {
  runtime::Err().number = 75;
  conformance::answerNextMessageBox(1);
  EXPECT_EQ(kRetry, FileErrors());
  const auto box = conformance::lastMessageBox();
  ASSERT_TRUE(box.shown);
  EXPECT_EQ("Disk Error", box.caption);
  EXPECT_EQ("File Sharing Violation Occured.\r\nOne or more files in the TEMP directory are \r\n"
            "currenty being used by another application.",
            box.text);
  EXPECT_EQ(0u, box.buttons);
  EXPECT_TRUE(box.exclamation);
}

TEST_F(SystemHelpers, FileErrorsDiskFullCancelGivesUp) {
  runtime::Err().number = 61;
  conformance::answerNextMessageBox(2);
  EXPECT_EQ(kGiveUp, FileErrors());
  const auto box = conformance::lastMessageBox();
  EXPECT_EQ("Disk is full. Continue?", box.text);
  EXPECT_EQ(3u, box.buttons);
}

TEST_F(SystemHelpers, FileErrorsYesAndNoAreNotRecognised) {
  runtime::Err().number = 61;
  conformance::answerNextMessageBox(6);
  EXPECT_EQ(kNotRecognised, FileErrors());
  runtime::Err().number = 76;
  conformance::answerNextMessageBox(7);
  EXPECT_EQ(kNotRecognised, FileErrors());
  EXPECT_EQ("That path doesn't exist.", conformance::lastMessageBox().text);
  EXPECT_EQ(4u, conformance::lastMessageBox().buttons);
  runtime::Err().number = 62;
  conformance::answerNextMessageBox(6);
  EXPECT_EQ(kNotRecognised, FileErrors());
  EXPECT_EQ("This file has a nonstandard end-of-file marker, or an attempt was made the "
            "end-of-file marker.",
            conformance::lastMessageBox().text);
}

TEST_F(SystemHelpers, SReplace) {
  EXPECT_EQ("aXcabc", sReplace("abcabc", "b", "X"));
  EXPECT_EQ("abXabc", sReplace("abcabc", "c", "X"));
  EXPECT_EQ("aXabc", sReplace("abcabc", "bc", "X"));
  EXPECT_EQ("abcabc", sReplace("abcabc", "z", "X"));
  EXPECT_EQ("abX", sReplace("abc", "c", "X"));
}

TEST_F(SystemHelpers, VersionUserAndClock) {
  platform::VersionInfo version;
  ASSERT_TRUE(platform::GetVersionExA(&version));
  EXPECT_EQ(1u, version.platformId);
  EXPECT_EQ(4u, version.major);
  EXPECT_EQ(10u, version.minor);
  EXPECT_EQ(1998u, version.build & 0xFFFF);
  char name[50];
  platform::Dword size = 49;
  ASSERT_TRUE(platform::GetUserNameA(name, &size));
  EXPECT_EQ(std::string(name).size() + 1, size);
}

TEST_F(SystemHelpers, FilePrimitives) {
  const std::string folder = std::string(kScratch) + "\\sysbckup";
  ASSERT_TRUE(platform::CreateDirectoryA(folder.c_str()));
  EXPECT_FALSE(platform::CreateDirectoryA(folder.c_str()));
  EXPECT_EQ(platform::kErrorAlreadyExists, platform::GetLastError());
  conformance::writeFile(folder + "\\rb000.cab", "cab0");
  conformance::writeFile(folder + "\\RB001.CAB", "cab1");
  conformance::writeFile(folder + "\\notes.txt", "t");
  auto cabs = platform::FindFiles((folder + "\\*.cab").c_str());
  std::vector<std::string> names;
  for (const auto& f : cabs)
    names.push_back(upper(f.name));
  std::sort(names.begin(), names.end());
  EXPECT_EQ((std::vector<std::string>{"RB000.CAB", "RB001.CAB"}), names);
  EXPECT_TRUE(platform::FindFiles((folder + "\\*.zip").c_str()).empty());
  EXPECT_TRUE(platform::CopyFileA((folder + "\\rb000.cab").c_str(), (folder + "\\copy.cab").c_str(),
                                  false));
  EXPECT_EQ("cab0", conformance::readFile(folder + "\\copy.cab"));
  EXPECT_FALSE(
      platform::CopyFileA((folder + "\\none.cab").c_str(), (folder + "\\x.cab").c_str(), false));
  EXPECT_EQ(platform::kErrorFileNotFound, platform::GetLastError());
  EXPECT_FALSE(platform::RemoveDirectoryA(folder.c_str()));
  for (const auto& f : platform::FindFiles((folder + "\\*.*").c_str())) {
    if (!(f.attributes & platform::kAttributeDirectory)) {
      EXPECT_TRUE(platform::DeleteFileA((folder + "\\" + f.name).c_str())) << f.name;
    }
  }
  EXPECT_FALSE(platform::DeleteFileA((folder + "\\rb000.cab").c_str()));
  EXPECT_EQ(platform::kErrorFileNotFound, platform::GetLastError());
  EXPECT_TRUE(platform::RemoveDirectoryA(folder.c_str()));
  EXPECT_EQ(platform::kInvalidFileAttributes, platform::GetFileAttributesA(folder.c_str()));
  EXPECT_EQ(platform::kErrorFileNotFound, platform::GetLastError());
}

TEST_F(SystemHelpers, ReadOnlyFileCannotBeDeleted) {
  const std::string file = std::string(kScratch) + "\\locked.txt";
  conformance::writeFile(file, "x");
  ASSERT_TRUE(platform::SetFileAttributesA(file.c_str(), platform::kAttributeReadOnly));
  EXPECT_EQ(platform::kAttributeReadOnly,
            platform::GetFileAttributesA(file.c_str()) & platform::kAttributeReadOnly);
  EXPECT_FALSE(platform::DeleteFileA(file.c_str()));
  EXPECT_EQ(platform::kErrorAccessDenied, platform::GetLastError());
}

} // namespace
