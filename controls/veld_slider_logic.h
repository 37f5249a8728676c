// The arithmetic of the VeldSlider: two strips with one knob each, a track of
// 3200 twips standing for 0 to 10240 units, knobs moved by a 20 ms timer that
// chases the mouse, snapped to steps of 1024 on release, pushing each other,
// and paged one step by a press on a strip. Plain code without windows: the
// control (veld_slider.h) hands it each event and then shows what it holds
// in its constituent controls.
#pragma once

#include <cstdint>
#include <string>

namespace controls {

// Constants of the conversions between positions (twips from the left end
// of the track to a knob's centre) and values.
inline constexpr double kUnitsPerStep = 1024; // 2^10 units ...
inline constexpr double kTwipsPerStep = 320;  // ... over 320 twips
inline constexpr double kTrackLeft = 180;     // left end of the track in its strip
inline constexpr int kDragInterval = 20;      // milliseconds between drag ticks

// What a knob shows: the host's first face until Enabled is set, then the
// face held by knob(3) (enabled) or knob(2) (disabled).
enum class KnobFace { First, Enabled, Disabled };

// The constituent controls' state, as the design lays them out (twips).
struct SliderParts {
  // knob(0) and knob(1); Left kept in whole twips, as the host's controls do.
  int knobLeft[2] = {960, 960};
  int knobTop[2] = {210, 210};
  int knobWidth[2] = {200, 200};
  int knobHeight[2] = {315, 315};
  KnobFace knobFace[2] = {KnobFace::First, KnobFace::First};
  // slider_back(0) and slider_back(1), the tracks.
  int backLeft[2] = {180, 180};
  int backWidth[2] = {3200, 3200};
  // Frame1(0) and Frame1(1), the strips; their captions are the read-outs.
  int frameWidth[2] = {3585, 3585};
  std::string frameCaption[2];
  bool frameEnabled[2] = {true, true};
  // Text1 keeps the Enabled answer and a debugging read-out; a change of
  // Text2 raises Change.
  std::string text1 = "Text1";
  bool text1Enabled = true;
  std::string text2 = "Text2";
  // Timer1.
  bool timerEnabled = false;
  int timerInterval = 0;
};

class VeldSliderLogic {
public:
  // Initialize: the timer stopped at 20 ms, both knobs lifted by a third of
  // their height and centred on their design position, the values taken
  // from the knobs (position 780, value 2496), the read-outs updated.
  VeldSliderLogic();

  // Reading the stored properties, in their order; an absent entry is the
  // default (min 0, max 0, caption "", Enabled True, caption_string "",
  // display_status 0).
  void readMin(std::int16_t stored);
  void readMax(std::int16_t stored);
  void readCaption(const std::string& stored) { parts_.frameCaption[0] = stored; }
  void readEnabled(bool stored) { parts_.text1Enabled = stored; }
  void readCaptionString(const std::string& stored) { caption_text = stored; }
  void readDisplayStatus(std::int16_t stored) { show_mode = stored; }

  // Properties. Neither min nor max is checked: the knob goes where the
  // arithmetic puts it.
  std::int16_t min() const;
  void setMin(std::int16_t value);
  std::int16_t max() const;
  void setMax(std::int16_t value);
  const std::string& caption(int index) const { return parts_.frameCaption[index]; }
  void setCaption(int index, const std::string& text) { parts_.frameCaption[index] = text; }
  // The answer kept in Text1 at loading, whatever was set since.
  bool Enabled() const { return parts_.text1Enabled; }
  void setEnabled(bool enabled);
  const std::string& caption_string() const { return caption_text; }
  void set_caption_string(const std::string& text) { caption_text = text; }
  std::int16_t display_status() const { return show_mode; }
  void set_display_status(std::int16_t mode) { show_mode = mode; }

  // Mouse and timer events; x is in the coordinates of the control that
  // reports it (a knob, a strip or a track), in twips.
  void knobMouseDown(int index, float x);
  void knobMouseMove(int index, int button, float x);
  void knobMouseUp(int index, float x);
  void timerTick();
  void stripMouseDown(int index, float x); // on Frame1(index)
  void trackMouseDown(int index, float x); // on slider_back(index)
  void stripMouseUp(int index);            // Frame1 and slider_back alike

  const SliderParts& parts() const { return parts_; }

  // The fields of an instance, readable for tests and read-outs.
  double val_min = 0;
  double val_max = 0;
  float pos_min = 0;
  std::int16_t pos_max = 0;
  std::int16_t drag_button = 0;
  std::int16_t drag_knob = 0;
  float drag_x = 0;
  float press_x = 0;
  float track_x = 0;
  std::string caption_text;
  std::int16_t show_mode = 0;

  // Conversions between positions and values.
  static double valueOf(double position) { return kUnitsPerStep * position / kTwipsPerStep; }
  static double positionOf(double value) { return value * kTwipsPerStep / kUnitsPerStep; }
  // Twips from the track's left end to knob(index)'s centre.
  double knobPosition(int index) const;

private:
  void setKnobLeft(int index, double left);
  void position_knob(int index);
  void updateReadouts();
  void takePositions(); // pos_min and pos_max from the knobs
  void computeValues(); // val_min and val_max from the positions
  void cross(int released);
  // The paging step shared by a press on a strip and on a track; true when
  // the knob could step left.
  bool page(int index, float x, double offset);

  SliderParts parts_;
};

} // namespace controls
