// The keyboard of the form runtime: tab order by tab index, tab stops, the
// option groups, access keys, Enter, Esc and Space, Ctrl+Tab on a tab strip,
// and where the focus goes when its control can no longer take it.
#include "runtime/application.h"
#include "runtime/form.h"
#include "tests/host/sim_fixture.h"

#include <memory>
#include <string>
#include <vector>

using namespace runtime;

namespace {

class Keyboard : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    form_ = std::make_unique<Form>("Dialog");
    form_->setClientSize(6000, 4000);
  }
  template <class T> T& add(const std::string& name, Control* container = nullptr) {
    return form_->add<T>(name, -1, container, {100, 100 + 300 * count_++, 1000, 250});
  }
  std::vector<std::string> order() {
    std::vector<std::string> names;
    for (Control* control : form_->tabStops())
      names.push_back(control->designName());
    return names;
  }
  std::string focused() {
    return form_->activeControl() ? form_->activeControl()->designName() : "";
  }
  std::unique_ptr<Form> form_;
  std::vector<std::string> events_;
  int count_ = 0;
};

TEST_F(Keyboard, TabIndexFollowsCreationOrderAndSettingOneMovesTheOthers) {
  auto& a = add<TextBox>("a");
  auto& b = add<CheckBox>("b");
  auto& c = add<CommandButton>("c");
  EXPECT_EQ(0, a.tabIndex());
  EXPECT_EQ(1, b.tabIndex());
  EXPECT_EQ(2, c.tabIndex());
  c.setTabIndex(0);
  EXPECT_EQ(0, c.tabIndex());
  EXPECT_EQ(1, a.tabIndex());
  EXPECT_EQ(2, b.tabIndex());
  form_->show();
  a.setTabIndex(99); // past the end: last
  EXPECT_EQ(2, a.tabIndex());
  EXPECT_EQ((std::vector<std::string>{"c", "b", "a"}), order());
  EXPECT_EQ(380, errorOf([&] { a.setTabIndex(-1); }));
}

TEST_F(Keyboard, TabStopsAreEnabledShownTabStopsOnTheClientArea) {
  auto& label = add<Label>("label");
  auto& text = add<TextBox>("text");
  auto& off = add<CheckBox>("off");
  auto& hidden = add<CheckBox>("hidden");
  auto& notStop = add<CommandButton>("notStop");
  auto& picture = add<PictureBox>("picture");
  auto& button = add<PictureBox>("button");
  auto& image = add<Image>("image");
  auto& outside = form_->add<TextBox>("outside", -1, nullptr, {7000, 100, 1000, 250});
  auto& frame = add<Frame>("frame");
  auto& inFrame = form_->add<CheckBox>("inFrame", -1, &frame, {100, 100, 500, 200});
  off.setEnabled(false);
  hidden.setVisible(false);
  notStop.setTabStop(false);
  button.setTabStop(true);
  image.setTabStop(true);
  (void)label, (void)text, (void)picture, (void)outside;
  form_->show();
  EXPECT_EQ((std::vector<std::string>{"text", "button", "inFrame"}), order());
  frame.setEnabled(false); // a disabled container takes its controls out
  EXPECT_EQ((std::vector<std::string>{"text", "button"}), order());
  (void)inFrame;
}

TEST_F(Keyboard, TabAndShiftTabGoRoundTheStops) {
  add<TextBox>("a");
  add<CheckBox>("b");
  add<CommandButton>("c");
  form_->show();
  EXPECT_EQ("a", focused()); // the first stop has the focus when the form shows
  form_->userNavigationKey(kVbKeyTab, 0);
  EXPECT_EQ("b", focused());
  form_->userNavigationKey(kVbKeyTab, 0);
  form_->userNavigationKey(kVbKeyTab, 0);
  EXPECT_EQ("a", focused());
  form_->userNavigationKey(kVbKeyTab, kShiftMask);
  EXPECT_EQ("c", focused());
}

TEST_F(Keyboard, AnOptionGroupIsOneStopAndArrowsSelectInIt) {
  auto& before = add<CheckBox>("before");
  auto& group = add<Frame>("group");
  auto& one = form_->add<OptionButton>("one", -1, &group, {100, 100, 500, 200});
  auto& two = form_->add<OptionButton>("two", -1, &group, {100, 400, 500, 200});
  auto& three = form_->add<OptionButton>("three", -1, &group, {100, 700, 500, 200});
  auto& after = add<OptionButton>("after"); // a group of its own, on the form
  for (auto* option : {&one, &two, &three})
    option->onClick = [&, option] { events_.push_back(option->name()); };
  (void)before, (void)after;
  form_->show();
  // None selected: the group's first button is the stop.
  EXPECT_EQ((std::vector<std::string>{"before", "one", "after"}), order());
  two.setValue(true);
  events_.clear();
  EXPECT_EQ((std::vector<std::string>{"before", "two", "after"}), order());
  two.setFocus();
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyDown, 0));
  EXPECT_EQ("three", focused());
  EXPECT_TRUE(three.value());
  EXPECT_FALSE(two.value());
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyRight, 0));
  EXPECT_EQ("one", focused()); // round to the first
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyLeft, 0));
  EXPECT_EQ("three", focused());
  // Each move selects, and the Click handler runs as for a click.
  EXPECT_EQ((std::vector<std::string>{"three", "one", "three"}), events_);
  // A disabled option is passed over.
  one.setEnabled(false);
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyDown, 0));
  EXPECT_EQ("two", focused());
  // Arrows on anything else are the control's own.
  before.setFocus();
  EXPECT_FALSE(form_->userNavigationKey(kVbKeyDown, 0));
}

TEST_F(Keyboard, SpaceTurnsACheckBoxOverAndPressesButtons) {
  auto& check = add<CheckBox>("check");
  auto& button = add<CommandButton>("button");
  auto& picture = add<PictureBox>("picture");
  auto& text = add<TextBox>("text");
  picture.setTabStop(true);
  button.onClick = [&] { events_.push_back("button"); };
  picture.onClick = [&] { events_.push_back("picture"); };
  form_->show();
  check.setFocus();
  EXPECT_TRUE(form_->userNavigationKey(kVbKeySpace, 0));
  EXPECT_EQ(1, check.value());
  EXPECT_TRUE(form_->userNavigationKey(kVbKeySpace, 0));
  EXPECT_EQ(0, check.value());
  button.setFocus();
  EXPECT_TRUE(form_->userNavigationKey(kVbKeySpace, 0));
  picture.setFocus();
  EXPECT_TRUE(form_->userNavigationKey(kVbKeySpace, 0));
  text.setFocus();
  EXPECT_FALSE(form_->userNavigationKey(kVbKeySpace, 0)); // the text box types it
  EXPECT_EQ((std::vector<std::string>{"button", "picture"}), events_);
}

TEST_F(Keyboard, EnterPressesTheFocusedButtonElseTheDefaultOnly) {
  auto& text = add<TextBox>("text");
  auto& ok = add<CommandButton>("ok");
  auto& other = add<CommandButton>("other");
  auto& cancel = add<CommandButton>("cancel");
  ok.onClick = [&] { events_.push_back("ok"); };
  other.onClick = [&] { events_.push_back("other"); };
  cancel.onClick = [&] { events_.push_back("cancel"); };
  cancel.setCancel(true);
  form_->show();
  text.setFocus();
  // No default button in the design: Enter in the text box does nothing.
  EXPECT_FALSE(form_->userKey(kVbKeyReturn));
  other.setFocus();
  EXPECT_TRUE(form_->userKey(kVbKeyReturn));
  EXPECT_TRUE(form_->userKey(kVbKeyEscape));
  ok.setDefault(true);
  text.setFocus();
  EXPECT_TRUE(form_->userKey(kVbKeyReturn));
  ok.setEnabled(false);
  EXPECT_FALSE(form_->userKey(kVbKeyReturn));
  cancel.setVisible(false);
  EXPECT_FALSE(form_->userKey(kVbKeyEscape));
  EXPECT_EQ((std::vector<std::string>{"other", "cancel", "ok"}), events_);
}

TEST_F(Keyboard, AccessKeysActOnTheControlWithThatLetter) {
  auto& label = add<Label>("label");
  auto& text = add<TextBox>("text");
  auto& check = add<CheckBox>("check");
  auto& option = add<OptionButton>("option");
  auto& button = add<CommandButton>("button");
  auto& amp = add<CommandButton>("amp");
  label.setCaption("&Name:");
  check.setCaption("&Beep");
  option.setCaption("Fa&st");
  button.setCaption("&OK");
  amp.setCaption("Tom && Jerry");
  button.onClick = [&] { events_.push_back("button"); };
  amp.onClick = [&] { events_.push_back("amp"); };
  EXPECT_EQ('n', label.accessKey());
  EXPECT_EQ('s', option.accessKey());
  EXPECT_EQ(0, amp.accessKey());
  form_->show();
  EXPECT_TRUE(form_->userAccessKey('N')); // a label sends the focus on
  EXPECT_EQ("text", focused());
  EXPECT_TRUE(form_->userAccessKey('b'));
  EXPECT_EQ(1, check.value());
  EXPECT_EQ("check", focused());
  EXPECT_TRUE(form_->userAccessKey('s'));
  EXPECT_TRUE(option.value());
  EXPECT_TRUE(form_->userAccessKey('o'));
  EXPECT_FALSE(form_->userAccessKey('j'));
  EXPECT_FALSE(form_->userAccessKey('&'));
  check.setEnabled(false);
  EXPECT_FALSE(form_->userAccessKey('b'));
  EXPECT_EQ((std::vector<std::string>{"button"}), events_);
  (void)text;
}

TEST_F(Keyboard, CtrlTabTurnsTheTabStripAndRunsItsClickHandler) {
  auto& strip = form_->add<TabStrip>("strip", -1, nullptr, {0, 0, 5000, 3000});
  strip.setTabs(3);
  auto& first = form_->add<CheckBox>("first", -1, &strip, {100, 100, 500, 200});
  auto& second = form_->add<CheckBox>("second", -1, &strip, {100, 100, 500, 200});
  first.placeOnTab(0);
  second.placeOnTab(1);
  strip.onClick = [&] { events_.push_back(std::to_string(strip.tab())); };
  form_->show();
  first.setFocus();
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyTab, kCtrlMask));
  EXPECT_EQ(1, strip.tab());
  // The control with the focus went to the back: the focus is on the page
  // in front now.
  EXPECT_TRUE(form_->activeControl()->shown());
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyTab, kCtrlMask));
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyTab, kCtrlMask)); // round to 0
  EXPECT_TRUE(form_->userNavigationKey(kVbKeyTab, kCtrlMask | kShiftMask));
  EXPECT_EQ((std::vector<std::string>{"1", "2", "0", "2"}), events_);
  strip.setEnabled(false);
  EXPECT_FALSE(form_->userNavigationKey(kVbKeyTab, kCtrlMask));
  (void)second;
}

TEST_F(Keyboard, TheFocusMovesOnWhenItsControlIsDisabledOrHidden) {
  auto& a = add<CheckBox>("a");
  auto& b = add<CheckBox>("b");
  auto& c = add<CheckBox>("c");
  form_->show();
  a.setFocus();
  a.setEnabled(false);
  EXPECT_EQ("b", focused());
  b.setVisible(false);
  EXPECT_EQ("c", focused());
  (void)c;
}

TEST_F(Keyboard, NoKeyActsWhileTheFailureBoxIsUp) {
  auto& check = add<CheckBox>("check");
  auto& cancel = add<CommandButton>("cancel");
  cancel.setCancel(true);
  cancel.onClick = [] { raiseError(kTypeMismatch); };
  form_->show();
  check.setFocus();
  bool inBox = false;
  Application::instance().beforeFailureBox = [&] {
    inBox = true;
    EXPECT_FALSE(form_->userNavigationKey(kVbKeySpace, 0));
    EXPECT_FALSE(form_->userNavigationKey(kVbKeyTab, 0));
    EXPECT_FALSE(form_->userAccessKey('c'));
    EXPECT_FALSE(form_->userKey(kVbKeyEscape));
  };
  form_->userKey(kVbKeyEscape);
  EXPECT_TRUE(inBox);
  EXPECT_EQ(0, check.value());
  EXPECT_EQ("check", focused());
  EXPECT_TRUE(Application::instance().ended());
}

TEST_F(Keyboard, ResizeComesWhenTheFormShowsAndWhenItsSizeOrStateChanges) {
  int resizes = 0;
  form_->onResize = [&] { ++resizes; };
  form_->load();
  EXPECT_EQ(0, resizes);
  form_->show();
  EXPECT_EQ(1, resizes);
  form_->hide();
  form_->show();
  EXPECT_EQ(1, resizes); // only the first showing after a load
  form_->setWindowState(1);
  EXPECT_EQ(2, resizes);
  form_->userResized(form_->width() + 150, form_->height());
  EXPECT_EQ(3, resizes);
  form_->userResized(form_->width(), form_->height()); // no change
  EXPECT_EQ(3, resizes);
}

TEST_F(Keyboard, ATimerTicksOnlyOnceItsFormsLoadHasRun) {
  auto& timer = add<Timer>("Timer1");
  timer.setInterval(20);
  int ticks = 0;
  timer.onTimer = [&] { ++ticks; };
  bool runningInLoad = true;
  form_->onLoad = [&] {
    runningInLoad = timer.running();
    timer.tick();
  };
  timer.tick();
  EXPECT_EQ(0, ticks);
  form_->load();
  EXPECT_FALSE(runningInLoad);
  EXPECT_EQ(0, ticks);
  timer.tick();
  EXPECT_EQ(1, ticks);
  form_->unload();
  timer.tick();
  EXPECT_EQ(1, ticks);
}

} // namespace
