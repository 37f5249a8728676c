// Form::find: a control by its design name, exactly as designName() gives it.
#include "runtime/application.h"
#include "runtime/control_array.h"
#include "runtime/form.h"

#include <gtest/gtest.h>

using namespace runtime;

namespace {

TEST(FormFind, TakesTheDesignNameExactly) {
  Application::instance().reset();
  Form form("FMain");
  ControlArray<CheckBox> boxes{"Check2"};
  boxes.add(form, 0, nullptr, {});
  boxes.add(form, 12, nullptr, {});
  auto& single = form.add<CheckBox>("Check1", -1, nullptr, {});
  auto& similar = form.add<CheckBox>("Check2x", -1, nullptr, {});
  EXPECT_EQ(&form, form.find("FMain"));
  EXPECT_EQ(&boxes(12), form.find("Check2(12)"));
  EXPECT_EQ(&boxes(0), form.find("Check2(0)"));
  EXPECT_EQ(&single, form.find("Check1"));
  EXPECT_EQ(&similar, form.find("Check2x"));
  for (const char* other :
       {"Check2", "Check2(1)", "Check2(012)", "Check2(+12)", "Check2(-1)", "Check2()", "Check2(x)",
        "Check1(0)", "check1", "Check2(12", "(12)", ")", ""})
    EXPECT_EQ(nullptr, form.find(other)) << other;
}

} // namespace
