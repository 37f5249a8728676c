// The Troubleshooting page: the four health checks and their repair, the
// desktop items, the fault log, the allocation size and the file-system rows.
#include "tests/host/connection_fixture.h"

#include <string>

using namespace runtime;

namespace {

const std::string kFileSystem = "System\\CurrentControlSet\\Control\\FileSystem";
const std::string kNameSpace =
    "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace";
const std::string kFault = "Software\\Microsoft\\Windows\\CurrentVersion\\Fault";
const std::string kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
const std::string kNewMenu =
    "Software\\CLASSES\\Directory\\Background\\shellex\\ContextMenuHandlers\\New";
const std::string kMyComputer = "{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
const std::string kRecycleBin = "{645FF040-5081-101B-9F08-00AA002F954E}";

class Trouble : public ProgramTest {
protected:
  pages::Troubleshooting& page() { return fmain().pages->trouble; }
  CheckBox& check2(int index) { return fmain().Check2_(index); }
  // The four entries as a healthy Windows 98 holds them.
  static void healthy() {
    storeText(platform::kClassesRoot, ".lnk\\ShellNew", "Command",
              "RunDLL32 AppWiz.Cpl,NewLinkHere %2");
    storeDword(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun", 149);
    storeText(platform::kLocalMachine, kNewMenu, "", "{D969A300-E7FF-11d0-A93B-00A0C90F2719}");
  }
  void expectHealthy(int index, const char* caption) {
    EXPECT_EQ(1, page().dsce(index).value()) << index;
    EXPECT_TRUE(page().dsce(index).visible()) << index;
    EXPECT_EQ(caption, page().dsc(index).caption());
    EXPECT_EQ(kButtonFace, page().dsc(index).backColor()) << index;
  }
  void expectFailing(int index, const std::string& caption) {
    EXPECT_EQ(0, page().dsce(index).value()) << index;
    EXPECT_FALSE(page().dsce(index).visible()) << index;
    EXPECT_EQ(caption, page().dsc(index).caption());
    EXPECT_EQ(0xFFu, page().dsc(index).backColor()) << index;
  }
};

TEST_F(Trouble, AllFourHealthyShowNoRedAndNoFixButton) {
  healthy();
  start();
  EXPECT_FALSE(page().fix_->visible());
  expectHealthy(0, "Desktop Shortcut Creation");
  expectHealthy(1, "Windows 98 Long File Names");
  expectHealthy(2, "Windows Explorer File Menu");
  expectHealthy(3, "CD-ROM AutoRun Feature");
  EXPECT_FALSE(button("ondAp").enabled());
}

TEST_F(Trouble, OnlyTheFileMenuFailing) {
  healthy();
  storeText(platform::kLocalMachine, kNewMenu, "", "{something else}");
  start();
  EXPECT_TRUE(page().fix_->visible());
  expectFailing(2, "Windows Explorer File Menu Error");
  expectHealthy(0, "Desktop Shortcut Creation");
  expectHealthy(3, "CD-ROM AutoRun Feature");
}

TEST_F(Trouble, AutoRunOf145FailsAndSoDoesTheBinaryForm) {
  healthy();
  storeDword(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun", 145);
  start();
  expectFailing(3, "CD-ROM AutoRun Feature Error");
  EXPECT_TRUE(page().fix_->visible());

  platform::sim::storeRawValue(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun",
                               platform::kRegBinary, {0x95, 0, 0, 0});
  pressOnTab(4, "ref_ond");
  expectFailing(3, "CD-ROM AutoRun Feature Error Error");
  page().fix_->userClick();
  EXPECT_EQ("4:95000000", stored(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun"));
  expectHealthy(3, "CD-ROM AutoRun Feature");
  EXPECT_FALSE(page().fix_->visible());
}

TEST_F(Trouble, TheFixSetsAllFourRightAndReadsThePage) {
  storeText(platform::kClassesRoot, ".lnk\\ShellNew", "Command", "other");
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 7);
  start();
  EXPECT_TRUE(page().fix_->visible());
  expectFailing(0, "Desktop Shortcut Creation Error");
  expectFailing(1, "Windows 98 Long File Names Error");
  showTab(4);
  page().fix_->userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("1:52756E444C4C33322041707057697A2E43706C2C4E65774C696E6B4865726520253200",
            stored(platform::kClassesRoot, ".lnk\\ShellNew", "Command"));
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kFileSystem, "NameNumericTail"));
  EXPECT_EQ("{D969A300-E7FF-11d0-A93B-00A0C90F2719}",
            sysaccess::GetRegValue(sysaccess::HKLM, kNewMenu, ""));
  EXPECT_EQ("4:95000000", stored(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun"));
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(1, page().dsce(i).value()) << i;
  EXPECT_FALSE(page().fix_->visible());
  EXPECT_EQ(0, platform::sim::shownMessageBoxes().size());
}

TEST_F(Trouble, EachFailingReadAppendsAnotherError) {
  start();
  expectFailing(0, "Desktop Shortcut Creation Error");
  showTab(4);
  button("ref_ond").userClick();
  button("ref_ond").userClick();
  expectFailing(0, "Desktop Shortcut Creation Error Error Error");
  healthy();
  button("ref_ond").userClick();
  expectHealthy(0, "Desktop Shortcut Creation");
}

TEST_F(Trouble, OnlyTheFirstCheckHidesTheFixButton) {
  healthy();
  storeText(platform::kClassesRoot, ".lnk\\ShellNew", "Command", "other");
  storeDword(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun", 1);
  start();
  EXPECT_TRUE(page().fix_->visible());
  // Only the AutoRun row is set right from outside: the first check still
  // fails, so the button stays.
  storeDword(platform::kCurrentUser, kPolicies, "NoDriveTypeAutoRun", 149);
  pressOnTab(4, "ref_ond");
  EXPECT_TRUE(page().fix_->visible());
  // First check right, the third wrong: the first hides, the third shows.
  healthy();
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 2);
  button("ref_ond").userClick();
  EXPECT_TRUE(page().fix_->visible());
}

TEST_F(Trouble, NameNumericTailOfZeroOrOneIsLeftUnjudged) {
  healthy();
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 5);
  start();
  expectFailing(1, "Windows 98 Long File Names Error");
  // The tweak writes 0 or 1 here: the red label stays as it was.
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 1);
  pressOnTab(4, "ref_ond");
  expectFailing(1, "Windows 98 Long File Names Error");
  // The first check, healthy, hides the button although this row stays red.
  EXPECT_FALSE(page().fix_->visible());
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 0);
  button("ref_ond").userClick();
  expectFailing(1, "Windows 98 Long File Names Error");
  // Only another failing check brings the button back, and the Fix ends it.
  storeText(platform::kClassesRoot, ".lnk\\ShellNew", "Command", "other");
  button("ref_ond").userClick();
  ASSERT_TRUE(page().fix_->visible());
  page().fix_->userClick();
  expectHealthy(1, "Windows 98 Long File Names");
  // And a healthy row stays healthy when the value becomes 0.
  storeDword(platform::kLocalMachine, kFileSystem, "NameNumericTail", 0);
  button("ref_ond").userClick();
  expectHealthy(1, "Windows 98 Long File Names");
}

TEST_F(Trouble, DesktopItemsTickByTheirNameAndClearWhenMissing) {
  storeText(platform::kLocalMachine, kNameSpace + "\\" + kRecycleBin, "", "Recycle Bin");
  storeText(platform::kLocalMachine, kNameSpace + "\\{FF393560-C2A7-11CF-BFF4-444553540000}", "",
            "Url History Folder");
  storeText(platform::kLocalMachine, kNameSpace + "\\{00020D75-0000-0000-C000-000000000046}", "",
            "InBox"); // not the expected "Inbox"
  start();
  EXPECT_EQ(1, page().ondesk(3).value());
  EXPECT_EQ(1, page().ondesk(7).value());
  EXPECT_EQ(0, page().ondesk(8).value());
  EXPECT_EQ(0, page().ondesk(0).value());
  EXPECT_EQ("URL History Folder", page().ondesk(7).caption());
  EXPECT_EQ("InBox", page().ondesk(8).caption());
}

TEST_F(Trouble, ATranslatedNameKeepsTheBoxAndApplyWithItClearDeletesTheKey) {
  storeText(platform::kLocalMachine, kNameSpace + "\\" + kMyComputer, "", "Arbeitsplatz");
  storeText(platform::kLocalMachine, kNameSpace + "\\" + kMyComputer + "\\Extra", "x", "y");
  start();
  showTab(4);
  page().ondesk(10).userClick();
  EXPECT_TRUE(button("ondAp").enabled());
  pressOnTab(4, "ref_ond");
  EXPECT_EQ(1, page().ondesk(10).value()); // kept
  page().ondesk(10).userClick();           // cleared
  button("ondAp").userClick();
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kNameSpace + "\\" + kMyComputer));
  EXPECT_EQ(0, page().ondesk(10).value());
}

TEST_F(Trouble, ApplyWritesTickedItemsAndDeletesClearOnes) {
  storeText(platform::kLocalMachine, kNameSpace + "\\" + kRecycleBin, "", "Recycle Bin");
  start();
  showTab(4);
  page().ondesk(3).userClick(); // clear Recycle Bin
  page().ondesk(8).userClick(); // tick InBox
  button("ondAp").userClick();
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kNameSpace + "\\" + kRecycleBin));
  EXPECT_EQ("1:496E626F7800", stored(platform::kLocalMachine,
                                     kNameSpace + "\\{00020D75-0000-0000-C000-000000000046}", ""));
  EXPECT_EQ(1, page().ondesk(8).value());
  EXPECT_FALSE(button("ondAp").enabled());
}

TEST_F(Trouble, TheWriterGoesInItsOrderWritesBeforeDeletions) {
  start();
  showTab(4);
  page().ondesk(9).userClick();
  page().ondesk(0).userClick();
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  button("ondAp").userClick();
  platform::sim::setCallLogging(false);
  std::vector<std::string> touched;
  for (const std::string& call : platform::sim::callLog()) {
    for (const char* what : {"RegCreateKeyA", "RegDeleteKeyA", "RegCreateKeyExA"})
      if (call.rfind(what, 0) == 0) touched.push_back(call);
  }
  ASSERT_FALSE(touched.empty());
  // The Fault key goes first, then the allocation size, the items ...
  EXPECT_NE(std::string::npos, touched.front().find("Fault"));
  std::size_t myDocuments = 0, neighborhood = 0, firstDeletion = 0;
  for (std::size_t i = 0; i < touched.size(); ++i) {
    if (touched[i].find("RegCreateKeyA") == 0 && touched[i].find("{450d8fba") != std::string::npos)
      myDocuments = i;
    if (touched[i].find("RegCreateKeyA") == 0 && touched[i].find("{208D2C60") != std::string::npos)
      neighborhood = i;
    if (touched[i].find("RegDeleteKeyA") == 0 &&
        touched[i].find("NameSpace") != std::string::npos && firstDeletion == 0)
      firstDeletion = i;
  }
  EXPECT_LT(myDocuments, neighborhood);
  EXPECT_LT(neighborhood, firstDeletion);
  // ... and the file-system rows come last.
  EXPECT_NE(std::string::npos, touched.back().find("FileSystem"));
}

TEST_F(Trouble, TheFaultLogSwitch) {
  storeText(platform::kLocalMachine, kFault, "LogFile", "C:\\LOG.TXT");
  storeText(platform::kLocalMachine, kFault, "Other", "goes with the key");
  start();
  EXPECT_EQ(1, page().Check3->value());
  showTab(4);
  page().Check3->userClick();
  EXPECT_TRUE(button("ondAp").enabled());
  button("ondAp").userClick();
  EXPECT_FALSE(keyExists(platform::kLocalMachine, kFault)); // the whole key
  EXPECT_EQ(0, page().Check3->value());
  page().Check3->userClick();
  button("ondAp").userClick();
  EXPECT_EQ("C:\\WINDOWS\\FAULTLOG.TXT",
            sysaccess::GetRegValue(sysaccess::HKLM, kFault, "LogFile"));
  EXPECT_EQ(1, page().Check3->value());
}

TEST_F(Trouble, TheAllocationSizeSelectsItsOption) {
  for (const auto& [bytes, option] : {std::pair{512u, 0}, std::pair{1024u, 1}, std::pair{2048u, 2},
                                      std::pair{1020u, 1}, std::pair{1025u, 1}}) {
    storeDword(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize", bytes);
    start();
    EXPECT_EQ(1, check2(20).value()) << bytes;
    EXPECT_TRUE(page().defgrag(option).value()) << bytes;
    for (int i = 0; i < 3; ++i)
      EXPECT_TRUE(page().defgrag(i).enabled()) << bytes;
    EXPECT_FALSE(button("ondAp").enabled());
  }
}

TEST_F(Trouble, AnAllocationOf4096ReadsClearAndApplyDeletesIt) {
  storeDword(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize", 2048);
  start();
  EXPECT_TRUE(page().defgrag(2).value());
  storeDword(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize", 4096);
  pressOnTab(4, "ref_ond");
  EXPECT_EQ(0, check2(20).value());
  EXPECT_TRUE(page().defgrag(2).value()); // the selection is unchanged
  EXPECT_FALSE(page().defgrag(0).enabled());
  page().Check3->userClick();
  button("ondAp").userClick();
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize"));
}

TEST_F(Trouble, Check2Of20GovernsTheOptions) {
  start();
  showTab(4);
  EXPECT_FALSE(page().defgrag(1).enabled());
  check2(20).userClick();
  EXPECT_TRUE(button("ondAp").enabled());
  EXPECT_FALSE(button("applyb").enabled());
  for (int i = 0; i < 3; ++i)
    EXPECT_TRUE(page().defgrag(i).enabled());
  page().defgrag(1).userClick();
  button("ondAp").userClick();
  EXPECT_EQ("4:00040000", stored(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize"));
  check2(20).userClick();
  for (int i = 0; i < 3; ++i)
    EXPECT_FALSE(page().defgrag(i).enabled());
}

TEST_F(Trouble, TickedWithNoOptionWritesNothing) {
  storeDword(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize", 4096);
  start();
  showTab(4);
  check2(20).userClick();
  button("ondAp").userClick();
  EXPECT_EQ("4:00100000", stored(platform::kLocalMachine, kFileSystem, "ContigFileAllocSize"));
}

TEST_F(Trouble, FileSystemRowsStoreTheirExactBytes) {
  start();
  showTab(4);
  for (int i = 15; i <= 19; ++i)
    check2(i).userClick();
  page().Combo2->userSelect(1); // Real
  page().Combo3->userSelect(0); // Protected
  page().Combo4->userSelect(0); // Asynchronous
  button("ondAp").userClick();
  const auto fs = [](const char* name) {
    return stored(platform::kLocalMachine, kFileSystem, name);
  };
  EXPECT_EQ("4:00000000", fs("Win31FileSystem"));
  EXPECT_EQ("3:01000000", fs("VirtualHDIRQ"));
  EXPECT_EQ("3:01000000", fs("SoftCompatMode"));
  EXPECT_EQ("4:01000000", fs("NameNumericTail"));
  EXPECT_EQ("3:FFFFFFFF", fs("PreserveLongNames"));
  EXPECT_EQ("3:01000000", fs("ForceRMIO"));
  EXPECT_EQ("3:FFFFFFFF", fs("DriveWriteBehind"));
  EXPECT_EQ("3:01", fs("AsyncFileCommit"));
  // The named-tweak reader shows what was written.
  for (int i = 15; i <= 19; ++i)
    EXPECT_EQ(1, check2(i).value()) << i;
  EXPECT_EQ("Real", page().Combo2->text());
  EXPECT_EQ("Protected", page().Combo3->text());
  EXPECT_EQ("Asynchronous", page().Combo4->text());

  for (int i = 15; i <= 19; ++i)
    check2(i).userClick();
  page().Combo2->userSelect(0);
  page().Combo3->userSelect(1);
  page().Combo4->userSelect(1);
  button("ondAp").userClick();
  EXPECT_EQ("4:01000000", fs("Win31FileSystem"));
  EXPECT_EQ("3:00000000", fs("VirtualHDIRQ"));
  EXPECT_EQ("3:00000000", fs("SoftCompatMode"));
  EXPECT_EQ("4:00000000", fs("NameNumericTail"));
  EXPECT_EQ("3:00000000", fs("PreserveLongNames"));
  EXPECT_EQ("3:00000000", fs("ForceRMIO"));
  EXPECT_EQ("3:00000000", fs("DriveWriteBehind"));
  EXPECT_EQ("3:00", fs("AsyncFileCommit"));
  for (int i = 15; i <= 19; ++i)
    EXPECT_EQ(0, check2(i).value()) << i;
  EXPECT_EQ("Protected", page().Combo2->text());
  EXPECT_EQ("Real", page().Combo3->text());
  EXPECT_EQ("Synchronous", page().Combo4->text());
}

TEST_F(Trouble, CombosWithNothingSelectedWriteNothing) {
  start();
  showTab(4);
  page().Check3->userClick();
  button("ondAp").userClick();
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kFileSystem, "ForceRMIO"));
  EXPECT_EQ("<missing>", stored(platform::kLocalMachine, kFileSystem, "AsyncFileCommit"));
  EXPECT_EQ("4:01000000", stored(platform::kLocalMachine, kFileSystem, "Win31FileSystem"));
}

TEST_F(Trouble, EveryChangeArmsApplyAndTheReaderDisarmsIt) {
  start();
  showTab(4);
  const auto armedBy = [&](const std::function<void()>& change) {
    button("ondAp").setEnabled(false);
    change();
    return button("ondAp").enabled();
  };
  EXPECT_TRUE(armedBy([&] { page().ondesk(4).userClick(); }));
  EXPECT_TRUE(armedBy([&] { page().Combo2->userSelect(0); }));
  EXPECT_TRUE(armedBy([&] { page().Combo3->userSelect(1); }));
  EXPECT_TRUE(armedBy([&] { page().Combo4->userSelect(0); }));
  EXPECT_TRUE(armedBy([&] { page().Check3->userClick(); }));
  EXPECT_TRUE(armedBy([&] { check2(17).userClick(); }));
  check2(20).userClick();
  EXPECT_TRUE(armedBy([&] { page().defgrag(2).userClick(); }));
  button("ref_ond").userClick();
  EXPECT_FALSE(button("ondAp").enabled());
}

TEST_F(Trouble, TheLayoutStandsAtItsDesignPlaces) {
  start();
  EXPECT_EQ(&fmain().Frame4(2), page().fix_->container());
  EXPECT_EQ("Fix Error(s)", page().fix_->caption());
  EXPECT_EQ(150, page().fix_->left());
  EXPECT_EQ(4830, page().fix_->top());
  EXPECT_EQ("Protected-Mode HD Interrupt Handling", check2(16).caption());
  EXPECT_EQ(810, check2(16).top());
  EXPECT_EQ("File Sharing and Locking Symantics ", check2(17).caption());
  EXPECT_EQ("Preserve LFN for Legacy Applications ", check2(19).caption());
  EXPECT_EQ(2010, check2(20).top());
  EXPECT_EQ(3150, check2(20).width());
  EXPECT_EQ(" 512 bytes", page().defgrag(0).caption());
  EXPECT_EQ(2670, page().defgrag(2).top());
  EXPECT_EQ(3420, page().defgrag(2).left());
  EXPECT_EQ(4920, page().Combo4->left());
  EXPECT_EQ(3600, page().Combo4->top());
  EXPECT_EQ(5550, page().dsce(1).left());
  EXPECT_EQ(4350, page().dsce(1).top());
  EXPECT_EQ(4320, page().dsc(2).top());
  EXPECT_FALSE(page().dsce(0).enabled());
  EXPECT_EQ(3210, page().ondesk(10).top());
  EXPECT_EQ(810, page().ondesk(0).top());
  EXPECT_EQ("Log Application Errors (FAULTLOG.TXT)", page().Check3->caption());
  EXPECT_EQ("Add / Remove from Desktop", page().Label11->caption());
  EXPECT_EQ("Common Registry Problems Checks", page().Label38->caption());
  EXPECT_EQ(6435, page().Label35->width());
  EXPECT_EQ("32-bit Disk Access Mode", page().Label14(1).caption());
  EXPECT_EQ(2, page().Combo3->listCount());
  EXPECT_EQ("Synchronous", page().Combo4->list(1));
}

} // namespace

namespace {

const std::string kMetrics = ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics";
const std::string kDllIcon = "Software\\CLASSES\\dllfile\\DefaultIcon";
const std::string kCplIcon = "Software\\CLASSES\\cplfile\\DefaultIcon";
const std::string kBitmapIcon = "Software\\CLASSES\\Paint.Picture\\DefaultIcon";

class IconRows : public Trouble {
protected:
  CheckBox& wit() { return *static_cast<CheckBox*>(fmain().form.find("wit")); }
  CheckBox& icn(int i) {
    return *static_cast<CheckBox*>(fmain().form.find("icn_desc(" + std::to_string(i) + ")"));
  }
};

TEST_F(IconRows, ReadByThisPagesReader) {
  storeText(platform::kUsers, kMetrics, "IconTitleWrap", "1");
  storeText(platform::kLocalMachine, kDllIcon, "", "C:\\WINDOWS\\SYSTEM\\shell32.dll,-154");
  storeText(platform::kLocalMachine, kCplIcon, "", "C:\\WIN98\\SYSTEM\\shell32.dll,-154");
  storeText(platform::kLocalMachine, kBitmapIcon, "", "%1");
  start();
  EXPECT_EQ(1, wit().value());
  EXPECT_EQ(1, icn(0).value());
  EXPECT_EQ(0, icn(1).value()); // another Windows directory
  EXPECT_EQ(1, icn(2).value());
  EXPECT_FALSE(button("ondAp").enabled());
  EXPECT_FALSE(button("applyb").enabled());
}

TEST_F(IconRows, OtherTextsFollowTheirRules) {
  storeText(platform::kUsers, kMetrics, "IconTitleWrap", "1");
  storeText(platform::kLocalMachine, kBitmapIcon, "", "%1");
  start();
  storeText(platform::kUsers, kMetrics, "IconTitleWrap", "2");
  storeText(platform::kLocalMachine, kBitmapIcon, "", "C:\\PROGRA~1\\ACCESS~1\\MSPAINT.EXE,1");
  pressOnTab(4, "ref_ond");
  EXPECT_EQ(1, wit().value()); // left as it was
  EXPECT_EQ(1, icn(2).value());
  storeText(platform::kUsers, kMetrics, "IconTitleWrap", "0");
  storeText(platform::kLocalMachine, kBitmapIcon, "", "");
  button("ref_ond").userClick();
  EXPECT_EQ(0, wit().value());
  EXPECT_EQ(0, icn(2).value());
}

TEST_F(IconRows, TickingWitArmsThisPageNotTheDesktopPage) {
  start();
  showTab(0);
  fmain().pages->desktop.SSTab1->userSelectTab(1);
  wit().userClick();
  EXPECT_TRUE(button("ondAp").enabled());
  EXPECT_FALSE(button("applyb").enabled());
}

TEST_F(IconRows, WrittenByThisPagesApply) {
  start();
  icn(0).setValue(1);
  icn(1).setValue(0);
  icn(2).setValue(0);
  wit().setValue(1);
  pressOnTab(4, "ondAp");
  EXPECT_EQ("1:3100", stored(platform::kUsers, kMetrics, "IconTitleWrap"));
  EXPECT_EQ("C:\\WINDOWS\\SYSTEM\\shell32.dll,-154",
            sysaccess::GetRegValue(sysaccess::HKLM, kDllIcon, ""));
  EXPECT_EQ("%1", sysaccess::GetRegValue(sysaccess::HKLM, kCplIcon, ""));
  EXPECT_EQ("1:00", stored(platform::kLocalMachine, kBitmapIcon, ""));
  EXPECT_EQ(1, icn(0).value());
  EXPECT_EQ(0, icn(1).value());
  wit().setValue(0);
  icn(2).setValue(1);
  button("ondAp").userClick();
  EXPECT_EQ("0", sysaccess::GetRegValue(sysaccess::HKU, kMetrics, "IconTitleWrap"));
  EXPECT_EQ("%1", sysaccess::GetRegValue(sysaccess::HKLM, kBitmapIcon, ""));
  EXPECT_EQ(1, icn(2).value());
}

} // namespace
