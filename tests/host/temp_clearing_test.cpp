// EmptyTempFolder on the simulated file system: two passes over
// windir\temp\, one level of subfolders, and what stays.
#include "pages/privacy/temp_clearing.h"
#include "platform/sim/sim_control.h"
#include "runtime/basic_files.h"
#include "tests/host/sim_fixture.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace {

const std::string kWindir = "C:\\WINDOWS";
const std::string kTemp = "C:\\WINDOWS\\TEMP\\";

class TempClearing : public SimMachineTest {
protected:
  static void file(const std::string& path, platform::Dword attributes = 0) {
    std::ofstream(platform::sim::hostPath(path), std::ios::binary) << "data";
    if (attributes) {
      ASSERT_TRUE(platform::SetFileAttributesA(path.c_str(), attributes));
    }
  }
  static void folder(const std::string& path, platform::Dword attributes = 0) {
    ASSERT_TRUE(platform::CreateDirectoryA(path.c_str())) << path;
    if (attributes) {
      ASSERT_TRUE(platform::SetFileAttributesA(path.c_str(), attributes));
    }
  }
  static bool exists(const std::string& path) {
    return platform::GetFileAttributesA(path.c_str()) != platform::kInvalidFileAttributes;
  }
  // Every entry below a folder, as relative names ("sub\a.tmp").
  static std::set<std::string> tree(const std::string& root) {
    std::set<std::string> names;
    const std::string host = platform::sim::hostPath(root);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(host)) {
      std::string name = entry.path().string().substr(host.size() + 1);
      for (char& c : name)
        if (c == '/') c = '\\';
      names.insert(name);
    }
    return names;
  }
};

TEST_F(TempClearing, AnEmptyFolderStaysAsItIs) {
  // The first search returns only "." and "..", the second nothing.
  runtime::DirSearch first(kTemp, runtime::vbDirectory);
  EXPECT_EQ(".", first.name());
  EXPECT_EQ("..", first.next());
  EXPECT_EQ("", first.next());
  EXPECT_EQ("", runtime::DirSearch(kTemp, runtime::vbNormal).name());
  pages::EmptyTempFolder(kWindir);
  EXPECT_TRUE(exists(kTemp));
  EXPECT_TRUE(tree(kTemp).empty());
}

TEST_F(TempClearing, ASubfolderWithTwoFilesGoesWhole) {
  folder(kTemp + "_ISTMP1.DIR");
  file(kTemp + "_ISTMP1.DIR\\_INS5576._MP");
  file(kTemp + "_ISTMP1.DIR\\_ISDEL.EXE");
  file(kTemp + "~DF3A1C.TMP");
  file(kTemp + "GLC1F3.TMP");
  pages::EmptyTempFolder(kWindir);
  EXPECT_TRUE(tree(kTemp).empty());
  EXPECT_TRUE(exists(kTemp));
}

TEST_F(TempClearing, ASubfolderHoldingASubfolderLosesItsFilesAndStays) {
  folder(kTemp + "outer");
  folder(kTemp + "outer\\inner");
  file(kTemp + "outer\\a.tmp");
  file(kTemp + "outer\\inner\\deep.tmp");
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ((std::set<std::string>{"outer", "outer\\inner", "outer\\inner\\deep.tmp"}),
            tree(kTemp));
}

TEST_F(TempClearing, AnOpenFileStaysTheRestGoAndNothingIsShown) {
  file(kTemp + "a.tmp");
  file(kTemp + "open.tmp");
  file(kTemp + "z.tmp");
  platform::sim::setFileInUse(kTemp + "open.tmp", true);
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ(std::set<std::string>{"open.tmp"}, tree(kTemp));
  EXPECT_TRUE(platform::sim::shownMessageBoxes().empty());
}

TEST_F(TempClearing, HiddenSystemAndReadOnlyFilesStay) {
  file(kTemp + "hidden.tmp", platform::kAttributeHidden);
  file(kTemp + "system.tmp", platform::kAttributeSystem);
  file(kTemp + "readonly.tmp", platform::kAttributeReadOnly);
  file(kTemp + "plain.tmp");
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ((std::set<std::string>{"hidden.tmp", "system.tmp", "readonly.tmp"}), tree(kTemp));
}

TEST_F(TempClearing, ASubfolderWithAHiddenReadOnlyOrOpenFileStaysWithTheRestGone) {
  for (const char* name : {"h", "r", "o"}) {
    folder(kTemp + name);
    file(kTemp + name + "\\plain1.tmp");
    file(kTemp + name + "\\plain2.tmp");
  }
  file(kTemp + "h\\hidden.tmp", platform::kAttributeHidden);
  file(kTemp + "r\\readonly.tmp", platform::kAttributeReadOnly);
  file(kTemp + "o\\open.tmp");
  platform::sim::setFileInUse(kTemp + "o\\open.tmp", true);
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ(
      (std::set<std::string>{"h", "h\\hidden.tmp", "r", "r\\readonly.tmp", "o", "o\\open.tmp"}),
      tree(kTemp));
}

TEST_F(TempClearing, HiddenAndSystemSubfoldersAreNotSearchedAndStayFull) {
  folder(kTemp + "hiddendir", platform::kAttributeHidden);
  file(kTemp + "hiddendir\\a.tmp");
  folder(kTemp + "systemdir", platform::kAttributeSystem);
  file(kTemp + "systemdir\\b.tmp");
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ(
      (std::set<std::string>{"hiddendir", "hiddendir\\a.tmp", "systemdir", "systemdir\\b.tmp"}),
      tree(kTemp));
}

TEST_F(TempClearing, NothingOutsideTheTemporaryFolderIsTouched) {
  platform::sim::setTempPath("C:\\TMP\\");
  folder("C:\\TMP");
  file("C:\\TMP\\other.tmp");
  file("C:\\WINDOWS\\win.ini");
  file("C:\\WINDOWS\\TEMP.TXT");
  folder("C:\\WINDOWS\\TEMP2");
  file("C:\\WINDOWS\\TEMP2\\keep.tmp");
  file("C:\\keep.tmp");
  folder(kTemp + "sub");
  file(kTemp + "sub\\a.tmp");
  file(kTemp + "b.tmp");
  const auto outside = [] {
    auto all = tree("C:\\");
    std::erase_if(all, [](const std::string& n) { return n.rfind("WINDOWS\\TEMP\\", 0) == 0; });
    return all;
  };
  const auto before = outside();
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ(before, outside());
  EXPECT_TRUE(tree(kTemp).empty());
}

TEST_F(TempClearing, AMissingFolderOrATempThatIsAFileEndsAtOnce) {
  ASSERT_TRUE(platform::RemoveDirectoryA(kTemp.c_str()));
  pages::EmptyTempFolder(kWindir);
  EXPECT_FALSE(exists(kTemp));
  file("C:\\WINDOWS\\TEMP");
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ(0u, platform::GetFileAttributesA("C:\\WINDOWS\\TEMP") & platform::kAttributeDirectory);
}

TEST_F(TempClearing, NamesWithHighBytesAndLongNamesAreCleared) {
  const std::string high = "Caf\xE9 \xC0\xFF\x80.tmp";
  const std::string longName = std::string(200, 'L') + ".tmp";
  ASSERT_GT((kTemp + longName).size(), 200u);
  file(kTemp + high);
  file(kTemp + longName);
  folder(kTemp + "Dossier \xE9t\xE9");
  file(kTemp + "Dossier \xE9t\xE9\\" + high);
  folder(kTemp + std::string(150, 'D'));
  file(kTemp + std::string(150, 'D') + "\\" + std::string(60, 'f'));
  pages::EmptyTempFolder(kWindir);
  EXPECT_TRUE(tree(kTemp).empty());
}

TEST_F(TempClearing, ASubfolderWhoseSearchPatternIsTooLongStaysWithItsFiles) {
  // C:\WINDOWS\TEMP\ and 241 characters make 257; with "\*.*" the
  // pattern of its files is 261 characters, which no search takes.
  const std::string deep = kTemp + std::string(241, 'd');
  folder(deep);
  file(deep + "\\a.tmp");
  file(kTemp + "b.tmp");
  pages::EmptyTempFolder(kWindir);
  EXPECT_EQ((std::set<std::string>{std::string(241, 'd'), std::string(241, 'd') + "\\a.tmp"}),
            tree(kTemp));
}

TEST_F(TempClearing, AFailingStatementAfterTheFirstDeletionIsSkipped) {
  // The read-only file in the subfolder makes its Kill fail and the folder's
  // removal fail; the second pass still runs.
  folder(kTemp + "sub");
  file(kTemp + "sub\\readonly.tmp", platform::kAttributeReadOnly);
  file(kTemp + "after.tmp");
  EXPECT_EQ(0, errorOf([] { pages::EmptyTempFolder(kWindir); }));
  EXPECT_EQ((std::set<std::string>{"sub", "sub\\readonly.tmp"}), tree(kTemp));
}

} // namespace
