#include "runtime/control.h"

#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/form.h"

#include <cctype>

namespace runtime {

Control::Control(Form* form, ControlKind kind, std::string name, int index, Control* container)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index), container_(container) {
  if (container_) container_->children_.push_back(this);
  // Controls that hold the user's text use the window colours.
  if (kind == ControlKind::PictureBox || kind == ControlKind::UserControlHost) tabStop_ = false;
  switch (kind) {
  case ControlKind::TextBox:
  case ControlKind::ComboBox:
  case ControlKind::ListBox:
  case ControlKind::FileListBox:
    backColor_ = kWindowBackground;
    foreColor_ = kWindowText;
    break;
  default: break;
  }
}

std::string Control::designName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::move(int left, int top, int width, int height) {
  const Bounds next{left, top, width, height};
  if (next.left == bounds_.left && next.top == bounds_.top && next.width == bounds_.width &&
      next.height == bounds_.height)
    return;
  bounds_ = next;
  notify(Property::Geometry);
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  notify(Property::Enabled);
  if (!enabled) form_->keepFocusUsable();
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  notify(Property::Visible);
  if (!visible && this != form_) form_->keepFocusUsable();
}

int Control::tabIndex() const { return form_->tabIndexOf(this); }

void Control::setTabIndex(int index) {
  if (index < 0 || index > 32767) raiseError(kInvalidPropertyValue);
  form_->moveInTabOrder(this, index);
}

char Control::accessKey() const {
  const std::string* text = nullptr;
  switch (kind_) {
  case ControlKind::Label:
  case ControlKind::CheckBox:
  case ControlKind::OptionButton:
  case ControlKind::CommandButton:
  case ControlKind::Frame: text = &static_cast<const Captioned*>(this)->caption(); break;
  default: return 0;
  }
  for (std::size_t i = 0; i + 1 < text->size(); ++i) {
    if ((*text)[i] != '&') continue;
    if ((*text)[i + 1] == '&') {
      ++i;
      continue;
    }
    return static_cast<char>(std::tolower(static_cast<unsigned char>((*text)[i + 1])));
  }
  return 0;
}

bool Control::shown() const {
  if (!visible_) return false;
  if (!container_) return true;
  if (container_->kind() == ControlKind::TabStrip &&
      static_cast<const TabStrip*>(container_)->tab() != containerTab_)
    return false;
  return container_->shown();
}

bool Control::takesUserInput() const {
  for (const Control* c = this; c; c = c->container_)
    if (!c->enabled_) return false;
  return shown();
}

void Control::setBackColor(std::uint32_t color) {
  if (backColor_ == color) return;
  backColor_ = color;
  notify(Property::Colors);
}

void Control::setForeColor(std::uint32_t color) {
  if (foreColor_ == color) return;
  foreColor_ = color;
  notify(Property::Colors);
}

void Control::setFont(const Font& font) {
  font_ = font;
  notify(Property::Font);
}

bool Control::canTakeFocus() const { return true; }

void Control::setFocus() {
  if (!canTakeFocus() || !takesUserInput() || !form_->visible()) raiseError(kInvalidProcedureCall);
  form_->focus(this);
}

bool Control::hasFocus() const { return form_->activeControl() == this; }

void Control::userMouseMove(int button, int shift, float x, float y) {
  if (!shown()) return;
  Application::instance().runEvent([&] {
    if (onMouseMove) onMouseMove(button, shift, x, y);
  });
}

void Control::userMouseDown(int button, int shift, float x, float y) {
  if (!takesUserInput()) return;
  Application::instance().runEvent([&] {
    if (onMouseDown) onMouseDown(button, shift, x, y);
  });
}

void Control::userMouseUp(int button, int shift, float x, float y) {
  if (!takesUserInput()) return;
  Application::instance().runEvent([&] {
    if (onMouseUp) onMouseUp(button, shift, x, y);
  });
}

void Control::userClick() {
  if (!takesUserInput()) return;
  Application::instance().runEvent([&] { fire(onClick); });
}

void Control::notify(Property property) {
  if (view_) view_->changed(property);
}

void Control::fire(const std::function<void()>& handler) {
  if (handler) handler();
}

} // namespace runtime
