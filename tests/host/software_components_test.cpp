// The Software Components page: listing Uninstall keys and Run values,
// gathering ticked entries and removing them, with the index walk of the
// uninstall branch and the 21-slot tables of the startup branch.
#include "tests/host/connection_fixture.h"

#include <string>
#include <vector>

using namespace runtime;

namespace {

const std::string kUninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class Software : public ProgramTest {
protected:
  pages::SoftwareComponents& page() { return fmain().pages->software; }
  static void uninstallKey(const std::string& key, const std::string* display) {
    if (display)
      storeText(platform::kLocalMachine, kUninstall + "\\" + key, "DisplayName", *display);
    else
      storeText(platform::kLocalMachine, kUninstall + "\\" + key, "UninstallString", "x.exe");
  }
  static void uninstallKey(const std::string& key, const std::string& display) {
    uninstallKey(key, &display);
  }
  static void runValue(platform::RegKey hive, const std::string& name) {
    storeText(hive, kRun, name, "C:\\" + name + ".exe");
  }
  std::vector<std::string> listed() const {
    std::vector<std::string> items;
    for (int i = 0; i < program_->fmain.pages->software.prg_list->listCount(); ++i)
      items.push_back(program_->fmain.pages->software.prg_list->list(i));
    return items;
  }
  std::vector<std::string> toRemove() const {
    std::vector<std::string> items;
    auto* list = program_->fmain.pages->software.prg_to_remove_list;
    for (int i = 0; i < list->listCount(); ++i)
      items.push_back(list->list(i));
    return items;
  }
  // The user ticks the entry with this text (the first one).
  void tick(const std::string& text) {
    for (int i = 0; i < page().prg_list->listCount(); ++i) {
      if (page().prg_list->list(i) == text) {
        page().prg_list->userToggleCheck(i);
        return;
      }
    }
    ADD_FAILURE() << "no entry " << text;
  }
  void showStartup() {
    showTab(8);
    page().Check5->userClick();
  }
};

using Strings = std::vector<std::string>;

TEST_F(Software, StartUpListsTheDisplayNamesAndCountsEveryKey) {
  uninstallKey("AddressBook", nullptr);
  uninstallKey("Adobe", "Adobe Acrobat Reader 3.0");
  uninstallKey("DirectDrawEx", nullptr);
  uninstallKey("WinZip", "WinZip");
  start();
  EXPECT_EQ((Strings{"Adobe Acrobat Reader 3.0", "WinZip"}), listed());
  EXPECT_EQ(4, page().uninst_count);
  EXPECT_EQ(1, page().Check4->value());
  EXPECT_EQ(0, page().Check5->value());
  EXPECT_FALSE(button("ApplyUL").enabled());
}

TEST_F(Software, TheDesignLayoutStands) {
  start();
  EXPECT_EQ("Installed Software Compontents ", page().Check4->caption());
  EXPECT_EQ("StartUp Software Componetns", page().Check5->caption());
  EXPECT_EQ("Entries Currently Present", page().Label21->caption());
  EXPECT_EQ("Entries to be Removed", page().Label19->caption());
  const Bounds list = page().prg_list->bounds();
  EXPECT_EQ(150, list.left);
  EXPECT_EQ(780, list.top);
  EXPECT_EQ(2970, list.width);
  EXPECT_EQ(4560, list.height);
  EXPECT_TRUE(page().prg_list->hasCheckMarks());
  EXPECT_EQ(3300, page().prg_to_remove_list->left());
  EXPECT_EQ(5070, page().Check5->top());
  EXPECT_EQ(&fmain().Frame4(8), page().prg_list->container());
}

TEST_F(Software, TheRunListShowsValueNamesOfBothHivesAndCountsThem) {
  runValue(platform::kLocalMachine, "ScanRegistry");
  runValue(platform::kLocalMachine, "SystemTray");
  runValue(platform::kCurrentUser, "ICQ");
  runValue(platform::kCurrentUser, "SystemTray");
  start();
  showStartup();
  EXPECT_EQ(0, page().Check4->value());
  EXPECT_EQ(1, page().Check5->value());
  EXPECT_EQ((Strings{"ScanRegistry", "SystemTray", "ICQ", "SystemTray"}), listed());
  EXPECT_EQ(2, fmain().run_count_machine);
  EXPECT_EQ(2, fmain().run_count_user);
}

TEST_F(Software, TickAddsUntickRemovesAndOnlyTheTickArmsApply) {
  uninstallKey("A", "Alpha");
  uninstallKey("B", "Beta");
  start();
  showTab(8);
  tick("Alpha");
  EXPECT_EQ((Strings{"Alpha"}), toRemove());
  EXPECT_TRUE(button("ApplyUL").enabled());
  tick("Beta");
  EXPECT_EQ((Strings{"Alpha", "Beta"}), toRemove());
  button("RefUL").userClick();
  EXPECT_TRUE(toRemove().empty());
  EXPECT_FALSE(button("ApplyUL").enabled());
  tick("Alpha");
  tick("Alpha"); // unticked again
  EXPECT_TRUE(toRemove().empty());
  EXPECT_TRUE(button("ApplyUL").enabled());
  EXPECT_FALSE(page().prg_list->selected(0));
}

TEST_F(Software, TickingAndUntickingLeavesTheRemovalListAsItWas) {
  uninstallKey("A", "Alpha");
  uninstallKey("B", "Beta");
  uninstallKey("C", "Gamma");
  start();
  showTab(8);
  tick("Alpha");
  tick("Gamma");
  tick("Beta");
  tick("Beta");
  EXPECT_EQ((Strings{"Alpha", "Gamma"}), toRemove());
  EXPECT_TRUE(button("ApplyUL").enabled());
}

TEST_F(Software, ASecondEntryOfTheSameTextTogglesTheSameLine) {
  uninstallKey("A", "Same");
  uninstallKey("B", "Same");
  start();
  showTab(8);
  page().prg_list->userToggleCheck(0);
  EXPECT_EQ((Strings{"Same"}), toRemove());
  page().prg_list->userToggleCheck(1);
  EXPECT_TRUE(toRemove().empty());
}

TEST_F(Software, TheLineAtPosition99CantBeTakenOut) {
  for (int i = 0; i < 101; ++i) {
    char key[8];
    std::snprintf(key, sizeof key, "K%03d", i);
    uninstallKey(key, std::string("Entry ") + key);
  }
  start();
  showTab(8);
  for (int i = 0; i < 101; ++i)
    page().prg_list->userToggleCheck(i);
  ASSERT_EQ(101, page().prg_to_remove_list->listCount());
  EXPECT_EQ("Entry K099", page().prg_to_remove_list->list(99));
  page().prg_list->userToggleCheck(99); // untick
  EXPECT_EQ(101, page().prg_to_remove_list->listCount());
  EXPECT_EQ("Entry K099", page().prg_to_remove_list->list(99));
  page().prg_list->userToggleCheck(100);
  EXPECT_EQ(100, page().prg_to_remove_list->listCount());
}

TEST_F(Software, ApplyWithNothingToRemoveChangesNothingButRebuildsTheList) {
  uninstallKey("A", "Alpha");
  uninstallKey("B", nullptr);
  start();
  showTab(8);
  page().prg_list->addItem("stale");
  const std::string before = platform::sim::exportRegistry();
  button("ApplyUL").setEnabled(true);
  button("ApplyUL").userClick();
  EXPECT_EQ(before, platform::sim::exportRegistry());
  EXPECT_EQ((Strings{"Alpha"}), listed());
  EXPECT_TRUE(button("ApplyUL").enabled()); // Apply doesn't disable it
}

TEST_F(Software, ApplyRemovesTheTickedKeysWithTheirSubkeys) {
  uninstallKey("A", "Alpha");
  uninstallKey("B", "Beta");
  uninstallKey("C", "Gamma");
  storeText(platform::kLocalMachine, kUninstall + "\\B\\Sub", "x", "y");
  start();
  showTab(8);
  tick("Beta");
  button("ApplyUL").userClick();
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kUninstall + "\\B"));
  EXPECT_TRUE(keyExists(platform::kLocalMachine, kUninstall + "\\A"));
  EXPECT_TRUE(keyExists(platform::kLocalMachine, kUninstall + "\\C"));
  EXPECT_EQ((Strings{"Alpha", "Gamma"}), listed());
  EXPECT_TRUE(toRemove().empty());
}

TEST_F(Software, TheIndexWalkSkipsAKeyThatSlidDownAndASecondApplyTakesIt) {
  uninstallKey("A", "Alpha");
  uninstallKey("B", "Beta");
  uninstallKey("C", "Gamma");
  start();
  showTab(8);
  // Ticked in the list's order, each deletion brings the next key to the
  // place the next entry is compared at: all three go.
  tick("Alpha");
  tick("Beta");
  tick("Gamma");
  button("ApplyUL").userClick();
  EXPECT_TRUE(listed().empty());

  uninstallKey("A", "Alpha");
  uninstallKey("B", "Beta");
  uninstallKey("C", "Gamma");
  button("RefUL").userClick();
  // In the reverse order Alpha goes at k = 0, Gamma slides to k = 1 and goes
  // there, and Beta, now at k = 0, is never met again.
  tick("Gamma");
  tick("Beta");
  tick("Alpha");
  button("ApplyUL").userClick();
  EXPECT_EQ((Strings{"Beta"}), listed());
  tick("Beta");
  button("ApplyUL").userClick();
  EXPECT_TRUE(listed().empty());
}

TEST_F(Software, TwoKeysWithOneDisplayNameGoTogetherWhenTheWalkMeetsBoth) {
  uninstallKey("A", "Same");
  uninstallKey("B", "Other");
  uninstallKey("C", "Same");
  start();
  showTab(8);
  tick("Same");
  button("ApplyUL").userClick();
  EXPECT_EQ((Strings{"Other"}), listed());

  // Adjacent keys: after A goes, B slides to k = 0, which the walk has
  // passed; it stays for the next Apply.
  uninstallKey("A", "Twin");
  uninstallKey("AB", "Twin");
  button("RefUL").userClick();
  tick("Twin");
  button("ApplyUL").userClick();
  EXPECT_EQ((Strings{"Twin", "Other"}), listed());
}

TEST_F(Software, AKeyWithAnEmptyDisplayNameGoesWithAnyApply) {
  uninstallKey("A", "Alpha");
  uninstallKey("E", std::string());
  uninstallKey("Z", "Zulu");
  start();
  EXPECT_EQ((Strings{"Alpha", "", "Zulu"}), listed());
  showTab(8);
  tick("Zulu");
  button("ApplyUL").userClick();
  // The empty line matches the empty read one past the removal list; Zulu
  // then slides to the index just walked and waits for the next Apply.
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kUninstall + "\\E"));
  EXPECT_EQ((Strings{"Alpha", "Zulu"}), listed());
  tick("Zulu");
  button("ApplyUL").userClick();
  EXPECT_EQ((Strings{"Alpha"}), listed());
}

TEST_F(Software, TickingTheEmptyLineAddsNothingAndEndsNothing) {
  uninstallKey("E", std::string());
  start();
  showTab(8);
  page().prg_list->userToggleCheck(0);
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(toRemove().empty());
}

TEST_F(Software, AKeyCalledNotFoundEndsTheWalk) {
  uninstallKey("A", "Alpha");
  uninstallKey("Not Found", "Beta");
  uninstallKey("Z", "Zulu");
  start();
  EXPECT_EQ((Strings{"Alpha"}), listed());
  EXPECT_EQ(1, page().uninst_count);
}

TEST_F(Software, ADisplayNameOfNotFoundIsNotListed) {
  uninstallKey("A", "Not Found");
  uninstallKey("B", "Beta");
  start();
  EXPECT_EQ((Strings{"Beta"}), listed());
  EXPECT_EQ(2, page().uninst_count);
}

TEST_F(Software, SwitchingThePairListsTheOtherSetAndDropsTheTicks) {
  uninstallKey("A", "Alpha");
  runValue(platform::kLocalMachine, "Tray");
  start();
  showTab(8);
  tick("Alpha");
  page().Check5->userClick();
  EXPECT_EQ((Strings{"Tray"}), listed());
  EXPECT_TRUE(toRemove().empty());
  EXPECT_EQ(0, page().Check4->value());
  page().Check5->userClick(); // cleared: Check4 comes back
  EXPECT_EQ(1, page().Check4->value());
  EXPECT_EQ((Strings{"Alpha"}), listed());
  page().Check4->userClick(); // cleared: Check5 comes back
  EXPECT_EQ(1, page().Check5->value());
  EXPECT_EQ((Strings{"Tray"}), listed());
}

TEST_F(Software, OneClickOnThePairListsTwice) {
  runValue(platform::kLocalMachine, "Tray");
  start();
  showTab(8);
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  page().Check5->userClick();
  platform::sim::setCallLogging(false);
  int walksOfRun = 0;
  for (const std::string& call : platform::sim::callLog())
    if (call.find("RegEnumValueA") == 0) ++walksOfRun;
  // Two listings, each: HKLM one value and the end, HKCU the end.
  EXPECT_EQ(2 * 3, walksOfRun);
}

TEST_F(Software, StartupApplyDeletesTheTickedValuesOfBothHives) {
  for (const char* name : {"A", "B", "C"})
    runValue(platform::kLocalMachine, name);
  for (const char* name : {"B", "U"})
    runValue(platform::kCurrentUser, name);
  start();
  showStartup();
  tick("B"); // stands in both hives, at HKCU index 0 < 3
  tick("C");
  button("ApplyUL").userClick();
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kRun, "B"));
  EXPECT_EQ("<missing>", stored(platform::kCurrentUser, kRun, "B"));
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kRun, "C"));
  EXPECT_EQ((Strings{"A", "U"}), listed());
  EXPECT_TRUE(button("ApplyUL").enabled());
}

TEST_F(Software, UserEntriesBeyondTheMachinesCountStay) {
  runValue(platform::kLocalMachine, "M");
  for (const char* name : {"U0", "U1", "U2"})
    runValue(platform::kCurrentUser, name);
  start();
  showStartup();
  tick("U0");
  tick("U2");
  button("ApplyUL").userClick();
  EXPECT_EQ("<missing>", stored(platform::kCurrentUser, kRun, "U0"));
  EXPECT_NE("<missing>", stored(platform::kCurrentUser, kRun, "U2"));
  EXPECT_EQ((Strings{"M", "U1", "U2"}), listed());
}

TEST_F(Software, WithAnEmptyMachineRunKeyNoUserEntryCanGo) {
  runValue(platform::kCurrentUser, "U0");
  start();
  showStartup();
  tick("U0");
  button("ApplyUL").userClick();
  EXPECT_NE("<missing>", stored(platform::kCurrentUser, kRun, "U0"));
  EXPECT_EQ((Strings{"U0"}), listed());
}

TEST_F(Software, ARunValueCalledAtIsCollectedAndNeverDeleted) {
  runValue(platform::kLocalMachine, "@");
  runValue(platform::kLocalMachine, "Tray");
  start();
  showStartup();
  tick("@");
  tick("Tray");
  button("ApplyUL").userClick();
  EXPECT_NE("<missing>", stored(platform::kLocalMachine, kRun, "@"));
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kRun, "Tray"));
  EXPECT_EQ((Strings{"@"}), listed());
}

TEST_F(Software, TwentyMatchesAreDeleted) {
  for (int i = 0; i < 21; ++i)
    runValue(platform::kLocalMachine, "Run" + std::to_string(100 + i));
  start();
  showStartup();
  for (int i = 0; i < 20; ++i)
    page().prg_list->userToggleCheck(i);
  button("ApplyUL").userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ((Strings{"Run120"}), listed());
}

TEST_F(Software, ATwentyFirstMatchIsFatalBeforeAnythingIsDeleted) {
  for (int i = 0; i < 22; ++i)
    runValue(platform::kLocalMachine, "Run" + std::to_string(100 + i));
  start();
  showStartup();
  for (int i = 0; i < 21; ++i)
    page().prg_list->userToggleCheck(i);
  const std::string before = platform::sim::exportRegistry();
  button("ApplyUL").userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '9':\n\nSubscript out of range", lastMessage());
  EXPECT_EQ(before, platform::sim::exportRegistry());
}

TEST_F(Software, MatchesOfBothHivesShareTheSlotCounter) {
  for (int i = 0; i < 11; ++i) {
    const std::string name = std::to_string(10 + i);
    runValue(platform::kLocalMachine, name);
    runValue(platform::kCurrentUser, name);
  }
  start();
  showStartup();
  // Eleven names, each in both hives: 22 matches.
  for (int i = 0; i < 11; ++i)
    page().prg_list->userToggleCheck(i);
  button("ApplyUL").userClick();
  EXPECT_TRUE(ended_);
  EXPECT_NE("<missing>", stored(platform::kLocalMachine, kRun, "10"));
}

TEST_F(Software, NamesWithHighBytesAndBackslashesAreListedAndRemovedExactly) {
  const std::string high = "Caf\xE9 \xA9\xFF";
  const std::string slashed = "Tools\\Agent";
  runValue(platform::kLocalMachine, high);
  runValue(platform::kLocalMachine, slashed);
  runValue(platform::kLocalMachine, "Tools");
  uninstallKey("K\xE4se", "Display \xC4\\\xD6");
  start();
  EXPECT_EQ((Strings{"Display \xC4\\\xD6"}), listed());
  showTab(8);
  tick("Display \xC4\\\xD6");
  button("ApplyUL").userClick();
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kUninstall + "\\K\xE4se"));

  page().Check5->userClick();
  tick(slashed);
  tick(high);
  button("ApplyUL").userClick();
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kRun, slashed));
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kRun, high));
  EXPECT_EQ((Strings{"Tools"}), listed());
}

TEST_F(Software, TwoHundredEntriesAreListedAndOnlyTheTickedOnesGo) {
  for (int i = 0; i < 200; ++i) {
    char key[16];
    std::snprintf(key, sizeof key, "App%03d", i);
    uninstallKey(key, std::string("Application ") + key);
  }
  start();
  EXPECT_EQ(200, page().prg_list->listCount());
  EXPECT_EQ(200, page().uninst_count);
  showTab(8);
  // Ticked in list order, consecutive keys: the walk takes them all.
  for (int i = 50; i < 70; ++i)
    page().prg_list->userToggleCheck(i);
  button("ApplyUL").userClick();
  EXPECT_EQ(180, page().prg_list->listCount());
  for (int i = 0; i < 200; ++i) {
    char key[16];
    std::snprintf(key, sizeof key, "App%03d", i);
    EXPECT_EQ(i < 50 || i >= 70, keyExists(platform::kLocalMachine, kUninstall + "\\" + key)) << i;
  }
}

TEST_F(Software, RefreshListsTheTickedSetAndDisablesApply) {
  uninstallKey("A", "Alpha");
  start();
  showTab(8);
  tick("Alpha");
  uninstallKey("B", "Beta");
  button("RefUL").userClick();
  EXPECT_EQ((Strings{"Alpha", "Beta"}), listed());
  EXPECT_FALSE(button("ApplyUL").enabled());
}

} // namespace
