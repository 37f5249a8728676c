#include "runtime/application.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/form.h"

namespace runtime {

namespace {
// MB_OK | MB_ICONHAND | MB_TASKMODAL: with no owner, every window of the
// program is disabled while the box is up.
constexpr platform::Dword kFailureBoxType = 0x10 | 0x2000;
} // namespace

Application& Application::instance() {
  static Application application;
  return application;
}

std::string Application::failureText(int number) {
  return "Run-time error '" + std::to_string(number) + "':\n\n" + errorText(number);
}

void Application::runEvent(const std::function<void()>& event) {
  if (ended_ || failing_) return;
  if (depth_ > 0) {
    event();
    return;
  }
  int failure = 0;
  {
    struct Depth {
      int& depth;
      explicit Depth(int& d) : depth(d) { ++depth; }
      ~Depth() { --depth; }
    } running(depth_);
    try {
      event();
    } catch (const RuntimeError& error) {
      failure = error.number();
    }
  }
  if (failure != 0) fail(failure);
}

void Application::fail(int number) {
  if (ended_ || failing_) return;
  failing_ = true;
  if (beforeFailureBox) beforeFailureBox();
  platform::MessageBoxA(failureText(number).c_str(), title.c_str(), kFailureBoxType);
  end();
}

void Application::setDisplay(const Display& display) {
  display_ = display;
  twipsPerPixelX = display.twipsPerPixelX;
  twipsPerPixelY = display.twipsPerPixelY;
  screenWidth = display.screenPixelsX * display.twipsPerPixelX;
  screenHeight = display.screenPixelsY * display.twipsPerPixelY;
  borderWidth = display.borderPixels * display.twipsPerPixelX;
  captionHeight = display.captionPixels * display.twipsPerPixelY;
  for (Form* form : forms_)
    form->displayChanged();
}

void Application::end() {
  if (ended_) return;
  ended_ = true;
  if (onEnd) onEnd();
}

void Application::reset() {
  depth_ = 0;
  ended_ = false;
  failing_ = false;
  forms_.clear();
  onEnd = nullptr;
  pumpEvents = nullptr;
  beforeFailureBox = nullptr;
  beforeShow = nullptr;
  setDisplay(Display{});
}

} // namespace runtime
