// The Tracking Clearance page on the simulated Windows 98: the eleven list
// wipes, the history policy, the seven restrictions, the Start Menu folders,
// the menu delay and the rules that arm and disarm Clear.
#include "sysaccess/ellreg.h"
#include "tests/host/page_fixture.h"

#include <string>
#include <vector>

using namespace runtime;
using platform::kCurrentUser;
using platform::kUsers;

namespace {

const std::string kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kExplorer = ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string kStartMenu = "C:\\WINDOWS\\start menu\\";
const std::string kRecent = "C:\\WINDOWS\\recent\\";
const std::string kTemp = "C:\\WINDOWS\\TEMP\\";
const char* kSought[10] = {
    "Control Panel.{21ec2020-3aea-1069-a2dd-08002b30309d}",
    "Printers.{2227A280-3AEA-1069-A2DE-08002B30309D}",
    "Recycle Bin.{645FF040-5081-101B-9F08-00AA002F954E}",
    "Scheduled Tasks.{D6277990-4C6A-11CF-8D87-00AA0060F5BF}",
    "Subscription Folder.{F5175861-2688-11d0-9C5E-00AA00A45957}",
    "Url History Folder.{FF393560-C2A7-11CF-BFF4-444553540000}",
    "Dial-Up Networking.{992CFFA0-F557-101A-88EC-00DD010CCC48}",
    "My Computer.{20D04FE0-3AEA-1069-A2D8-08002B30309D}",
    "InBox.{00020D75-0000-0000-C000-000000000046}",
    "Network Neighborhood.{208D2C60-3AEA-1069-A2D7-08002B30309D}",
};
const std::string kDialUpWritten = "Dial-Up Networking.{-992CFFA0-F557-101A-88EC-00DD010CCC48}";

std::vector<std::uint8_t> bytes(const std::string& text) { return {text.begin(), text.end()}; }
std::vector<std::uint8_t> dword(std::uint32_t n) {
  return {static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(n >> 8),
          static_cast<std::uint8_t>(n >> 16), static_cast<std::uint8_t>(n >> 24)};
}

class TrackingPage : public PageTest {
protected:
  void SetUp() override {
    PageTest::SetUp();
    makeFolder("C:\\WINDOWS\\start menu");
    makeFolder("C:\\WINDOWS\\recent");
  }
  pages::TrackingClearance& page() { return pages().tracking; }
  void onPage() { selectTab(7); }
  void clear() { button("Clear").userClick(); }
  void arm() { // a change that leaves every value as it was
    page().noHistory->userClick();
    page().noHistory->userClick();
  }
  static void setDelay(const std::string& text) {
    platform::sim::storeRawValue(kCurrentUser, "Control Panel\\Desktop", "MenuShowDelay",
                                 platform::kRegSz, bytes(text + std::string(1, '\0')));
  }
  static std::string delay() {
    return sysaccess::GetRegValue(sysaccess::HKCU, "Control Panel\\Desktop", "MenuShowDelay");
  }
  static std::string policy(const char* name) {
    return sysaccess::GetRegValue(sysaccess::HKCU, kPolicies, name);
  }
  static void fillKey(platform::RegKey hive, const std::string& key) {
    platform::sim::storeRawValue(hive, key, "a", platform::kRegSz, bytes(std::string("x\0", 2)));
    platform::sim::storeRawValue(hive, key + "\\Sub", "b", platform::kRegSz,
                                 bytes(std::string("y\0", 2)));
  }
  // The key holds nothing but an empty default value.
  static bool emptyKey(platform::RegKey hive, const std::string& key) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return false;
    char name[64];
    platform::Dword nameSize = sizeof name, type = 0, size = 64;
    std::uint8_t data[64];
    const bool firstValue =
        platform::RegEnumValueA(handle, 0, name, &nameSize, &type, data, &size) == 0;
    nameSize = sizeof name;
    size = 64;
    const bool secondValue =
        platform::RegEnumValueA(handle, 1, name, &nameSize, &type, data, &size) == 0;
    const bool subkey = platform::RegEnumKeyA(handle, 0, name, sizeof name) == 0;
    platform::RegCloseKey(handle);
    return !subkey && !secondValue && firstValue &&
           sysaccess::GetRegValue(static_cast<sysaccess::Hive>(hive), key, "") == "";
  }
};

TEST_F(TrackingPage, CaptionsAndTextsStandAsDesigned) {
  start();
  const char* lists[11] = {"RUN MRU",
                           "FIND MRU",
                           "DOCUMENT MRU",
                           "WORDPAD Files MRU",
                           "Start Menu Folder MRU",
                           "Empty from Windows Temporary Folder",
                           "Power Toys' Send to Other Folder MRU",
                           "Windows Installation Files Locations MRU",
                           "PRINTERS MRU",
                           "FIND Computer MRU",
                           "PAINT Files MRU"};
  for (int i = 0; i < 11; ++i)
    EXPECT_EQ(lists[i], page().List(i).caption());
  EXPECT_EQ("Dissable DOCUMENT History Feature", page().noHistory->caption());
  EXPECT_EQ("Set/Change Start Menu Display Speed", page().SMDS->caption());
  EXPECT_EQ("slow" + std::string(60, ' ') + "fast", page().Text2->text());
  EXPECT_EQ("Clear Recent Lists (MRU's)",
            static_cast<Label*>(program_->fmain.form.find("Label1"))->caption());
  EXPECT_EQ("Add / Remove Items from Start Menu",
            static_cast<Label*>(program_->fmain.form.find("Label17"))->caption());
  const char* folders[10] = {"Control Panel ",
                             "Printers",
                             "Recycle Bin",
                             "Scheduled Tasks",
                             "Subscription Folder",
                             "Url History Folder",
                             "Dial-Up Networking",
                             "My Computer",
                             "InBox",
                             "Network Neighborhood"};
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(folders[i], page().stmenu_add(i).caption());
  const char* restrictions[7] = {"Favorites",        "Documents",        "Run", "User LogOff",
                                 "Settings/Folders", "Settings/Taskbar", "Find"};
  for (int i = 0; i < 7; ++i)
    EXPECT_EQ(restrictions[i], page().st_m(i).caption());
  // The right column stands on the tab itself, beside the frame.
  EXPECT_EQ(program_->fmain.MainTab, page().st_m(0).container());
  EXPECT_EQ(7, page().stmenu_add(9).containerTab());
  EXPECT_EQ(&program_->fmain.Frame4(0), page().List(0).container());
  EXPECT_FALSE(button("Clear").enabled());
}

TEST_F(TrackingPage, FirstStartWithoutPoliciesRemovesFourItemsOnTheFirstClear) {
  start();
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(0, page().st_m(i).value()) << i;
  for (int i = 4; i < 7; ++i)
    EXPECT_EQ(1, page().st_m(i).value()) << i;
  onPage();
  arm();
  ASSERT_TRUE(button("Clear").enabled());
  clear();
  for (const char* name : {"NoFavoritesMenu", "NoRecentDocsMenu", "NoRun", "NoLogOff"}) {
    platform::Dword type = 0;
    EXPECT_EQ(std::string("\1\0\0\0", 4), storedBytes(kCurrentUser, kPolicies, name, &type))
        << name;
    EXPECT_EQ(platform::kRegDword, type);
  }
  for (const char* name : {"NoSetFolders", "NoSetTaskbar", "NoFind"})
    EXPECT_EQ(std::string("\0\0\0\0", 4), storedBytes(kCurrentUser, kPolicies, name)) << name;
  EXPECT_FALSE(button("Clear").enabled());
}

TEST_F(TrackingPage, NoFindFollowsTheTaskbarBox) {
  start();
  onPage();
  page().st_m(5).userClick(); // unticked
  ASSERT_EQ(1, page().st_m(6).value());
  clear();
  EXPECT_EQ("001", policy("NoSetTaskbar"));
  EXPECT_EQ("001", policy("NoFind"));
  EXPECT_EQ(0, page().st_m(6).value());
  // Clicking Find has no power over NoFind.
  page().st_m(6).userClick();
  page().st_m(5).userClick();
  page().st_m(5).userClick();
  clear();
  EXPECT_EQ("001", policy("NoFind"));
}

TEST_F(TrackingPage, TickedRestrictionsWriteZeroAndRefreshShowsThem) {
  for (const char* name : {"NoRun", "NoRecentDocsMenu", "NoLogOff", "NoFavoritesMenu"})
    platform::sim::storeRawValue(kCurrentUser, kPolicies, name, platform::kRegDword, dword(1));
  start();
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(0, page().st_m(i).value());
  onPage();
  for (int i = 0; i < 4; ++i)
    page().st_m(i).userClick();
  clear();
  for (const char* name : {"NoRun", "NoRecentDocsMenu", "NoLogOff", "NoFavoritesMenu"})
    EXPECT_EQ("000", policy(name)) << name;
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(1, page().st_m(i).value());
}

TEST_F(TrackingPage, WithoutTheFoldersInTheCurrentFolderRefreshUnticksAndClearRemoves) {
  for (int i = 0; i < 6; ++i)
    makeFolder(kStartMenu + kSought[i]);
  writeFile(kStartMenu + kSought[2] + "\\in use.lnk");
  start();
  onPage();
  for (int i = 0; i < 6; ++i)
    page().stmenu_add(i).setValue(1);
  button("Ref_st").userClick();
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(0, page().stmenu_add(i).value()) << i;
  arm();
  clear();
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(i == 2, exists(kStartMenu + kSought[i])) << i;
}

TEST_F(TrackingPage, TheFolderTestsLookInTheCurrentFolder) {
  makeFolder(std::string("C:\\") + kSought[1]); // Printers
  makeFolder(std::string("C:\\") + kSought[9]); // Network Neighborhood: box 0, overridden
  makeFolder(std::string("C:\\") + "recycle bin.{645ff040-5081-101b-9f08-00aa002f954e}");
  makeFolder(kStartMenu + kSought[3]); // below windir: not looked at
  start();
  EXPECT_EQ(0, page().stmenu_add(0).value());
  EXPECT_EQ(1, page().stmenu_add(1).value());
  EXPECT_EQ(0, page().stmenu_add(2).value()); // another case is another text
  EXPECT_EQ(0, page().stmenu_add(3).value());
  makeFolder(std::string("C:\\") + kSought[0]); // Control Panel decides box 0
  onPage();
  button("Ref_st").userClick();
  EXPECT_EQ(1, page().stmenu_add(0).value());
  EXPECT_FALSE(button("Clear").enabled());
}

TEST_F(TrackingPage, TheMinusSignFolderIsMadeKeptTickedAndRemovedAlone) {
  makeFolder(kStartMenu + kSought[6]); // the spelling without the minus sign
  start();
  onPage();
  page().stmenu_add(6).userClick();
  clear();
  EXPECT_TRUE(exists(kStartMenu + kDialUpWritten));
  EXPECT_EQ(1, page().stmenu_add(6).value());
  button("Ref_st").userClick();
  EXPECT_EQ(1, page().stmenu_add(6).value());
  page().stmenu_add(6).userClick();
  clear();
  EXPECT_FALSE(exists(kStartMenu + kDialUpWritten));
  EXPECT_TRUE(exists(kStartMenu + kSought[6]));
}

TEST_F(TrackingPage, WithSmdsUntickedClearRewritesTheDelayFromTheLastRead) {
  for (const auto& [stored, slider] :
       {std::pair{"39", 399}, std::pair{"400", 4096}, std::pair{"7", 72}}) {
    setDelay(stored);
    start();
    EXPECT_EQ(slider, page().menu_delay_slider.min()) << stored;
    EXPECT_EQ(0, page().SMDS->value());
    onPage();
    arm();
    clear();
    EXPECT_EQ(stored, delay());
    platform::Dword type = 0;
    storedBytes(kCurrentUser, "Control Panel\\Desktop", "MenuShowDelay", &type);
    EXPECT_EQ(platform::kRegSz, type);
  }
}

TEST_F(TrackingPage, SmdsTickedWithTheSliderAtZeroWritesZero) {
  setDelay("400");
  start();
  onPage();
  page().SMDS->userClick();
  EXPECT_TRUE(button("Clear").enabled());
  page().menu_delay_slider.setMin(0);
  clear();
  EXPECT_EQ("0", delay());
  EXPECT_EQ(0, page().SMDS->value()); // the read after Clear unticks it
}

TEST_F(TrackingPage, SmdsUnlocksTheSliderWhoseEnabledStillAnswersItsStoredState) {
  start();
  auto& slider = page().menu_delay_slider;
  EXPECT_FALSE(slider.Frame1(0).enabled()); // disabled by the load routine
  EXPECT_TRUE(slider.Enabled());            // the stored answer: no stored False
  onPage();
  page().SMDS->userClick();
  EXPECT_TRUE(slider.Frame1(0).enabled());
  page().SMDS->userClick();
  EXPECT_FALSE(slider.Frame1(0).enabled());
  EXPECT_TRUE(slider.Enabled());
  // Moving the knob arms nothing.
  slider.setMin(2048);
  EXPECT_FALSE(button("Clear").enabled());
}

TEST_F(TrackingPage, AMissingDelayReadsAsZero) {
  start();
  EXPECT_EQ(0, page().menu_delay_slider.min());
  onPage();
  arm();
  clear();
  EXPECT_EQ("0", delay());
}

TEST_F(TrackingPage, ADelayThatIsNoNumberAbandonsTheReadAtLoad) {
  setDelay("slow");
  writeFile("C:\\" + std::string(kSought[1]) + ".txt");
  makeFolder(std::string("C:\\") + kSought[1]);
  start();
  EXPECT_FALSE(ended_);
  // The restrictions and the folders were never read: design states stay.
  EXPECT_EQ(0, page().st_m(4).value());
  EXPECT_EQ(0, page().stmenu_add(1).value());
}

TEST_F(TrackingPage, ADelayThatIsNoNumberEndsTheProgramOnRefresh) {
  start();
  setDelay("slow");
  onPage();
  button("Ref_st").userClick();
  EXPECT_TRUE(ended_);
}

TEST_F(TrackingPage, ADelayOf3200OverflowsAbandonsTheReadAtLoadAndEndsARefresh) {
  setDelay("3199");
  start();
  EXPECT_EQ(32758, page().menu_delay_slider.min());
  setDelay("3200"); // 3200 x 10.24 = 32768
  onPage();
  button("Ref_st").userClick();
  EXPECT_TRUE(ended_);
  ended_ = false;
  start();
  EXPECT_FALSE(ended_);
  EXPECT_EQ(0, page().st_m(4).value()); // never read
}

TEST_F(TrackingPage, AnMruKeyIsWipedAndMadeAgainEmptyTwiceInARow) {
  fillKey(kUsers, kExplorer + "RunMRU");
  start();
  onPage();
  page().List(0).userClick();
  clear();
  EXPECT_TRUE(emptyKey(kUsers, kExplorer + "RunMRU"));
  EXPECT_EQ(1, page().List(0).value()); // the boxes stay ticked
  EXPECT_FALSE(button("Clear").enabled());
  page().List(0).userClick();
  page().List(0).userClick();
  clear();
  EXPECT_TRUE(emptyKey(kUsers, kExplorer + "RunMRU"));
  EXPECT_FALSE(ended_);
}

TEST_F(TrackingPage, TheListsAreWipedInTheirOrderAndListSevenAcrossTwoHives) {
  fillKey(kCurrentUser, "InstallLocationsMRU");
  start();
  onPage();
  for (int i = 0; i < 11; ++i)
    page().List(i).userClick();
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  clear();
  platform::sim::setCallLogging(false);
  std::vector<std::string> deletes;
  for (const auto& line : platform::sim::callLog())
    if (line.rfind("RegDeleteKeyA", 0) == 0) deletes.push_back(line);
  const char* order[] = {"RunMRU",      "Doc Find Spec MRU",   "RecentDocs",
                         "Wordpad",     "FindComputerMRU",     "Paint",
                         "OtherFolder", "InstallLocationsMRU", "PrnPortsMRU"};
  ASSERT_EQ(9u, deletes.size());
  for (std::size_t i = 0; i < 9; ++i)
    EXPECT_NE(std::string::npos, deletes[i].find(order[i])) << deletes[i];
  EXPECT_FALSE(keyExists(kCurrentUser, "InstallLocationsMRU"));
  EXPECT_TRUE(emptyKey(kUsers, "InstallLocationsMRU"));
  EXPECT_TRUE(emptyKey(kCurrentUser,
                       "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Wordpad\\Recent "
                       "File List"));
  EXPECT_TRUE(emptyKey(kUsers,
                       ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Paint\\"
                       "Recent File List"));
  for (const char* key :
       {"Doc Find Spec MRU", "RecentDocs", "OtherFolder", "PrnPortsMRU", "FindComputerMRU"})
    EXPECT_TRUE(emptyKey(kUsers, kExplorer + key)) << key;
  // Only the user's key is deleted: the .DEFAULT profile has none.
  EXPECT_FALSE(keyExists(kUsers, ".DEFAULT\\InstallLocationsMRU"));
}

TEST_F(TrackingPage, RecentLosesItsFilesAndKeepsFoldersAndHiddenFiles) {
  writeFile(kRecent + "Letter.doc.lnk");
  writeFile(kRecent + "Caf\xE9.lnk");
  writeFile(kRecent + "hidden.lnk");
  platform::SetFileAttributesA((kRecent + "hidden.lnk").c_str(), platform::kAttributeHidden);
  makeFolder(kRecent + "sub");
  writeFile(kRecent + "sub\\inner.lnk");
  writeFile("C:\\WINDOWS\\keep.lnk");
  start();
  onPage();
  page().List(4).userClick();
  clear();
  EXPECT_FALSE(exists(kRecent + "Letter.doc.lnk"));
  EXPECT_FALSE(exists(kRecent + "Caf\xE9.lnk"));
  EXPECT_TRUE(exists(kRecent + "hidden.lnk"));
  EXPECT_TRUE(exists(kRecent + "sub\\inner.lnk"));
  EXPECT_TRUE(exists("C:\\WINDOWS\\keep.lnk"));
}

TEST_F(TrackingPage, AnEmptyOrMissingRecentFolderStopsNothing) {
  fillKey(kUsers, kExplorer + "FindComputerMRU");
  writeFile(kTemp + "a.tmp");
  start();
  onPage();
  for (int index : {4, 5, 9})
    page().List(index).userClick();
  clear(); // recent is empty
  EXPECT_FALSE(exists(kTemp + "a.tmp"));
  EXPECT_TRUE(emptyKey(kUsers, kExplorer + "FindComputerMRU"));
  ASSERT_TRUE(platform::RemoveDirectoryA(kRecent.c_str()));
  writeFile(kTemp + "b.tmp");
  fillKey(kUsers, kExplorer + "FindComputerMRU");
  EXPECT_FALSE(button("Clear").enabled()); // the boxes stay ticked, Clear is disarmed
  page().List(9).userClick();
  page().List(9).userClick();
  clear();
  EXPECT_FALSE(exists(kTemp + "b.tmp"));
  EXPECT_TRUE(emptyKey(kUsers, kExplorer + "FindComputerMRU"));
  EXPECT_FALSE(ended_);
}

TEST_F(TrackingPage, TheTemporaryFolderIsEmptiedWhenItsBoxIsTicked) {
  makeFolder(kTemp + "sub");
  writeFile(kTemp + "sub\\a.tmp");
  writeFile(kTemp + "b.tmp");
  start();
  onPage();
  arm();
  clear();
  EXPECT_TRUE(exists(kTemp + "b.tmp")); // its box was clear
  page().List(5).userClick();
  clear();
  EXPECT_FALSE(exists(kTemp + "b.tmp"));
  EXPECT_FALSE(exists(kTemp + "sub"));
}

TEST_F(TrackingPage, HistoryPolicyOnWritesBinaryOffDeletesForeignFormsLeaveTheBox) {
  start();
  onPage();
  page().noHistory->userClick();
  clear();
  platform::Dword type = 0;
  EXPECT_EQ(std::string("\1\0\0\0", 4),
            storedBytes(kCurrentUser, kPolicies, "NoRecentDocsHistory", &type));
  EXPECT_EQ(platform::kRegBinary, type);
  EXPECT_EQ(1, page().noHistory->value());
  platform::sim::storeRawValue(kCurrentUser, kPolicies, "NoRecentDocsHistory", platform::kRegDword,
                               dword(1));
  button("Ref_st").userClick();
  EXPECT_EQ(1, page().noHistory->value()); // "001" leaves it
  page().noHistory->userClick();
  clear();
  EXPECT_EQ("<missing>", storedBytes(kCurrentUser, kPolicies, "NoRecentDocsHistory"));
  EXPECT_EQ(0, page().noHistory->value());
}

TEST_F(TrackingPage, ListBoxesArmAndDisarmByThemselves) {
  start();
  onPage();
  page().noHistory->userClick();
  EXPECT_TRUE(button("Clear").enabled());
  page().List(3).userClick();
  EXPECT_TRUE(button("Clear").enabled());
  page().List(3).userClick();
  EXPECT_FALSE(button("Clear").enabled()); // the noHistory change is still pending
  page().List(1).userClick();
  page().List(2).userClick();
  page().List(1).userClick();
  EXPECT_TRUE(button("Clear").enabled());
}

TEST_F(TrackingPage, SmdsArmsAndDisarmsWhateverElseIsPending) {
  start();
  onPage();
  page().stmenu_add(8).userClick();
  page().SMDS->userClick();
  EXPECT_TRUE(button("Clear").enabled());
  page().SMDS->userClick();
  EXPECT_FALSE(button("Clear").enabled());
  page().st_m(0).userClick();
  EXPECT_TRUE(button("Clear").enabled());
}

TEST_F(TrackingPage, RefreshUnticksTheListsAndDisarmsTroubleshootingToo) {
  start();
  onPage();
  page().List(2).userClick();
  page().List(10).userClick();
  button("ondAp").setEnabled(true);
  button("Ref_st").userClick();
  for (int i = 0; i < 11; ++i)
    EXPECT_EQ(0, page().List(i).value());
  EXPECT_FALSE(button("Clear").enabled());
  EXPECT_FALSE(button("ondAp").enabled());
}

TEST_F(TrackingPage, AMissingStartMenuFolderStopsNothingElse) {
  ASSERT_TRUE(platform::RemoveDirectoryA("C:\\WINDOWS\\start menu"));
  setDelay("39");
  start();
  onPage();
  page().stmenu_add(7).userClick();
  page().List(0).userClick();
  clear();
  EXPECT_FALSE(exists("C:\\WINDOWS\\start menu"));
  EXPECT_EQ("39", delay());
  EXPECT_TRUE(emptyKey(kUsers, kExplorer + "RunMRU"));
  EXPECT_FALSE(ended_);
}

} // namespace
