// The top level of the program: runs each user event, turns a run-time error
// that escapes it into the standard failure box ("Run-time error 'N':" and the
// error's text, titled with the program's name) and ends the program; knows
// the screen and the forms.
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
  // program. Events that arrive once the program has ended are dropped.
  void runEvent(const std::function<void()>& event);
  bool runningEvent() const { return depth_ > 0; }

  // Shows the failure box for an error number and ends the program.
  void fail(int number);
  // Ends the program at once (Basic's End, and the end after a failure).
  void end();
  bool ended() const { return ended_; }
  // What the presentation does when the program ends (close its windows and
  // leave the message loop).
  std::function<void()> onEnd;

  // The failure box's text for an error number.
  static std::string failureText(int number);

  // Lets waiting events run once (Basic's DoEvents); the presentation
  // supplies the pump.
  void doEvents() {
    if (pumpEvents) pumpEvents();
  }
  std::function<void()> pumpEvents;

  // Screen size in twips, and twips per pixel.
  int screenWidth = 800 * 15;
  int screenHeight = 600 * 15;
  int twipsPerPixelX = 15;
  int twipsPerPixelY = 15;
  // What a form's border and caption add to its client area, in twips (a
  // fixed single border of 3 pixels and an 18-pixel caption until the
  // presentation reads the system's figures).
  int borderWidth = 3 * 15;
  int captionHeight = 18 * 15;

  void registerForm(Form* form) { forms_.push_back(form); }
  const std::vector<Form*>& forms() const { return forms_; }

  // Back to a fresh program (host tests).
  void reset();

private:
  int depth_ = 0;
  bool ended_ = false;
  std::vector<Form*> forms_;
};

} // namespace runtime
