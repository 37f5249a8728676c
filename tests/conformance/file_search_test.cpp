// Directory searches, attributes and deletions as the system decides them:
// what a search returns for hidden, system, read-only files and folders, what
// happens to read-only and open files, non-empty folders, long names and
// names with bytes 0x80 to 0xFF.
#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>
#include <string>

using conformance::kScratch;
using namespace runtime;

namespace {

const std::string kFolder = std::string(kScratch) + "\\temp";

int errorOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

bool exists(const std::string& path) {
  return platform::GetFileAttributesA(path.c_str()) != platform::kInvalidFileAttributes;
}

std::set<std::string> namesOf(DirSearch search) {
  std::set<std::string> names;
  for (std::string name = search.name(); !name.empty(); name = search.next())
    names.insert(name);
  return names;
}

class FileSearch : public ::testing::Test {
protected:
  void SetUp() override {
    conformance::prepareMachine();
    ASSERT_TRUE(platform::CreateDirectoryA(kFolder.c_str()));
  }
  void TearDown() override {
    conformance::prepareMachine();
    Err().clear();
  }
  static std::string in(const std::string& name) { return kFolder + "\\" + name; }
  static void file(const std::string& name, platform::Dword attributes = 0) {
    conformance::writeFile(in(name), "x");
    if (attributes) {
      ASSERT_TRUE(platform::SetFileAttributesA(in(name).c_str(), attributes));
    }
  }
  static void folder(const std::string& name, platform::Dword attributes = 0) {
    ASSERT_TRUE(platform::CreateDirectoryA(in(name).c_str()));
    if (attributes) {
      ASSERT_TRUE(platform::SetFileAttributesA(in(name).c_str(), attributes));
    }
  }
};

TEST_F(FileSearch, AFolderSearchGivesTheDotsFirstAndEveryEntryWithItsAttributes) {
  folder("sub");
  file("plain.tmp");
  file("hidden.tmp", platform::kAttributeHidden);
  file("system.tmp", platform::kAttributeSystem);
  file("readonly.tmp", platform::kAttributeReadOnly);
  const auto found = platform::FindFiles((kFolder + "\\*.*").c_str());
  ASSERT_EQ(7u, found.size());
  EXPECT_EQ(".", found[0].name);
  EXPECT_EQ("..", found[1].name);
  for (const auto& entry : found) {
    const auto a = entry.attributes;
    if (entry.name == "." || entry.name == ".." || entry.name == "sub")
      EXPECT_TRUE(a & platform::kAttributeDirectory) << entry.name;
    else
      EXPECT_FALSE(a & platform::kAttributeDirectory) << entry.name;
    EXPECT_EQ(entry.name == "hidden.tmp", (a & platform::kAttributeHidden) != 0) << entry.name;
    EXPECT_EQ(entry.name == "system.tmp", (a & platform::kAttributeSystem) != 0) << entry.name;
    EXPECT_EQ(entry.name == "readonly.tmp", (a & platform::kAttributeReadOnly) != 0) << entry.name;
  }
}

TEST_F(FileSearch, DirWithTheDirectoryBitGivesFoldersAndPlainFilesButNothingHidden) {
  folder("sub");
  folder("hiddensub", platform::kAttributeHidden);
  file("plain.tmp");
  file("hidden.tmp", platform::kAttributeHidden);
  file("system.tmp", platform::kAttributeSystem);
  file("readonly.tmp", platform::kAttributeReadOnly);
  EXPECT_EQ((std::set<std::string>{".", "..", "sub", "plain.tmp", "readonly.tmp"}),
            namesOf(DirSearch(kFolder + "\\", vbDirectory)));
  EXPECT_EQ((std::set<std::string>{"plain.tmp", "readonly.tmp"}),
            namesOf(DirSearch(kFolder + "\\", vbNormal)));
  EXPECT_EQ((std::set<std::string>{"plain.tmp", "readonly.tmp", "hidden.tmp", "system.tmp"}),
            namesOf(DirSearch(kFolder + "\\", vbHidden | vbSystem)));
}

TEST_F(FileSearch, DirOfAnEmptyFolderGivesOnlyTheDotsAndNoPlainFile) {
  DirSearch folders(kFolder + "\\", vbDirectory);
  EXPECT_EQ(".", folders.name());
  EXPECT_EQ("..", folders.next());
  EXPECT_EQ("", folders.next());
  EXPECT_EQ("", folders.next());
  EXPECT_EQ("", DirSearch(kFolder + "\\", vbNormal).name());
}

TEST_F(FileSearch, DirOfAMissingFolderOrOfAFileTakenForAFolderIsEmpty) {
  EXPECT_EQ("", DirSearch(in("missing") + "\\", vbDirectory).name());
  EXPECT_EQ("", DirSearch(std::string(kScratch) + "\\nowhere\\deeper\\", vbNormal).name());
  file("temp");
  EXPECT_EQ("", DirSearch(in("temp") + "\\", vbDirectory).name());
  EXPECT_EQ("", DirSearch(in("temp") + "\\", vbNormal).name());
}

TEST_F(FileSearch, DirOfOneNameGivesItAsStoredWhateverTheCaseAsked) {
  folder("Printers.{2227A280-3AEA-1069-A2DE-08002B30309D}");
  EXPECT_EQ("Printers.{2227A280-3AEA-1069-A2DE-08002B30309D}",
            DirSearch(in("printers.{2227a280-3aea-1069-a2de-08002b30309d}"), vbDirectory).name());
  file("note.txt");
  EXPECT_EQ("note.txt", DirSearch(in("note.txt"), vbDirectory).name());
  EXPECT_EQ("", DirSearch(in("absent"), vbDirectory).name());
}

TEST_F(FileSearch, ReadOnlyAndOpenFilesCannotBeDeleted) {
  file("readonly.tmp", platform::kAttributeReadOnly);
  EXPECT_FALSE(platform::DeleteFileA(in("readonly.tmp").c_str()));
  EXPECT_EQ(platform::kErrorAccessDenied, platform::GetLastError());
  EXPECT_EQ(kPathFileAccessError, errorOf([] { Kill(in("readonly.tmp")); }));
  file("open.tmp");
  conformance::holdOpen(in("open.tmp"));
  EXPECT_FALSE(platform::DeleteFileA(in("open.tmp").c_str()));
  EXPECT_EQ(platform::kErrorSharingViolation, platform::GetLastError());
  EXPECT_EQ(kPermissionDenied, errorOf([] { Kill(in("open.tmp")); }));
  EXPECT_TRUE(exists(in("readonly.tmp")));
  EXPECT_TRUE(exists(in("open.tmp")));
}

TEST_F(FileSearch, HiddenAndSystemFilesCanBeDeletedByTheirName) {
  file("hidden.tmp", platform::kAttributeHidden);
  file("system.tmp", platform::kAttributeSystem);
  EXPECT_TRUE(platform::DeleteFileA(in("hidden.tmp").c_str()));
  EXPECT_TRUE(platform::DeleteFileA(in("system.tmp").c_str()));
}

TEST_F(FileSearch, KillOfAPatternDeletesEveryPlainFileItCanAndThenRaises) {
  folder("sub");
  file("a.tmp");
  file("b.tmp");
  file("readonly.tmp", platform::kAttributeReadOnly);
  file("hidden.tmp", platform::kAttributeHidden);
  file("system.tmp", platform::kAttributeSystem);
  EXPECT_EQ(kPathFileAccessError, errorOf([] { Kill(kFolder + "\\*.*"); }));
  EXPECT_FALSE(exists(in("a.tmp")));
  EXPECT_FALSE(exists(in("b.tmp")));
  EXPECT_TRUE(exists(in("readonly.tmp")));
  EXPECT_TRUE(exists(in("hidden.tmp")));
  EXPECT_TRUE(exists(in("system.tmp")));
  EXPECT_TRUE(exists(in("sub")));
}

TEST_F(FileSearch, KillOfAPatternPassesAnOpenFileAndDeletesTheRest) {
  file("a.tmp");
  file("open.tmp");
  file("z.tmp");
  conformance::holdOpen(in("open.tmp"));
  EXPECT_EQ(kPermissionDenied, errorOf([] { Kill(kFolder + "\\*.*"); }));
  EXPECT_FALSE(exists(in("a.tmp")));
  EXPECT_FALSE(exists(in("z.tmp")));
  EXPECT_TRUE(exists(in("open.tmp")));
}

TEST_F(FileSearch, KillOfAPatternThatFindsNoPlainFileIsFileNotFound) {
  EXPECT_EQ(kFileNotFound, errorOf([] { Kill(kFolder + "\\*.*"); }));
  file("hidden.tmp", platform::kAttributeHidden);
  folder("sub");
  EXPECT_EQ(kFileNotFound, errorOf([] { Kill(kFolder + "\\*.*"); }));
  EXPECT_EQ(kFileNotFound, errorOf([] { Kill(in("missing") + "\\*.*"); }));
}

TEST_F(FileSearch, RemovingAFolderFailsWhenItHoldsAnythingOrIsNoFolder) {
  folder("sub");
  conformance::writeFile(in("sub\\hidden.tmp"), "x");
  ASSERT_TRUE(
      platform::SetFileAttributesA(in("sub\\hidden.tmp").c_str(), platform::kAttributeHidden));
  EXPECT_FALSE(platform::RemoveDirectoryA(in("sub").c_str()));
  EXPECT_EQ(kPathFileAccessError, errorOf([] { RmDir(in("sub")); }));
  folder("outer");
  folder("outer\\inner");
  EXPECT_EQ(kPathFileAccessError, errorOf([] { RmDir(in("outer")); }));
  file("plain.tmp");
  EXPECT_EQ(kPathFileAccessError, errorOf([] { RmDir(in("plain.tmp")); }));
  EXPECT_TRUE(exists(in("plain.tmp")));
  EXPECT_NE(0, errorOf([] { RmDir(in("missing")); }));
  EXPECT_EQ(0, errorOf([] { RmDir(in("outer\\inner")); }));
  EXPECT_EQ(0, errorOf([] { RmDir(in("outer")); }));
}

TEST_F(FileSearch, MakingAFolderThatExistsFailsAndBraceNamesArePlainFolders) {
  const std::string braced = in("Dial-Up Networking.{-992CFFA0-F557-101A-88EC-00DD010CCC48}");
  EXPECT_EQ(0, errorOf([&] { MkDir(braced); }));
  EXPECT_EQ(platform::kAttributeDirectory,
            platform::GetFileAttributesA(braced.c_str()) & platform::kAttributeDirectory);
  EXPECT_EQ(kPathFileAccessError, errorOf([&] { MkDir(braced); }));
  const std::string special = in("Control Panel.{21ec2020-3aea-1069-a2dd-08002b30309d}");
  EXPECT_EQ(0, errorOf([&] { MkDir(special); }));
  EXPECT_EQ("Control Panel.{21ec2020-3aea-1069-a2dd-08002b30309d}",
            DirSearch(special, vbDirectory).name());
  EXPECT_EQ(kPathNotFound, errorOf([] { MkDir(in("missing\\deeper")); }));
}

TEST_F(FileSearch, NamesWithHighBytesSurviveASearchAndCanBeDeleted) {
  const std::string name = "Caf\xE9 \xC0\xFF\x80.tmp";
  file(name);
  folder("Dossier \xE9t\xE9");
  const auto names = namesOf(DirSearch(kFolder + "\\", vbDirectory));
  EXPECT_TRUE(names.count(name));
  EXPECT_TRUE(names.count("Dossier \xE9t\xE9"));
  EXPECT_TRUE(platform::DeleteFileA(in(name).c_str()));
  EXPECT_TRUE(platform::RemoveDirectoryA(in("Dossier \xE9t\xE9").c_str()));
}

TEST_F(FileSearch, PathsOfMoreThanTwoHundredCharactersWorkUpToTheLimit) {
  // C:\TL99TEST\temp\ is 17 characters; this name makes a path of 250.
  const std::string longName = std::string(229, 'n') + ".tmp";
  file(longName);
  ASSERT_EQ(250u, in(longName).size());
  EXPECT_TRUE(exists(in(longName)));
  EXPECT_EQ(std::set<std::string>{longName}, namesOf(DirSearch(kFolder + "\\", vbNormal)));
  EXPECT_EQ(0, errorOf([&] { Kill(in(longName)); }));
  EXPECT_FALSE(exists(in(longName)));
}

TEST_F(FileSearch, AFolderOfTwoHundredAndSixtyCharactersIsMadeButNotSearched) {
  // The ANSI calls that make, read and remove take names past 259
  // characters; a search pattern of 260 characters or more is refused.
  const std::string longer = in(std::string(243, 'n'));
  ASSERT_EQ(260u, longer.size());
  EXPECT_TRUE(platform::CreateDirectoryA(longer.c_str()));
  EXPECT_EQ(platform::kAttributeDirectory, GetAttr(longer) & platform::kAttributeDirectory);
  EXPECT_TRUE(platform::FindFiles((longer + "\\*.*").c_str()).empty());
  EXPECT_EQ(platform::kErrorFilenameExcedRange, platform::GetLastError());
  EXPECT_EQ("", DirSearch(longer + "\\", vbDirectory).name());
  const std::string justShort = in(std::string(238, 'n'));
  ASSERT_TRUE(platform::CreateDirectoryA(justShort.c_str()));
  EXPECT_EQ(".", DirSearch(justShort + "\\", vbDirectory).name()); // 259 characters
  EXPECT_EQ(0, errorOf([&] { RmDir(longer); }));
  EXPECT_EQ(0, errorOf([&] { RmDir(justShort); }));
}

} // namespace
