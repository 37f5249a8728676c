// The Security and Networking page on the simulated Windows 98: the nine
// Check26 rows with their key spellings and types, the legal notice, the
// Text11 key filter, net_sec_ready and the writer's order.
#include "sysaccess/ellreg.h"
#include "tests/host/page_fixture.h"

#include <string>
#include <vector>

using namespace runtime;
using platform::kLocalMachine;

namespace {

const std::string P1 = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Network";
const std::string W = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon";
const std::string N = "Network\\Logon";
constexpr int kRows[] = {0, 1, 2, 3, 5, 6, 7, 8, 9};

std::vector<std::uint8_t> bytes(const std::string& text) { return {text.begin(), text.end()}; }
std::string dword(std::uint32_t n) {
  return std::string{static_cast<char>(n), static_cast<char>(n >> 8), static_cast<char>(n >> 16),
                     static_cast<char>(n >> 24)};
}

class SecurityPage : public PageTest {
protected:
  pages::SecurityNetworking& page() { return pages().netSec; }
  CheckBox& box(int index) { return page().Check26(index); }
  void onPage() { selectTab(9); }
  void apply() { button("start_apply").userClick(); }
  static std::string sz(const std::string& key, const char* name) {
    platform::Dword type = 0;
    const std::string data = storedBytes(kLocalMachine, key, name, &type);
    return data == "<missing>" ? data : (type == platform::kRegSz ? "sz:" : "type?:") + data;
  }
  static std::string dw(const std::string& key, const char* name) {
    platform::Dword type = 0;
    const std::string data = storedBytes(kLocalMachine, key, name, &type);
    if (data == "<missing>") return data;
    if (type != platform::kRegDword || data.size() != 4) return "type?";
    return "dword:" + std::to_string(static_cast<unsigned char>(data[0]));
  }
};

TEST_F(SecurityPage, CaptionsAndDesignTextsStandAsDesigned) {
  start();
  EXPECT_FALSE(page().Check26.exists(4));
  EXPECT_EQ(9, page().Check26.count());
  EXPECT_EQ("Disable Password Caching for Windows Clients", box(0).caption());
  EXPECT_EQ("Display Legal Notice Dialog Box Before Logon", box(1).caption());
  EXPECT_EQ("Set Minimum Acceptable Password Length", box(2).caption());
  EXPECT_EQ("Require Alphanumeric Passwords ", box(3).caption());
  EXPECT_EQ("Disable Dial-In Access", box(5).caption());
  EXPECT_EQ("Display Domain Logon Confirmation", box(6).caption());
  EXPECT_EQ("Require Validation by Network for Windows Access", box(7).caption());
  EXPECT_EQ("Hide Share Passwords with Asterisks", box(8).caption());
  EXPECT_EQ("Domain Password Caching", box(9).caption());
  EXPECT_EQ("Security / Networking",
            static_cast<Label*>(program_->fmain.form.find("Label15"))->caption());
  EXPECT_EQ("8", page().Text11->text());
  EXPECT_EQ("Sample Legal Notice Dialog Box Title", page().Text18->text());
  EXPECT_EQ("Sample Legal Notice Dialog Box Text\r\n", page().Text17->text());
  EXPECT_FALSE(page().Text11->enabled());
  EXPECT_FALSE(page().Text17->enabled());
  EXPECT_FALSE(page().Text18->enabled());
}

TEST_F(SecurityPage, NothingSetShowsEveryBoxClearAndApplyWritesTheClearState) {
  start();
  for (int index : kRows)
    EXPECT_EQ(0, box(index).value()) << index;
  EXPECT_FALSE(button("start_apply").enabled());
  EXPECT_EQ(5, program_->fmain.net_sec_ready);
  onPage();
  box(0).userClick();
  box(0).userClick(); // back to clear: the click alone arms Apply
  EXPECT_TRUE(button("start_apply").enabled());
  apply();
  EXPECT_EQ("dword:1", dw(N, "NoDomainPwdCaching"));
  EXPECT_EQ("dword:0", dw(P1, "NoDialIn"));
  EXPECT_EQ("dword:0", dw(N, "DomainLogonMessage"));
  EXPECT_EQ("dword:0", dw(N, "MustBeValidated"));
  EXPECT_EQ("dword:0", dw(P1, "HideSharePwds"));
  EXPECT_EQ(std::string("sz:0\0", 5), sz(P1, "DisablePwdCaching"));
  EXPECT_EQ(std::string("sz:0\0", 5), sz(P1, "AlphanumPwds"));
  EXPECT_EQ("<missing>", sz(P1, "MinPwdLen"));
  EXPECT_EQ("<missing>", sz(W, "LegalNoticeCaption"));
  EXPECT_EQ("<missing>", sz(W, "LegalNoticeText"));
  EXPECT_FALSE(button("start_apply").enabled());
  for (int index : kRows)
    EXPECT_EQ(0, box(index).value()) << index;
}

TEST_F(SecurityPage, EveryBoxTickedWritesTheTickedState) {
  start();
  onPage();
  for (int index : kRows)
    box(index).userClick();
  apply();
  EXPECT_EQ("dword:0", dw(N, "NoDomainPwdCaching"));
  EXPECT_EQ("dword:1", dw(P1, "NoDialIn"));
  EXPECT_EQ("dword:1", dw(N, "DomainLogonMessage"));
  EXPECT_EQ("dword:1", dw(N, "MustBeValidated"));
  EXPECT_EQ("dword:1", dw(P1, "HideSharePwds"));
  EXPECT_EQ(std::string("sz:1\0", 5), sz(P1, "DisablePwdCaching"));
  EXPECT_EQ(std::string("sz:1\0", 5), sz(P1, "AlphanumPwds"));
  EXPECT_EQ(std::string("sz:8\0", 5), sz(P1, "MinPwdLen"));
  EXPECT_EQ(std::string("sz:Sample Legal Notice Dialog Box Title\0", 40),
            sz(W, "LegalNoticeCaption"));
  EXPECT_EQ(std::string("sz:Sample Legal Notice Dialog Box Text\r\n\0", 41),
            sz(W, "LegalNoticeText"));
  for (int index : kRows)
    EXPECT_EQ(1, box(index).value()) << index;
  EXPECT_TRUE(page().Text11->enabled());
  EXPECT_TRUE(page().Text18->enabled());
}

TEST_F(SecurityPage, TheWriterKeepsItsOrderAndItsCapitalKeys) {
  start();
  onPage();
  box(2).userClick();
  box(1).userClick();
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  page().start_apply_Click();
  platform::sim::setCallLogging(false);
  std::vector<std::string> sets;
  for (const auto& line : platform::sim::callLog())
    if (line.rfind("RegSetValueExA", 0) == 0) sets.push_back(line);
  ASSERT_GE(sets.size(), 10u);
  const char* order[] = {"MinPwdLen",          "LegalNoticeText",    "LegalNoticeCaption",
                         "DisablePwdCaching",  "AlphanumPwds",       "NoDialIn",
                         "DomainLogonMessage", "NoDomainPwdCaching", "MustBeValidated",
                         "HideSharePwds"};
  for (std::size_t i = 0; i < 10; ++i)
    EXPECT_NE(std::string::npos, sets[i].find(order[i])) << sets[i];
  bool opensMixed = false;
  for (const auto& line : platform::sim::callLog())
    if (line.find("Software\\Microsoft\\Windows\\CurrentVersion\\Policies") != std::string::npos &&
        line.rfind("RegCreateKeyA", 0) == 0)
      opensMixed = true;
  EXPECT_FALSE(opensMixed);
}

TEST_F(SecurityPage, ClearingTheNoticeDeletesCaptionThenText) {
  platform::sim::storeRawValue(kLocalMachine, W, "LegalNoticeCaption", platform::kRegSz,
                               bytes(std::string("Notice\0", 7)));
  platform::sim::storeRawValue(kLocalMachine, W, "LegalNoticeText", platform::kRegSz,
                               bytes(std::string("Be good\0", 8)));
  start();
  EXPECT_EQ(1, box(1).value());
  EXPECT_EQ("Notice", page().Text18->text());
  EXPECT_EQ("Be good", page().Text17->text());
  onPage();
  box(1).userClick();
  EXPECT_FALSE(page().Text17->enabled());
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  apply();
  platform::sim::setCallLogging(false);
  std::vector<std::string> deletes;
  for (const auto& line : platform::sim::callLog())
    if (line.rfind("RegDeleteValueA", 0) == 0) deletes.push_back(line);
  ASSERT_EQ(3u, deletes.size());
  EXPECT_NE(std::string::npos, deletes[0].find("MinPwdLen")) << deletes[0];
  EXPECT_NE(std::string::npos, deletes[1].find("LegalNoticeCaption")) << deletes[1];
  EXPECT_NE(std::string::npos, deletes[2].find("LegalNoticeText")) << deletes[2];
  EXPECT_EQ("<missing>", sz(W, "LegalNoticeCaption"));
  EXPECT_EQ("<missing>", sz(W, "LegalNoticeText"));
}

TEST_F(SecurityPage, ACaptionWithoutItsTextShowsNotFoundAndWritesIt) {
  platform::sim::storeRawValue(kLocalMachine, W, "LegalNoticeCaption", platform::kRegSz,
                               bytes(std::string("Warning\0", 8)));
  start();
  EXPECT_EQ(1, box(1).value());
  EXPECT_EQ("Warning", page().Text18->text());
  EXPECT_EQ("Not Found", page().Text17->text());
  onPage();
  box(0).userClick();
  apply();
  EXPECT_EQ(std::string("sz:Not Found\0", 13), sz(W, "LegalNoticeText"));
}

TEST_F(SecurityPage, ATextWithoutItsCaptionIsNotReadAndTheNextApplyDeletesIt) {
  platform::sim::storeRawValue(kLocalMachine, W, "LegalNoticeText", platform::kRegSz,
                               bytes(std::string("Orphan\0", 7)));
  start();
  EXPECT_EQ(0, box(1).value());
  EXPECT_EQ("Sample Legal Notice Dialog Box Text\r\n", page().Text17->text());
  onPage();
  box(0).userClick();
  apply();
  EXPECT_EQ("<missing>", sz(W, "LegalNoticeText"));
}

TEST_F(SecurityPage, ANoDialInStoredAsTextLeavesTheBoxAsItStands) {
  platform::sim::storeRawValue(kLocalMachine, P1, "NoDialIn", platform::kRegSz,
                               bytes(std::string("1\0", 2)));
  start();
  EXPECT_EQ("1", sysaccess::GetRegValue(sysaccess::HKLM, P1, "NoDialIn"));
  EXPECT_EQ(0, box(5).value());
  onPage();
  box(5).userClick();
  button("start_refresh").userClick();
  EXPECT_EQ(1, box(5).value());
  EXPECT_FALSE(button("start_apply").enabled());
}

TEST_F(SecurityPage, NumberRowsFollowTheirThreeDigitTextsAndTheCachingRowIsInverted) {
  platform::sim::storeRawValue(kLocalMachine, P1, "HideSharePwds", platform::kRegDword,
                               bytes(dword(1)));
  platform::sim::storeRawValue(kLocalMachine, N, "NoDomainPwdCaching", platform::kRegDword,
                               bytes(dword(0)));
  platform::sim::storeRawValue(kLocalMachine, N, "MustBeValidated", platform::kRegDword,
                               bytes(dword(2)));
  start();
  EXPECT_EQ(1, box(8).value());
  EXPECT_EQ(1, box(9).value());
  EXPECT_EQ(0, box(7).value()); // "002" fits no branch
}

TEST_F(SecurityPage, TextRowsStoredAsNumbersShowClear) {
  platform::sim::storeRawValue(kLocalMachine, P1, "DisablePwdCaching", platform::kRegDword,
                               bytes(dword(1)));
  platform::sim::storeRawValue(kLocalMachine, P1, "AlphanumPwds", platform::kRegSz,
                               bytes(std::string("1\0", 2)));
  start();
  EXPECT_EQ(0, box(0).value());
  EXPECT_EQ(1, box(3).value());
}

TEST_F(SecurityPage, ABinaryMinPwdLenShowsItsHexTextInFull) {
  platform::sim::storeRawValue(kLocalMachine, P1, "MinPwdLen", platform::kRegBinary,
                               {0x06, 0x00, 0x00, 0x00});
  start();
  EXPECT_EQ(1, box(2).value());
  EXPECT_EQ("06000000", page().Text11->text());
}

TEST_F(SecurityPage, TheKeyFilterAllowsTwoDigitsAndBackspace) {
  start();
  onPage();
  box(2).userClick();
  EXPECT_TRUE(page().Text11->hasFocus());
  page().Text11->userType(std::string(1, '\b'));
  EXPECT_EQ("", page().Text11->text());
  page().Text11->userType("1a2");
  EXPECT_EQ("12", page().Text11->text());
  page().Text11->userType("3");
  EXPECT_EQ("12", page().Text11->text());
  page().Text11->userType(std::string(1, '\b'));
  EXPECT_EQ("1", page().Text11->text());
  page().Text11->userType("x");
  EXPECT_EQ("1", page().Text11->text());
  // Pasted text isn't filtered.
  page().Text11->userSetText("123abc");
  EXPECT_EQ("123abc", page().Text11->text());
}

TEST_F(SecurityPage, AnEmptiedLengthIsWrittenEmptyAndReadBackTicked) {
  start();
  onPage();
  box(2).userClick();
  page().Text11->userType(std::string(1, '\b'));
  EXPECT_TRUE(button("start_apply").enabled());
  apply();
  EXPECT_EQ(std::string("sz:\0", 4), sz(P1, "MinPwdLen"));
  EXPECT_EQ(1, box(2).value());
  EXPECT_EQ("", page().Text11->text());
}

TEST_F(SecurityPage, EditingTheNoticeArmsNothing) {
  start();
  onPage();
  box(1).userClick();
  box(2).userClick();
  apply();
  EXPECT_FALSE(button("start_apply").enabled());
  page().Text17->userSetText("Changed");
  page().Text18->userSetText("Changed too");
  EXPECT_FALSE(button("start_apply").enabled());
  page().Text11->userSetText("9");
  EXPECT_TRUE(button("start_apply").enabled());
}

TEST_F(SecurityPage, RefreshDropsAPendingChange) {
  start();
  onPage();
  box(0).userClick();
  box(2).userClick();
  box(6).userClick();
  EXPECT_TRUE(button("start_apply").enabled());
  button("start_refresh").userClick();
  EXPECT_EQ(0, box(0).value());
  EXPECT_EQ(0, box(2).value());
  // A missing number value fits no branch: that box keeps its tick.
  EXPECT_EQ(1, box(6).value());
  EXPECT_FALSE(page().Text11->enabled());
  EXPECT_FALSE(button("start_apply").enabled());
}

TEST_F(SecurityPage, TheFirstReadAtLoadMovesNoFocus) {
  platform::sim::storeRawValue(kLocalMachine, P1, "MinPwdLen", platform::kRegSz,
                               bytes(std::string("6\0", 2)));
  platform::sim::storeRawValue(kLocalMachine, W, "LegalNoticeCaption", platform::kRegSz,
                               bytes(std::string("Hi\0", 3)));
  start();
  EXPECT_EQ(1, box(2).value());
  EXPECT_EQ("6", page().Text11->text());
  EXPECT_TRUE(page().Text11->enabled());
  EXPECT_FALSE(page().Text11->hasFocus());
  EXPECT_FALSE(page().Text18->hasFocus());
  EXPECT_EQ(5, program_->fmain.net_sec_ready);
  onPage();
  box(1).userClick();
  box(1).userClick();
  EXPECT_TRUE(page().Text18->hasFocus());
}

} // namespace
