// The top level of the program: runs each user event, turns a run-time error
// that escapes it into the standard failure box ("Run-time error 'N':" and the
// error's text, titled with the program's name) and ends the program; knows
// the display and the forms.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace runtime {

class Form;

class Application {
public:
  static Application& instance();

  std::string title = "Tweakloom 99";

  // Runs one event from outside the program (a user's action, a timer tick).
  // A run-time error that escapes it shows the failure box and ends the
  // program. Events that arrive while the failure box is up, or once the
  // program has ended, are dropped: no handler runs.
  void runEvent(const std::function<void()>& event);
  bool runningEvent() const { return depth_ > 0; }

  // Shows the failure box for an error number, modal to every form, and ends
  // the program once it is answered.
  void fail(int number);
  bool failing() const { return failing_; }
  // What the presentation does just before the failure box comes up (it
  // disables every form, so that no form takes input while the box is up).
  std::function<void()> beforeFailureBox;
  // Ends the program at once (Basic's End, and the end after a failure).
  void end();
  bool ended() const { return ended_; }
  // What the presentation does when the program ends (close its windows and
  // leave the message loop).
  std::function<void()> onEnd;

  // The failure box's text for an error number.
  static std::string failureText(int number);

  // What the presentation does just before a form first shows: it makes the
  // form's windows then, if it hasn't yet.
  std::function<void(Form&)> beforeShow;

  // Lets waiting events run once (Basic's DoEvents); the presentation
  // supplies the pump.
  void doEvents() {
    if (pumpEvents) pumpEvents();
  }
  std::function<void()> pumpEvents;

  // What the display tells: twips per pixel (1440 / dots per inch: 15 at 96,
  // 12 at 120), the screen in pixels, and what a form's frame adds to its
  // client area in pixels (each side's border, and the caption above).
  struct Display {
    int twipsPerPixelX = 15;
    int twipsPerPixelY = 15;
    int screenPixelsX = 800;
    int screenPixelsY = 600;
    int borderPixels = 3;
    int captionPixels = 19;
  };
  // Takes the display's figures; forms sized by their client area are sized
  // again, so a form built before the display was read gets its exact size.
  void setDisplay(const Display& display);
  const Display& display() const { return display_; }

  // Screen size in twips, and twips per pixel, from the display.
  int screenWidth = 800 * 15;
  int screenHeight = 600 * 15;
  int twipsPerPixelX = 15;
  int twipsPerPixelY = 15;
  // What a form's border and caption add to its client area, in twips.
  int borderWidth = 3 * 15;
  int captionHeight = 19 * 15;

  void registerForm(Form* form) { forms_.push_back(form); }
  const std::vector<Form*>& forms() const { return forms_; }

  // Back to a fresh program (host tests).
  void reset();

private:
  int depth_ = 0;
  bool ended_ = false;
  bool failing_ = false;
  Display display_;
  std::vector<Form*> forms_;
};

} // namespace runtime
