#include "pages/privacy/security_networking.h"

#include "sysaccess/ellreg.h"

#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKLM;
using sysaccess::kNotFound;

namespace {

// The writer spells every key in capitals; the reader uses the mixed form P2
// for NoDialIn and HideSharePwds. The registry doesn't tell the two apart.
constexpr const char* P1 = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Network";
constexpr const char* P2 = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Network";
constexpr const char* W = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon";
constexpr const char* N = "Network\\Logon";

// The two rows stored as text: "1" ticked, "0" clear; only "1" reads as
// ticked, so a REG_DWORD of the same name ("001") shows clear.
struct TextRow {
  int index;
  const char* value;
};
constexpr TextRow kTextRows[] = {{0, "DisablePwdCaching"}, {3, "AlphanumPwds"}};

// The five REG_DWORD rows, in reading order. NoDomainPwdCaching is the one
// inverted row: its box names the feature, its value the prohibition.
struct NumberRow {
  int index;
  const char* value;
  const char* writtenKey;
  const char* readKey;
  const char* ticked; // written when ticked; its three-digit text ticks on reading
  const char* clear;
};
constexpr NumberRow kNumberRows[] = {
    {5, "NoDialIn", P1, P2, "1", "0"},         {6, "DomainLogonMessage", N, N, "1", "0"},
    {7, "MustBeValidated", N, N, "1", "0"},    {8, "HideSharePwds", P1, P2, "1", "0"},
    {9, "NoDomainPwdCaching", N, N, "0", "1"},
};
// Apply writes them in this order.
constexpr int kWritingOrder[] = {5, 6, 9, 7, 8};

const NumberRow& numberRow(int index) {
  for (const NumberRow& row : kNumberRows)
    if (row.index == index) return row;
  raiseError(kSubscriptOutOfRange);
}

// "1" reads "001" from a REG_DWORD.
std::string dwordText(const char* digit) { return std::string("00") + digit; }

struct Row {
  int index;
  const char* caption;
  int top;
};
// The boxes from top to bottom, below the page title band; the legal notice
// boxes stand below the last.
constexpr Row kLayout[] = {
    {0, "Disable Password Caching for Windows Clients", 780},
    {3, "Require Alphanumeric Passwords ", 1050},
    {2, "Set Minimum Acceptable Password Length", 1320},
    {9, "Domain Password Caching", 1590},
    {8, "Hide Share Passwords with Asterisks", 1860},
    {5, "Disable Dial-In Access", 2130},
    {6, "Display Domain Logon Confirmation", 2400},
    {7, "Require Validation by Network for Windows Access", 2670},
    {1, "Display Legal Notice Dialog Box Before Logon", 2940},
};
constexpr int kBoxLeft = 240, kBoxWidth = 5880, kBoxHeight = 255;

} // namespace

SecurityNetworking::SecurityNetworking(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(9);
  auto& heading = form.add<Label>("Label15", -1, page, {240, 480, 4200, 255});
  heading.setCaption("Security / Networking");
  heading.setFont({"MS Sans Serif", 8, true});
  for (const Row& row : kLayout)
    Check26.add(form, row.index, page, {kBoxLeft, row.top, kBoxWidth, kBoxHeight})
        .setCaption(row.caption);
  // Text11 stands to the right of its caption's box.
  Check26(2).move(kBoxLeft, 1320, 3900, kBoxHeight);
  Text11 = &form.add<TextBox>("Text11", -1, page, {4200, 1290, 495, 315});
  Text11->setText("8");
  Text11->setEnabled(false);
  Text18 = &form.add<TextBox>("Text18", -1, page, {480, 3270, 5640, 315});
  Text18->setText("Sample Legal Notice Dialog Box Title");
  Text18->setEnabled(false);
  Text17 = &form.add<TextBox>("Text17", -1, page, {480, 3630, 5640, 1620});
  Text17->setMultiLine(true);
  Text17->setText("Sample Legal Notice Dialog Box Text\r\n");
  Text17->setEnabled(false);

  Check26.onClick = [this](int index) { Check26_Click(index); };
  Text11->onChange = [&host] { host.buttons().start_apply->setEnabled(true); };
  // At most two digits: Backspace passes; with two characters in the box
  // nothing else does; otherwise digits only. Pasted text isn't filtered.
  Text11->onKeyPress = [this](int& key) {
    if (key == 8) return;
    if (Text11->text().size() > 1) {
      key = 0;
      return;
    }
    if (std::string("0123456789").find(static_cast<char>(key)) == std::string::npos) key = 0;
  };
  // Text17 and Text18 have no change handler: editing the notice arms nothing.

  host.buttons().start_refresh->onClick = [this] { ref_net_sec(); };
  host.buttons().start_apply->onClick = [this] { start_apply_Click(); };
}

void SecurityNetworking::Check26_Click(int index) {
  // The focus moves only once the first read at load is over.
  const bool ready = host_.fields().net_sec_ready == 5;
  if (index == 2 && Check26(2).value() == 1) {
    Text11->setEnabled(true);
    if (ready) Text11->setFocus();
  }
  if (index == 2 && Check26(2).value() == 0) Text11->setEnabled(false);
  if (index == 1 && Check26(1).value() == 1) {
    Text18->setEnabled(true);
    Text17->setEnabled(true);
    if (ready) Text18->setFocus();
  }
  if (index == 1 && Check26(1).value() == 0) {
    Text18->setEnabled(false);
    Text17->setEnabled(false);
  }
  host_.buttons().start_apply->setEnabled(true);
}

void SecurityNetworking::ref_net_sec() {
  const auto read = [this](const char* key, const char* value) {
    return host_.throughHidden(sysaccess::GetRegValue(HKLM, key, value));
  };

  // Any readable MinPwdLen ticks the box and shows, whatever its type; a
  // missing one leaves Text11 as it is.
  const std::string length = read(P1, "MinPwdLen");
  if (length != kNotFound) {
    Check26(2).setValue(1);
    Text11->setText(length);
  } else {
    Check26(2).setValue(0);
  }

  // The notice's text is read only when its caption is there, and shows
  // "Not Found" when it is missing.
  const std::string caption = read(W, "LegalNoticeCaption");
  if (caption == kNotFound) {
    Check26(1).setValue(0);
  } else {
    Check26(1).setValue(1);
    Text18->setText(caption);
    Text17->setText(read(W, "LegalNoticeText"));
  }

  for (const TextRow& row : kTextRows) {
    const std::string text = read(P1, row.value);
    if (text == "1") Check26(row.index).setValue(1);
    if (text != "1") Check26(row.index).setValue(0);
  }

  // A text other than the two three-digit forms leaves the box as it is.
  for (const NumberRow& row : kNumberRows) {
    const std::string text = read(row.readKey, row.value);
    if (text == dwordText(row.ticked)) Check26(row.index).setValue(1);
    if (text == dwordText(row.clear)) Check26(row.index).setValue(0);
  }

  host_.buttons().start_apply->setEnabled(false);
  host_.fields().net_sec_ready = 5;
}

void SecurityNetworking::start_apply_Click() {
  using sysaccess::DelRegValue;
  using sysaccess::kRegDword;
  using sysaccess::kRegSz;
  using sysaccess::SetRegValue;

  if (Check26(2).value() == 1) SetRegValue(HKLM, P1, "MinPwdLen", kRegSz, Text11->text());
  if (Check26(2).value() == 0) DelRegValue(HKLM, P1, "MinPwdLen");

  if (Check26(1).value() == 1) {
    SetRegValue(HKLM, W, "LegalNoticeText", kRegSz, Text17->text());
    SetRegValue(HKLM, W, "LegalNoticeCaption", kRegSz, Text18->text());
  }
  if (Check26(1).value() == 0) {
    DelRegValue(HKLM, W, "LegalNoticeCaption");
    DelRegValue(HKLM, W, "LegalNoticeText");
  }

  for (const TextRow& row : kTextRows) {
    if (Check26(row.index).value() == 1) SetRegValue(HKLM, P1, row.value, kRegSz, std::string("1"));
    if (Check26(row.index).value() == 0) SetRegValue(HKLM, P1, row.value, kRegSz, std::string("0"));
  }

  for (const int index : kWritingOrder) {
    const NumberRow& row = numberRow(index);
    if (Check26(index).value() == 1)
      SetRegValue(HKLM, row.writtenKey, row.value, kRegDword, std::string(row.ticked));
    if (Check26(index).value() == 0)
      SetRegValue(HKLM, row.writtenKey, row.value, kRegDword, std::string(row.clear));
  }

  ref_net_sec();
}

} // namespace pages
