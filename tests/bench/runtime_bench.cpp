// Benchmark of the form runtime and the frame on the simulated machine: the
// cost of firing one handler, of creating controls, of one mouse move over
// the main form (the restore routine), of the whole start-up logic, and of
// one 20 ms drag tick of the slider.
// Prints figures; never fails on time.
#include "controls/veld_slider.h"
#include "frame/program.h"
#include "platform/sim/sim_control.h"
#include "runtime/application.h"
#include "runtime/form.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace {

template <class Body> double nanosecondsEach(int iterations, Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < iterations; ++i)
    body(i);
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start)
             .count() /
         iterations;
}

} // namespace

int main() {
  char pattern[] = "/tmp/tl99-rbench-XXXXXX";
  const std::string root = ::mkdtemp(pattern);
  platform::sim::reset(root);
  platform::CreateDirectoryA("C:\\WINDOWS");
  auto& app = runtime::Application::instance();

  {
    runtime::Form form("Bench");
    auto& box = form.add<runtime::CheckBox>("Check1", -1, nullptr, {});
    int fired = 0;
    box.onClick = [&] { ++fired; };
    const double each = nanosecondsEach(1000000, [&](int i) { box.setValue(i & 1); });
    std::printf("runtime: one Click handler fired by a value change   %8.1f ns\n", each);
    form.show();
    const double user = nanosecondsEach(1000000, [&](int) { box.userClick(); });
    std::printf("runtime: one user click through the top level        %8.1f ns\n", user);
  }
  {
    const double each = nanosecondsEach(2000, [](int) {
      runtime::Form form("Gallery");
      for (int i = 0; i < 40; ++i)
        form.add<runtime::CheckBox>("check", i, nullptr, {});
    });
    std::printf("runtime: creating a form with 40 controls            %8.1f us\n", each / 1000);
  }
  app.reset();
  {
    auto program = std::make_unique<frame::Program>();
    program->start();
    const double move = nanosecondsEach(200000, [&](int i) {
      program->fmain.form.userMouseMove(0, 0, static_cast<float>(i % 500), 10);
    });
    std::printf("frame: one mouse move over the main form (restore)   %8.1f ns\n", move);
  }
  app.reset();
  {
    // A drag of the slider: the mouse move that stores the target and the
    // tick that moves the knob, as plain arithmetic and through the control
    // (which also moves the knob's control).
    controls::VeldSliderLogic logic;
    logic.readDisplayStatus(1);
    const double tick = nanosecondsEach(2000000, [&](int i) {
      logic.knobMouseMove(0, runtime::kLeftButton, static_cast<float>(i % 3000 - 1500));
      logic.timerTick();
    });
    std::printf("slider: one drag tick (mouse move and 20 ms tick)    %8.1f ns\n", tick);
    runtime::Form form("Bench");
    form.show();
    controls::VeldSlider slider(form, "sl", nullptr,
                                {0, 0, controls::kSliderWidth, controls::kTwoStripHeight},
                                {.display_status = 1});
    runtime::Image& knob = slider.knob(0);
    knob.userMouseMove(runtime::kLeftButton, 0, 10, 10);
    const double control = nanosecondsEach(1000000, [&](int i) {
      knob.userMouseMove(runtime::kLeftButton, 0, static_cast<float>(i % 3000 - 1500), 10);
      slider.Timer1().tick();
    });
    std::printf("slider: the same through the control's events        %8.1f ns\n", control);
  }
  app.reset();
  {
    const double startUp = nanosecondsEach(200, [](int) {
      runtime::Application::instance().reset();
      frame::Program program;
      program.start();
    });
    std::printf("frame: building the forms and running start-up       %8.1f us\n", startUp / 1000);
  }
  std::filesystem::remove_all(root);
  return 0;
}
