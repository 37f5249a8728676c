#include "controls/veld_slider.h"

#include "runtime/value.h"

namespace controls {

struct VeldSlider::State {
  double val_min = 0;
  double val_max = 0;
  std::string caption[2];
  bool storedEnabled = true;
  std::string caption_text;
  std::int16_t show_mode = 0;
};

VeldSlider::VeldSlider(runtime::Form& form, const std::string& name, runtime::Control* container,
                       runtime::Bounds bounds, const VeldSliderProperties& stored)
    : state_(std::make_unique<State>()) {
  form.add<runtime::UserControlHost>(name, -1, container, bounds);
  if (stored.min) state_->val_min = *stored.min;
  if (stored.max) state_->val_max = *stored.max;
  if (stored.caption) state_->caption[0] = *stored.caption;
  if (stored.Enabled) state_->storedEnabled = *stored.Enabled;
  if (stored.caption_string) state_->caption_text = *stored.caption_string;
  if (stored.display_status) state_->show_mode = *stored.display_status;
}

VeldSlider::~VeldSlider() = default;

std::int16_t VeldSlider::min() const { return runtime::toInteger(state_->val_min); }
void VeldSlider::setMin(std::int16_t value) { state_->val_min = value; }
std::int16_t VeldSlider::max() const { return runtime::toInteger(state_->val_max); }
void VeldSlider::setMax(std::int16_t value) { state_->val_max = value; }
std::string VeldSlider::caption(int index) const { return state_->caption[index & 1]; }
void VeldSlider::setCaption(int index, const std::string& caption) {
  state_->caption[index & 1] = caption;
}
bool VeldSlider::Enabled() const { return state_->storedEnabled; }
void VeldSlider::setEnabled(bool) {}
const std::string& VeldSlider::caption_string() const { return state_->caption_text; }
void VeldSlider::set_caption_string(const std::string& text) { state_->caption_text = text; }
std::int16_t VeldSlider::display_status() const { return state_->show_mode; }
void VeldSlider::set_display_status(std::int16_t mode) { state_->show_mode = mode; }

} // namespace controls
