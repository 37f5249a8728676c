// The form runtime's event rules, control arrays, focus, the top level and the
// whole-number operators.
#include "runtime/application.h"
#include "runtime/basic_math.h"
#include "runtime/control_array.h"
#include "runtime/form.h"
#include "runtime/value.h"
#include "tests/host/sim_fixture.h"

#include <fstream>
#include <functional>
#include <string>
#include <vector>

using namespace runtime;

namespace {

class RuntimeRules : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    form_ = std::make_unique<Form>("FMain");
    form_->show();
  }
  std::unique_ptr<Form> form_;
  std::vector<std::string> events_;
};

TEST_F(RuntimeRules, CheckBoxClickFiresOnlyOnARealChange) {
  auto& box = form_->add<CheckBox>("Check1", -1, nullptr, {});
  box.onClick = [&] { events_.push_back("Check1 " + std::to_string(box.value())); };
  box.setValue(0);
  box.setValue(1);
  box.setValue(1);
  box.setValue(0);
  EXPECT_EQ((std::vector<std::string>{"Check1 1", "Check1 0"}), events_);
  EXPECT_EQ(380, errorOf([&] { box.setValue(3); }));
  EXPECT_EQ(380, errorOf([&] { box.setValue(-1); }));
}

TEST_F(RuntimeRules, UserClickTogglesAndFiresLikeCode) {
  auto& box = form_->add<CheckBox>("Check1", -1, nullptr, {});
  box.onClick = [&] { events_.push_back("click"); };
  box.userClick();
  EXPECT_EQ(1, box.value());
  box.userClick();
  EXPECT_EQ(0, box.value());
  EXPECT_EQ(2u, events_.size());
}

TEST_F(RuntimeRules, HandlersNestSynchronously) {
  auto& first = form_->add<CheckBox>("Check21", -1, nullptr, {});
  auto& second = form_->add<CheckBox>("Check22", -1, nullptr, {});
  auto& apply = form_->add<PictureBox>("refa", -1, nullptr, {});
  apply.setEnabled(false);
  first.onClick = [&] {
    events_.push_back("first in");
    second.setValue(1);
    events_.push_back("first out");
  };
  second.onClick = [&] {
    events_.push_back("second");
    apply.setEnabled(true);
  };
  first.setValue(1);
  EXPECT_EQ((std::vector<std::string>{"first in", "second", "first out"}), events_);
  EXPECT_TRUE(apply.enabled());
}

TEST_F(RuntimeRules, OptionButtonsOfOneContainerExcludeEachOther) {
  auto& frame = form_->add<Frame>("Frame1", -1, nullptr, {});
  auto& a = form_->add<OptionButton>("mtu552", -1, &frame, {});
  auto& b = form_->add<OptionButton>("mtu576", -1, &frame, {});
  auto& other = form_->add<OptionButton>("Option3", -1, nullptr, {});
  a.onClick = [&] { events_.push_back("a"); };
  b.onClick = [&] { events_.push_back("b"); };
  other.setValue(true);
  a.setValue(true);
  b.userClick();
  EXPECT_FALSE(a.value());
  EXPECT_TRUE(b.value());
  EXPECT_TRUE(other.value()); // another container keeps its own choice
  b.userClick();              // already set: no change, no Click
  b.setValue(false);          // clearing fires nothing
  EXPECT_EQ((std::vector<std::string>{"a", "b"}), events_);
}

TEST_F(RuntimeRules, TextBoxChangeAndKeyPressFilter) {
  auto& text = form_->add<TextBox>("Text16", -1, nullptr, {});
  text.onChange = [&] { events_.push_back(text.text()); };
  text.onKeyPress = [](int& key) {
    if ((key < '0' || key > '9') && key != 8) key = 0; // digits and Backspace
  };
  text.userType("4a2");
  EXPECT_EQ("42", text.text());
  text.userType("\b");
  EXPECT_EQ("4", text.text());
  text.setText("4");
  text.setText(std::string("7\0 junk", 7));
  EXPECT_EQ("7", text.text());
  EXPECT_EQ((std::vector<std::string>{"4", "42", "4", "7"}), events_);
}

TEST_F(RuntimeRules, DisabledOrHiddenControlsTakeNoUserInput) {
  auto& frame = form_->add<Frame>("Frame4", 7, nullptr, {});
  auto& box = form_->add<CheckBox>("net_check", 0, &frame, {});
  box.onClick = [&] { events_.push_back("click"); };
  box.setEnabled(false);
  box.userClick();
  box.setEnabled(true);
  frame.setEnabled(false);
  box.userClick();
  frame.setEnabled(true);
  frame.setVisible(false);
  box.userClick();
  EXPECT_EQ(0, box.value());
  EXPECT_TRUE(events_.empty());
  box.setValue(1); // code still reaches it
  EXPECT_EQ(1u, events_.size());
}

TEST_F(RuntimeRules, ControlsOfAnInactiveTabTakeNoUserInput) {
  auto& tabs = form_->add<TabStrip>("MainTab", -1, nullptr, {});
  tabs.setTabs(10);
  auto& page0 = form_->add<Frame>("Frame4", 5, &tabs, {});
  page0.placeOnTab(0);
  auto& page1 = form_->add<Frame>("Frame4", 7, &tabs, {});
  page1.placeOnTab(1);
  auto& box = form_->add<CheckBox>("net_check", 0, &page1, {});
  EXPECT_TRUE(page0.shown());
  EXPECT_FALSE(page1.shown());
  box.userClick();
  EXPECT_EQ(0, box.value());
  tabs.userSelectTab(1);
  EXPECT_FALSE(page0.shown());
  box.userClick();
  EXPECT_EQ(1, box.value());
}

TEST_F(RuntimeRules, TabStripClickKnowsThePreviousTab) {
  auto& tabs = form_->add<TabStrip>("MainTab", -1, nullptr, {});
  tabs.setTabs(10);
  EXPECT_EQ("Tab 3", tabs.tabCaption(3));
  tabs.onClick = [&] {
    events_.push_back(std::to_string(tabs.previousTab()) + ">" + std::to_string(tabs.tab()));
  };
  tabs.setTab(3);
  tabs.setTab(3);
  tabs.userSelectTab(0);
  EXPECT_EQ((std::vector<std::string>{"0>3", "3>0"}), events_);
  EXPECT_EQ(380, errorOf([&] { tabs.setTab(10); }));
  EXPECT_EQ(380, errorOf([&] { tabs.setTabPicture(-1, {}); }));
  tabs.setTabPicture(2, Picture{"tab2.bmp"});
  EXPECT_EQ(Picture{"tab2.bmp"}, tabs.tabPicture(2));
}

TEST_F(RuntimeRules, ControlArraysHaveGapsAndOneHandlerWithAnIndex) {
  ControlArray<CheckBox> net_check("net_check");
  for (int i = 0; i <= 21; ++i)
    if (i != 5 && i != 20) net_check.add(*form_, i, nullptr, {});
  net_check.onClick = [&](int index) { events_.push_back("net_check " + std::to_string(index)); };
  net_check(3).setValue(1);
  net_check(21).userClick();
  EXPECT_EQ((std::vector<std::string>{"net_check 3", "net_check 21"}), events_);
  EXPECT_EQ(340, errorOf([&] { net_check(5); }));
  EXPECT_EQ(340, errorOf([&] { net_check(22); }));
  EXPECT_FALSE(net_check.exists(20));
  EXPECT_EQ(20, net_check.count());
  EXPECT_EQ(0, net_check.lbound());
  EXPECT_EQ(21, net_check.ubound());
  EXPECT_EQ("net_check(3)", net_check(3).designName());
  EXPECT_EQ(&net_check(3), form_->find("net_check(3)"));
}

TEST_F(RuntimeRules, FocusOnAControlThatCantTakeItIsError5) {
  auto& text = form_->add<TextBox>("Text15", -1, nullptr, {});
  auto& label = form_->add<Label>("PLabel0", -1, nullptr, {});
  text.setFocus();
  EXPECT_TRUE(text.hasFocus());
  EXPECT_EQ(5, errorOf([&] { label.setFocus(); }));
  text.setEnabled(false);
  EXPECT_EQ(5, errorOf([&] { text.setFocus(); }));
  text.setEnabled(true);
  text.setVisible(false);
  EXPECT_EQ(5, errorOf([&] { text.setFocus(); }));
  text.setVisible(true);
  form_->hide();
  EXPECT_EQ(5, errorOf([&] { text.setFocus(); }));
}

TEST_F(RuntimeRules, ComboBoxTextMustBeOneOfTheList) {
  auto& combo = form_->add<ComboBox>("Combo1", -1, nullptr, {});
  for (const char* item : {"Default", "Fast", "Slow"})
    combo.addItem(item);
  combo.onClick = [&] { events_.push_back(combo.text()); };
  combo.setText("Fast");
  combo.setText("Fast");
  combo.userSelect(2);
  EXPECT_EQ(383, errorOf([&] { combo.setText("Fastest"); }));
  EXPECT_EQ(383, errorOf([&] { combo.setText("fast"); }));
  EXPECT_EQ(380, errorOf([&] { combo.setListIndex(3); }));
  EXPECT_EQ(381, errorOf([&] { combo.list(3); }));
  EXPECT_EQ((std::vector<std::string>{"Fast", "Slow"}), events_);
  combo.setListIndex(-1);
  EXPECT_EQ("", combo.text());
}

TEST_F(RuntimeRules, CheckMarkListFiresItemCheck) {
  auto& list = form_->add<ListBox>("prg_list", -1, nullptr, {}, true);
  list.addItem("WinZip");
  list.addItem("DirectX Drivers");
  std::vector<int> checked;
  list.onItemCheck = [&](int index) { checked.push_back(index); };
  list.setSelected(1, true);
  list.setSelected(1, true);
  list.userToggleCheck(0);
  list.userToggleCheck(0);
  EXPECT_EQ((std::vector<int>{1, 0, 0}), checked);
  EXPECT_FALSE(list.selected(0));
  EXPECT_TRUE(list.selected(1));
  list.addItem("Acrobat");
  EXPECT_FALSE(list.selected(1)); // the list was rebuilt
}

TEST_F(RuntimeRules, FileListBoxListsAFolderAndRefusesAMissingOne) {
  platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
  for (const char* name : {"rb001.cab", "RB000.CAB", "notes.txt"})
    std::ofstream(root_ + "/c/WINDOWS/SYSBCKUP/" + name) << "x";
  auto& files = form_->add<FileListBox>("File1", -1, nullptr, {});
  files.setPattern("*.cab");
  files.setPath("C:\\WINDOWS\\SYSBCKUP");
  ASSERT_EQ(2, files.listCount());
  EXPECT_EQ("RB000.CAB", files.list(0));
  EXPECT_EQ("rb001.cab", files.list(1));
  EXPECT_EQ(76, errorOf([&] { files.setPath("C:\\WINDOWS\\NOWHERE"); }));
  EXPECT_EQ("C:\\WINDOWS\\SYSBCKUP", files.path());
}

TEST_F(RuntimeRules, SpinControlStepsWithinItsRange) {
  auto& spin = form_->add<SpinControl>("UpDown1", -1, nullptr, {});
  spin.setRange(1, 5);
  spin.setIncrement(2);
  spin.setValue(1);
  spin.onChange = [&] { events_.push_back(std::to_string(spin.value())); };
  spin.userUp();
  spin.userUp();
  spin.userUp();
  spin.userDown();
  EXPECT_EQ((std::vector<std::string>{"3", "5", "3"}), events_);
  EXPECT_EQ(380, errorOf([&] { spin.setValue(6); }));
}

TEST_F(RuntimeRules, TimerTicksOnlyWhenEnabledWithAnInterval) {
  auto& timer = form_->add<Timer>("Timer1", -1, nullptr, {});
  int ticks = 0;
  timer.onTimer = [&] { ++ticks; };
  timer.tick();
  timer.setInterval(20);
  timer.tick();
  timer.setEnabled(false);
  timer.tick();
  EXPECT_EQ(1, ticks);
  EXPECT_EQ(380, errorOf([&] { timer.setInterval(-1); }));
}

TEST_F(RuntimeRules, AnErrorEscapingAUserEventShowsTheFailureBoxAndEnds) {
  auto& box = form_->add<CheckBox>("Check26", -1, nullptr, {});
  auto& after = form_->add<CheckBox>("Check27", -1, nullptr, {});
  bool ended = false;
  Application::instance().onEnd = [&] { ended = true; };
  box.onClick = [&] {
    events_.push_back("before");
    toInteger(std::string("40000"));
    events_.push_back("after");
  };
  box.userClick();
  EXPECT_TRUE(ended);
  EXPECT_TRUE(Application::instance().ended());
  EXPECT_EQ(std::vector<std::string>{"before"}, events_);
  EXPECT_EQ(1, box.value()); // what was done before the failure stays done
  const auto& boxes = platform::sim::shownMessageBoxes();
  ASSERT_EQ(1u, boxes.size());
  EXPECT_EQ("Run-time error '6':\n\nOverflow", boxes[0].text);
  EXPECT_EQ("Tweakloom 99", boxes[0].caption);
  after.userClick(); // the program has ended: nothing more runs
  EXPECT_EQ(0, after.value());
}

TEST_F(RuntimeRules, AnErrorRaisedByCodeReachesTheCaller) {
  auto& box = form_->add<CheckBox>("Check1", -1, nullptr, {});
  box.onClick = [] { raiseError(kTypeMismatch); };
  EXPECT_EQ(13, errorOf([&] { box.setValue(1); }));
  EXPECT_FALSE(Application::instance().ended());
}

TEST_F(RuntimeRules, ResumeNextSwallowsAnErrorOfANestedHandler) {
  auto& box = form_->add<CheckBox>("Check1", -1, nullptr, {});
  box.onClick = [] { raiseError(kTypeMismatch); };
  std::vector<int> steps;
  ResumeNext resume;
  resume([&] {
    box.setValue(1);
    steps.push_back(1);
  });
  resume([&] { steps.push_back(2); });
  EXPECT_EQ(std::vector<int>{2}, steps);
  EXPECT_EQ(13, Err().number);
}

TEST_F(RuntimeRules, EnterAndEscPressTheDefaultAndCancelButtons) {
  auto& ok = form_->add<CommandButton>("OKButton", -1, nullptr, {});
  auto& cancel = form_->add<CommandButton>("CancelButton", -1, nullptr, {});
  ok.setDefault(true);
  cancel.setCancel(true);
  ok.onClick = [&] { events_.push_back("ok"); };
  cancel.onClick = [&] { events_.push_back("cancel"); };
  form_->userKey(kVbKeyEscape);
  form_->userKey(kVbKeyReturn);
  ok.setEnabled(false);
  form_->userKey(kVbKeyReturn);
  EXPECT_EQ((std::vector<std::string>{"cancel", "ok"}), events_);
}

TEST_F(RuntimeRules, FormLoadsOnceAndShowHideKeepsState) {
  Form about("frmShape");
  int loads = 0;
  about.onLoad = [&] { ++loads; };
  about.show();
  about.hide();
  about.show();
  EXPECT_EQ(1, loads);
  EXPECT_TRUE(about.visible());
  about.unload();
  EXPECT_FALSE(about.loaded());
}

TEST_F(RuntimeRules, MouseMoveReportsButtonShiftAndPosition) {
  auto& picture = form_->add<PictureBox>("Picture0", 0, nullptr, {});
  float seenX = 0;
  picture.onMouseMove = [&](int, int, float x, float) { seenX = x; };
  picture.userMouseMove(0, 0, 120, 45);
  EXPECT_EQ(120, seenX);
}

// An error raised by a real operation in a user's event reaches the failure
// box with its number and its text, and the program ends.
TEST_F(RuntimeRules, AnErrorNothingCatchesShowsItsNumberAndTextInTheFailureBox) {
  auto& check = form_->add<CheckBox>("Check1", -1, nullptr, {});
  auto& list = form_->add<FileListBox>("File1", -1, nullptr, {});
  auto& combo = form_->add<ComboBox>("Combo1", -1, nullptr, {});
  const struct {
    std::function<void()> statement;
    const char* text;
  } rows[] = {
      {[] { toInteger(std::string("abc")); }, "Run-time error '13':\n\nType mismatch"},
      {[] { toInteger(40000); }, "Run-time error '6':\n\nOverflow"},
      {[] { integerDivide(1, 0); }, "Run-time error '11':\n\nDivision by zero"},
      {[&] { list.setPath("C:\\NOWHERE"); }, "Run-time error '76':\n\nPath not found"},
      {[&] { check.setValue(3); }, "Run-time error '380':\n\nInvalid property value"},
      {[&] { combo.setText("Fast"); }, "Run-time error '383':\n\n'Text' property is read-only"},
      {[&] { combo.list(4); }, "Run-time error '381':\n\nInvalid property array index"},
  };
  for (const auto& row : rows) {
    Application::instance().reset();
    bool ended = false;
    Application::instance().onEnd = [&] { ended = true; };
    const std::size_t shown = platform::sim::shownMessageBoxes().size();
    Application::instance().runEvent(row.statement);
    ASSERT_EQ(shown + 1, platform::sim::shownMessageBoxes().size()) << row.text;
    EXPECT_EQ(row.text, platform::sim::shownMessageBoxes().back().text);
    EXPECT_EQ("Tweakloom 99", platform::sim::shownMessageBoxes().back().caption);
    EXPECT_TRUE(ended) << row.text;
  }
}

TEST(WholeNumberOperators, IntegerDivisionAndModRoundTheirOperandsFirst) {
  EXPECT_EQ(2, integerDivide(7, 3));
  EXPECT_EQ(-2, integerDivide(-7, 3));
  EXPECT_EQ(4, integerDivide(8.5, 2));                // 8.5 rounds to 8
  EXPECT_EQ(5, integerDivide(9.5, 2));                // 9.5 rounds to 10
  EXPECT_EQ(3, integerDivide(std::string("7"), 2.5)); // 2.5 rounds to 2
  EXPECT_EQ(11, errorOf([] { integerDivide(1, 0.4); }));
  EXPECT_EQ(1, modulo(7, 3));
  EXPECT_EQ(-1, modulo(-7, 3));
  EXPECT_EQ(0, modulo(59.5, 60));  // 59.5 rounds to 60
  EXPECT_EQ(58, modulo(58.5, 60)); // 58.5 rounds to 58
  EXPECT_EQ(11, errorOf([] { modulo(5, 0); }));
}

} // namespace
