// msdos.sys as Windows 98 keeps it: read-only, hidden and system. The
// profile interface reads it, and refuses to write it, leaving the file and
// its attributes as they are; the Boot Options page relies on both.
#include "platform/platform.h"
#include "sysaccess/system_helpers.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <string>

using conformance::kScratch;

namespace {

const std::string kMsdosSys = std::string(kScratch) + "\\msdos.sys";
constexpr platform::Dword kBootFileAttributes =
    platform::kAttributeReadOnly | platform::kAttributeHidden | platform::kAttributeSystem;
const std::string kContent = "[Options]\r\nBootGUI=1\r\nBootMulti=1\r\n";

class MsdosSys : public ::testing::Test {
protected:
  void SetUp() override {
    conformance::prepareMachine();
    conformance::writeFile(kMsdosSys, kContent);
    // Hidden and system first, read-only last: Wine stores hidden and system
    // beside the file and can't do so once the file is read-only.
    ASSERT_TRUE(platform::SetFileAttributesA(
        kMsdosSys.c_str(), platform::kAttributeHidden | platform::kAttributeSystem));
    ASSERT_TRUE(platform::SetFileAttributesA(kMsdosSys.c_str(), kBootFileAttributes));
  }
};

TEST_F(MsdosSys, AReadOnlyHiddenSystemFileExistsAndReads) {
  EXPECT_EQ(kBootFileAttributes, platform::GetFileAttributesA(kMsdosSys.c_str()) &
                                     (kBootFileAttributes | platform::kAttributeDirectory));
  EXPECT_TRUE(sysaccess::FileExists(kMsdosSys));
  EXPECT_EQ("1", sysaccess::GetFromINI("Options", "BootGUI", kMsdosSys));
  EXPECT_EQ("1", sysaccess::GetFromINI("Options", "BootMulti", kMsdosSys));
}

TEST_F(MsdosSys, AProfileWriteIsRefusedAndChangesNothing) {
  EXPECT_FALSE(platform::WritePrivateProfileStringA("Options", "BootGUI", "0", kMsdosSys.c_str()));
  EXPECT_FALSE(platform::WritePrivateProfileStringA("Options", "Logo", "0", kMsdosSys.c_str()));
  EXPECT_FALSE(
      platform::WritePrivateProfileStringA("Paths", "WinDir", "C:\\WINDOWS", kMsdosSys.c_str()));
  EXPECT_EQ(kContent, conformance::readFile(kMsdosSys));
  EXPECT_EQ(kBootFileAttributes,
            platform::GetFileAttributesA(kMsdosSys.c_str()) & kBootFileAttributes);
}

TEST_F(MsdosSys, HiddenAndSystemAloneDoNotStopAWrite) {
  ASSERT_TRUE(platform::SetFileAttributesA(kMsdosSys.c_str(), platform::kAttributeHidden |
                                                                  platform::kAttributeSystem));
  EXPECT_TRUE(platform::WritePrivateProfileStringA("Options", "BootGUI", "0", kMsdosSys.c_str()));
  EXPECT_EQ("0", sysaccess::GetFromINI("Options", "BootGUI", kMsdosSys));
}

} // namespace
