// The named-tweak catalogue: every row, read from every stored form the
// program's writers leave and from the forms other tools may leave, on a form
// that holds every control the catalogue fills.
#include "pages/shell/named_tweaks.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "tests/host/sim_fixture.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace runtime;
using platform::Dword;

namespace {

// A main form with every control that a catalogue row fills: the Desktop
// page's boxes, the Tracking page's st_m, the Troubleshooting page's Check2
// elements and combo boxes, the OEM page's text boxes.
class CatalogueHost : public pages::PageHost {
public:
  explicit CatalogueHost(bool withOtherPages = true) {
    page_ = &form_.add<Frame>("Frame4", 5, nullptr, {});
    hidden_ = &form_.add<TextBox>("Hidden", -1, nullptr, {});
    for (int i = 0; i <= 20; ++i)
      if (withOtherPages || i < 15) check2_.add(form_, i, page_, {});
    for (int i : {0, 1, 3, 4, 6})
      CD2.add(form_, i, page_, {});
    for (const char* name : {"Check1", "Check10", "Check11", "Check12"}) {
      auto& box = form_.add<CheckBox>(name, -1, page_, {});
      // As on the Desktop page: a click leaves "Yes" or "No" in Hidden, in
      // the middle of the row that set the box.
      box.onClick = [this, &box] { hidden_->setText(box.value() == 1 ? "Yes" : "No"); };
    }
    Check14 = &form_.add<CheckBox>("Check14", -1, page_, {});
    Text6 = &form_.add<TextBox>("Text6", -1, page_, {});
    Text6->setEnabled(false);
    Check14->onClick = [this] { Text6->setEnabled(Check14->value() == 1); };
    addCombo("Combo1", {"Left", "Right"});
    if (!withOtherPages) return;
    for (int i = 0; i <= 6; ++i)
      st_m.add(form_, i, page_, {});
    addCombo("Combo2", {"Protected", "Real"});
    addCombo("Combo3", {"Protected", "Real"});
    addCombo("Combo4", {"Asynchronous", "Synchronous"});
    for (const char* name : {"Text3", "Text4", "Text5"})
      form_.add<TextBox>(name, -1, page_, {});
    fields_.windir = "C:\\WINDOWS";
  }

  runtime::Form& mainForm() override { return form_; }
  runtime::Frame& pageFrame(int) override { return *page_; }
  pages::PageButtons& buttons() override { return buttons_; }
  pages::FormFields& fields() override { return fields_; }
  runtime::TextBox& Hidden() override { return *hidden_; }
  std::string throughHidden(const runtime::Value& value) override {
    hidden_->setText(toText(value));
    return hidden_->text();
  }
  const std::string& windowsDirectory() const override { return fields_.windir; }
  runtime::ControlArray<runtime::CheckBox>& Check2() override { return check2_; }

  Control& control(const std::string& name) {
    Control* found = form_.find(name);
    if (!found) throw std::runtime_error("no control " + name);
    return *found;
  }
  CheckBox& box(const std::string& name) { return static_cast<CheckBox&>(control(name)); }
  ComboBox& combo(const std::string& name) { return static_cast<ComboBox&>(control(name)); }
  TextBox& text(const std::string& name) { return static_cast<TextBox&>(control(name)); }

  ControlArray<CheckBox> st_m{"st_m"};
  ControlArray<CheckBox> CD2{"CD2"};
  CheckBox* Check14 = nullptr;
  TextBox* Text6 = nullptr;

private:
  void addCombo(const char* name, std::initializer_list<const char*> items) {
    auto& combo = form_.add<ComboBox>(name, -1, page_, {});
    for (const char* item : items)
      combo.addItem(item);
  }

  Form form_{"FMain"};
  Frame* page_ = nullptr;
  TextBox* hidden_ = nullptr;
  ControlArray<CheckBox> check2_{"Check2"};
  pages::PageButtons buttons_;
  pages::FormFields fields_;
};

// Where each row reads, written out here independently of the catalogue.
struct Place {
  platform::RegKey hive;
  const char* key;
  const char* value;
  const char* target;
};
const std::map<int, Place> kPlaces{
    {1, {platform::kUsers, ".DEFAULT\\Control Panel\\Sound", "Beep", "Check1"}},
    {2, {platform::kCurrentUser, "Control Panel\\Desktop", "SmoothScroll", "Check2(6)"}},
    {3, {platform::kCurrentUser, "Control Panel\\Mouse", "ActiveWindowTracking", "Check2(11)"}},
    {4, {platform::kClassesRoot, "QuickView", "", "Check2(14)"}},
    {5,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "Win31FileSystem",
      "Check2(15)"}},
    {6,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "VirtualHDIRQ",
      "Check2(16)"}},
    {7,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "SoftCompatMode",
      "Check2(17)"}},
    {8,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "NameNumericTail",
      "Check2(18)"}},
    {9,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem",
      "PreserveLongNames", "Check2(19)"}},
    {10,
     {platform::kUsers, ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Tips",
      "Show", "Check2(10)"}},
    {12,
     {platform::kLocalMachine, "Hardware\\Description\\System\\CentralProcessor\\0",
      "VendorIdentifier", "Check2(0)"}},
    {13,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoSetFolders", "st_m(4)"}},
    {14,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoFind", "st_m(6)"}},
    {15,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoSetTaskbar", "st_m(5)"}},
    {16,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoRun", "st_m(2)"}},
    {17,
     {platform::kLocalMachine,
      "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\FindExtensions\\Static\\InetFind\\0",
      "", "Check2(1)"}},
    {18,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoRecentDocsMenu", "st_m(1)"}},
    {19,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoLogOff", "st_m(3)"}},
    {20,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoFavoritesMenu", "st_m(0)"}},
    {21,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SmallIcons",
      "SmallIcons", "Check10"}},
    {22,
     {platform::kLocalMachine, "Software\\CLASSES\\*\\Shell\\OpenWith\\Command", "", "Check2(4)"}},
    {23, {platform::kCurrentUser, "Control Panel\\Desktop", "MenuDropAlignment", "Combo1"}},
    {24,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "ForceRMIO",
      "Combo2"}},
    {25,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "DriveWriteBehind",
      "Combo3"}},
    {26,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem", "AsyncFileCommit",
      "Combo4"}},
    {27,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoStartBanner", "Check2(9)"}},
    {28,
     {platform::kCurrentUser, "Control Panel\\Desktop\\WindowMetrics", "MinAnimate", "Check2(8)"}},
    {30, {platform::kLocalMachine, "Software\\CLASSES\\lnkfile", "IsShortCut", "CD2(0)"}},
    {31,
     {platform::kUsers, ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer", "link",
      "CD2(1)"}},
    {32, {platform::kCurrentUser, "Control Panel\\Desktop", "DragFullWindows", "Check2(13)"}},
    {33, {platform::kCurrentUser, "Control Panel\\Desktop", "FontSmoothing", "Check11"}},
    {34,
     {platform::kClassesRoot, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder",
      "Attributes", "Check2(3)"}},
    {35,
     {platform::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
      "NoSaveSettings", "CD2(6)"}},
    {36, {platform::kUsers, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate", "Check2(12)"}},
    {37, {platform::kClassesRoot, "Directory\\shell\\MSDOS Prompt here\\Command", "", "Check2(5)"}},
    {38,
     {platform::kCurrentUser, "Control Panel\\desktop\\WindowMetrics", "Shell Icon BPP", "CD2(4)"}},
    {39, {platform::kCurrentUser, "Control Panel\\desktop", "PaintDesktopVersion", "CD2(3)"}},
    {40, {platform::kClassesRoot, "Directory\\shell\\ExploreHere\\Command", "", "Check2(2)"}},
    {42,
     {platform::kLocalMachine, "System\\CurrentControlSet\\Control\\ComputerName", "ComputerName",
      "Text3"}},
    {43,
     {platform::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion", "RegisteredOwner",
      "Text4"}},
    {44,
     {platform::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion",
      "RegisteredOrganization", "Text5"}},
    {45, {platform::kClassesRoot, "Unknown\\shell\\Open in Notepad\\Command", "", "Check12"}},
};

// A stored value: its type and bytes, or nothing at all.
struct Stored {
  bool present = false;
  Dword type = 0;
  std::vector<std::uint8_t> bytes;
};
Stored none() { return {}; }
Stored sz(const std::string& text) {
  Stored s{true, platform::kRegSz, {text.begin(), text.end()}};
  s.bytes.push_back(0);
  return s;
}
Stored dw(std::uint32_t n) {
  return {true,
          platform::kRegDword,
          {static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(n >> 8),
           static_cast<std::uint8_t>(n >> 16), static_cast<std::uint8_t>(n >> 24)}};
}
Stored bin(std::vector<std::uint8_t> bytes) {
  return {true, platform::kRegBinary, std::move(bytes)};
}
const std::vector<std::uint8_t> k01{1, 0, 0, 0}, k00{0, 0, 0, 0}, kFF{0xFF, 0xFF, 0xFF, 0xFF};

void store(const Place& place, const Stored& stored) {
  if (stored.present)
    platform::sim::storeRawValue(place.hive, place.key, place.value, stored.type, stored.bytes);
}

// A check-box row read from one stored form, starting from a clear box and
// from a ticked one.
struct CheckCase {
  int row;
  const char* what;
  Stored stored;
  int fromClear;
  int fromTicked;
};

// Abbreviations for the two outcomes of a case.
constexpr int T = 1, C = 0;

const std::vector<CheckCase>& checkCases() {
  static const std::vector<CheckCase> cases{
      // Pair ("Yes", "No")
      {1, "writer ticked", sz("Yes"), T, T},
      {1, "writer clear", sz("No"), C, C},
      {1, "missing", none(), C, T},
      {1, "other case", sz("yes"), C, T},
      {1, "a number", dw(1), C, T},
      // Pair ("00000001", "00000000"): the writer's on-value reads "01000000"
      {2, "writer ticked", bin(k01), C, T},
      {2, "writer clear", bin(k00), C, C},
      {2, "bytes 00 00 00 01", bin({0, 0, 0, 1}), T, T},
      {2, "missing", none(), C, T},
      {3, "writer ticked", sz("1"), T, T},
      {3, "writer clear", sz("0"), C, C},
      {3, "a number", dw(1), C, T},
      {3, "missing", none(), C, T},
      // Ticked-if ("*")
      {4, "writer ticked", sz("*"), T, T},
      {4, "writer clear", sz(""), C, C},
      {4, "missing", none(), C, C},
      // Ticked-if ("000"): ticked at the value 0 only
      {5, "writer ticked", dw(0), T, T},
      {5, "writer clear", dw(1), C, C},
      {5, "1000 reads 100", dw(1000), C, C},
      {5, "missing", none(), C, C},
      {6, "writer ticked", bin(k01), T, T},
      {6, "writer clear", bin(k00), C, C},
      {6, "missing", none(), C, C},
      {7, "writer ticked", bin(k01), T, T},
      {7, "writer clear", bin(k00), C, C},
      {7, "five bytes", bin({1, 0, 0, 0, 0}), C, C},
      {8, "writer ticked", dw(1), T, T},
      {8, "writer clear", dw(0), C, C},
      {8, "as text", sz("1"), C, C},
      {9, "writer ticked", bin(kFF), T, T},
      {9, "writer clear", bin(k00), C, C},
      {9, "missing", none(), C, C},
      // As row 2.
      {10, "writer ticked", bin(k01), C, T},
      {10, "writer clear", bin(k00), C, C},
      {10, "bytes 00 00 00 01", bin({0, 0, 0, 1}), T, T},
      {12, "writer ticked", sz("Genuine Intel"), T, T},
      {12, "writer clear", sz("GenuineIntel"), C, C},
      {12, "another vendor", sz("AuthenticAMD"), C, T},
      // Pair+ ("000", "001"): missing ticks as well
      {13, "writer ticked", dw(0), T, T},
      {13, "writer clear", dw(1), C, C},
      {13, "missing", none(), T, T},
      {13, "1000 reads 100", dw(1000), C, T},
      {14, "ticked at 0", dw(0), T, T},
      {14, "clear at 1", dw(1), C, C},
      {14, "missing", none(), T, T},
      {15, "writer ticked", dw(0), T, T},
      {15, "writer clear", dw(1), C, C},
      {15, "missing", none(), T, T},
      // Pair ("000", "001")
      {16, "writer ticked", dw(0), T, T},
      {16, "writer clear", dw(1), C, C},
      {16, "missing", none(), C, T},
      {16, "1000 reads 100", dw(1000), C, T},
      {17, "writer ticked", sz("On the &Internet..."), T, T},
      {17, "other text", sz("On the Internet..."), C, C},
      {17, "missing", none(), C, C},
      {18, "writer ticked", dw(0), T, T},
      {18, "writer clear", dw(1), C, C},
      {18, "missing", none(), C, T},
      {19, "writer ticked", dw(0), T, T},
      {19, "writer clear", dw(1), C, C},
      {19, "missing", none(), C, T},
      {20, "writer ticked", dw(0), T, T},
      {20, "writer clear", dw(1), C, C},
      {20, "missing", none(), C, T},
      {21, "writer ticked", sz("Yes"), T, T},
      {21, "writer clear", sz("No"), C, C},
      {21, "missing", none(), C, T},
      // windir followed by the command
      {22, "writer ticked", sz("C:\\WINDOWS\\rundll32.exe shell32.dll,OpenAs_RunDLL %1"), T, T},
      {22, "without windir", sz("rundll32.exe shell32.dll,OpenAs_RunDLL %1"), C, C},
      {22, "missing", none(), C, C},
      // Pair ("00000000", "00000001"): the writer's clear value reads "01000000"
      {27, "writer ticked", bin(k00), T, T},
      {27, "writer clear", bin(k01), C, T},
      {27, "bytes 00 00 00 01", bin({0, 0, 0, 1}), C, C},
      {27, "missing", none(), C, T},
      // Pair ("0", "1")
      {28, "ticked at 0", sz("0"), T, T},
      {28, "clear at 1", sz("1"), C, C},
      {28, "missing", none(), C, T},
      // Clear-if ("Not Found"): ticked whenever the value exists
      {30, "writer ticked", sz(""), T, T},
      {30, "any text", sz("x"), T, T},
      {30, "missing", none(), C, C},
      // Clear-if ("00000000")
      {31, "writer clear", bin(k00), C, C},
      {31, "missing", none(), T, T},
      {31, "other bytes", bin(k01), T, T},
      {31, "five zero bytes", bin({0, 0, 0, 0, 0}), T, T},
      {32, "writer ticked", sz("1"), T, T},
      {32, "writer clear", sz("0"), C, C},
      {32, "missing", none(), C, T},
      {33, "writer ticked", sz("1"), T, T},
      {33, "writer clear", sz("0"), C, C},
      {33, "missing", none(), C, T},
      {34, "writer ticked", bin({0x70, 1, 0, 0x20}), T, T},
      {34, "writer clear", bin({0x40, 1, 0, 0x20}), C, C},
      {34, "missing", none(), C, T},
      {35, "writer ticked", bin(k01), T, T},
      {35, "writer clear", bin(k00), C, C},
      {35, "missing", none(), C, T},
      // Clear-if ("65535")
      {36, "writer clear", sz("65535"), C, C},
      {36, "writer ticked", sz("800"), T, T},
      {36, "another rate", sz("530"), T, T},
      {36, "missing", none(), T, T},
      {37, "writer ticked", sz("command.com /k cd %1"), T, T},
      {37, "other text", sz(""), C, C},
      {37, "missing", none(), C, C},
      {38, "writer ticked", sz("16"), T, T},
      {38, "writer clear", sz("8"), C, C},
      {38, "other depth", sz("32"), C, T},
      {38, "missing", none(), C, T},
      {39, "writer ticked", sz("1"), T, T},
      {39, "writer clear", sz("0"), C, C},
      {39, "missing", none(), C, T},
      // Clear-if ("Not Found"): any readable text ticks, the empty one too
      {40, "writer ticked", sz("explorer.exe /e,/root,/idlist,%I"), T, T},
      {40, "empty text", sz(""), T, T},
      {40, "missing", none(), C, C},
      // The box's click handler leaves "Yes" in Hidden mid-row; the box stays.
      {45, "writer ticked", sz("Notepad %1"), T, T},
      {45, "other case", sz("notepad %1"), C, C},
      {45, "missing", none(), C, C},
  };
  return cases;
}

class Catalogue : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
  }
  void read(const std::string& word) { pages::ref_tweak(host_, word); }

  CatalogueHost host_;
};

TEST_F(Catalogue, FortyFiveRowsForFortyFourWordsInOrder) {
  const auto& rows = pages::tweak::rows();
  ASSERT_EQ(45u, rows.size());
  std::set<std::string> words;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(static_cast<int>(i) + 1, rows[i].number);
    words.insert(rows[i].word);
  }
  EXPECT_EQ(44u, words.size());
}

TEST_F(Catalogue, EveryRowReadsWhereItsPlaceSaysIntoThatControl) {
  for (const auto& [number, place] : kPlaces) {
    const pages::tweak::Row& row = pages::tweak::row(number);
    EXPECT_EQ(place.hive, row.hive) << number;
    EXPECT_STREQ(place.key, row.key) << number;
    EXPECT_STREQ(place.value, row.value) << number;
    EXPECT_STREQ(place.target, row.target) << number;
    EXPECT_NE(nullptr, host_.mainForm().find(row.target)) << number;
  }
}

TEST_F(Catalogue, EveryCheckBoxRowFromEveryStoredForm) {
  for (const CheckCase& c : checkCases()) {
    for (const int start : {0, 1}) {
      platform::sim::reset(root_);
      const Place& place = kPlaces.at(c.row);
      store(place, c.stored);
      CheckBox& box = host_.box(place.target);
      box.setValue(start);
      read(pages::tweak::row(c.row).word);
      EXPECT_EQ(start == 0 ? c.fromClear : c.fromTicked, box.value())
          << "row " << c.row << ", " << c.what << ", from " << start;
    }
  }
}

TEST_F(Catalogue, EveryCheckBoxRowIsCovered) {
  std::set<int> covered;
  for (const CheckCase& c : checkCases())
    covered.insert(c.row);
  for (const auto& row : pages::tweak::rows()) {
    const bool checkRule =
        row.rule == pages::tweak::Rule::Pair || row.rule == pages::tweak::Rule::PairPlus ||
        row.rule == pages::tweak::Rule::TickedIf || row.rule == pages::tweak::Rule::ClearIf ||
        row.rule == pages::tweak::Rule::OpenWithVerb;
    if (checkRule && row.number != 11) {
      EXPECT_EQ(1u, covered.count(row.number)) << row.number;
    }
  }
}

struct ChoiceCase {
  int row;
  Stored stored;
  const char* fromLeftItem;  // starting at item 0
  const char* fromRightItem; // starting at item 1
};

TEST_F(Catalogue, EveryComboRowFromEveryStoredForm) {
  const std::vector<ChoiceCase> cases{
      {23, sz("1"), "Right", "Right"},
      {23, sz("0"), "Left", "Left"},
      {23, sz("2"), "Left", "Right"},
      {23, none(), "Left", "Right"},
      {23, dw(1), "Left", "Right"},
      {24, bin(k00), "Protected", "Protected"},
      {24, bin(k01), "Real", "Real"},
      {24, none(), "Protected", "Real"},
      {25, bin(kFF), "Protected", "Protected"},
      {25, bin(k00), "Real", "Real"},
      {25, bin(k01), "Protected", "Real"},
      {26, bin({1}), "Asynchronous", "Asynchronous"},
      {26, bin({0}), "Synchronous", "Synchronous"},
      // A one-byte 02 reads "02" and matches nothing.
      {26, bin({2}), "Asynchronous", "Synchronous"},
      {26, bin(k01), "Asynchronous", "Synchronous"},
  };
  for (const ChoiceCase& c : cases) {
    for (const int start : {0, 1}) {
      platform::sim::reset(root_);
      const Place& place = kPlaces.at(c.row);
      store(place, c.stored);
      ComboBox& combo = host_.combo(place.target);
      combo.setListIndex(start);
      read(pages::tweak::row(c.row).word);
      EXPECT_EQ(start == 0 ? c.fromLeftItem : c.fromRightItem, combo.text()) << "row " << c.row;
    }
  }
}

TEST_F(Catalogue, TextRowsCopyTheTextAndShowNotFoundWhenMissing) {
  for (const int number : {42, 43, 44}) {
    const Place& place = kPlaces.at(number);
    read(pages::tweak::row(number).word);
    EXPECT_EQ("Not Found", host_.text(place.target).text()) << number;
    store(place, sz("Text of " + std::to_string(number)));
    read(pages::tweak::row(number).word);
    EXPECT_EQ("Text of " + std::to_string(number), host_.text(place.target).text()) << number;
  }
  store(kPlaces.at(43), sz(""));
  read("Registered User ");
  EXPECT_EQ("", host_.text("Text4").text());
}

TEST_F(Catalogue, BeepOnErrorsAlwaysTakesRowOneAndRowElevenIsNeverReached) {
  EXPECT_EQ(1, pages::tweak::find("Beep on Errors")->number);
  for (const auto& row : pages::tweak::rows())
    EXPECT_NE(11, pages::tweak::find(row.word)->number) << row.word;
  EXPECT_EQ(pages::tweak::row(1).word, std::string(pages::tweak::row(11).word));
}

TEST_F(Catalogue, AnUnknownWordChangesNothingAndReportsNothing) {
  for (const auto& [number, place] : kPlaces)
    store(place, sz("1"));
  host_.text("Text4").setText("kept");
  const std::string hiddenBefore = host_.Hidden().text();
  platform::sim::clearCallLog();
  platform::sim::setCallLogging(true);
  for (const char* word : {"Registered User", "beep on errors", "Beep on Errors ", "", "sf",
                           "Not Found", "Clock static caption"})
    EXPECT_EQ(0, errorOf([&] { read(word); })) << word;
  platform::sim::setCallLogging(false);
  EXPECT_TRUE(platform::sim::callLog().empty());
  EXPECT_EQ("kept", host_.text("Text4").text());
  EXPECT_EQ(hiddenBefore, host_.Hidden().text());
  for (const auto& [number, place] : kPlaces) {
    Control& target = host_.control(place.target);
    if (target.kind() == ControlKind::CheckBox) {
      EXPECT_EQ(0, static_cast<CheckBox&>(target).value()) << place.target;
    }
  }
}

TEST_F(Catalogue, ARowWhoseControlIsNotOnTheFormIsPassedOver) {
  CatalogueHost desktopOnly(false);
  store(kPlaces.at(13), dw(0));
  store(kPlaces.at(42), sz("PC"));
  for (const char* word :
       {"SF", "NF", "ST", "Run", "FS1", "FS2", "FS3", "31FS", "PMH", "FSA", "RSF", "PLF",
        "System's Name", "Registered User ", "Registered Organization"})
    EXPECT_EQ(0, errorOf([&] { pages::ref_tweak(desktopOnly, word); })) << word;
  EXPECT_EQ(nullptr, desktopOnly.mainForm().find("st_m(4)"));
}

TEST_F(Catalogue, ReadingTakesOneValueAndWritesNothing) {
  platform::sim::setCallLogging(true);
  for (const auto& row : pages::tweak::rows()) {
    platform::sim::clearCallLog();
    read(row.word);
    for (const std::string& call : platform::sim::callLog()) {
      EXPECT_EQ(std::string::npos, call.find("RegSet")) << row.word << ": " << call;
      EXPECT_EQ(std::string::npos, call.find("RegCreate")) << row.word << ": " << call;
      EXPECT_EQ(std::string::npos, call.find("RegDelete")) << row.word << ": " << call;
    }
  }
  platform::sim::setCallLogging(false);
}

// ---- Row 29, the clock format --------------------------------------------

class TimeFormat : public Catalogue {
protected:
  void intl(const char* name, const Stored& stored) {
    if (stored.present)
      platform::sim::storeRawValue(platform::kCurrentUser, "Control Panel\\International", name,
                                   stored.type, stored.bytes);
  }
  int readBox(int start) {
    host_.box("Check2(7)").setValue(start);
    read("Use 24h Time Format HHMM");
    return host_.box("Check2(7)").value();
  }
};

TEST_F(TimeFormat, TheWrittenFourValuesTickTheBox) {
  intl("iTime", sz("1"));
  intl("iTLZero", sz("1"));
  intl("sTime", sz(""));
  intl("sTimeFormat", sz("HHmm tt"));
  EXPECT_EQ(1, readBox(0));
  EXPECT_EQ("1-1--HHmm tt", host_.Hidden().text());
}

TEST_F(TimeFormat, AnyOtherCombinationClearsTheBox) {
  intl("iTime", sz("1"));
  intl("iTLZero", sz("1"));
  intl("sTime", sz(""));
  intl("sTimeFormat", sz("HHmm"));
  EXPECT_EQ(0, readBox(1));
  EXPECT_EQ("1-1--HHmm", host_.Hidden().text());
  intl("sTimeFormat", sz("HHmm tt"));
  intl("sTime", sz(":"));
  EXPECT_EQ(0, readBox(1));
  intl("sTime", sz(""));
  intl("iTime", dw(1));
  EXPECT_EQ(0, readBox(1));
}

TEST_F(TimeFormat, AMissingValueCountsAsNotFoundAndClears) {
  intl("iTime", sz("1"));
  intl("iTLZero", sz("1"));
  intl("sTimeFormat", sz("HHmm tt"));
  EXPECT_EQ(0, readBox(1));
  EXPECT_EQ("1-1-Not Found-HHmm tt", host_.Hidden().text());
}

// ---- Row 41, the clock caption -------------------------------------------

class ClockCaption : public Catalogue {
protected:
  void caption(const char* name, const Stored& stored) {
    if (stored.present)
      platform::sim::storeRawValue(platform::kCurrentUser, "Control Panel\\International", name,
                                   stored.type, stored.bytes);
  }
  void readRow() { read("Clock Static Caption"); }
};

TEST_F(ClockCaption, EqualTextsTickTheBoxAndShowTheTextDisabled) {
  caption("s1159", sz("Lunch"));
  caption("s2359", sz("Lunch"));
  readRow();
  EXPECT_EQ(1, host_.Check14->value());
  EXPECT_EQ("Lunch", host_.Text6->text());
  // The tick's handler enabled the box; the row disables it after.
  EXPECT_FALSE(host_.Text6->enabled());
}

TEST_F(ClockCaption, DifferentTextsEmptyTheBoxAndNeverClearTheTick) {
  caption("s1159", sz("AM"));
  caption("s2359", sz("PM"));
  readRow();
  EXPECT_EQ(0, host_.Check14->value());
  EXPECT_EQ("", host_.Text6->text());
  host_.Check14->setValue(1);
  host_.Text6->setText("typed");
  readRow();
  EXPECT_EQ(1, host_.Check14->value());
  EXPECT_EQ("", host_.Text6->text());
  EXPECT_FALSE(host_.Text6->enabled());
}

TEST_F(ClockCaption, BothMissingTickTheBoxAndShowNotFound) {
  readRow();
  EXPECT_EQ(1, host_.Check14->value());
  EXPECT_EQ("Not Found", host_.Text6->text());
  EXPECT_FALSE(host_.Text6->enabled());
}

TEST_F(ClockCaption, TwoEmptyTextsLeaveTheBoxClear) {
  caption("s1159", sz(""));
  caption("s2359", sz(""));
  readRow();
  EXPECT_EQ(0, host_.Check14->value());
  EXPECT_EQ("", host_.Text6->text());
}

TEST_F(ClockCaption, OnlyTheMorningValueGoesThroughHidden) {
  caption("s1159", sz("A"));
  caption("s2359", sz("A"));
  readRow();
  EXPECT_EQ("A", host_.Hidden().text());
}

// ---- Stated mismatches that need more than one value ---------------------

TEST_F(Catalogue, TheAnimationValueOfTheDefaultProfileIsNotTheOneRead) {
  platform::sim::storeRawValue(platform::kUsers, ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics",
                               "MinAnimate", platform::kRegSz, {'0', 0});
  host_.box("Check2(8)").setValue(0);
  read("Turn Off Window Animation");
  EXPECT_EQ(0, host_.box("Check2(8)").value());
}

TEST_F(Catalogue, ThePiffileSideOfTheShortcutPrefixIsNeverLookedAt) {
  platform::sim::storeRawValue(platform::kLocalMachine, "Software\\CLASSES\\piffile", "IsShortCut",
                               platform::kRegSz, {0});
  read("Prefix 'Shortcut To' on New Shortcuts");
  EXPECT_EQ(0, host_.CD2(0).value());
}

TEST_F(Catalogue, TheWordsOfTheShortcutRowsAreCrossed) {
  platform::sim::storeRawValue(platform::kLocalMachine, "Software\\CLASSES\\lnkfile", "IsShortCut",
                               platform::kRegSz, {0});
  read("Prefix 'Shortcut To' on New Shortcuts");
  EXPECT_EQ(1, host_.CD2(0).value());
  EXPECT_EQ(0, host_.CD2(1).value());
  read("Use Shortcut Arrows");
  EXPECT_EQ(1, host_.CD2(1).value()); // "link" is missing
}

TEST_F(Catalogue, ExploreHereWrittenUnderMachineClassesReadsThroughClassesRoot) {
  platform::RegKey key = 0;
  platform::RegCreateKeyA(platform::kLocalMachine,
                          "Software\\CLASSES\\Directory\\shell\\ExploreHere\\Command", &key);
  const std::string command = "explorer.exe /e,/root,/idlist,%I";
  platform::RegSetValueExA(key, "", 0, platform::kRegSz,
                           reinterpret_cast<const std::uint8_t*>(command.c_str()),
                           static_cast<Dword>(command.size() + 1));
  platform::RegCloseKey(key);
  read("Explore from Here");
  EXPECT_EQ(1, host_.box("Check2(2)").value());
}

TEST_F(Catalogue, AValueOverTheBufferReadsAsMissing) {
  store(kPlaces.at(36), sz(std::string(2049, '8')));
  host_.box("Check2(12)").setValue(0);
  read("Blinking Text Cursor");
  EXPECT_EQ(1, host_.box("Check2(12)").value());
  store(kPlaces.at(13), bin(std::vector<std::uint8_t>(2049, 0)));
  host_.st_m(4).setValue(0);
  read("SF");
  EXPECT_EQ(1, host_.st_m(4).value());
}

TEST_F(Catalogue, HighBytesAndAnEmbeddedNulAreComparedAsTheyRead) {
  store(kPlaces.at(12), sz("Genuine Intel\xE9"));
  host_.box("Check2(0)").setValue(1);
  read("More CPU Info");
  EXPECT_EQ(1, host_.box("Check2(0)").value());
  // The text box cuts the text at its NUL: "GenuineIntel" then matches.
  Stored cut = sz("GenuineIntel");
  cut.bytes.insert(cut.bytes.end() - 1, {0, 'x', 'y'});
  store(kPlaces.at(12), cut);
  read("More CPU Info");
  EXPECT_EQ(0, host_.box("Check2(0)").value());
}

TEST_F(Catalogue, AStringStoredWithNoBytesReadsAsBlanks) {
  store(kPlaces.at(42), Stored{true, platform::kRegSz, {}});
  read("System's Name");
  EXPECT_EQ(std::string(2048, ' '), host_.text("Text3").text());
  store(kPlaces.at(4), Stored{true, platform::kRegSz, {}});
  host_.box("Check2(14)").setValue(1);
  read("QVOFAF");
  EXPECT_EQ(0, host_.box("Check2(14)").value());
}

} // namespace
