#include "runtime/form.h"

#include "runtime/application.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace runtime {

Form::Form(std::string name) : Control(this, ControlKind::Form, std::move(name), -1, nullptr) {
  setVisibleQuietly(false);
  Application::instance().registerForm(this);
}

void Form::adopt(std::unique_ptr<Control> control, Bounds bounds) {
  control->bounds_ = bounds;
  tabSequence_.push_back(control.get());
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
  clientWidth_ = width;
  clientHeight_ = height;
  displayChanged();
}

void Form::displayChanged() {
  if (clientWidth_ == 0 && clientHeight_ == 0) return;
  // The window has whole pixels: the client area is the design's rounded to
  // the nearest pixel, and Width and Height are what the window measures.
  const auto& display = Application::instance().display();
  const int tppX = display.twipsPerPixelX, tppY = display.twipsPerPixelY;
  const int clientX = (clientWidth_ + tppX / 2) / tppX;
  const int clientY = (clientHeight_ + tppY / 2) / tppY;
  move(left(), top(), (clientX + 2 * display.borderPixels) * tppX,
       (clientY + 2 * display.borderPixels + display.captionPixels) * tppY);
}

void Form::centreOnScreen() {
  const auto& app = Application::instance();
  move((app.screenWidth - width()) / 2, (app.screenHeight - height()) / 2, width(), height());
}

void Form::setWindowState(int state) {
  if (windowState_ == state) return;
  windowState_ = state;
  notify(Property::WindowState);
  if (loaded_) fireResize();
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

void Form::startTimers() {
  for (const auto& control : controls_)
    if (control->kind() == ControlKind::Timer)
      static_cast<Timer*>(control.get())->formStateChanged();
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  resizeAfterShow_ = true;
  fire(onLoad);
  loadRun_ = true;
  startTimers();
}

void Form::show() {
  load();
  if (Application::instance().ended()) return;
  const bool wasVisible = visible();
  if (!wasVisible && Application::instance().beforeShow) Application::instance().beforeShow(*this);
  setVisible(true);
  if (wasVisible) return;
  if (!active_ || !active_->takesUserInput()) {
    const auto stops = tabStops();
    if (!stops.empty()) focus(stops.front());
  } else {
    focus(active_); // back to the control that had the focus
  }
  // Resize comes when the form is first shown after a load.
  if (resizeAfterShow_) {
    resizeAfterShow_ = false;
    fireResize();
  }
}

void Form::hide() { setVisible(false); }

void Form::unload() {
  if (!loaded_) return;
  fire(onUnload);
  loaded_ = false;
  loadRun_ = false;
  active_ = nullptr;
  startTimers();
  setVisible(false);
}

void Form::fireResize() { fire(onResize); }

void Form::userResized(int width, int height) {
  if (width == this->width() && height == this->height()) return;
  Application::instance().runEvent([&] {
    move(left(), top(), width, height);
    fireResize();
  });
}

// ---- Focus and tab order -----------------------------------------------------

void Form::focus(Control* control) {
  Control* previous = active_;
  active_ = control;
  if (previous && previous != control) previous->notify(Property::Focus);
  if (control) control->notify(Property::Focus);
}

void Form::userFocused(Control* control) {
  if (control == active_ || !control || &control->form() != this) return;
  Control* previous = active_;
  active_ = control;
  if (previous) previous->notify(Property::Drawing); // its focus rectangle goes
  control->notify(Property::Drawing);
}

int Form::tabIndexOf(const Control* control) const {
  const auto it = std::find(tabSequence_.begin(), tabSequence_.end(), control);
  return it == tabSequence_.end() ? 0 : static_cast<int>(it - tabSequence_.begin());
}

void Form::moveInTabOrder(Control* control, int index) {
  const auto it = std::find(tabSequence_.begin(), tabSequence_.end(), control);
  if (it == tabSequence_.end()) return;
  tabSequence_.erase(it);
  const auto place = std::min<std::size_t>(static_cast<std::size_t>(index), tabSequence_.size());
  tabSequence_.insert(tabSequence_.begin() + static_cast<std::ptrdiff_t>(place), control);
}

bool Form::onClientArea(const Control& control) const {
  // Only a control placed on the form itself can lie outside the client
  // area (the image stores); those inside containers are clipped by them.
  if (control.container() != this || clientWidth_ == 0) return true;
  return control.left() < clientWidth_ && control.top() < clientHeight_ &&
         control.left() + control.width() > 0 && control.top() + control.height() > 0;
}

std::vector<Control*> Form::tabStops() const {
  std::vector<Control*> stops;
  for (Control* control : tabSequence_) {
    if (!control->canTakeFocus() || !control->tabStop() || !control->takesUserInput() ||
        !onClientArea(*control))
      continue;
    if (control->kind() == ControlKind::OptionButton) {
      // A group of option buttons is one stop: its selected button, or the
      // first one when none is selected.
      const auto* option = static_cast<const OptionButton*>(control);
      bool groupHasSelection = false;
      Control* firstOfGroup = nullptr;
      for (Control* other : tabSequence_) {
        if (other->kind() != ControlKind::OptionButton ||
            other->container() != control->container() || !other->takesUserInput())
          continue;
        if (static_cast<OptionButton*>(other)->value()) groupHasSelection = true;
        if (!firstOfGroup) firstOfGroup = other;
      }
      if (!(option->value() || (!groupHasSelection && firstOfGroup == control) ||
            control == active_))
        continue;
    }
    stops.push_back(control);
  }
  return stops;
}

Control* Form::nextTabStop(const Control* from, bool backwards) const {
  const auto stops = tabStops();
  if (stops.empty()) return nullptr;
  const int count = static_cast<int>(tabSequence_.size());
  const int start = from ? tabIndexOf(from) : (backwards ? 0 : count - 1);
  for (int step = 1; step <= count; ++step) {
    const int at = ((backwards ? start - step : start + step) % count + count) % count;
    Control* candidate = tabSequence_[static_cast<std::size_t>(at)];
    if (std::find(stops.begin(), stops.end(), candidate) != stops.end()) return candidate;
  }
  return nullptr;
}

void Form::keepFocusUsable() {
  if (!active_ || active_->takesUserInput()) return;
  Control* next = nextTabStop(active_, false);
  if (next == active_) next = nullptr;
  if (visible() && next)
    focus(next);
  else
    active_ = next;
}

CommandButton* Form::defaultButton() const {
  for (Control* control : tabSequence_)
    if (control->kind() == ControlKind::CommandButton &&
        static_cast<CommandButton*>(control)->isDefault() && control->takesUserInput())
      return static_cast<CommandButton*>(control);
  return nullptr;
}

CommandButton* Form::cancelButton() const {
  for (Control* control : tabSequence_)
    if (control->kind() == ControlKind::CommandButton &&
        static_cast<CommandButton*>(control)->isCancel() && control->takesUserInput())
      return static_cast<CommandButton*>(control);
  return nullptr;
}

bool Form::moveInOptionGroup(OptionButton& from, bool backwards) {
  std::vector<Control*> group;
  for (Control* control : tabSequence_)
    if (control->kind() == ControlKind::OptionButton && control->container() == from.container() &&
        (control == &from || control->takesUserInput()))
      group.push_back(control);
  if (group.size() < 2) return true;
  const auto at = std::find(group.begin(), group.end(), &from) - group.begin();
  const auto size = static_cast<std::ptrdiff_t>(group.size());
  auto* next = static_cast<OptionButton*>(
      group[static_cast<std::size_t>(((backwards ? at - 1 : at + 1) % size + size) % size)]);
  focus(next);
  next->userClick();
  return true;
}

bool Form::turnTabStrip(bool backwards) {
  TabStrip* strip = nullptr;
  for (Control* c = active_; c && c != this; c = c->container())
    if (c->kind() == ControlKind::TabStrip) {
      strip = static_cast<TabStrip*>(c);
      break;
    }
  if (!strip)
    for (Control* control : tabSequence_)
      if (control->kind() == ControlKind::TabStrip && control->takesUserInput()) {
        strip = static_cast<TabStrip*>(control);
        break;
      }
  if (!strip || !strip->takesUserInput()) return false;
  const int count = strip->tabs();
  strip->userSelectTab(((strip->tab() + (backwards ? -1 : 1)) % count + count) % count);
  keepFocusUsable();
  return true;
}

bool Form::userNavigationKey(int keyCode, int shift) {
  if (Application::instance().ended() || Application::instance().failing()) return false;
  const bool backwards = (shift & kShiftMask) != 0;
  switch (keyCode) {
  case kVbKeyTab: {
    if (shift & kAltMask) return false;
    if (shift & kCtrlMask) return turnTabStrip(backwards);
    if (Control* next = nextTabStop(active_, backwards)) focus(next);
    return true;
  }
  case kVbKeySpace: {
    if (!active_ || !active_->takesUserInput() || (shift & (kCtrlMask | kAltMask))) return false;
    switch (active_->kind()) {
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::CommandButton:
    case ControlKind::PictureBox: active_->userClick(); return true;
    default: return false;
    }
  }
  case kVbKeyLeft:
  case kVbKeyUp:
  case kVbKeyRight:
  case kVbKeyDown:
    if (!active_ || active_->kind() != ControlKind::OptionButton || (shift & kAltMask))
      return false;
    return moveInOptionGroup(static_cast<OptionButton&>(*active_),
                             keyCode == kVbKeyLeft || keyCode == kVbKeyUp);
  default: return false;
  }
}

bool Form::userAccessKey(char letter) {
  if (Application::instance().ended() || Application::instance().failing()) return false;
  const char wanted = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  if (wanted == 0) return false;
  const int count = static_cast<int>(tabSequence_.size());
  const int start = active_ ? tabIndexOf(active_) : count - 1;
  for (int step = 1; step <= count; ++step) {
    Control* control = tabSequence_[static_cast<std::size_t>((start + step) % count)];
    if (control->accessKey() != wanted || !control->shown() || !onClientArea(*control)) continue;
    switch (control->kind()) {
    case ControlKind::Label:
    case ControlKind::Frame:
      // The label names the control that follows it in the tab order.
      if (Control* next = nextTabStop(control, false)) focus(next);
      return true;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      if (!control->takesUserInput()) continue;
      focus(control);
      control->userClick();
      return true;
    case ControlKind::CommandButton:
      if (!control->takesUserInput()) continue;
      focus(control);
      control->userClick();
      return true;
    default: continue;
    }
  }
  return false;
}

// ---- Events ------------------------------------------------------------------

void Form::userPaint() {
  Application::instance().runEvent([&] { fire(onPaint); });
}

void Form::userKeyDown(int keyCode, int shift) {
  Application::instance().runEvent([&] {
    if (onKeyDown) onKeyDown(keyCode, shift);
  });
}

bool Form::userKey(int keyAscii) {
  auto& app = Application::instance();
  if (app.ended() || app.failing()) return false;
  int key = keyAscii;
  if (keyPreview && onKeyPress) app.runEvent([&] { onKeyPress(key); });
  if (key == kVbKeyReturn) {
    if (active_ && active_->takesUserInput() &&
        (active_->kind() == ControlKind::CommandButton ||
         active_->kind() == ControlKind::PictureBox)) {
      active_->userClick();
      return true;
    }
    if (CommandButton* button = defaultButton()) {
      button->userClick();
      return true;
    }
    return false;
  }
  if (key == kVbKeyEscape) {
    if (CommandButton* button = cancelButton()) {
      button->userClick();
      return true;
    }
    return false;
  }
  return key != keyAscii; // a KeyPress handler took or changed it
}

} // namespace runtime
