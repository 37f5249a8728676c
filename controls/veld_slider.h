// VeldSlider (TL99.VeldSlider): the program's own slider, a horizontal track
// with two knobs on two strips setting two integers, min and max; a host that
// gives it the height of one strip sees a single-knob slider.
//
// An instance is a user-control window carrying its design name; its
// constituent controls (Frame1(0..1), knob(0..3), slider_back(0..1), Text1,
// Text2, Picture1, Timer1) are runtime controls inside it under their own
// design names, so that "sl/knob(1)" names one knob and the window text of
// "sl/Frame1(0)" is that knob's read-out. The arithmetic lives in
// VeldSliderLogic; this class hands it the constituent controls' events and
// shows what it holds.
#pragma once

#include "controls/veld_slider_logic.h"
#include "runtime/control_array.h"
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

// The extent of an instance in twips: the design surface's width and the
// height of one strip or of both.
inline constexpr int kSliderWidth = 3615;
inline constexpr int kOneStripHeight = 645;
inline constexpr int kTwoStripHeight = 1275;

// The pictures: the two knob faces (195 x 315 twips) and the track (3200 x
// 105 twips).
inline constexpr const char* kKnobEnabledFace = "knob_on.bmp";
inline constexpr const char* kKnobDisabledFace = "knob_off.bmp";
inline constexpr const char* kTrackPicture = "track.bmp";

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

  // The instance's window and its constituent controls.
  runtime::UserControlHost& host() const { return *host_; }
  runtime::Frame& Frame1(int index) const { return Frame1_(index); }
  runtime::Image& knob(int index) const { return knob_(index); }
  runtime::Image& slider_back(int index) const { return slider_back_(index); }
  runtime::TextBox& Text1() const { return *Text1_; }
  runtime::TextBox& Text2() const { return *Text2_; }
  runtime::Timer& Timer1() const { return *Timer1_; }
  const VeldSliderLogic& logic() const { return logic_; }

private:
  void build(runtime::Form& form);
  void connect();
  // Shows the logic's state in the constituent controls; a new Text2 text
  // raises Change through Text2's change event.
  void show();
  template <class Event> void handle(Event&& event) {
    event();
    show();
  }

  VeldSliderLogic logic_;
  runtime::UserControlHost* host_ = nullptr;
  runtime::ControlArray<runtime::Frame> Frame1_{"Frame1"};
  runtime::ControlArray<runtime::Image> knob_{"knob"};
  runtime::ControlArray<runtime::Image> slider_back_{"slider_back"};
  runtime::TextBox* Text1_ = nullptr;
  runtime::TextBox* Text2_ = nullptr;
  runtime::PictureBox* Picture1_ = nullptr;
  runtime::Timer* Timer1_ = nullptr;
};

} // namespace controls
