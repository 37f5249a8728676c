#include "runtime/application.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/form.h"

namespace runtime {

namespace {
constexpr platform::Dword kOkWithStopIcon = 0x10; // MB_OK | MB_ICONHAND
} // namespace

Application& Application::instance() {
  static Application application;
  return application;
}

std::string Application::failureText(int number) {
  return "Run-time error '" + std::to_string(number) + "':\n\n" + errorText(number);
}

void Application::runEvent(const std::function<void()>& event) {
  if (ended_) return;
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
  if (ended_) return;
  platform::MessageBoxA(failureText(number).c_str(), title.c_str(), kOkWithStopIcon);
  end();
}

void Application::end() {
  if (ended_) return;
  ended_ = true;
  if (onEnd) onEnd();
}

void Application::reset() {
  depth_ = 0;
  ended_ = false;
  forms_.clear();
  onEnd = nullptr;
  pumpEvents = nullptr;
}

} // namespace runtime
