// The Internet Connection page on the simulated Windows 98: the reader, the
// MTU options and the receive window arithmetic, Apply in its order with the
// exact stored types and bytes, and every stated failure.
#include "controls/veld_slider_logic.h"
#include "frame/page_set.h"
#include "frame/program.h"
#include "pages/connection/rwin.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"
#include "tests/host/sim_fixture.h"

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace runtime;
using sysaccess::HKLM;

namespace {

const std::string kNetTrans = "System\\CurrentControlSet\\Services\\Class\\NetTrans\\";
const std::string kAdapter0 = kNetTrans + "0000";
const std::string kMstcp = "System\\CurrentControlSet\\Services\\VxD\\MSTCP";
const std::string kModem = "System\\CurrentControlSet\\Services\\Class\\Modem\\0000";
const std::string kSystemIni = "C:\\WINDOWS\\system.ini";

// A stored value: its type and its bytes exactly.
struct Stored {
  platform::Dword type = 0;
  std::string bytes;
  bool operator==(const Stored&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Stored& value) {
  out << "type " << value.type << " \"";
  for (const char c : value.bytes)
    out << (c == '\0' ? std::string("\\0") : std::string(1, c));
  return out << '"';
}
Stored sz(const std::string& text) { return {platform::kRegSz, text + '\0'}; }
const Stored kAbsent{0, "<absent>"};

class InternetPage : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    Application::instance().onEnd = [this] { ended_ = true; };
    platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
  }

  // The machine as Windows 98 leaves it after setting up a dial-up
  // connection with the MTU tuned to 576.
  void dialUpMachine() {
    setSz(kModem, "ProviderName", "Microsoft");
    setSz(kModem, "Model", "Standard 56000 bps V90 Modem");
    setSz(kModem, "AttachedTo", "COM2");
    platform::sim::storeRawValue(platform::kLocalMachine, kModem, "Logging", platform::kRegBinary,
                                 {0});
    setSz(kModem, "LoggingPath", "C:\\WINDOWS\\ModemLog.txt");
    setSz(kAdapter0, "DriverDesc", "TCP/IP");
    setSz(kAdapter0, "MaxMTU", "576");
    setSz(kAdapter0, "MaxMSS", "536");
    setSz(kMstcp, "DefaultRcvWindow", "4288");
    setSz(kMstcp, "DefaultMSS", "536");
    setSz(kMstcp, "DefaultTTL", "128");
    setSz(kMstcp, "PMTUDiscovery", "1");
    setSz(kMstcp, "PMTUBlackHoleDetect", "0");
    writeFile(kSystemIni, "[386Enh]\r\nCOM2Buffer=1024\r\n[vcache]\r\nMinFileCache=2048\r\n");
  }

  static void setSz(const std::string& key, const std::string& name, const std::string& text) {
    std::vector<std::uint8_t> bytes(text.begin(), text.end());
    bytes.push_back(0);
    platform::sim::storeRawValue(platform::kLocalMachine, key, name, platform::kRegSz, bytes);
  }
  static void remove(const std::string& key, const std::string& name) {
    sysaccess::DelRegValue(HKLM, key, name);
  }
  static Stored stored(const std::string& key, const std::string& name) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(platform::kLocalMachine, key.c_str(), &handle) != 0) return kAbsent;
    std::uint8_t data[256];
    platform::Dword size = sizeof data, type = 0;
    const auto rc = platform::RegQueryValueExA(handle, name.c_str(), &type, data, &size);
    platform::RegCloseKey(handle);
    if (rc != 0) return kAbsent;
    return {type, std::string(reinterpret_cast<char*>(data), size)};
  }
  void writeFile(const std::string& windowsPath, const std::string& content) {
    std::ofstream(platform::sim::hostPath(windowsPath), std::ios::binary) << content;
  }
  std::string readFile(const std::string& windowsPath) {
    std::ifstream in(platform::sim::hostPath(windowsPath), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }
  std::vector<std::string> record(const std::function<void()>& action) {
    platform::sim::clearCallLog();
    platform::sim::setCallLogging(true);
    action();
    platform::sim::setCallLogging(false);
    return platform::sim::callLog();
  }

  // Start-up replaces the missing scanreg.ini and so runs its readers in
  // "resume next" mode, as on a machine this program hasn't marked yet.
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  pages::InternetConnection& page() { return program_->fmain.pages->internet; }
  PictureBox& ApplyM() { return *program_->fmain.pageButtons.ApplyM; }
  PictureBox& ref_mtu() { return *program_->fmain.pageButtons.ref_mtu; }
  std::int16_t mss_value() { return program_->fmain.mss_value; }
  void toPage() { program_->fmain.MainTab->userSelectTab(6); }
  // The user drags the slider's knob with the left button to where `min`
  // stands and lets it go there: moves over the knob, ticks of its timer, the
  // release.
  void slideTo(std::int16_t min) {
    controls::VeldSlider& slider = page().Slider_rwin_;
    Image& knob = slider.knob(0);
    const double stripX =
        min * controls::kTwipsPerStep / controls::kUnitsPerStep + controls::kTrackLeft;
    const auto inKnob = [&] { return static_cast<float>(stripX - knob.left()); };
    knob.userMouseDown(kLeftButton, 0, 10, 10);
    for (int i = 0; i < 4; ++i) {
      knob.userMouseMove(kLeftButton, 0, inKnob(), 10);
      slider.Timer1().tick();
    }
    knob.userMouseUp(kLeftButton, 0, inKnob(), 10);
  }
  void apply() { ApplyM().userClick(); }
  std::string failureBox() {
    const auto& boxes = platform::sim::shownMessageBoxes();
    return boxes.empty() ? "<none>" : boxes.back().text;
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};

// ---- Start-up and the reader --------------------------------------------------

TEST_F(InternetPage, ControlsStandAtTheirDesignPlaces) {
  start();
  const Form& form = program_->fmain.form;
  const struct {
    const char* name;
    const char* container;
    Bounds at;
  } rows[] = {
      {"modeminfo(0)", "Frame4(6)", {270, 510, 1365, 225}},
      {"modeminfo(1)", "Frame4(6)", {1620, 510, 4635, 405}},
      {"Frame1", "Frame4(6)", {120, 990, 3255, 2205}},
      {"cMTU(0)", "Frame1", {120, 330, 2295, 195}},
      {"mtusetting", "Frame1", {2490, 330, 645, 195}},
      {"cMTU(1)", "Frame1", {120, 600, 2295, 195}},
      {"msssetting", "Frame1", {2490, 600, 645, 195}},
      {"mtu552", "Frame1", {180, 900, 1935, 195}},
      {"mtu576", "Frame1", {180, 1140, 1575, 195}},
      {"mtu1002", "Frame1", {180, 1380, 2175, 195}},
      {"mtu1472", "Frame1", {180, 1620, 2205, 195}},
      {"mtucustom", "Frame1", {180, 1830, 2055, 315}},
      {"other_in", "Frame1", {1590, 1830, 705, 285}},
      {"Label6", "Frame4(6)", {3570, 990, 2565, 255}},
      {"Option3(0)", "Frame4(6)", {3540, 1260, 1215, 195}},
      {"Option3(3)", "Frame4(6)", {3540, 1890, 1215, 195}},
      {"com1", "Frame4(6)", {3540, 2340, 1485, 315}},
      {"com2", "Frame4(6)", {3540, 2910, 1485, 315}},
      {"Frame2", "Frame4(6)", {120, 3270, 6165, 1335}},
      {"cMTU(3)", "Frame2", {120, 300, 2295, 195}},
      {"Label2", "Frame2", {2490, 300, 1335, 195}},
      {"Slider_rwin_", "Frame2", {120, 570, 3615, 645}},
      {"Label3", "Frame2", {3900, 300, 2175, 195}},
      {"Option2", "Frame2", {3870, 630, 1395, 195}},
      {"Text8", "Frame2", {5310, 570, 735, 285}},
      {"Option1", "Frame2", {3870, 960, 1395, 195}},
      {"Text9", "Frame2", {5310, 930, 735, 285}},
      {"Check15", "Frame4(6)", {120, 4680, 2445, 195}},
      {"Check16", "Frame4(6)", {120, 4920, 1635, 195}},
      {"Check6", "Frame4(6)", {120, 5160, 1635, 195}},
      {"modemlogfile", "Frame4(6)", {1860, 5130, 4425, 285}},
  };
  for (const auto& row : rows) {
    const Control* control = form.find(row.name);
    ASSERT_NE(nullptr, control) << row.name;
    EXPECT_EQ(row.container, control->container()->designName()) << row.name;
    EXPECT_EQ(row.at.left, control->left()) << row.name;
    EXPECT_EQ(row.at.top, control->top()) << row.name;
    EXPECT_EQ(row.at.width, control->width()) << row.name;
    EXPECT_EQ(row.at.height, control->height()) << row.name;
  }
  EXPECT_EQ(6, form.find("Frame4(6)")->containerTab());
}

TEST_F(InternetPage, CaptionsAndListsStandAsDesigned) {
  start();
  EXPECT_EQ(" 552   (Lowest Normal)", page().mtu552->caption());
  EXPECT_EQ(" 576   (Optimal)", page().mtu576->caption());
  EXPECT_EQ("1002  (Server)", page().mtu1002->caption());
  EXPECT_EQ("1472  (Highest Normal)", page().mtu1472->caption());
  EXPECT_EQ("Custom Setting", page().mtucustom->caption());
  EXPECT_EQ("MTU (Maximum Transmition Unit)", page().Frame1->caption());
  EXPECT_EQ("RWIN (TCP Recieve Window)", page().Frame2->caption());
  EXPECT_EQ("Current MSS Setting (MTU-40)", page().cMTU(1).caption());
  EXPECT_EQ("RWIN = mulpiplier * MSS", page().Label3->caption());
  EXPECT_EQ("IP packet TTL (Time to Live)", page().Label6->caption());
  EXPECT_EQ("Resulted RWIN", page().Option2->caption());
  EXPECT_EQ("MTU Black Hole Detect", page().Check15->caption());
  EXPECT_EQ("Primary Modem:", page().modeminfo(0).caption());
  const char* ttl[] = {"0", "32", "64", "128"};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(ttl[i], page().Option3(i).caption());
  for (ComboBox* list : {page().com1, page().com2}) {
    ASSERT_EQ(5, list->listCount());
    EXPECT_EQ("1024", list->list(0));
    EXPECT_EQ("8192", list->list(3));
    EXPECT_EQ("(not set)", list->list(4));
  }
  EXPECT_EQ(2, page().Slider_rwin_.display_status());
}

TEST_F(InternetPage, StartUpShowsTheDialUpMachine) {
  dialUpMachine();
  start();
  EXPECT_EQ("Microsoft, Standard 56000 bps V90 Modem, Attached to COM2",
            page().modeminfo(1).caption());
  EXPECT_EQ(0, page().Check6->value());
  EXPECT_FALSE(page().modemlogfile->enabled());
  EXPECT_EQ("(not set)", page().com1->text());
  EXPECT_EQ("1024", page().com2->text());
  EXPECT_EQ("576", page().mtusetting->caption());
  EXPECT_EQ("536", page().msssetting->caption());
  EXPECT_EQ("4288", page().Label2->caption());
  EXPECT_TRUE(page().mtu576->value());
  EXPECT_FALSE(page().mtu552->value());
  EXPECT_FALSE(page().other_in->enabled());
  EXPECT_EQ("576", page().other_in->text()); // start-up's late step
  EXPECT_EQ(536, mss_value());
  EXPECT_EQ(4096, page().Slider_rwin_.min()); // multiplier 8
  EXPECT_EQ("RWIN Multiplier = 8", page().Slider_rwin_.Frame1(0).caption());
  EXPECT_EQ("4288", page().Text8->text());
  EXPECT_FALSE(page().Text8->enabled());
  EXPECT_TRUE(page().Option2->value());
  EXPECT_EQ(0, page().Check15->value());
  EXPECT_EQ(1, page().Check16->value());
  EXPECT_TRUE(page().Option3(3).value());
  EXPECT_EQ("0", page().net_adapter);
  EXPECT_FALSE(ApplyM().enabled());
}

TEST_F(InternetPage, WithNoModemEachPartOfTheLineReadsNotFound) {
  start();
  EXPECT_EQ("Not Found, Not Found, Attached to Not Found", page().modeminfo(1).caption());
}

TEST_F(InternetPage, ModemLoggingOnShowsThePathInAnEnabledBox) {
  dialUpMachine();
  platform::sim::storeRawValue(platform::kLocalMachine, kModem, "Logging", platform::kRegBinary,
                               {1});
  start();
  EXPECT_EQ(1, page().Check6->value());
  EXPECT_TRUE(page().modemlogfile->enabled());
  EXPECT_EQ("C:\\WINDOWS\\ModemLog.txt", page().modemlogfile->text());
  EXPECT_FALSE(ApplyM().enabled());
}

TEST_F(InternetPage, ModemLoggingOfAnyOtherLengthOrContentCountsAsOff) {
  dialUpMachine();
  const struct {
    platform::Dword type;
    std::vector<std::uint8_t> bytes;
  } rows[] = {{platform::kRegBinary, {1, 0}},
              {platform::kRegBinary, {2}},
              {platform::kRegBinary, {}},
              {platform::kRegDword, {1, 0, 0, 0}},
              {platform::kRegSz, {'1', 0}}};
  for (const auto& row : rows) {
    platform::sim::storeRawValue(platform::kLocalMachine, kModem, "Logging", row.type, row.bytes);
    start();
    EXPECT_EQ(0, page().Check6->value()) << row.type << " " << row.bytes.size();
    EXPECT_FALSE(page().modemlogfile->enabled());
  }
  // Only the text counts: a string "01" reads as the byte 01 does.
  platform::sim::storeRawValue(platform::kLocalMachine, kModem, "Logging", platform::kRegSz,
                               {'0', '1', 0});
  start();
  EXPECT_EQ(1, page().Check6->value());
}

TEST_F(InternetPage, BlackHoleAndDiscoveryOtherTextsLeaveTheBoxes) {
  dialUpMachine();
  start();
  toPage();
  page().Check15->userClick();
  EXPECT_EQ(1, page().Check15->value());
  setSz(kMstcp, "PMTUBlackHoleDetect", "yes");
  setSz(kMstcp, "PMTUDiscovery", "2");
  ref_mtu().userClick();
  EXPECT_EQ(1, page().Check15->value());
  EXPECT_EQ(1, page().Check16->value());
  EXPECT_FALSE(ApplyM().enabled());
}

// Edge: two adapters, 0001 and 0003, both with MaxMTU: the page shows and
// writes 0003.
TEST_F(InternetPage, TheHighestAdapterWithAMaxMtuWins) {
  dialUpMachine();
  setSz(kNetTrans + "0001", "MaxMTU", "1002");
  setSz(kNetTrans + "0001", "MaxMSS", "962");
  setSz(kNetTrans + "0003", "MaxMTU", "1472");
  setSz(kNetTrans + "0003", "MaxMSS", "1432");
  setSz(kNetTrans + "0004", "MaxMSS", "999"); // MaxMSS alone finds nothing
  setSz(kNetTrans + "0010", "MaxMTU", "552"); // only 0000 to 0009 are tried
  start();
  EXPECT_EQ("3", page().net_adapter);
  EXPECT_EQ("1472", page().mtusetting->caption());
  EXPECT_EQ("1432", page().msssetting->caption());
  EXPECT_TRUE(page().mtu1472->value());
  toPage();
  page().mtu552->userClick();
  apply();
  EXPECT_EQ(sz("552"), stored(kNetTrans + "0003", "MaxMTU"));
  EXPECT_EQ(sz("512"), stored(kNetTrans + "0003", "MaxMSS"));
  EXPECT_EQ(sz("1002"), stored(kNetTrans + "0001", "MaxMTU"));
  EXPECT_EQ(sz("576"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("552"), stored(kNetTrans + "0010", "MaxMTU"));
}

TEST_F(InternetPage, AScanThatFindsNothingKeepsTheEarlierAdapter) {
  dialUpMachine();
  setSz(kNetTrans + "0002", "MaxMTU", "1002");
  start();
  EXPECT_EQ("2", page().net_adapter);
  remove(kNetTrans + "0002", "MaxMTU");
  remove(kAdapter0, "MaxMTU");
  page().ref_connection();
  EXPECT_EQ("2", page().net_adapter);
  EXPECT_EQ("536", page().mtusetting->caption()); // the reader's default
}

// Edge: MaxMTU of "1500": mtucustom selected, other_in enabled and showing
// "1500", the MSS from MaxMSS.
TEST_F(InternetPage, AnMtuOutsideTheOptionsSelectsTheCustomSetting) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMTU", "1500");
  setSz(kAdapter0, "MaxMSS", "1460");
  start();
  EXPECT_TRUE(page().mtucustom->value());
  for (auto* option : {page().mtu552, page().mtu576, page().mtu1002, page().mtu1472})
    EXPECT_FALSE(option->value());
  EXPECT_TRUE(page().other_in->enabled());
  EXPECT_EQ("1500", page().other_in->text());
  EXPECT_EQ("1500", page().mtusetting->caption());
  EXPECT_EQ("1460", page().msssetting->caption());
  EXPECT_EQ(1460, mss_value());
  EXPECT_FALSE(ApplyM().enabled());
}

TEST_F(InternetPage, TheMtuComparisonIsNumeric) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMTU", "0552");
  start();
  EXPECT_TRUE(page().mtu552->value());
  EXPECT_FALSE(page().mtucustom->value());
  EXPECT_EQ("0552", page().mtusetting->caption());
}

// Edge: a change of MTU option changes Text8 at once with the same slider
// position; msssetting and mtusetting change only after Apply.
TEST_F(InternetPage, AnMtuOptionChangesTheWindowAtOnceAndTheCaptionsOnApply) {
  dialUpMachine();
  start();
  toPage();
  const std::int16_t knob = page().Slider_rwin_.min();
  page().mtu1472->userClick();
  EXPECT_EQ(knob, page().Slider_rwin_.min());
  EXPECT_EQ("11456", page().Text8->text()); // 8 x 1432
  EXPECT_EQ(1432, mss_value());
  EXPECT_TRUE(ApplyM().enabled());
  EXPECT_FALSE(page().mtu576->value());
  EXPECT_EQ("576", page().mtusetting->caption());
  EXPECT_EQ("536", page().msssetting->caption());
  apply();
  EXPECT_EQ("1472", page().mtusetting->caption());
  EXPECT_EQ("1432", page().msssetting->caption());
  EXPECT_EQ(sz("11456"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_TRUE(page().mtu1472->value());
  EXPECT_EQ(8 * 512, page().Slider_rwin_.min());
  EXPECT_FALSE(ApplyM().enabled());
}

TEST_F(InternetPage, EachFixedOptionClearsTheOthersAndDisablesTheCustomBox) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMTU", "1500");
  start();
  toPage();
  EXPECT_TRUE(page().other_in->enabled());
  page().mtu576->userClick();
  EXPECT_TRUE(page().mtu576->value());
  EXPECT_FALSE(page().mtucustom->value());
  EXPECT_FALSE(page().other_in->enabled());
  EXPECT_EQ(536, mss_value());
  page().mtu1002->userClick();
  EXPECT_FALSE(page().mtu576->value());
  EXPECT_TRUE(page().mtu1002->value());
  EXPECT_EQ(962, mss_value());
}

TEST_F(InternetPage, TheCustomOptionTakesTheFocusAndWaitsForTheText) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtucustom->userClick();
  EXPECT_TRUE(ApplyM().enabled());
  EXPECT_TRUE(page().other_in->enabled());
  EXPECT_TRUE(page().other_in->hasFocus());
  EXPECT_EQ(536, mss_value()); // unchanged until the text changes
  EXPECT_EQ("4288", page().Text8->text());
  page().other_in->userSetText("1500");
  EXPECT_EQ(1460, mss_value());
  EXPECT_EQ("11680", page().Text8->text());
  // An empty box is an MTU of 0: a negative window.
  page().other_in->userSetText("");
  EXPECT_EQ(-40, mss_value());
  EXPECT_EQ("-320", page().Text8->text());
  EXPECT_FALSE(ended_);
}

TEST_F(InternetPage, TheCustomOptionIgnoresAFocusThatCantBeGiven) {
  dialUpMachine();
  start();
  program_->fmain.form.hide();
  Application::instance().runEvent([&] { page().mtucustom->setValue(true); });
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(page().other_in->enabled());
  EXPECT_TRUE(ApplyM().enabled());
}

TEST_F(InternetPage, EnterInTheCustomBoxMovesOnAndAppliesNothing) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtucustom->userClick();
  page().other_in->userSetText("1500");
  page().other_in->userKeyUp(kVbKeyReturn, 0);
  EXPECT_FALSE(ended_);
  EXPECT_EQ(sz("576"), stored(kAdapter0, "MaxMTU"));
  EXPECT_TRUE(ApplyM().enabled());
}

TEST_F(InternetPage, EnterWhileApplyIsDisabledLeavesTheFocusInTheBox) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMTU", "1500"); // the custom box is enabled, Apply is not
  start();
  toPage();
  program_->fmain.form.show();
  page().other_in->setFocus();
  page().other_in->userSetText("1400");
  ASSERT_FALSE(ApplyM().enabled());
  page().other_in->userKeyUp(kVbKeyReturn, 0);
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(page().other_in->hasFocus());
}

// ---- The receive window ----------------------------------------------------------

// The table of resulting windows: multipliers 6 to 20 at each fixed MTU, on
// the page and as Apply stores them.
TEST_F(InternetPage, ResultingWindowsForEveryMultiplierAndMtu) {
  const struct {
    OptionButton* pages::InternetConnectionControls::*option;
    const char* mtu;
    std::int16_t mss;
    int windows[8];
  } columns[] = {
      {&pages::InternetConnectionControls::mtu552,
       "552",
       512,
       {3072, 4096, 5120, 6144, 7168, 8192, 9216, 10240}},
      {&pages::InternetConnectionControls::mtu576,
       "576",
       536,
       {3216, 4288, 5360, 6432, 7504, 8576, 9648, 10720}},
      {&pages::InternetConnectionControls::mtu1002,
       "1002",
       962,
       {5772, 7696, 9620, 11544, 13468, 15392, 17316, 19240}},
      {&pages::InternetConnectionControls::mtu1472,
       "1472",
       1432,
       {8592, 11456, 14320, 17184, 20048, 22912, 25776, 28640}},
  };
  dialUpMachine();
  start();
  toPage();
  for (const auto& column : columns) {
    for (int row = 0; row < 8; ++row) {
      const int multiplier = 6 + 2 * row;
      const std::string expected = std::to_string(column.windows[row]);
      EXPECT_EQ(column.windows[row], pages::resultedRwin(multiplier * 512, column.mss));
      (page().*column.option)->userClick();
      slideTo(static_cast<std::int16_t>(multiplier * 512));
      EXPECT_EQ(expected, page().Text8->text()) << column.mtu << " x" << multiplier;
      EXPECT_EQ("RWIN Multiplier = " + std::to_string(multiplier),
                page().Slider_rwin_.Frame1(0).caption());
      apply();
      EXPECT_EQ(sz(expected), stored(kMstcp, "DefaultRcvWindow")) << column.mtu;
      EXPECT_EQ(expected, sysaccess::GetRegValue(HKLM, kMstcp, "DefaultRcvWindow"));
      EXPECT_EQ(sz(column.mtu), stored(kAdapter0, "MaxMTU"));
      // Read back, the knob stands where it was.
      EXPECT_EQ(multiplier * 512, page().Slider_rwin_.min()) << column.mtu << " x" << multiplier;
      EXPECT_EQ(expected, page().Label2->caption());
    }
  }
  EXPECT_FALSE(ended_);
}

TEST_F(InternetPage, TheKnobStopsAtMultipliersSixAndTwenty) {
  dialUpMachine();
  start();
  toPage();
  slideTo(-3000);
  EXPECT_EQ(3072, page().Slider_rwin_.min());
  EXPECT_EQ("3216", page().Text8->text());
  EXPECT_EQ("RWIN Multiplier = 6", page().Slider_rwin_.Frame1(0).caption());
  slideTo(20000);
  EXPECT_EQ(10240, page().Slider_rwin_.min());
  EXPECT_EQ("10720", page().Text8->text());
  EXPECT_EQ("RWIN Multiplier = 20", page().Slider_rwin_.Frame1(0).caption());
}

TEST_F(InternetPage, ASliderChangeArmsApplyAndSelectsTheResultedWindow) {
  dialUpMachine();
  start();
  toPage();
  page().Option1->userClick();
  EXPECT_TRUE(page().Text9->enabled());
  EXPECT_FALSE(page().Option2->value());
  EXPECT_FALSE(ApplyM().enabled()); // Option1 doesn't arm Apply
  slideTo(6 * 512);
  EXPECT_TRUE(page().Option2->value());
  EXPECT_FALSE(page().Option1->value());
  EXPECT_TRUE(page().Text9->enabled()); // nothing disables it again
  EXPECT_TRUE(ApplyM().enabled());
  EXPECT_EQ("3216", page().Text8->text());
}

TEST_F(InternetPage, ACustomWindowIsTypedIntoText9) {
  dialUpMachine();
  start();
  toPage();
  page().Option1->userClick();
  page().Text9->userSetText("12000");
  EXPECT_FALSE(ApplyM().enabled()); // typing a window alone arms nothing
  page().Check16->userClick();
  page().Check16->userClick();
  apply();
  EXPECT_EQ(sz("12000"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_EQ("12000", page().Label2->caption());
}

TEST_F(InternetPage, AWindowReadBackCanLeaveAFractionInText8) {
  dialUpMachine();
  setSz(kMstcp, "DefaultRcvWindow", "3245");
  start();
  EXPECT_EQ(3100, page().Slider_rwin_.min()); // 3245 / 536 * 512 = 3099.7
  toPage();
  ref_mtu().userClick();
  EXPECT_EQ("3245.3125", page().Text8->text());
}

// Edge: text 3245.3125 in Text8 writes 3245; text 3244.5 writes 3244.
TEST_F(InternetPage, AFractionInText8IsRoundedHalfToEvenOnApply) {
  dialUpMachine();
  setSz(kMstcp, "DefaultRcvWindow", "3245");
  start();
  toPage();
  ref_mtu().userClick();
  ASSERT_EQ("3245.3125", page().Text8->text());
  apply();
  EXPECT_EQ(sz("3245"), stored(kMstcp, "DefaultRcvWindow"));

  // 1792 / 512 x 927 = 3244.5
  setSz(kAdapter0, "MaxMTU", "967");
  setSz(kAdapter0, "MaxMSS", "927");
  setSz(kMstcp, "DefaultRcvWindow", "3244");
  ref_mtu().userClick();
  EXPECT_EQ(1792, page().Slider_rwin_.min());
  EXPECT_TRUE(page().mtucustom->value());
  page().other_in->userSetText("967"); // same text: no change, mss_value from MaxMSS
  EXPECT_EQ("3244.5", page().Text8->text());
  apply();
  EXPECT_EQ(sz("3244"), stored(kMstcp, "DefaultRcvWindow"));
}

TEST_F(InternetPage, TheWindowIsStoredAsItsDigitsThroughRegSetValueExA) {
  dialUpMachine();
  start();
  toPage();
  page().mtu552->userClick();
  slideTo(16 * 512);
  const auto calls = record([&] { apply(); });
  bool seen = false;
  for (const std::string& line : calls)
    if (line.find("\"DefaultRcvWindow\" type 1 size 4") != std::string::npos) seen = true;
  EXPECT_TRUE(seen);
  EXPECT_EQ(sz("8192"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_EQ("8192", sysaccess::GetRegValue(HKLM, kMstcp, "DefaultRcvWindow"));
}

// ---- Apply ---------------------------------------------------------------------

TEST_F(InternetPage, ApplyWritesEverySettingInItsOrder) {
  dialUpMachine();
  start();
  toPage();
  page().mtu1002->userClick();
  slideTo(10 * 512);
  page().Check15->userClick();
  page().Option3(1).userClick();
  page().com1->userSelect(2);
  page().Check6->userClick();
  page().modemlogfile->userSetText("C:\\LOG.TXT");
  const auto calls = record([&] { apply(); });
  std::vector<std::string> writes;
  for (const std::string& line : calls) {
    if (line.rfind("RegQueryValueExA", 0) == 0 && line.find("\"DefaultTTL\"") != std::string::npos)
      writes.push_back("read DefaultTTL");
    if (line.rfind("RegSetValueExA", 0) == 0 || line.rfind("WritePrivateProfileStringA", 0) == 0)
      writes.push_back(
          line.substr(0, line.find(' ')) + " " +
          line.substr(line.find('"'), line.find('"', line.find('"') + 1) - line.find('"') + 1));
    if (line.rfind("RegSetValueExA", 0) == 0 && line.find("\"Logging\"") != std::string::npos)
      break; // the closing read begins
  }
  const std::vector<std::string> expected = {"WritePrivateProfileStringA \"386enh\"",
                                             "WritePrivateProfileStringA \"386enh\"",
                                             "RegSetValueExA \"MaxMTU\"",
                                             "RegSetValueExA \"MaxMSS\"",
                                             "RegSetValueExA \"DefaultMSS\"",
                                             "RegSetValueExA \"DefaultRcvWindow\"",
                                             "RegSetValueExA \"PMTUBlackHoleDetect\"",
                                             "RegSetValueExA \"PMTUDiscovery\"",
                                             "read DefaultTTL",
                                             "RegSetValueExA \"DefaultTTL\"",
                                             "RegSetValueExA \"LoggingPath\"",
                                             "RegSetValueExA \"Logging\""};
  EXPECT_EQ(expected, writes);

  EXPECT_EQ("4096", sysaccess::GetFromINI("386Enh", "COM1Buffer", kSystemIni));
  EXPECT_EQ("1024", sysaccess::GetFromINI("386Enh", "COM2Buffer", kSystemIni));
  EXPECT_EQ(sz("1002"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("962"), stored(kAdapter0, "MaxMSS"));
  EXPECT_EQ(sz("962"), stored(kMstcp, "DefaultMSS"));
  EXPECT_EQ(sz("9620"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_EQ(sz("1"), stored(kMstcp, "PMTUBlackHoleDetect"));
  EXPECT_EQ(sz("1"), stored(kMstcp, "PMTUDiscovery"));
  EXPECT_EQ(sz("32"), stored(kMstcp, "DefaultTTL"));
  EXPECT_EQ(sz("C:\\LOG.TXT"), stored(kModem, "LoggingPath"));
  EXPECT_EQ((Stored{platform::kRegBinary, std::string(1, '\x01')}), stored(kModem, "Logging"));
  // Read back: the page shows what is stored and Apply ends disabled.
  EXPECT_EQ("1002", page().mtusetting->caption());
  EXPECT_EQ("962", page().msssetting->caption());
  EXPECT_EQ(1, page().Check6->value());
  EXPECT_EQ("C:\\LOG.TXT", page().modemlogfile->text());
  EXPECT_FALSE(ApplyM().enabled());
}

TEST_F(InternetPage, LoggingOffWritesAnEmptyPathAndTheByteZero) {
  dialUpMachine();
  platform::sim::storeRawValue(platform::kLocalMachine, kModem, "Logging", platform::kRegBinary,
                               {1});
  start();
  toPage();
  page().Check6->userClick();
  EXPECT_EQ("", page().modemlogfile->text());
  EXPECT_FALSE(page().modemlogfile->enabled());
  EXPECT_TRUE(ApplyM().enabled());
  apply();
  EXPECT_EQ(sz(""), stored(kModem, "LoggingPath"));
  EXPECT_EQ((Stored{platform::kRegBinary, std::string(1, '\0')}), stored(kModem, "Logging"));
}

// Edge: setting com1 to "(not set)" on a system that had no COM1Buffer leaves
// an empty COM1Buffer line in system.ini.
TEST_F(InternetPage, ComBufferNotSetLeavesAnEmptyLine) {
  dialUpMachine();
  start();
  toPage();
  page().com2->userSelect(4);
  apply();
  const std::string ini = readFile(kSystemIni);
  EXPECT_NE(std::string::npos, ini.find("COM1Buffer=\r\n")) << ini;
  EXPECT_NE(std::string::npos, ini.find("COM2Buffer=\r\n")) << ini;
  EXPECT_EQ(std::string::npos, ini.find("[386enh]")) << ini; // the section [386Enh] is reused
  EXPECT_EQ("(not set)", page().com1->text());
  EXPECT_EQ("(not set)", page().com2->text());
}

TEST_F(InternetPage, ComBuffersGoIntoANewSectionWhenThereIsNone) {
  dialUpMachine();
  writeFile(kSystemIni, "[boot]\r\nshell=Explorer.exe\r\n");
  start();
  toPage();
  page().com1->userSelect(3);
  apply();
  EXPECT_EQ("[boot]\r\nshell=Explorer.exe\r\n[386enh]\r\nCOM1Buffer=8192\r\nCOM2Buffer=\r\n",
            readFile(kSystemIni));
  EXPECT_EQ("8192", page().com1->text());
}

// Edge: a custom MTU of "40" writes MaxMTU and skips MaxMSS and DefaultMSS;
// "0" writes none of the three.
TEST_F(InternetPage, ACustomMtuOf40WritesNoSegmentSizeAnd0NoMtu) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtucustom->userClick();
  page().other_in->userSetText("40");
  apply();
  EXPECT_EQ(sz("40"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("536"), stored(kAdapter0, "MaxMSS"));
  EXPECT_EQ(sz("536"), stored(kMstcp, "DefaultMSS"));
  EXPECT_FALSE(ended_);

  page().other_in->userSetText("0");
  apply();
  EXPECT_EQ(sz("40"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("536"), stored(kAdapter0, "MaxMSS"));
  EXPECT_EQ(sz("536"), stored(kMstcp, "DefaultMSS"));
  EXPECT_FALSE(ended_);
}

// Edge: DefaultTTL of "60": no option changes, and Apply writes whatever
// option was last selected.
TEST_F(InternetPage, AnUnknownTimeToLiveLeavesTheOptions) {
  dialUpMachine();
  setSz(kMstcp, "DefaultTTL", "60");
  start();
  for (int i = 0; i < 4; ++i)
    EXPECT_FALSE(page().Option3(i).value());
  toPage();
  page().Check15->userClick();
  apply(); // no option: nothing written
  EXPECT_EQ(sz("60"), stored(kMstcp, "DefaultTTL"));

  page().Option3(2).userClick();
  EXPECT_TRUE(ApplyM().enabled());
  apply();
  EXPECT_EQ(sz("64"), stored(kMstcp, "DefaultTTL"));
  setSz(kMstcp, "DefaultTTL", "60");
  ref_mtu().userClick();
  EXPECT_TRUE(page().Option3(2).value());
  page().Check15->userClick();
  apply();
  EXPECT_EQ(sz("64"), stored(kMstcp, "DefaultTTL"));
}

TEST_F(InternetPage, EveryTimeToLiveOptionReadsAndWritesItsText) {
  dialUpMachine();
  start();
  toPage();
  const char* ttl[] = {"0", "32", "64", "128"};
  for (int i = 0; i < 4; ++i) {
    setSz(kMstcp, "DefaultTTL", ttl[i]);
    ref_mtu().userClick();
    EXPECT_TRUE(page().Option3(i).value()) << ttl[i];
    page().Option3((i + 1) % 4).userClick();
    apply();
    EXPECT_EQ(sz(ttl[(i + 1) % 4]), stored(kMstcp, "DefaultTTL"));
  }
}

// Edge: Check15 with PMTUBlackHoleDetect absent stays unchecked, and Apply then
// creates the value with "0".
TEST_F(InternetPage, AnAbsentBlackHoleSettingIsWrittenAsZero) {
  dialUpMachine();
  remove(kMstcp, "PMTUBlackHoleDetect");
  start();
  EXPECT_EQ(0, page().Check15->value());
  toPage();
  page().com2->userSelect(3);
  apply();
  EXPECT_EQ(sz("0"), stored(kMstcp, "PMTUBlackHoleDetect"));
}

TEST_F(InternetPage, HandlersThatOnlyArmApply) {
  dialUpMachine();
  start();
  toPage();
  const std::vector<std::function<void()>> actions = {
      [&] { page().com1->userSelect(0); }, [&] { page().com2->userSelect(1); },
      [&] { page().Check15->userClick(); }, [&] { page().Check16->userClick(); },
      [&] { page().Option3(0).userClick(); }};
  for (const auto& action : actions) {
    ref_mtu().userClick();
    ASSERT_FALSE(ApplyM().enabled());
    action();
    EXPECT_TRUE(ApplyM().enabled()) << &action - actions.data();
    EXPECT_EQ(1, toInteger(program_->fmain.mtu_option)); // they leave mtu_option at 1
  }
}

TEST_F(InternetPage, RefreshReadsTheWindowIntoText8) {
  dialUpMachine();
  start();
  toPage();
  page().mtu1472->userClick();
  setSz(kMstcp, "DefaultRcvWindow", "8576");
  ref_mtu().userClick();
  EXPECT_EQ("8576", page().Label2->caption());
  EXPECT_EQ(16 * 512, page().Slider_rwin_.min());
  EXPECT_TRUE(page().mtu576->value());
  EXPECT_EQ("8576", page().Text8->text());
  EXPECT_FALSE(ApplyM().enabled());
}

// ---- Failures ----------------------------------------------------------------

TEST_F(InternetPage, WithoutMaxMtuStartUpGoesOnAndRefreshEndsTheProgram) {
  dialUpMachine();
  remove(kAdapter0, "MaxMTU");
  remove(kMstcp, "DefaultRcvWindow");
  start();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("", page().net_adapter);
  EXPECT_EQ("Not Found", page().mtusetting->caption());
  EXPECT_EQ("576", page().msssetting->caption()); // MaxMSS of \000 is absent too
  EXPECT_TRUE(page().mtu552->value());
  EXPECT_FALSE(page().other_in->enabled());
  EXPECT_EQ("Not Found", page().other_in->text());
  EXPECT_EQ(-40, mss_value());
  EXPECT_EQ(4, page().Slider_rwin_.min()); // 4 / 576 x 512, rounded
  EXPECT_EQ("-0.3125", page().Text8->text());
  EXPECT_FALSE(ApplyM().enabled());

  toPage();
  ref_mtu().userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", failureBox());
}

TEST_F(InternetPage, WithTheMarkerInPlaceAMissingMaxMtuEndsStartUp) {
  dialUpMachine();
  remove(kAdapter0, "MaxMTU");
  writeFile("C:\\WINDOWS\\scanreg.ini",
            "[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n");
  start(); // no replacement of scanreg.ini, so no "resume next" in the load
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", failureBox());
}

TEST_F(InternetPage, WithoutAnyAdapterApplyCreatesTheBareNetTransKey) {
  dialUpMachine();
  sysaccess::DelRegKey(HKLM, kAdapter0);
  remove(kMstcp, "DefaultRcvWindow");
  start();
  EXPECT_EQ("", page().net_adapter);
  EXPECT_EQ("Not Found", page().mtusetting->caption());
  toPage();
  page().Check16->userClick(); // no MTU option clicked: Text8 as start-up left it
  apply();
  EXPECT_FALSE(ended_);
  EXPECT_EQ(sz("552"), stored(kNetTrans + "000", "MaxMTU"));
  EXPECT_EQ(sz("512"), stored(kNetTrans + "000", "MaxMSS"));
  EXPECT_EQ(sz("0"), stored(kMstcp, "DefaultRcvWindow")); // -0.3125 rounded
  // From now on the page reads its values back from that key.
  EXPECT_EQ("552", page().mtusetting->caption());
  EXPECT_EQ("512", page().msssetting->caption());
  ref_mtu().userClick();
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(page().mtu552->value());
}

TEST_F(InternetPage, WithoutMaxMtuApplyAfterANegativeWindowWritesItRounded) {
  dialUpMachine();
  remove(kAdapter0, "MaxMTU");
  start();
  // 4288 / 576 x 512 = 3811.6: knob at 3812; Text8 = 3812 / 512 x -40.
  EXPECT_EQ(3812, page().Slider_rwin_.min());
  EXPECT_EQ("-297.8125", page().Text8->text());
  toPage();
  page().Check15->userClick();
  apply();
  EXPECT_EQ(sz("552"), stored(kNetTrans + "000", "MaxMTU"));
  EXPECT_EQ(kAbsent, stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("-298"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_FALSE(ended_);
}

TEST_F(InternetPage, AWindowAbove32767FailsMtuOptBeforeTheSliderMoves) {
  dialUpMachine();
  setSz(kMstcp, "DefaultRcvWindow", "40000");
  start();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("40000", page().Label2->caption());
  EXPECT_EQ(0, page().Slider_rwin_.min()); // never set
  toPage();
  ref_mtu().userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '6':\n\nOverflow", failureBox());
}

TEST_F(InternetPage, AWindowAbove32767InText9FailsApplyAfterTheSegmentSizes) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtu1472->userClick();
  page().Option1->userClick();
  page().Text9->userSetText("40000");
  page().com1->userSelect(0);
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '6':\n\nOverflow", failureBox());
  EXPECT_EQ("1024", sysaccess::GetFromINI("386Enh", "COM1Buffer", kSystemIni));
  EXPECT_EQ(sz("1472"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("1432"), stored(kAdapter0, "MaxMSS"));
  EXPECT_EQ(sz("1432"), stored(kMstcp, "DefaultMSS"));
  EXPECT_EQ(sz("4288"), stored(kMstcp, "DefaultRcvWindow"));
}

TEST_F(InternetPage, AWindowAbove32767InText8FailsApply) {
  dialUpMachine();
  start();
  toPage();
  page().mtu1472->userClick();
  slideTo(20 * 512);
  ASSERT_EQ("28640", page().Text8->text());
  // A custom MTU of 2000 takes the window past 32767.
  program_->fmain.form.show();
  page().mtucustom->userClick();
  page().other_in->userSetText("2000");
  ASSERT_EQ("39200", page().Text8->text());
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '6':\n\nOverflow", failureBox());
  EXPECT_EQ(sz("2000"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("1960"), stored(kMstcp, "DefaultMSS"));
  EXPECT_EQ(sz("4288"), stored(kMstcp, "DefaultRcvWindow"));
}

TEST_F(InternetPage, ASegmentSizeOfZeroIsADivisionByZero) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMSS", "0");
  start();
  EXPECT_FALSE(ended_);
  EXPECT_EQ("0", page().msssetting->caption());
  toPage();
  ref_mtu().userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '11':\n\nDivision by zero", failureBox());
}

TEST_F(InternetPage, ZeroOverZeroOverflows) {
  EXPECT_EQ(kOverflow, errorOf([] { pages::divide(0, 0); }));
  EXPECT_EQ(kDivisionByZero, errorOf([] { pages::divide(4288, 0); }));
  EXPECT_EQ(8.0, pages::divide(4288, 536));
}

TEST_F(InternetPage, AComBufferOutsideTheListStopsTheReaderAtItsFirstStep) {
  dialUpMachine();
  writeFile(kSystemIni, "[386Enh]\r\nCOM1Buffer=3000\r\n");
  start();
  EXPECT_FALSE(ended_);
  // Nothing after the first step was shown.
  EXPECT_EQ("Detected Primary Modem:", page().modeminfo(1).caption());
  EXPECT_EQ("", page().Label2->caption());
  EXPECT_EQ(-1, page().com1->listIndex());
  toPage();
  ref_mtu().userClick();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '383':\n\n'Text' property is read-only", failureBox());
}

TEST_F(InternetPage, AComBufferOutsideTheListInCom2StopsAfterCom1) {
  dialUpMachine();
  writeFile(kSystemIni, "[386Enh]\r\nCOM1Buffer=2048\r\nCOM2Buffer=115200\r\n");
  start();
  EXPECT_EQ("2048", page().com1->text());
  EXPECT_EQ("Detected Primary Modem:", page().modeminfo(1).caption());
}

TEST_F(InternetPage, AnEmptyCustomMtuFailsApplyAfterTheComBuffers) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtucustom->userClick();
  page().other_in->userSetText("");
  page().com1->userSelect(1);
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", failureBox());
  EXPECT_EQ("2048", sysaccess::GetFromINI("386Enh", "COM1Buffer", kSystemIni));
  EXPECT_EQ(sz("576"), stored(kAdapter0, "MaxMTU"));
}

TEST_F(InternetPage, ACustomMtuThatIsNoNumberFailsApply) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtucustom->userClick();
  page().other_in->userSetText("abc");
  EXPECT_EQ(-40, mss_value());
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", failureBox());
  EXPECT_EQ(sz("576"), stored(kAdapter0, "MaxMTU"));
}

TEST_F(InternetPage, AnEmptyCustomWindowFailsApplyAtTheWindow) {
  dialUpMachine();
  start();
  toPage();
  program_->fmain.form.show();
  page().mtu1002->userClick();
  page().Option1->userClick();
  apply();
  EXPECT_TRUE(ended_);
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", failureBox());
  EXPECT_EQ(sz("1002"), stored(kAdapter0, "MaxMTU"));
  EXPECT_EQ(sz("962"), stored(kMstcp, "DefaultMSS"));
  EXPECT_EQ(sz("4288"), stored(kMstcp, "DefaultRcvWindow"));
  EXPECT_EQ(sz("0"), stored(kMstcp, "PMTUBlackHoleDetect")); // not reached
}

// Edge: DefaultRcvWindow absent: "4" in Label2, the knob far left of its
// drag limit, the multiplier 0.0078125.
TEST_F(InternetPage, AnAbsentWindowShowsFourAndPutsTheKnobFarLeft) {
  dialUpMachine();
  remove(kMstcp, "DefaultRcvWindow");
  setSz(kAdapter0, "MaxMSS", "576"); // MSS 576 gives min 4 / 576 x 512 = 3.6, rounded 4
  start();
  EXPECT_EQ("4", page().Label2->caption());
  EXPECT_EQ(4, page().Slider_rwin_.min());
  EXPECT_EQ(0.0078125, page().Slider_rwin_.min() / 512.0);
  EXPECT_EQ("RWIN Multiplier = 0.0078125", page().Slider_rwin_.Frame1(0).caption());
  EXPECT_FALSE(ended_);
}

TEST_F(InternetPage, ApplyAndRefreshDisableApplyAfterStartUpWhateverTheReadersDid) {
  dialUpMachine();
  setSz(kAdapter0, "MaxMTU", "1500");
  start();
  EXPECT_FALSE(ApplyM().enabled());
  EXPECT_EQ(1, toInteger(program_->fmain.mtu_option));
}

} // namespace
