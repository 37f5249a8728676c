#include "controls/veld_slider_logic.h"

#include "runtime/basic_math.h"
#include "runtime/value.h"

namespace controls {

namespace {

constexpr int kLeftButton = 1;
// The multiplier slider's knob 0 stops 960 twips (3072 units, multiplier 6)
// from the track's left end.
constexpr double kRaisedLeft = 960;
// Knob 0 may go 8 twips further right than knob 1.
constexpr double kKnob0Overshoot = 8;
constexpr std::int16_t kMultiplierMode = 2;

std::int16_t roundedPosition(double position) { return runtime::toInteger(position); }

} // namespace

VeldSliderLogic::VeldSliderLogic() {
  parts_.timerEnabled = false;
  parts_.timerInterval = kDragInterval;
  for (int i : {0, 1}) {
    parts_.knobTop[i] -= parts_.knobHeight[i] / 3;
    setKnobLeft(i, parts_.knobLeft[i] - parts_.knobWidth[i] / 2.0);
  }
  takePositions();
  computeValues();
  updateReadouts();
}

double VeldSliderLogic::knobPosition(int index) const {
  return parts_.knobWidth[index] / 2.0 + parts_.knobLeft[index] - kTrackLeft;
}

// The host keeps a control's Left in whole twips.
void VeldSliderLogic::setKnobLeft(int index, double left) {
  parts_.knobLeft[index] = static_cast<int>(runtime::roundHalfEven(left));
}

void VeldSliderLogic::takePositions() {
  pos_min = static_cast<float>(knobPosition(0));
  pos_max = roundedPosition(knobPosition(1));
}

void VeldSliderLogic::computeValues() {
  val_min = valueOf(pos_min);
  val_max = valueOf(pos_max);
}

void VeldSliderLogic::updateReadouts() {
  if (show_mode == 1) parts_.frameCaption[0] = runtime::generalForm(val_min) + caption_text;
  if (show_mode == kMultiplierMode)
    parts_.frameCaption[0] = "RWIN Multiplier = " + runtime::generalForm(val_min / 512);
  parts_.frameCaption[1] = runtime::generalForm(val_max) + caption_text;
}

void VeldSliderLogic::position_knob(int index) {
  pos_min = static_cast<float>(positionOf(val_min));
  pos_max = roundedPosition(positionOf(val_max));
  const double position = index == 0 ? static_cast<double>(pos_min) : pos_max;
  setKnobLeft(index, position - parts_.knobWidth[index] / 2.0 + kTrackLeft);
  updateReadouts();
}

void VeldSliderLogic::readMin(std::int16_t stored) {
  pos_min = stored;
  setMin(stored);
}

void VeldSliderLogic::readMax(std::int16_t stored) {
  pos_max = stored;
  setMax(stored);
}

std::int16_t VeldSliderLogic::min() const { return runtime::toInteger(val_min); }
std::int16_t VeldSliderLogic::max() const { return runtime::toInteger(val_max); }

void VeldSliderLogic::setMin(std::int16_t value) {
  val_min = value;
  position_knob(0);
}

void VeldSliderLogic::setMax(std::int16_t value) {
  val_max = value;
  position_knob(1);
}

void VeldSliderLogic::setEnabled(bool enabled) {
  parts_.frameEnabled[0] = parts_.frameEnabled[1] = enabled;
  const KnobFace face = enabled ? KnobFace::Enabled : KnobFace::Disabled;
  parts_.knobFace[0] = parts_.knobFace[1] = face;
}

void VeldSliderLogic::knobMouseDown(int index, float x) {
  // Computed and dropped: a press alone moves nothing, the drag begins with
  // the first move.
  (void)(parts_.knobLeft[index] + x);
}

void VeldSliderLogic::knobMouseMove(int index, int button, float x) {
  // Every move over a knob starts the timer, with a button down or not.
  parts_.timerEnabled = true;
  drag_button = static_cast<std::int16_t>(button);
  drag_knob = static_cast<std::int16_t>(index + 1);
  drag_x = static_cast<float>(parts_.knobLeft[index] + x);
}

void VeldSliderLogic::timerTick() {
  if (drag_button != kLeftButton || (drag_knob != 1 && drag_knob != 2)) return;
  const int k = drag_knob - 1;
  const double half = parts_.knobWidth[k] / 2.0;
  double target = runtime::toInteger(drag_x - half);
  double right = parts_.backWidth[k] - half + parts_.backLeft[k];
  if (k == 0) right += kKnob0Overshoot;
  if (target > right) target = right;
  double left = parts_.backLeft[k] - half;
  if (k == 0 && show_mode == kMultiplierMode) left += kRaisedLeft;
  if (target < left) target = left;
  if (target != parts_.knobLeft[k]) setKnobLeft(k, target);
}

void VeldSliderLogic::cross(int released) {
  if (released == 0 && pos_min > pos_max) {
    pos_max = roundedPosition(pos_min);
    parts_.knobLeft[1] = parts_.knobLeft[0];
    takePositions();
  } else if (released == 1 && pos_max < pos_min) {
    pos_min = pos_max;
    parts_.knobLeft[0] = parts_.knobLeft[1];
    takePositions();
  }
}

void VeldSliderLogic::knobMouseUp(int index, float x) {
  const auto takeReleased = [&] {
    if (index == 0)
      pos_min = static_cast<float>(knobPosition(0));
    else
      pos_max = roundedPosition(knobPosition(1));
  };
  takeReleased();
  press_x = x;
  updateReadouts(); // the values are still the old ones
  // Snap to the nearest multiple of 1024; the half step stays where it is.
  const double position = index == 0 ? static_cast<double>(pos_min) : pos_max;
  const auto remainder = static_cast<std::int16_t>(
      runtime::modulo(runtime::roundHalfEven(valueOf(position)), std::int32_t{1024}));
  if (remainder > 512)
    setKnobLeft(index, parts_.knobLeft[index] + (1024 - remainder) / 3.2);
  else if (remainder < 512)
    setKnobLeft(index, parts_.knobLeft[index] - remainder / 3.2);
  takeReleased();
  cross(index);
  parts_.timerEnabled = false;
  computeValues();
  updateReadouts();
  drag_x = static_cast<float>(parts_.knobLeft[index] + x);
  parts_.text2 = runtime::generalForm(val_min);
}

bool VeldSliderLogic::page(int index, float x, double offset) {
  press_x = x;
  const double margin = (parts_.frameWidth[index] - parts_.backWidth[index]) / 2.0;
  track_x = static_cast<float>(x - margin + offset);
  const double position = knobPosition(index);
  const double step = parts_.backWidth[index] / 10.0;
  if (position < 3200 && track_x > position) setKnobLeft(index, parts_.knobLeft[index] + step);
  // The test looks at the position before any step right.
  bool canStepLeft = position > 0;
  if (index == 0)
    canStepLeft = (position > 0 && show_mode != kMultiplierMode) ||
                  (position > 1024 && show_mode == kMultiplierMode);
  if (canStepLeft && track_x < position) setKnobLeft(index, parts_.knobLeft[index] - step);
  return canStepLeft;
}

void VeldSliderLogic::stripMouseDown(int index, float x) {
  if (page(index, x, 0)) {
    // A debugging read-out in the text box out of view.
    const double margin = (parts_.frameWidth[index] - parts_.backWidth[index]) / 2.0;
    track_x = static_cast<float>(x - margin);
    parts_.text1 = "mousex = " + runtime::generalForm(track_x);
  }
}

void VeldSliderLogic::trackMouseDown(int index, float x) { page(index, x, kTrackLeft); }

void VeldSliderLogic::stripMouseUp(int index) {
  takePositions();
  computeValues();
  updateReadouts();
  const double margin = (parts_.frameWidth[index] - parts_.backWidth[index]) / 2.0;
  track_x = static_cast<float>(press_x - margin);
  cross(index);
  computeValues();
  updateReadouts();
  parts_.text2 = runtime::generalForm(val_min);
}

} // namespace controls
