#include "controls/veld_slider.h"

namespace controls {

using namespace runtime;

namespace {

// The design of the control's surface (3645 x 4935 twips); the parts past
// the instance's extent are out of view.
constexpr Bounds kStrip[2] = {{30, -30, 3585, 645}, {30, 630, 3585, 645}};
constexpr Bounds kTrack = {180, 330, 3200, 105};
constexpr Bounds kKnob2 = {2940, 2400, 195, 315};
constexpr Bounds kKnob3 = {270, 1650, 195, 315};
constexpr Bounds kText1 = {1380, 3780, 1965, 885};
constexpr Bounds kText2 = {660, 1320, 1575, 525};
constexpr Bounds kPicture1 = {2040, 1770, 165, 165};

Picture faceOf(KnobFace face) {
  return Picture{face == KnobFace::Disabled ? kKnobDisabledFace : kKnobEnabledFace};
}

} // namespace

VeldSlider::VeldSlider(Form& form, const std::string& name, Control* container, Bounds bounds,
                       const VeldSliderProperties& stored) {
  host_ = &form.add<UserControlHost>(name, -1, container, bounds);
  build(form);
  connect();
  // Initialize has run in the logic; now the property bag, in its order.
  logic_.readMin(stored.min.value_or(0));
  logic_.readMax(stored.max.value_or(0));
  logic_.readCaption(stored.caption.value_or(""));
  logic_.readEnabled(stored.Enabled.value_or(true));
  logic_.readCaptionString(stored.caption_string.value_or(""));
  logic_.readDisplayStatus(stored.display_status.value_or(0));
  show();
}

VeldSlider::~VeldSlider() = default;

void VeldSlider::build(Form& form) {
  const SliderParts& parts = logic_.parts();
  // Out of view: the two faces, the two text boxes and a picture box.
  knob_.add(form, 2, host_, kKnob2).setPicture(Picture{kKnobDisabledFace});
  knob_.add(form, 3, host_, kKnob3).setPicture(Picture{kKnobEnabledFace});
  Text1_ = &form.add<TextBox>("Text1", -1, host_, kText1);
  Text2_ = &form.add<TextBox>("Text2", -1, host_, kText2);
  // The two text boxes lie out of view and carry the control's own state:
  // the keyboard never stops on them.
  Text1_->setTabStop(false);
  Text2_->setTabStop(false);
  Picture1_ = &form.add<PictureBox>("Picture1", -1, host_, kPicture1);
  Timer1_ = &form.add<Timer>("Timer1", -1, host_, Bounds{});
  for (int i : {0, 1}) {
    Frame& strip = Frame1_.add(form, i, host_, kStrip[i]);
    // The track first, so that the knob lies above it.
    slider_back_.add(form, i, &strip, kTrack).setPicture(Picture{kTrackPicture});
    knob_
        .add(form, i, &strip,
             {parts.knobLeft[i], parts.knobTop[i], parts.knobWidth[i], parts.knobHeight[i]})
        .setPicture(Picture{kKnobEnabledFace});
  }
  Text1_->setText(parts.text1);
  Text2_->setText(parts.text2);
}

void VeldSlider::connect() {
  for (int i : {0, 1}) {
    Image& k = knob_(i);
    k.onMouseDown = [this, i](int, int, float x, float) {
      handle([&] { logic_.knobMouseDown(i, x); });
    };
    // A knob in a disabled strip takes no mouse input.
    k.onMouseMove = [this, i](int button, int, float x, float) {
      if (!knob_(i).takesUserInput()) return;
      handle([&] { logic_.knobMouseMove(i, button, x); });
    };
    k.onMouseUp = [this, i](int, int, float x, float) {
      handle([&] { logic_.knobMouseUp(i, x); });
    };
    Frame1_(i).onMouseDown = [this, i](int, int, float x, float) {
      handle([&] { logic_.stripMouseDown(i, x); });
    };
    Frame1_(i).onMouseUp = [this, i](int, int, float, float) {
      handle([&] { logic_.stripMouseUp(i); });
    };
    slider_back_(i).onMouseDown = [this, i](int, int, float x, float) {
      handle([&] { logic_.trackMouseDown(i, x); });
    };
    slider_back_(i).onMouseUp = [this, i](int, int, float, float) {
      handle([&] { logic_.stripMouseUp(i); });
    };
  }
  Timer1_->onTimer = [this] { handle([&] { logic_.timerTick(); }); };
  Text2_->onChange = [this] {
    if (onChange) onChange();
  };
}

void VeldSlider::show() {
  const SliderParts& parts = logic_.parts();
  for (int i : {0, 1}) {
    Image& k = knob_(i);
    k.move(parts.knobLeft[i], parts.knobTop[i], parts.knobWidth[i], parts.knobHeight[i]);
    if (parts.knobFace[i] != KnobFace::First && !(k.picture() == faceOf(parts.knobFace[i])))
      k.setPicture(faceOf(parts.knobFace[i]));
    Frame1_(i).setCaption(parts.frameCaption[i]);
    Frame1_(i).setEnabled(parts.frameEnabled[i]);
  }
  Text1_->setText(parts.text1);
  Text1_->setEnabled(parts.text1Enabled);
  Timer1_->setInterval(parts.timerInterval);
  Timer1_->setEnabled(parts.timerEnabled);
  Text2_->setText(parts.text2); // fires Change when the text differs
}

std::int16_t VeldSlider::min() const { return logic_.min(); }
void VeldSlider::setMin(std::int16_t value) {
  handle([&] { logic_.setMin(value); });
}
std::int16_t VeldSlider::max() const { return logic_.max(); }
void VeldSlider::setMax(std::int16_t value) {
  handle([&] { logic_.setMax(value); });
}
std::string VeldSlider::caption(int index) const { return Frame1_(index).caption(); }
void VeldSlider::setCaption(int index, const std::string& caption) {
  Frame1_(index); // 340 for an element the control doesn't have
  handle([&] { logic_.setCaption(index, caption); });
}
bool VeldSlider::Enabled() const { return logic_.Enabled(); }
void VeldSlider::setEnabled(bool enabled) {
  handle([&] { logic_.setEnabled(enabled); });
}
const std::string& VeldSlider::caption_string() const { return logic_.caption_string(); }
void VeldSlider::set_caption_string(const std::string& text) {
  handle([&] { logic_.set_caption_string(text); });
}
std::int16_t VeldSlider::display_status() const { return logic_.display_status(); }
void VeldSlider::set_display_status(std::int16_t mode) {
  handle([&] { logic_.set_display_status(mode); });
}

} // namespace controls
