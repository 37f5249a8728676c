// VeldSlider (TL99.VeldSlider): the program's own slider, a horizontal track
// with two knobs on two strips setting two integers, min and max; a host that
// gives it the height of one strip sees a single-knob slider.
#pragma once

#include "runtime/form.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace controls {

// The properties an instance keeps in its host's property bag; an absent
// entry takes the control's default.
struct VeldSliderProperties {
  std::optional<std::int16_t> min = std::nullopt;
  std::optional<std::int16_t> max = std::nullopt;
  std::optional<std::string> caption = std::nullopt;
  std::optional<bool> Enabled = std::nullopt;
  std::optional<std::string> caption_string = std::nullopt;
  std::optional<std::int16_t> display_status = std::nullopt;
};

class VeldSlider {
public:
  // Creates the instance `name` on `form` inside `container` with the extent
  // the host gives it, and reads its stored properties.
  VeldSlider(runtime::Form& form, const std::string& name, runtime::Control* container,
             runtime::Bounds bounds, const VeldSliderProperties& stored);
  VeldSlider(const VeldSlider&) = delete;
  VeldSlider& operator=(const VeldSlider&) = delete;
  ~VeldSlider();

  std::int16_t min() const;
  void setMin(std::int16_t value);
  std::int16_t max() const;
  void setMax(std::int16_t value);
  std::string caption(int index) const;
  void setCaption(int index, const std::string& caption);
  bool Enabled() const; // the stored answer, not the current state
  void setEnabled(bool enabled);
  const std::string& caption_string() const;
  void set_caption_string(const std::string& text);
  std::int16_t display_status() const;
  void set_display_status(std::int16_t mode);

  // Change: raised when a mouse action leaves knob 0 at another value.
  std::function<void()> onChange;

private:
  struct State;
  std::unique_ptr<State> state_;
};

} // namespace controls
