#include "pages/connection/internet_connection.h"

#include "pages/connection/rwin.h"
#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/value.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "sysaccess/system_helpers.h"

#include <array>

namespace pages {

using namespace runtime;
using sysaccess::HKLM;
using sysaccess::kNotFound;
using sysaccess::kRegSz;

namespace {

using Controls = InternetConnectionControls;

constexpr const char* kNetTrans = "System\\CurrentControlSet\\Services\\Class\\NetTrans\\000";
constexpr const char* kMstcp = "System\\CurrentControlSet\\Services\\VxD\\MSTCP";
constexpr const char* kModem = "System\\CurrentControlSet\\Services\\Class\\Modem\\0000";

// system.ini is read with one spelling of the section and written with
// another; the profile calls match sections without regard to case.
constexpr const char* kComSectionRead = "386Enh";
constexpr const char* kComSectionWrite = "386enh";

// Reader defaults. They stand the wrong way round (the MSS default is the
// greater), as the program has always had them.
constexpr const char* kMtuDefault = "536";
constexpr const char* kMssDefault = "576";
constexpr const char* kRwinDefault = "4";

// The fixed MTU options: the MTU each writes and the segment size (MTU - 40)
// each gives mss_value on a click.
struct MtuRow {
  OptionButton* Controls::*option;
  const char* mtu;
  std::int16_t mss;
};
constexpr std::array<MtuRow, 4> kMtuRows{{
    {&Controls::mtu552, "552", 512},
    {&Controls::mtu576, "576", 536},
    {&Controls::mtu1002, "1002", 962},
    {&Controls::mtu1472, "1472", 1432},
}};
// Apply tests the options in this order.
constexpr std::array<int, 4> kApplyOrder{1, 0, 2, 3};

// The time to live of each TTL option, in the order both the reader and Apply
// test them.
struct TtlRow {
  int index;
  const char* ttl;
};
constexpr std::array<TtlRow, 4> kTtlRows{{{3, "128"}, {2, "64"}, {1, "32"}, {0, "0"}}};

// The two COM ports: the list and the value name of each.
struct ComRow {
  ComboBox* Controls::*list;
  const char* key;
};
constexpr std::array<ComRow, 2> kComRows{
    {{&Controls::com1, "COM1Buffer"}, {&Controls::com2, "COM2Buffer"}}};

// A box's value 1 and 0 as the registry holds them ("1", "0").
const char* asFlag(int value) { return value == 1 ? "1" : "0"; }

} // namespace

InternetConnection::InternetConnection(PageHost& host)
    : InternetConnectionControls(host), Slider_rwin_(host.mainForm(), "Slider_rwin_", Frame2,
                                                     {120, 570, 3615, 645}, {.display_status = 2}),
      host_(host) {
  for (const MtuRow& row : kMtuRows) {
    OptionButton* option = this->*row.option;
    const bool reselect = row.option == &Controls::mtu576; // only 576 sets itself again
    option->onClick = [this, option, mss = row.mss, reselect] {
      fixedMtu_Click(option, mss, reselect);
    };
  }
  mtucustom->onClick = [this] { mtucustom_Click(); };
  other_in->onChange = [this] { other_in_Change(); };
  other_in->onKeyUp = [this](int keyCode, int) { other_in_KeyUp(keyCode); };
  Slider_rwin_.onChange = [this] { Slider_rwin__Change(); };
  Option1->onClick = [this] { Option1_Click(); };
  Option3.onClick = [this](int index) {
    armApply();
    Option3(index).setValue(true);
  };
  for (ComboBox* list : {com1, com2})
    list->onClick = [this] { armApply(); };
  modemlogfile->onChange = [this] { armApply(); };
  Check15->onClick = [this] { armApply(); };
  Check16->onClick = [this] { armApply(); };
  Check6->onClick = [this] { Check6_Click(); };

  host.buttons().ref_mtu->onClick = [this] { ref_mtu_Click(); };
  host.buttons().ApplyM->onClick = [this] { ApplyM_Click(); };
}

std::string InternetConnection::adapterKey() const { return kNetTrans + net_adapter; }

std::string InternetConnection::systemIni() const {
  return host_.windowsDirectory() + "\\system.ini";
}

void InternetConnection::armApply() { host_.buttons().ApplyM->setEnabled(true); }

void InternetConnection::setMtuOption(int option) {
  Value& mtu_option = host_.fields().mtu_option;
  mtu_option = static_cast<std::int16_t>(option);
  if (toInteger(mtu_option) == 1) host_.buttons().ApplyM->setEnabled(false);
  if (toInteger(mtu_option) == 2) host_.buttons().ApplyM->setEnabled(true);
}

void InternetConnection::rwin_refresh() {
  Text8->setText(generalForm(resultedRwin(Slider_rwin_.min(), host_.fields().mss_value)));
}

// ---- Reader -----------------------------------------------------------------

void InternetConnection::ref_connection() {
  // 1. COM buffers; a size that isn't in the list is refused by the list and
  //    ends the reader here.
  for (const ComRow& row : kComRows) {
    const std::string size = sysaccess::GetFromINI(kComSectionRead, row.key, systemIni());
    if (!size.empty())
      (this->*row.list)->setText(size);
    else
      (this->*row.list)->setListIndex(4);
  }

  // 2. The first modem.
  modeminfo(1).setCaption(sysaccess::GetRegValue(HKLM, kModem, "ProviderName") + ", " +
                          sysaccess::GetRegValue(HKLM, kModem, "Model") + ", " + "Attached to " +
                          sysaccess::GetRegValue(HKLM, kModem, "Attachedto"));

  // 3. Modem logging: on only for the one byte 01.
  if (sysaccess::GetRegValue(HKLM, kModem, "Logging") == "01") {
    Check6->setValue(1);
    modemlogfile->setText(sysaccess::GetRegValue(HKLM, kModem, "LoggingPath"));
    modemlogfile->setEnabled(true);
  } else {
    Check6->setValue(0);
    modemlogfile->setEnabled(false);
  }

  // 4. The adapter: the highest of NetTrans\0000 to \0009 that has a MaxMTU.
  //    A scan that finds none keeps the earlier digit.
  for (int i = 0; i <= 9; ++i) {
    const std::string candidate = kNetTrans + std::to_string(i);
    if (sysaccess::GetRegValue(HKLM, candidate, "MaxMTU") != kNotFound)
      net_adapter = std::to_string(i);
  }

  // 5. and 6. MTU and MSS, with their defaults.
  const std::string mtu = sysaccess::GetRegValue(HKLM, adapterKey(), "MaxMTU");
  mtusetting->setCaption(mtu == kNotFound ? kMtuDefault : mtu);
  const std::string mss = sysaccess::GetRegValue(HKLM, adapterKey(), "MaxMSS");
  msssetting->setCaption(mss == kNotFound ? kMssDefault : mss);
  host_.fields().mss_value = toInteger(msssetting->caption());
  mtu_value = mtusetting->caption();

  // 7. The receive window.
  const std::string window = sysaccess::GetRegValue(HKLM, kMstcp, "DefaultRcvWindow");
  Label2->setCaption(window == kNotFound ? kRwinDefault : window);

  // 8. Any text but "1" and "0" leaves a box as it stands.
  const std::string blackHole = sysaccess::GetRegValue(HKLM, kMstcp, "PMTUBlackHoleDetect");
  if (blackHole == "1") Check15->setValue(1);
  if (blackHole == "0") Check15->setValue(0);
  const std::string discovery = sysaccess::GetRegValue(HKLM, kMstcp, "PMTUDiscovery");
  if (discovery == "0") Check16->setValue(0);
  if (discovery == "1") Check16->setValue(1);

  // 9. Any other time to live leaves the options as they stand.
  const std::string ttl = sysaccess::GetRegValue(HKLM, kMstcp, "DefaultTTL");
  for (const TtlRow& row : kTtlRows)
    if (ttl == row.ttl) Option3(row.index).setValue(true);

  // 10.
  setMtuOption(1);
}

void InternetConnection::mtu_opt() {
  // 1. No default here: an absent MTU reads "Not Found", which step 6 can't
  //    compare with a number.
  mtusetting->setCaption(sysaccess::GetRegValue(HKLM, adapterKey(), "MaxMTU"));
  // 2.
  const std::string mss = sysaccess::GetRegValue(HKLM, adapterKey(), "MaxMSS");
  msssetting->setCaption(mss == kNotFound ? kMssDefault : mss);
  // 3. A window above 32767 overflows here, before the slider moves.
  host_.fields().mss_value = toInteger(msssetting->caption());
  mtu_value = mtusetting->caption();
  rwin_value = toInteger(Label2->caption());
  // 4. A zero segment size fails here.
  rwin_ratio = divide(rwin_value, host_.fields().mss_value);
  // 5. Setting min moves the knob and raises no Change.
  Slider_rwin_.setMin(sliderMinFor(rwin_ratio));
  // 6. The comparison is numeric ("0552" is 552). Selecting an option runs its
  //    click handler, which arms Apply; step 7 disarms it again.
  const double mtu = textToNumber(mtu_value);
  bool matched = false;
  for (const MtuRow& row : kMtuRows) {
    if (mtu == textToNumber(row.mtu)) {
      (this->*row.option)->setValue(true);
      matched = true;
      break;
    }
  }
  if (!matched) {
    mtucustom->setValue(true);
    other_in->setEnabled(true);
    other_in->setText(mtu_value);
  }
  // 7.
  setMtuOption(1);
}

void InternetConnection::other_in_at_load() { other_in->setText(mtu_value); }

void InternetConnection::ref_mtu_Click() {
  ref_connection();
  mtu_opt();
  rwin_refresh();
}

// ---- Apply ------------------------------------------------------------------

void InternetConnection::ApplyM_Click() {
  const std::string ini = systemIni();
  // 1. and 2. All set sizes first, then the ones not set, which leave their key
  //    with nothing behind the equals sign.
  for (const ComRow& row : kComRows) {
    const std::string size = (this->*row.list)->text();
    if (size != kComBufferNotSet)
      platform::WritePrivateProfileStringA(kComSectionWrite, row.key, size.c_str(), ini.c_str());
  }
  for (const ComRow& row : kComRows) {
    if ((this->*row.list)->text() == kComBufferNotSet)
      platform::WritePrivateProfileStringA(kComSectionWrite, row.key, "", ini.c_str());
  }

  // 3. The MTU of the selected option.
  std::string mtuText;
  for (const int i : kApplyOrder) {
    if ((this->*kMtuRows[i].option)->value()) {
      mtuText = kMtuRows[i].mtu;
      break;
    }
  }
  if (mtucustom->value()) mtuText = other_in->text();

  // 4. A custom text that is empty or no number fails here.
  if (textToNumber(mtuText) > 0)
    sysaccess::SetRegValue(HKLM, adapterKey(), "MaxMTU", kRegSz, mtuText);

  // 5. The segment size follows from the MTU.
  std::int16_t& mss_value = host_.fields().mss_value;
  mss_value = mtuLessHeaders(mtuText);
  mss_text = toText(mss_value);
  if (mss_value > 0) {
    sysaccess::SetRegValue(HKLM, adapterKey(), "MaxMSS", kRegSz, mss_text);
    sysaccess::SetRegValue(HKLM, kMstcp, "DefaultMSS", kRegSz, mss_text);
  }

  // 6. The window as a whole number: a fraction in Text8 is rounded away, a
  //    window above 32767 fails here. It goes to the registry as a number,
  //    so the text stored is its digits.
  std::int16_t window = 0;
  if (Option1->value()) window = toInteger(Text9->text());
  if (Option2->value()) window = toInteger(Text8->text());
  sysaccess::SetRegValue(HKLM, kMstcp, "DefaultRcvWindow", kRegSz, window);

  // 7. and 8.
  sysaccess::SetRegValue(HKLM, kMstcp, "PMTUBlackHoleDetect", kRegSz,
                         std::string(asFlag(Check15->value())));
  sysaccess::SetRegValue(HKLM, kMstcp, "PMTUDiscovery", kRegSz,
                         std::string(asFlag(Check16->value())));

  // 9. The time to live is read first, and the reading is not used.
  sysaccess::GetRegValue(HKLM, kMstcp, "DefaultTTL");
  for (const TtlRow& row : kTtlRows) {
    if (Option3(row.index).value()) {
      sysaccess::SetRegValue(HKLM, kMstcp, "DefaultTTL", kRegSz, std::string(row.ttl));
      break;
    }
  }

  // 10. Modem logging: the path, then the switch as one binary byte.
  if (Check6->value() == 1) {
    sysaccess::SetRegValue(HKLM, kModem, "LoggingPath", kRegSz, modemlogfile->text());
    sysaccess::SetRegValueEx(HKLM, kModem, "", "Logging", std::string(1, '\x01'),
                             sysaccess::kRegBinary);
  }
  if (Check6->value() == 0) {
    sysaccess::SetRegValue(HKLM, kModem, "LoggingPath", kRegSz, std::string());
    sysaccess::SetRegValueEx(HKLM, kModem, "", "Logging", std::string(1, '\0'),
                             sysaccess::kRegBinary);
  }

  // 11.
  ref_connection();
  mtu_opt();
}

// ---- Handlers ---------------------------------------------------------------

void InternetConnection::fixedMtu_Click(OptionButton* clicked, std::int16_t mss, bool reselect) {
  other_in->setEnabled(false);
  for (OptionButton* option : {mtu552, mtu576, mtu1002, mtu1472, mtucustom})
    if (option != clicked) option->setValue(false);
  if (reselect) clicked->setValue(true);
  setMtuOption(2);
  host_.fields().mss_value = mss;
  rwin_refresh();
}

void InternetConnection::mtucustom_Click() {
  for (const MtuRow& row : kMtuRows)
    (this->*row.option)->setValue(false);
  setMtuOption(2);
  other_in->setEnabled(true);
  // Only the focus call is guarded: the page may not be in front.
  ResumeNext guarded;
  guarded([&] { other_in->setFocus(); });
}

void InternetConnection::other_in_Change() {
  host_.fields().mss_value = mtuLessHeaders(other_in->text());
  rwin_refresh();
}

void InternetConnection::other_in_KeyUp(int keyCode) {
  // Enter only moves on to the Apply button; it applies nothing.
  if (keyCode != kVbKeyReturn) return;
  ResumeNext guarded;
  guarded([&] { host_.buttons().ApplyM->setFocus(); });
}

void InternetConnection::Slider_rwin__Change() {
  setMtuOption(2);
  rwin_refresh();
  Option2->setValue(true);
  Option1->setValue(false);
}

void InternetConnection::Option1_Click() {
  // Going back to Option2 leaves Text9 enabled: Option2 has no handler.
  Option2->setValue(false);
  Text9->setEnabled(true);
  Text9->setFocus();
}

void InternetConnection::Check6_Click() {
  armApply();
  if (Check6->value() == 1) modemlogfile->setEnabled(true);
  if (Check6->value() == 0) {
    modemlogfile->setEnabled(false);
    modemlogfile->setText("");
  }
}

} // namespace pages
