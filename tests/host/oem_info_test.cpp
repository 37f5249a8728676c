// The OEM Info page: the lock, oeminfo.ini through the profile calls, the
// identity strings, the double read and the logo copy with its fatal path.
#include "tests/host/connection_fixture.h"

#include "sysaccess/system_helpers.h"

#include <string>

using namespace runtime;

namespace {

const std::string kOemInfo = "C:\\WINDOWS\\SYSTEM\\oeminfo.ini";
const std::string kOemLogo = "C:\\WINDOWS\\SYSTEM\\oemlogo.bmp";
const std::string kSetupUser = "Software\\Microsoft\\MS Setup (ACME)\\User Info";
const std::string kVersion = "Software\\Microsoft\\Windows\\CurrentVersion";
const std::string kShippedOemInfo = "[General]\r\nManufacturer=Meridian Computer Systems\r\n"
                                    "Model=Meridian HomeStation P2-350\r\n\r\n"
                                    "[Support Information]\r\nLine1=Call us\r\nLine2=Mon-Fri\r\n";

class Oem : public ProgramTest {
protected:
  pages::OemInfo& page() { return fmain().pages->oem; }
  void SetUp() override {
    ProgramTest::SetUp();
    storeText(platform::kCurrentUser, kSetupUser, "DefName", "Ann Harper");
    storeText(platform::kCurrentUser, kSetupUser, "DefCompany", "Harper Design");
  }
  void allTextBoxesDisabled() {
    for (TextBox* box : {page().Text3, page().Text4, page().Text5, page().Text12, page().Text13,
                         page().Text14, page().Text19, page().Text20})
      EXPECT_FALSE(box->enabled()) << box->name();
  }
};

TEST_F(Oem, StartUpShowsTheFileAndTheStringsLocked) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  EXPECT_EQ("Meridian HomeStation P2-350", page().Text12->text());
  EXPECT_EQ("Meridian Computer Systems", page().Text13->text());
  EXPECT_EQ("Call us", page().Text14->text());
  EXPECT_EQ("Ann Harper", page().Text19->text());
  EXPECT_EQ("Harper Design", page().Text20->text());
  allTextBoxesDisabled();
  EXPECT_EQ(0, page().Check17->value());
  EXPECT_EQ(0, page().Check18->value());
  EXPECT_FALSE(page().Check18->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
}

TEST_F(Oem, CaptionsAndPlacesStandAsDesigned) {
  start();
  EXPECT_EQ("Allow OEM Info Changes ", page().Check17->caption());
  EXPECT_EQ("Use Veldane's OEM Logo", page().Check18->caption());
  EXPECT_EQ("System's Name", page().Check7->caption());
  EXPECT_EQ("Registered User ", page().Check8->caption());
  EXPECT_EQ("Registered Organization", page().Check9->caption());
  EXPECT_EQ("Default User Name", page().Check27->caption());
  EXPECT_EQ("Default Company Name", page().Check28->caption());
  EXPECT_EQ(4170, page().Check9->top());
  EXPECT_EQ(4470, page().Text4->top());
  EXPECT_EQ(2580, page().Text20->left());
  EXPECT_EQ(3585, page().Text20->width());
  EXPECT_EQ(2460, page().Text12->top());
  EXPECT_EQ(5865, page().Text14->width());
  EXPECT_EQ("Support Information", static_cast<Label*>(fmain().form.find("L(1)"))->caption());
  EXPECT_EQ(&fmain().Frame4(3), page().Check17->container());
}

TEST_F(Oem, MissingValuesShowNotFound) {
  platform::sim::storeRawValue(platform::kCurrentUser, kSetupUser, "Other", platform::kRegSz, {0});
  platform::RegKey key = 0;
  platform::RegOpenKeyA(platform::kCurrentUser, kSetupUser.c_str(), &key);
  platform::RegDeleteValueA(key, "DefName");
  platform::RegCloseKey(key);
  start();
  EXPECT_EQ("Not Found", page().Text19->text());
  EXPECT_EQ("Harper Design", page().Text20->text());
}

TEST_F(Oem, NoFileShowsThreeEmptyBoxesAndARowApplyCreatesIt) {
  start();
  EXPECT_EQ("", page().Text12->text());
  EXPECT_EQ("", page().Text13->text());
  EXPECT_EQ("", page().Text14->text());
  showTab(3);
  page().Check27->userClick();
  button("Oem_apply").userClick();
  EXPECT_EQ("[General]\r\nModel=\r\nManufacturer=\r\n[Support Information]\r\nLine1=\r\n",
            readFile(kOemInfo));
}

TEST_F(Oem, ApplyChangesOnlyItsThreeLinesOfTheFile) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  showTab(3);
  page().Check17->userClick();
  EXPECT_TRUE(page().Text12->enabled());
  EXPECT_TRUE(page().Text12->hasFocus());
  EXPECT_TRUE(page().Check18->enabled());
  page().Text12->userSetText("Model Two");
  page().Text14->userSetText("Support line");
  button("Oem_apply").userClick();
  EXPECT_EQ("[General]\r\nManufacturer=Meridian Computer Systems\r\nModel=Model Two\r\n"
            "[Support Information]\r\nLine1=Support line\r\nLine2=Mon-Fri\r\n",
            readFile(kOemInfo));
  EXPECT_EQ("Model Two", page().Text12->text());
  // Check17 is not reset by the reader: the three boxes stay open.
  EXPECT_EQ(1, page().Check17->value());
  EXPECT_TRUE(page().Text12->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
}

TEST_F(Oem, ARowCheckBoxUnlocksItsBoxWhichIsWrittenEvenWhenClearedAgain) {
  start();
  showTab(3);
  page().Check27->userClick();
  EXPECT_TRUE(page().Text19->enabled());
  EXPECT_TRUE(page().Text19->hasFocus());
  EXPECT_TRUE(button("Oem_apply").enabled());
  page().Check27->userClick(); // cleared by hand: the box stays open
  EXPECT_TRUE(page().Text19->enabled());
  page().Text19->userSetText("Bob Stone");
  button("Oem_apply").userClick();
  EXPECT_EQ("Bob Stone", sysaccess::GetRegValue(sysaccess::HKCU, kSetupUser, "DefName"));
  EXPECT_EQ("Harper Design", sysaccess::GetRegValue(sysaccess::HKCU, kSetupUser, "DefCompany"));
}

TEST_F(Oem, AfterAnApplyWithARowTickedEverythingIsLockedAgain) {
  start();
  showTab(3);
  page().Check27->userClick();
  page().Text19->userSetText("Bob Stone");
  button("Oem_apply").userClick();
  EXPECT_EQ(0, page().Check27->value());
  EXPECT_FALSE(page().Text19->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
  Control* focus = fmain().form.activeControl();
  ASSERT_NE(nullptr, focus);
  EXPECT_TRUE(focus->enabled()) << focus->designName();
  allTextBoxesDisabled();
}

TEST_F(Oem, OneReadAfterAClearedRowLeavesItsBoxOpenTheSecondClosesIt) {
  start();
  showTab(3);
  page().Check28->userClick();
  page().ref_oem_page();
  EXPECT_EQ(0, page().Check28->value());
  EXPECT_TRUE(page().Text20->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
  page().ref_oem_page();
  EXPECT_FALSE(page().Text20->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
}

TEST_F(Oem, RefreshReadsTwiceAndTheSecondReadGivesTheSame) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  showTab(3);
  page().Check8->userClick();
  page().Check9->userClick();
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  button("ref_oem").userClick();
  platform::sim::setCallLogging(false);
  int reads = 0;
  for (const std::string& call : platform::sim::callLog())
    if (call.find("GetPrivateProfileStringA") == 0) ++reads;
  EXPECT_EQ(6, reads);
  allTextBoxesDisabled();
  EXPECT_FALSE(button("Oem_apply").enabled());
  const std::string model = page().Text12->text();
  button("ref_oem").userClick();
  EXPECT_EQ(model, page().Text12->text());
  allTextBoxesDisabled();
}

TEST_F(Oem, OnlyEnabledBoxesAreWrittenWhateverTheyShow) {
  storeText(platform::kLocalMachine, kVersion, "RegisteredOwner", "Ann Harper");
  start();
  showTab(3);
  page().Check28->userClick();
  page().Text20->userSetText("New Co");
  page().Text19->setText("typed into a locked box");
  button("Oem_apply").userClick();
  EXPECT_EQ("1:4E657720436F00", stored(platform::kCurrentUser, kSetupUser, "DefCompany"));
  EXPECT_EQ("Ann Harper", sysaccess::GetRegValue(sysaccess::HKCU, kSetupUser, "DefName"));
  EXPECT_EQ("Ann Harper", sysaccess::GetRegValue(sysaccess::HKLM, kVersion, "RegisteredOwner"));
}

TEST_F(Oem, AnOpenBoxShowingNotFoundWritesTheWords) {
  platform::RegKey key = 0;
  platform::RegOpenKeyA(platform::kCurrentUser, kSetupUser.c_str(), &key);
  platform::RegDeleteValueA(key, "DefCompany");
  platform::RegCloseKey(key);
  start();
  showTab(3);
  page().Check28->userClick();
  button("Oem_apply").userClick();
  EXPECT_EQ(std::string("1:") + "4E6F7420466F756E6400",
            stored(platform::kCurrentUser, kSetupUser, "DefCompany"));
  // ... which reads back as missing.
  EXPECT_EQ("Not Found", page().Text20->text());
}

TEST_F(Oem, ClearingCheck17ThrowsTypedTextAway) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  showTab(3);
  page().Check17->userClick();
  page().Text12->userSetText("typed");
  page().Check17->userClick();
  EXPECT_EQ("Meridian HomeStation P2-350", page().Text12->text());
  EXPECT_FALSE(page().Text12->enabled());
  EXPECT_FALSE(page().Check18->enabled());
  EXPECT_FALSE(button("Oem_apply").enabled());
}

TEST_F(Oem, TickingCheck17LeavesApplyWaitingForAChange) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  showTab(3);
  page().Check17->userClick();
  EXPECT_FALSE(button("Oem_apply").enabled());
  page().Text13->userSetText("Maker");
  EXPECT_TRUE(button("Oem_apply").enabled());
}

TEST_F(Oem, TheLogoIsCopiedWhenCheck18IsTickedEvenAfterCheck17IsCleared) {
  writeFile("C:\\Tweakloom 99.bmp", "BM logo bytes");
  start();
  showTab(3);
  page().Check17->userClick();
  page().Check18->userClick();
  EXPECT_TRUE(button("Oem_apply").enabled());
  page().Check17->userClick(); // cleared
  EXPECT_EQ(1, page().Check18->value());
  EXPECT_FALSE(page().Check18->enabled());
  EXPECT_EQ("<missing>", readFile(kOemLogo));
  page().Check27->userClick();
  button("Oem_apply").userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("BM logo bytes", readFile(kOemLogo));
  // Clearing Check18 never removes the logo.
  page().Check17->userClick();
  page().Check18->userClick();
  button("Oem_apply").userClick();
  EXPECT_EQ("BM logo bytes", readFile(kOemLogo));
}

TEST_F(Oem, AMissingLogoIsFatalBeforeAnythingIsWritten) {
  writeFile(kOemInfo, kShippedOemInfo);
  start();
  showTab(3);
  page().Check17->userClick();
  page().Check18->userClick();
  page().Text12->userSetText("Never written");
  page().Check28->userClick();
  page().Text20->userSetText("Never written");
  button("Oem_apply").userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '53':\n\nFile not found", lastMessage());
  EXPECT_EQ(kShippedOemInfo, readFile(kOemInfo));
  EXPECT_EQ("Harper Design", sysaccess::GetRegValue(sysaccess::HKCU, kSetupUser, "DefCompany"));
}

TEST_F(Oem, AWriteProtectedLogoIsFatal) {
  writeFile("C:\\Tweakloom 99.bmp", "new");
  writeFile(kOemLogo, "old");
  platform::SetFileAttributesA(kOemLogo.c_str(), platform::kAttributeReadOnly);
  start();
  showTab(3);
  page().Check17->userClick();
  page().Check18->userClick();
  button("Oem_apply").userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '75':\n\nPath/File access error", lastMessage());
  EXPECT_EQ("old", readFile(kOemLogo));
}

TEST_F(Oem, AReadOnlyFileIsLeftAsItWasAndTheRestIsWritten) {
  writeFile(kOemInfo, kShippedOemInfo);
  platform::SetFileAttributesA(kOemInfo.c_str(), platform::kAttributeReadOnly);
  start();
  showTab(3);
  page().Check17->userClick();
  page().Text12->userSetText("Model Two");
  page().Check27->userClick();
  page().Text19->userSetText("Bob");
  button("Oem_apply").userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ(kShippedOemInfo, readFile(kOemInfo));
  EXPECT_EQ("Meridian HomeStation P2-350", page().Text12->text());
  EXPECT_EQ("Bob", sysaccess::GetRegValue(sysaccess::HKCU, kSetupUser, "DefName"));
}

TEST_F(Oem, LinesOf3000CharactersShow254AndApplyWritesThose) {
  const std::string longModel(3000, 'M');
  writeFile(kOemInfo, "[General]\r\nModel=" + longModel +
                          "\r\nManufacturer=" + std::string(3000, 'F') +
                          "\r\n[Support Information]\r\nLine1=" + std::string(3000, 'S') + "\r\n");
  start();
  EXPECT_EQ(std::string(254, 'M'), page().Text12->text());
  EXPECT_EQ(std::string(254, 'F'), page().Text13->text());
  EXPECT_EQ(std::string(254, 'S'), page().Text14->text());
  showTab(3);
  page().Check27->userClick();
  button("Oem_apply").userClick();
  EXPECT_FALSE(ended_);
  EXPECT_EQ(std::string(254, 'M'), sysaccess::GetFromINI("General", "Model", kOemInfo));
  EXPECT_EQ("[General]\r\nModel=" + std::string(254, 'M') +
                "\r\nManufacturer=" + std::string(254, 'F') +
                "\r\n[Support Information]\r\nLine1=" + std::string(254, 'S') + "\r\n",
            readFile(kOemInfo));
}

} // namespace

namespace {

TEST_F(Oem, TheNamedTweaksFillTheFirstThreeAndAnOpenOneIsWrittenThere) {
  storeText(platform::kLocalMachine, kVersion, "RegisteredOwner", "Ann Harper");
  storeText(platform::kLocalMachine, kVersion, "RegisteredOrganization", "Harper Design");
  start();
  EXPECT_EQ("Not Found", page().Text3->text()); // ...\Control\ComputerName has no such value
  EXPECT_EQ("Ann Harper", page().Text4->text());
  EXPECT_EQ("Harper Design", page().Text5->text());
  EXPECT_FALSE(button("Oem_apply").enabled());
  showTab(3);
  page().Check8->userClick();
  page().Text4->userSetText("Bob Stone");
  page().Check7->userClick();
  button("Oem_apply").userClick();
  EXPECT_EQ("Bob Stone", page().Text4->text());
  EXPECT_EQ("1:426F622053746F6E6500", stored(platform::kLocalMachine, kVersion, "RegisteredOwner"));
  // The computer name's box showed "Not Found" and was open: the words are
  // stored, and read back as missing.
  EXPECT_EQ("1:4E6F7420466F756E6400",
            stored(platform::kLocalMachine, "System\\CurrentControlSet\\Control\\ComputerName",
                   "ComputerName"));
  EXPECT_EQ("Harper Design",
            sysaccess::GetRegValue(sysaccess::HKLM, kVersion, "RegisteredOrganization"));
}

} // namespace
