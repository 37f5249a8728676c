#include "runtime/form.h"

#include "runtime/application.h"

#include <charconv>
#include <string_view>

namespace runtime {

Form::Form(std::string name) : Control(this, ControlKind::Form, std::move(name), -1, nullptr) {
  setVisibleQuietly(false);
  Application::instance().registerForm(this);
}

void Form::adopt(std::unique_ptr<Control> control, Bounds bounds) {
  control->bounds_ = bounds;
  controls_.push_back(std::move(control));
}

Control* Form::find(const std::string& designName) const {
  if (designName == this->designName()) return const_cast<Form*>(this);
  // The name and the index are compared apart, so that no control's design
  // name has to be built: readers look controls up many times a refresh.
  std::string_view name = designName;
  int index = -1;
  if (!name.empty() && name.back() == ')') {
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos) return nullptr;
    const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
    name = name.substr(0, open);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 0 ||
        std::to_string(number) != digits)
      return nullptr;
    index = number;
  }
  for (const auto& control : controls_)
    if (control->index() == index && control->name() == name) return control.get();
  return nullptr;
}

void Form::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  notify(Property::Caption);
}

void Form::setClientSize(int width, int height) {
  const auto& app = Application::instance();
  move(left(), top(), width + 2 * app.borderWidth,
       height + 2 * app.borderWidth + app.captionHeight);
}

void Form::centreOnScreen() {
  const auto& app = Application::instance();
  move((app.screenWidth - width()) / 2, (app.screenHeight - height()) / 2, width(), height());
}

void Form::setWindowState(int state) {
  if (windowState_ == state) return;
  windowState_ = state;
  notify(Property::WindowState);
}

void Form::setRegion(const WindowRegion& region) {
  region_ = region;
  hasRegion_ = true;
  notify(Property::Region);
}

void Form::setPicture(const Picture& picture) {
  picture_ = picture;
  notify(Property::Picture);
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  fire(onLoad);
}

void Form::show() {
  load();
  if (Application::instance().ended()) return;
  setVisible(true);
}

void Form::hide() { setVisible(false); }

void Form::unload() {
  if (!loaded_) return;
  fire(onUnload);
  loaded_ = false;
  setVisible(false);
}

void Form::focus(Control* control) {
  Control* previous = active_;
  active_ = control;
  if (previous && previous != control) previous->notify(Property::Focus);
  if (control) control->notify(Property::Focus);
}

void Form::userPaint() {
  Application::instance().runEvent([&] { fire(onPaint); });
}

void Form::userKeyDown(int keyCode, int shift) {
  Application::instance().runEvent([&] {
    if (onKeyDown) onKeyDown(keyCode, shift);
  });
}

void Form::userKey(int keyAscii) {
  Application::instance().runEvent([&] {
    int key = keyAscii;
    if (keyPreview && onKeyPress) onKeyPress(key);
    if (key != kVbKeyReturn && key != kVbKeyEscape) return;
    for (const auto& control : controls_) {
      if (control->kind() != ControlKind::CommandButton) continue;
      auto* button = static_cast<CommandButton*>(control.get());
      const bool wanted = key == kVbKeyReturn ? button->isDefault() : button->isCancel();
      if (wanted && button->takesUserInput()) {
        button->press();
        return;
      }
    }
  });
}

} // namespace runtime
