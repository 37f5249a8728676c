// The VeldSlider: its arithmetic as plain functions (drag, snap, push, page,
// read-outs), and the control built from runtime controls, driven through
// its constituent controls' mouse and timer events.
#include "controls/veld_slider.h"
#include "runtime/application.h"
#include "tests/host/sim_fixture.h"

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

using namespace controls;
using runtime::Application;

namespace {

constexpr int kLeft = 1, kRight = 2;

// A logic loaded from a property bag, as the host loads an instance.
VeldSliderLogic loaded(std::int16_t min, std::int16_t max, std::int16_t mode,
                       const std::string& captionString = "") {
  VeldSliderLogic s;
  s.readMin(min);
  s.readMax(max);
  s.readCaption("");
  s.readEnabled(true);
  s.readCaptionString(captionString);
  s.readDisplayStatus(mode);
  return s;
}

// A drag as the mouse makes it: moves over the knob with the left button to
// a strip position (the knob centre's X in its strip), ticks of the timer,
// and the release there.
void drag(VeldSliderLogic& s, int knob, double stripX, int button = kLeft, int ticks = 3) {
  const SliderParts& p = s.parts();
  const auto inKnob = [&] { return static_cast<float>(stripX - p.knobLeft[knob]); };
  s.knobMouseMove(knob, button, inKnob());
  for (int i = 0; i < ticks; ++i) {
    s.timerTick();
    s.knobMouseMove(knob, button, inKnob());
  }
  s.knobMouseUp(knob, inKnob());
}

// Strip X of a knob's centre at a track position.
double stripXOf(double position) { return position + kTrackLeft; }

TEST(VeldSliderLogicTest, InitializeCentresTheKnobsAndTakesTheirValues) {
  VeldSliderLogic s;
  EXPECT_EQ(860, s.parts().knobLeft[0]);
  EXPECT_EQ(105, s.parts().knobTop[0]);
  EXPECT_EQ(860, s.parts().knobLeft[1]);
  EXPECT_FLOAT_EQ(780.0f, s.pos_min);
  EXPECT_EQ(780, s.pos_max);
  EXPECT_DOUBLE_EQ(2496, s.val_min);
  EXPECT_DOUBLE_EQ(2496, s.val_max);
  EXPECT_FALSE(s.parts().timerEnabled);
  EXPECT_EQ(20, s.parts().timerInterval);
  EXPECT_EQ("", s.parts().frameCaption[0]); // show_mode 0: no upper read-out
  EXPECT_EQ("2496", s.parts().frameCaption[1]);
}

TEST(VeldSliderLogicTest, ConversionsUseTheirConstants) {
  EXPECT_DOUBLE_EQ(1024, VeldSliderLogic::valueOf(320));
  EXPECT_DOUBLE_EQ(10240, VeldSliderLogic::valueOf(3200));
  EXPECT_DOUBLE_EQ(960, VeldSliderLogic::positionOf(3072));
  EXPECT_DOUBLE_EQ(1.25, VeldSliderLogic::positionOf(4));
}

TEST(VeldSliderLogicTest, LoadingSetsTheKnobsBeforeTheDisplayModeArrives) {
  VeldSliderLogic s;
  s.readCaption("stored");
  s.readMin(2048);
  // show_mode is still 0: the upper read-out keeps what was stored.
  EXPECT_EQ("stored", s.parts().frameCaption[0]);
  s.readDisplayStatus(1);
  EXPECT_EQ("stored", s.parts().frameCaption[0]);
  s.setMin(2048);
  EXPECT_EQ("2048", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, SettersPlaceTheKnobAndUpdateTheReadouts) {
  VeldSliderLogic s = loaded(0, 0, 1);
  s.set_caption_string(" Bytes");
  EXPECT_EQ("", s.parts().frameCaption[0]); // loaded with show_mode 0; no update since
  s.setMin(2048);
  s.setMax(8192);
  EXPECT_EQ(2048, s.min());
  EXPECT_EQ(8192, s.max());
  EXPECT_EQ(640 - 100 + 180, s.parts().knobLeft[0]);
  EXPECT_EQ(2560 - 100 + 180, s.parts().knobLeft[1]);
  EXPECT_EQ("2048 Bytes", s.parts().frameCaption[0]);
  EXPECT_EQ("8192 Bytes", s.parts().frameCaption[1]);
  EXPECT_EQ("Text2", s.parts().text2); // setting a property raises no Change
}

TEST(VeldSliderLogicTest, MultiplierReadoutDividesBy512InGeneralForm) {
  VeldSliderLogic s = loaded(0, 0, 2);
  s.setMin(4096);
  EXPECT_EQ("RWIN Multiplier = 8", s.parts().frameCaption[0]);
  s.setMin(3328);
  EXPECT_EQ("RWIN Multiplier = 6.5", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, MinAboveMaxStaysSoUntilAMouseRelease) {
  VeldSliderLogic s = loaded(0, 0, 1);
  s.setMax(1024);
  s.setMin(4096);
  EXPECT_EQ(4096, s.min());
  EXPECT_EQ(1024, s.max());
  EXPECT_GT(s.parts().knobLeft[0], s.parts().knobLeft[1]);
}

TEST(VeldSliderLogicTest, MultiplierDragToTheFarRightEndsAt10240) {
  VeldSliderLogic s = loaded(0, 0, 2);
  s.setMin(4096);
  drag(s, 0, 5000);                       // well past the right end
  EXPECT_EQ(3280, s.parts().knobLeft[0]); // held at 3288 by the limit, snapped back 8
  EXPECT_FLOAT_EQ(3200.0f, s.pos_min);
  EXPECT_EQ(10240, s.min());
  EXPECT_EQ("RWIN Multiplier = 20", s.parts().frameCaption[0]);
  EXPECT_EQ("10240", s.parts().text2);
}

TEST(VeldSliderLogicTest, MultiplierDragToTheFarLeftEndsAt3072) {
  VeldSliderLogic s = loaded(0, 0, 2);
  s.setMin(8192);
  drag(s, 0, -500);
  EXPECT_FLOAT_EQ(960.0f, s.pos_min);
  EXPECT_EQ(3072, s.min());
  EXPECT_EQ("RWIN Multiplier = 6", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, DragLimitsOfBothKnobs) {
  VeldSliderLogic s = loaded(0, 0, 1);
  s.knobMouseMove(0, kLeft, 9000);
  s.timerTick();
  EXPECT_EQ(3288, s.parts().knobLeft[0]); // knob 0 goes 8 twips further
  s.knobMouseMove(0, kLeft, -9000 - 3288.0f);
  s.timerTick();
  EXPECT_EQ(80, s.parts().knobLeft[0]);
  s.knobMouseMove(1, kLeft, 9000);
  s.timerTick();
  EXPECT_EQ(3280, s.parts().knobLeft[1]);
  s.knobMouseMove(1, kLeft, -9000 - 3280.0f);
  s.timerTick();
  EXPECT_EQ(80, s.parts().knobLeft[1]);
  VeldSliderLogic m = loaded(4096, 0, 2);
  m.knobMouseMove(0, kLeft, -5000);
  m.timerTick();
  EXPECT_EQ(1040, m.parts().knobLeft[0]); // the raised left limit, multiplier 6
}

TEST(VeldSliderLogicTest, DuringTheDragOnlyTheKnobMoves) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.setMin(2048); // the upper read-out shows from the first set after loading
  const SliderParts& p = s.parts();
  s.knobMouseMove(0, kLeft, static_cast<float>(100 + 320)); // one step right of the centre
  EXPECT_TRUE(p.timerEnabled);
  EXPECT_EQ(720, p.knobLeft[0]); // the move only stores the target
  s.timerTick();
  EXPECT_EQ(1040, p.knobLeft[0]);
  EXPECT_EQ(2048, s.min());
  EXPECT_EQ("2048", p.frameCaption[0]);
  // The target is the centre where the mouse is, rounded half to even.
  s.knobMouseMove(0, kLeft, 100.5f);
  s.timerTick();
  EXPECT_EQ(1040, p.knobLeft[0]);
  s.knobMouseMove(0, kLeft, 101.5f);
  s.timerTick();
  EXPECT_EQ(1042, p.knobLeft[0]);
}

TEST(VeldSliderLogicTest, ReleaseSnapsUpFromMoreThanHalfAStep) {
  // Whole twips give values of 3.2 units a step: 3587 (3072 + 515) is the
  // nearest above the half step, and it snaps up.
  VeldSliderLogic s = loaded(3072, 10240, 2);
  drag(s, 0, stripXOf(1121));
  EXPECT_EQ(4096, s.min());
  EXPECT_FLOAT_EQ(1280.0f, s.pos_min);
}

TEST(VeldSliderLogicTest, ReleaseSnapsDownFromLessThanHalfAStep) {
  VeldSliderLogic s = loaded(3072, 10240, 2);
  drag(s, 0, stripXOf(1119)); // 3581, 3072 + 509
  EXPECT_EQ(3072, s.min());
  EXPECT_EQ("RWIN Multiplier = 6", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, ReleaseAtExactlyHalfAStepStays) {
  VeldSliderLogic s = loaded(3072, 10240, 2);
  drag(s, 0, stripXOf(1120)); // 3584, 3072 + 512
  EXPECT_EQ(3584, s.min());
  EXPECT_EQ("RWIN Multiplier = 7", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, EveryWholeTwipSnapsToAStepOrAHalfStep) {
  for (int position = 0; position <= 3200; ++position) {
    VeldSliderLogic s = loaded(0, 10240, 1);
    drag(s, 0, stripXOf(position), kLeft, 1);
    const int value = s.min();
    EXPECT_TRUE(value % 1024 == 0 || value % 1024 == 512) << position << " -> " << value;
    EXPECT_LE(std::abs(value - position * 3.2), 512.5) << position;
  }
}

TEST(VeldSliderLogicTest, MinOfFourPutsTheKnobBelowTheDragLimit) {
  VeldSliderLogic s = loaded(0, 0, 2);
  s.setMin(4);
  EXPECT_FLOAT_EQ(1.25f, s.pos_min);
  EXPECT_EQ(81, s.parts().knobLeft[0]); // 1.25 - 100 + 180, kept in whole twips
  EXPECT_EQ(4, s.min());
  EXPECT_LT(s.parts().knobLeft[0], 1040);
  // The limit binds the mouse: the first tick of a drag lifts the knob to it.
  s.knobMouseMove(0, kLeft, 0);
  s.timerTick();
  EXPECT_EQ(1040, s.parts().knobLeft[0]);
}

TEST(VeldSliderLogicTest, TheRightButtonMovesNothing) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.knobMouseMove(0, kRight, 1500);
  EXPECT_EQ(2, s.drag_button);
  EXPECT_TRUE(s.parts().timerEnabled);
  s.timerTick();
  s.timerTick();
  EXPECT_EQ(720, s.parts().knobLeft[0]);
}

TEST(VeldSliderLogicTest, AMoveWithNoButtonStartsTheTimerAndTicksDoNothing) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.knobMouseMove(1, 0, 1500);
  EXPECT_TRUE(s.parts().timerEnabled);
  EXPECT_EQ(2, s.drag_knob);
  s.timerTick();
  EXPECT_EQ(2560 - 100 + 180, s.parts().knobLeft[1]);
}

TEST(VeldSliderLogicTest, PressingAKnobAloneHasNoEffect) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.knobMouseDown(0, 50);
  EXPECT_EQ(720, s.parts().knobLeft[0]);
  EXPECT_FALSE(s.parts().timerEnabled);
  EXPECT_EQ(0, s.drag_knob);
}

TEST(VeldSliderLogicTest, ReleaseStopsTheTimer) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  drag(s, 0, stripXOf(1280));
  EXPECT_FALSE(s.parts().timerEnabled);
  EXPECT_EQ(4096, s.min());
}

TEST(VeldSliderLogicTest, KnobOneDraggedLeftOfKnobZeroPushesItAndChanges) {
  VeldSliderLogic s = loaded(4096, 8192, 1);
  drag(s, 1, stripXOf(640));
  EXPECT_EQ(2048, s.max());
  EXPECT_EQ(2048, s.min());
  EXPECT_EQ(s.parts().knobLeft[0], s.parts().knobLeft[1]);
  EXPECT_EQ("2048", s.parts().text2); // Text2 changes: Change is raised
}

TEST(VeldSliderLogicTest, KnobOneDraggedRightRaisesNoChange) {
  VeldSliderLogic s = loaded(4096, 4096, 1);
  drag(s, 0, stripXOf(1280)); // a release of knob 0 that changes nothing: Text2 "4096"
  ASSERT_EQ("4096", s.parts().text2);
  drag(s, 1, stripXOf(2560));
  EXPECT_EQ(8192, s.max());
  EXPECT_EQ(4096, s.min());
  EXPECT_EQ("4096", s.parts().text2); // same text: no Change
}

TEST(VeldSliderLogicTest, KnobZeroDraggedRightOfKnobOnePushesIt) {
  VeldSliderLogic s = loaded(1024, 2048, 1);
  drag(s, 0, stripXOf(1920));
  EXPECT_EQ(6144, s.min());
  EXPECT_EQ(6144, s.max());
  EXPECT_EQ("6144", s.parts().frameCaption[1]);
}

TEST(VeldSliderLogicTest, APressRightOfTheKnobPagesOneStep) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.stripMouseDown(0, 3000);
  EXPECT_EQ(720 + 320, s.parts().knobLeft[0]);
  EXPECT_EQ(2048, s.min()); // values follow on the release
  s.stripMouseUp(0);
  EXPECT_EQ(3072, s.min());
  EXPECT_EQ("3072", s.parts().text2);
  EXPECT_EQ("3072", s.parts().frameCaption[0]);
}

TEST(VeldSliderLogicTest, APressLeftOfTheKnobPagesOneStepAndWritesTheDebugText) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  s.stripMouseDown(0, 200);
  EXPECT_EQ(720 - 320, s.parts().knobLeft[0]);
  EXPECT_EQ("mousex = 7.5", s.parts().text1);
  EXPECT_FLOAT_EQ(7.5f, s.track_x);
  s.stripMouseUp(0);
  EXPECT_EQ(1024, s.min());
}

TEST(VeldSliderLogicTest, APressOnTheTrackAddsTheTrackOffset) {
  VeldSliderLogic s = loaded(2048, 8192, 1);
  // Track X 100 is strip X 280: left of the knob at 640.
  s.trackMouseDown(0, 100);
  EXPECT_FLOAT_EQ(100 - 192.5f + 180, s.track_x);
  EXPECT_EQ(400, s.parts().knobLeft[0]);
  EXPECT_EQ("Text1", s.parts().text1); // only a press on the strip writes it
}

TEST(VeldSliderLogicTest, PagingLeftOfAMultiplierKnobAt960DoesNothing) {
  VeldSliderLogic s = loaded(3072, 0, 2);
  ASSERT_FLOAT_EQ(960.0f, s.pos_min);
  s.stripMouseDown(0, 300);
  EXPECT_EQ(1040, s.parts().knobLeft[0]);
  EXPECT_EQ("Text1", s.parts().text1);
  s.stripMouseUp(0);
  EXPECT_EQ(3072, s.min());
}

TEST(VeldSliderLogicTest, MultiplierPagingLeftStopsAt960FromAbove1024) {
  VeldSliderLogic s = loaded(4096, 0, 2); // position 1280
  s.stripMouseDown(0, 300);
  s.stripMouseUp(0);
  EXPECT_FLOAT_EQ(960.0f, s.pos_min);
  EXPECT_EQ("RWIN Multiplier = 6", s.parts().frameCaption[0]);
  // From position 1100 (above 1024, not a step) a page lands at 780.
  VeldSliderLogic m = loaded(3520, 0, 2);
  m.stripMouseDown(0, 300);
  m.stripMouseUp(0);
  EXPECT_FLOAT_EQ(780.0f, m.pos_min);
}

TEST(VeldSliderLogicTest, PagingStopsAtTheEndsAndKeepsAnOffset) {
  VeldSliderLogic s = loaded(10240, 10240, 1);
  s.stripMouseDown(1, 3500);
  s.stripMouseUp(1);
  EXPECT_EQ(10240, s.max()); // position 3200: no step right
  VeldSliderLogic z = loaded(0, 0, 1);
  z.stripMouseDown(1, 10);
  z.stripMouseUp(1);
  EXPECT_EQ(0, z.max());
  // From a position set by value, steps keep the offset.
  VeldSliderLogic o = loaded(100, 10240, 1);
  o.stripMouseDown(0, 3000);
  o.stripMouseUp(0);
  EXPECT_NEAR(1123.2, o.val_min, 0.001); // position 31 (Left 111) plus one step
}

TEST(VeldSliderLogicTest, PagingKnobZeroPastKnobOnePushesItOnRelease) {
  VeldSliderLogic s = loaded(4096, 4096, 1);
  s.stripMouseDown(0, 3000);
  s.stripMouseUp(0);
  EXPECT_EQ(5120, s.min());
  EXPECT_EQ(5120, s.max());
  VeldSliderLogic t = loaded(4096, 4096, 1);
  t.trackMouseDown(1, 10);
  t.stripMouseUp(1);
  EXPECT_EQ(3072, t.max());
  EXPECT_EQ(3072, t.min());
  EXPECT_EQ("3072", t.parts().text2);
}

TEST(VeldSliderLogicTest, DisablingShowsTheDisabledFaceAndEnabledStillAnswersTrue) {
  VeldSliderLogic s = loaded(0, 0, 1);
  EXPECT_EQ(KnobFace::First, s.parts().knobFace[0]);
  s.setEnabled(false);
  EXPECT_EQ(KnobFace::Disabled, s.parts().knobFace[0]);
  EXPECT_EQ(KnobFace::Disabled, s.parts().knobFace[1]);
  EXPECT_FALSE(s.parts().frameEnabled[0]);
  EXPECT_FALSE(s.parts().frameEnabled[1]);
  EXPECT_TRUE(s.Enabled());
  s.setEnabled(true);
  EXPECT_EQ(KnobFace::Enabled, s.parts().knobFace[1]);
  EXPECT_TRUE(s.parts().frameEnabled[0]);
  // A stored False is the answer, and greys nothing.
  VeldSliderLogic f;
  f.readEnabled(false);
  EXPECT_FALSE(f.Enabled());
  EXPECT_TRUE(f.parts().frameEnabled[0]);
}

// ---- The control on a form -------------------------------------------------

class VeldSliderControl : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    Application::instance().reset();
    form_ = std::make_unique<runtime::Form>("FMain");
    form_->show();
  }
  VeldSlider& make(const VeldSliderProperties& stored, int height = kTwoStripHeight) {
    slider_ = std::make_unique<VeldSlider>(*form_, "sl", nullptr,
                                           runtime::Bounds{100, 100, kSliderWidth, height}, stored);
    slider_->onChange = [this] { ++changes_; };
    return *slider_;
  }
  // A left-button drag of knob(index) to a strip X, through the knob's events.
  void mouseDrag(VeldSlider& s, int index, double stripX) {
    runtime::Image& k = s.knob(index);
    k.userMouseDown(kLeft, 0, 10, 10);
    for (int i = 0; i < 4; ++i) {
      k.userMouseMove(kLeft, 0, static_cast<float>(stripX - k.left()), 10);
      s.Timer1().tick();
    }
    k.userMouseUp(kLeft, 0, static_cast<float>(stripX - k.left()), 10);
  }
  std::unique_ptr<runtime::Form> form_;
  std::unique_ptr<VeldSlider> slider_;
  int changes_ = 0;
};

TEST_F(VeldSliderControl, ConstituentControlsCarryTheirDesignNamesBelowTheInstance) {
  VeldSlider& s = make({.display_status = 1});
  EXPECT_EQ("sl", s.host().designName());
  EXPECT_EQ(runtime::ControlKind::UserControlHost, s.host().kind());
  for (const char* name :
       {"Frame1(0)", "Frame1(1)", "knob(2)", "knob(3)", "Text1", "Text2", "Picture1", "Timer1"}) {
    runtime::Control* part = form_->find(name);
    ASSERT_NE(nullptr, part) << name;
    EXPECT_EQ(&s.host(), part->container()) << name;
  }
  EXPECT_EQ(&s.Frame1(1), s.knob(1).container());
  EXPECT_EQ(&s.Frame1(0), s.slider_back(0).container());
  EXPECT_EQ("knob(1)", s.knob(1).designName());
  EXPECT_EQ("Text1", s.Text1().text());
  EXPECT_EQ("Text2", s.Text2().text());
  EXPECT_EQ(std::string(kTrackPicture), s.slider_back(1).picture().resource);
  EXPECT_EQ(std::string(kKnobDisabledFace), s.knob(2).picture().resource);
  EXPECT_EQ(std::string(kKnobEnabledFace), s.knob(3).picture().resource);
  // The track lies under the knob: it is created first.
  const auto& all = form_->controls();
  const auto at = [&](const runtime::Control* c) {
    for (std::size_t i = 0; i < all.size(); ++i)
      if (all[i].get() == c) return i;
    return all.size();
  };
  EXPECT_LT(at(&s.slider_back(0)), at(&s.knob(0)));
}

TEST_F(VeldSliderControl, ReadoutsAreTheStripCaptions) {
  VeldSlider& s = make({.display_status = 1});
  s.set_caption_string(" Bytes");
  s.setMin(2048);
  s.setMax(8192);
  EXPECT_EQ("2048 Bytes", s.Frame1(0).caption());
  EXPECT_EQ("8192 Bytes", s.Frame1(1).caption());
  EXPECT_EQ("2048 Bytes", s.caption(0));
  EXPECT_EQ(640 - 100 + 180, s.knob(0).left());
  EXPECT_EQ(0, changes_);
  s.setCaption(1, "x");
  EXPECT_EQ("x", s.Frame1(1).caption());
  EXPECT_EQ(340, errorOf([&] { s.setCaption(2, "y"); }));
}

TEST_F(VeldSliderControl, AMouseDragMovesTheKnobAndSnapsOnRelease) {
  VeldSlider& s = make({.display_status = 1});
  s.setMin(2048);
  s.setMax(10240);
  s.knob(0).userMouseMove(kLeft, 0, 100, 10);
  EXPECT_TRUE(s.Timer1().enabled());
  EXPECT_EQ(20, s.Timer1().interval());
  mouseDrag(s, 0, stripXOf(1290));
  EXPECT_EQ(4096, s.min());
  EXPECT_EQ(1280 - 100 + 180, s.knob(0).left());
  EXPECT_EQ("4096", s.Frame1(0).caption());
  EXPECT_EQ("4096", s.Text2().text());
  EXPECT_FALSE(s.Timer1().enabled());
  EXPECT_EQ(1, changes_);
}

TEST_F(VeldSliderControl, KnobOnePushingKnobZeroRaisesChangeMovingRightDoesNot) {
  VeldSlider& s = make({.display_status = 1});
  s.setMin(4096);
  s.setMax(6144);
  mouseDrag(s, 1, stripXOf(2560));
  EXPECT_EQ(8192, s.max());
  EXPECT_EQ(1, changes_); // Text2 goes from "Text2" to "4096"
  mouseDrag(s, 1, stripXOf(3200));
  EXPECT_EQ(10240, s.max());
  EXPECT_EQ(1, changes_);
  mouseDrag(s, 1, stripXOf(640));
  EXPECT_EQ(2048, s.min());
  EXPECT_EQ(2048, s.max());
  EXPECT_EQ(2, changes_);
}

TEST_F(VeldSliderControl, ADisabledSliderTakesNoMouseAndShowsTheDisabledFace) {
  VeldSlider& s = make({.display_status = 1});
  s.setMin(2048);
  s.setEnabled(false);
  EXPECT_FALSE(s.Frame1(0).enabled());
  EXPECT_FALSE(s.Frame1(1).enabled());
  EXPECT_EQ(std::string(kKnobDisabledFace), s.knob(0).picture().resource);
  EXPECT_EQ(std::string(kKnobDisabledFace), s.knob(1).picture().resource);
  EXPECT_TRUE(s.Enabled());
  mouseDrag(s, 0, stripXOf(2560));
  s.Frame1(0).userMouseDown(kLeft, 0, 3000, 100);
  s.Frame1(0).userMouseUp(kLeft, 0, 3000, 100);
  EXPECT_EQ(2048, s.min());
  EXPECT_EQ(720, s.knob(0).left());
  EXPECT_FALSE(s.Timer1().enabled());
  EXPECT_EQ(0, changes_);
  s.setEnabled(true);
  EXPECT_EQ(std::string(kKnobEnabledFace), s.knob(0).picture().resource);
  mouseDrag(s, 0, stripXOf(2560));
  EXPECT_EQ(8192, s.min());
}

TEST_F(VeldSliderControl, AStoredFalseEnabledIsTheAnswerAndGreysOnlyText1) {
  VeldSlider& s = make({.Enabled = false});
  EXPECT_FALSE(s.Enabled());
  EXPECT_FALSE(s.Text1().enabled());
  EXPECT_TRUE(s.Frame1(0).enabled());
  s.setEnabled(true);
  EXPECT_FALSE(s.Enabled());
}

TEST_F(VeldSliderControl, PagingThroughTheStripAndTheTrack) {
  VeldSlider& s = make({.display_status = 2}, kOneStripHeight);
  s.setMin(4096);
  s.Frame1(0).userMouseDown(kLeft, 0, 300, 100);
  s.Frame1(0).userMouseUp(kLeft, 0, 300, 100);
  EXPECT_EQ(3072, s.min());
  EXPECT_EQ("RWIN Multiplier = 6", s.Frame1(0).caption());
  EXPECT_EQ("mousex = 107.5", s.Text1().text());
  EXPECT_EQ(1, changes_);
  s.Frame1(0).userMouseDown(kLeft, 0, 300, 100);
  s.Frame1(0).userMouseUp(kLeft, 0, 300, 100);
  EXPECT_EQ(3072, s.min()); // position 960 is the left stop
  s.slider_back(0).userMouseDown(kLeft, 0, 3000, 10);
  s.slider_back(0).userMouseUp(kLeft, 0, 3000, 10);
  EXPECT_EQ(4096, s.min());
  EXPECT_EQ(2, changes_);
}

TEST_F(VeldSliderControl, TheStoredPropertiesOfTheThreeInstances) {
  VeldSlider& rwin = make({.display_status = 2}, kOneStripHeight);
  EXPECT_EQ(2, rwin.display_status());
  EXPECT_EQ(0, rwin.min());
  EXPECT_EQ("", rwin.Frame1(0).caption()); // read with show_mode 0
  slider_.reset();
  form_ = std::make_unique<runtime::Form>("FMain");
  VeldSlider& delay = make({.max = 1}, kOneStripHeight);
  EXPECT_EQ(1, delay.max());
  EXPECT_EQ(0, delay.display_status());
  EXPECT_EQ("1", delay.Frame1(1).caption());
  EXPECT_TRUE(delay.Enabled());
  EXPECT_EQ("", delay.caption_string());
}

} // namespace
