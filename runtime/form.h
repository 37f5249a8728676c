// A form: the window that owns its controls, its Load, Paint, MouseMove and
// key events, Show and Hide, window state and its window region.
#pragma once

#include "runtime/control.h"
#include "runtime/controls.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace runtime {

// One shape of a window region, in pixels, as CreateRectRgn and
// CreateRoundRectRgn take it.
struct RegionShape {
  enum class Kind { Rect, RoundRect } kind = Kind::Rect;
  int left = 0, top = 0, right = 0, bottom = 0;
  int cornerWidth = 0, cornerHeight = 0;
  bool operator==(const RegionShape&) const = default;
};

// A window region: CombineRgn(result, first, second, mode) of two shapes
// (mode 1 AND, 2 OR, 3 XOR, 4 DIFF), or the first shape alone (mode 0).
struct WindowRegion {
  RegionShape first;
  RegionShape second;
  int combineMode = 0;
  bool operator==(const WindowRegion&) const = default;
};

inline constexpr int kVbKeyReturn = 13;
inline constexpr int kVbKeyEscape = 27;

class Form : public Control {
public:
  explicit Form(std::string name);

  // Creates a control of this form; `container` is the form itself when null.
  template <class T, class... Extra>
  T& add(const std::string& name, int index, Control* container, Bounds bounds, Extra&&... extra) {
    auto control = std::make_unique<T>(this, kindOf<T>(), name, index, container ? container : this,
                                       std::forward<Extra>(extra)...);
    T& added = *control;
    adopt(std::move(control), bounds);
    return added;
  }
  // Every control of the form, in creation order.
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  // The control with this design name ("net_check(3)"), or null.
  Control* find(const std::string& designName) const;

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);
  // Sizes the form so that its client area has this size in twips; Width and
  // Height then include the border and caption.
  void setClientSize(int width, int height);
  // Moves the form to the middle of the screen: (screen - form) \ 2 each way.
  void centreOnScreen();
  int windowState() const { return windowState_; } // 0 normal, 1 minimised
  void setWindowState(int state);
  const WindowRegion* region() const { return hasRegion_ ? &region_ : nullptr; }
  void setRegion(const WindowRegion& region);
  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture);

  bool loaded() const { return loaded_; }
  // Loads the form (running Load once) if it isn't loaded.
  void load();
  // Loads the form if needed and makes it visible.
  void show();
  void hide();
  void unload();

  Control* activeControl() const { return active_; }

  std::function<void()> onLoad;
  std::function<void()> onPaint;
  std::function<void()> onUnload;
  std::function<void(int&)> onKeyPress; // with KeyPreview, before the control
  bool keyPreview = false;
  std::function<void(int, int)> onKeyDown; // key code, shift; keys sent to the form itself
  std::function<void()> onResize;

  // Asks for the form to be drawn again (Refresh); no Paint event comes of it.
  void refresh() { notify(Property::Drawing); }

  // Input from the presentation.
  void userPaint();
  // A key typed while the form is active: KeyPress (with KeyPreview), then
  // Enter presses the default button and Esc the cancel button.
  void userKey(int keyAscii);
  // A key pressed while the form itself has the focus.
  void userKeyDown(int keyCode, int shift);

private:
  friend class Control;
  template <class T> static ControlKind kindOf();
  void adopt(std::unique_ptr<Control> control, Bounds bounds);
  void focus(Control* control);

  std::vector<std::unique_ptr<Control>> controls_;
  std::string caption_;
  int windowState_ = 0;
  bool hasRegion_ = false;
  WindowRegion region_;
  Picture picture_;
  bool loaded_ = false;
  Control* active_ = nullptr;
};

template <class T> ControlKind Form::kindOf() {
  if constexpr (std::is_same_v<T, Label>)
    return ControlKind::Label;
  else if constexpr (std::is_same_v<T, TextBox>)
    return ControlKind::TextBox;
  else if constexpr (std::is_same_v<T, CheckBox>)
    return ControlKind::CheckBox;
  else if constexpr (std::is_same_v<T, OptionButton>)
    return ControlKind::OptionButton;
  else if constexpr (std::is_same_v<T, CommandButton>)
    return ControlKind::CommandButton;
  else if constexpr (std::is_same_v<T, Image>)
    return ControlKind::Image;
  else if constexpr (std::is_same_v<T, PictureBox>)
    return ControlKind::PictureBox;
  else if constexpr (std::is_same_v<T, Frame>)
    return ControlKind::Frame;
  else if constexpr (std::is_same_v<T, ComboBox>)
    return ControlKind::ComboBox;
  else if constexpr (std::is_same_v<T, ListBox>)
    return ControlKind::ListBox;
  else if constexpr (std::is_same_v<T, FileListBox>)
    return ControlKind::FileListBox;
  else if constexpr (std::is_same_v<T, Timer>)
    return ControlKind::Timer;
  else if constexpr (std::is_same_v<T, TabStrip>)
    return ControlKind::TabStrip;
  else if constexpr (std::is_same_v<T, SpinControl>)
    return ControlKind::SpinControl;
  else if constexpr (std::is_same_v<T, UserControlHost>)
    return ControlKind::UserControlHost;
  else if constexpr (std::is_same_v<T, Line>)
    return ControlKind::Line;
  else
    static_assert(sizeof(T) == 0, "not a runtime control");
}

} // namespace runtime
