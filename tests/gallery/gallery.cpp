// The gallery: one of every control type of the form runtime on one form,
// presented as real windows and driven end to end through the runtime, so the
// end-to-end tests can click, type and read every kind of control.
#include "controls/veld_slider.h"
#include "runtime/application.h"
#include "runtime/control_array.h"
#include "runtime/form.h"
#include "runtime/value.h"
#include "runtime/win32/presenter.h"

#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

using namespace runtime;

namespace {

// A user control: a bar that fills up to where it is clicked.
class Bar : public UserControl {
public:
  explicit Bar(UserControlHost& host, Label& readout) : host_(host), readout_(readout) {}
  void mouseDown(int, int, float x, float) override { moveTo(x); }
  void mouseMove(int button, int, float x, float) override {
    if (button & kLeftButton) moveTo(x);
  }
  void mouseUp(int, int, float, float) override {}
  void resized(int, int) override {}
  std::vector<DrawStep> draw() const override {
    const int w = host_.width(), h = host_.height();
    return {{DrawStep::Kind::FillRect, 0, 0, w, h, 0xFFFFFF, {}, {}},
            {DrawStep::Kind::FillRect, 0, 0, level_, h, 0x800000, {}, {}},
            {DrawStep::Kind::Line, 0, h - 15, w, h - 15, 0, {}, {}}};
  }

private:
  void moveTo(float x) {
    level_ = static_cast<int>(x);
    readout_.setCaption("bar " + std::to_string(level_ * 100 / host_.width()) + "%");
    host_.redraw();
  }
  UserControlHost& host_;
  Label& readout_;
  int level_ = 0;
};

struct Gallery {
  Form form{"Gallery"};
  ControlArray<CheckBox> check{"check"};
  ControlArray<Frame> tabpage{"tabpage"};

  Gallery() {
    form.move(600, 600, 9600, 7200);
    form.setCaption("Tweakloom 99 gallery");
    auto& status = form.add<Label>("status", -1, nullptr, {120, 6600, 9000, 255});

    form.add<Label>("label1", -1, nullptr, {120, 120, 1800, 255}).setCaption("Label && more");
    auto& text = form.add<TextBox>("text1", -1, nullptr, {120, 420, 1800, 315});
    auto& length = form.add<Label>("length", -1, nullptr, {2040, 450, 1200, 255});
    text.onKeyPress = [](int& key) {
      if ((key < '0' || key > '9') && key != 8) key = 0; // digits only
    };
    text.onChange = [&] { length.setCaption("length " + std::to_string(text.text().size())); };

    for (int i : {0, 1, 3}) {
      check.add(form, i, nullptr, {120, 840 + 300 * (i > 1 ? 2 : i), 1800, 255})
          .setCaption("Check " + std::to_string(i));
    }
    check.onClick = [&](int index) {
      status.setCaption("check(" + std::to_string(index) +
                        ") = " + std::to_string(check(index).value()));
    };

    auto& frame = form.add<Frame>("frame1", -1, nullptr, {120, 1800, 2400, 1000});
    frame.setCaption("Options");
    auto& option1 = form.add<OptionButton>("option1", -1, &frame, {120, 300, 2000, 255});
    auto& option2 = form.add<OptionButton>("option2", -1, &frame, {120, 600, 2000, 255});
    option1.setCaption("Option one");
    option2.setCaption("Option two");
    option1.onClick = [&] { status.setCaption("option1"); };
    option2.onClick = [&] { status.setCaption("option2"); };

    auto& clicks = form.add<Label>("clicks", -1, nullptr, {1560, 3000, 1200, 255});
    auto& button = form.add<CommandButton>("button1", -1, nullptr, {120, 2940, 1300, 375});
    button.setCaption("Press");
    button.onClick = [&, count = 0]() mutable {
      clicks.setCaption("pressed " + std::to_string(++count));
    };
    auto& ok = form.add<CommandButton>("okbutton", -1, nullptr, {120, 3420, 1300, 375});
    ok.setCaption("OK");
    ok.setDefault(true);
    ok.onClick = [&] { status.setCaption("Enter pressed OK"); };
    auto& cancel = form.add<CommandButton>("cancelbutton", -1, nullptr, {1560, 3420, 1300, 375});
    cancel.setCaption("Cancel");
    cancel.setCancel(true);
    cancel.onClick = [&] { status.setCaption("Esc pressed Cancel"); };
    auto& fail = form.add<CommandButton>("fail", -1, nullptr, {120, 3900, 1300, 375});
    fail.setCaption("Fail");
    fail.onClick = [] { toInteger(std::string("40000")); }; // Overflow: the program ends
    auto& disabled = form.add<CommandButton>("disabled1", -1, nullptr, {1560, 3900, 1300, 375});
    disabled.setCaption("Disabled");
    disabled.setEnabled(false);
    disabled.onClick = [&] { status.setCaption("disabled button ran"); };

    auto& picture = form.add<PictureBox>("picture1", -1, nullptr, {3240, 120, 720, 480});
    picture.setPicture({"pic_a.bmp"});
    picture.onClick = [&] {
      picture.setPicture({picture.picture().resource == "pic_a.bmp" ? "pic_b.bmp" : "pic_a.bmp"});
      status.setCaption("picture1 shows " + picture.picture().resource);
    };
    auto& image = form.add<Image>("image1", -1, nullptr, {4080, 120, 720, 480});
    image.setPicture({"pic_b.bmp"});
    image.onClick = [&] { status.setCaption("image1 clicked"); };
    image.onMouseMove = [&](int, int, float, float) { status.setCaption("mouse over image1"); };

    auto& combo = form.add<ComboBox>("combo1", -1, nullptr, {3240, 720, 1800, 315});
    for (const char* item : {"Default", "Fast", "Slow"})
      combo.addItem(item);
    combo.setText("Default");
    combo.onClick = [&] { status.setCaption("combo1 " + combo.text()); };

    auto& list = form.add<ListBox>("list1", -1, nullptr, {3240, 1140, 1800, 900});
    for (const char* item : {"Alpha", "Beta", "Gamma"})
      list.addItem(item);
    list.onClick = [&] { status.setCaption("list1 " + list.list(list.listIndex())); };

    auto& checks = form.add<ListBox>("checklist1", -1, nullptr, {3240, 2160, 1800, 900}, true);
    for (const char* item : {"WinZip", "DirectX Drivers", "Acrobat Reader"})
      checks.addItem(item);
    checks.onItemCheck = [&](int index) {
      status.setCaption("checklist1 " + checks.list(index) +
                        (checks.selected(index) ? " on" : " off"));
    };

    auto& files = form.add<FileListBox>("files1", -1, nullptr, {3240, 3180, 1800, 1000});
    files.setPattern("*.cab");
    files.setPath("C:\\windows\\sysbckup");
    files.onClick = [&] { status.setCaption("files1 " + files.list(files.listIndex())); };

    auto& ticks = form.add<Label>("ticks", -1, nullptr, {3240, 4320, 1800, 255});
    auto& timer = form.add<Timer>("timer1", -1, nullptr, {});
    timer.setInterval(100);
    timer.onTimer = [&, count = 0]() mutable {
      ticks.setCaption("ticks " + std::to_string(++count));
    };

    auto& tabs = form.add<TabStrip>("tabs1", -1, nullptr, {5280, 120, 4080, 3000});
    tabs.setTabs(5); // two rows of up to three
    tabs.setTabsPerRow(3);
    for (int i = 0; i < 5; ++i) {
      tabs.setTabCaption(i, "Page " + std::to_string(i));
      Frame& page = tabpage.add(form, i, &tabs, {60, 1320, 3900, 1500});
      page.placeOnTab(i);
      page.setCaption("Contents of page " + std::to_string(i));
      form.add<Label>("tablabel", i, &page, {120, 360, 3000, 255})
          .setCaption("This is page " + std::to_string(i));
    }
    tabs.setTabPicture(0, {"tab_a.bmp"});
    tabs.setTabPicture(1, {"tab_b.bmp"});
    tabs.onClick = [&] {
      status.setCaption("tabs1 " + std::to_string(tabs.previousTab()) + " to " +
                        std::to_string(tabs.tab()));
    };

    auto& spinValue = form.add<Label>("spinvalue", -1, nullptr, {5280, 3300, 1200, 255});
    auto& spin = form.add<SpinControl>("spin1", -1, nullptr, {6600, 3240, 255, 375});
    spin.setRange(0, 10);
    spin.setValue(5);
    spinValue.setCaption("spin 5");
    spin.onChange = [&] { spinValue.setCaption("spin " + std::to_string(spin.value())); };

    auto& readout = form.add<Label>("barvalue", -1, nullptr, {5280, 4200, 1800, 255});
    auto& host = form.add<UserControlHost>("user1", -1, nullptr, {5280, 3720, 3000, 375});
    bar_ = std::make_unique<Bar>(host, readout);
    host.setBehavior(bar_.get());

    auto& colored = form.add<Label>("colored", -1, nullptr, {5280, 4680, 3000, 255});
    colored.setCaption("White on navy");
    colored.setBackColor(0x800000);
    colored.setForeColor(0xFFFFFF);

    // The program's own slider with one strip, in its multiplier mode.
    auto& changes = form.add<Label>("rwinchanges", -1, nullptr, {3960, 4680, 1200, 255});
    rwin1_ = std::make_unique<controls::VeldSlider>(
        form, "rwin1", nullptr,
        Bounds{120, 4680, controls::kSliderWidth, controls::kOneStripHeight},
        controls::VeldSliderProperties{.display_status = 2});
    rwin1_->setEnabled(true);
    rwin1_->setMin(4096);
    rwin1_->onChange = [this, &changes] {
      changes.setCaption("changes " + std::to_string(++rwinChanges_));
    };
  }

  std::unique_ptr<Bar> bar_;
  std::unique_ptr<controls::VeldSlider> rwin1_;
  int rwinChanges_ = 0;
};

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int) {
  Application::instance().title = "Tweakloom 99";
  // "--time": build and present the gallery, print how long that took, end.
  const bool timing = std::string(commandLine).find("--time") != std::string::npos;
  const DWORD start = ::GetTickCount();
  Gallery gallery;
  win32::Presenter presenter(instance);
  presenter.present(gallery.form);
  if (timing) {
    const DWORD took = ::GetTickCount() - start;
    std::printf("gallery: %u controls built and presented as windows in %lu ms\n",
                static_cast<unsigned>(gallery.form.controls().size()),
                static_cast<unsigned long>(took));
    return 0;
  }
  Application::instance().runEvent([&] { gallery.form.show(); });
  return presenter.run();
}
