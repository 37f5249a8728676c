#include "runtime/control.h"

#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/form.h"

namespace runtime {

Control::Control(Form* form, ControlKind kind, std::string name, int index, Control* container)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index), container_(container) {
  if (container_) container_->children_.push_back(this);
  // Controls that hold the user's text use the window colours.
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
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  notify(Property::Visible);
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
