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

// A window region: CombineRgn(result, source1, source2, mode) of two shapes
// (mode 1 AND, 2 OR, 3 XOR, 4 DIFF), or source1 alone (mode 0).
struct WindowRegion {
  RegionShape source1;
  RegionShape source2;
  int combineMode = 0;
  bool operator==(const WindowRegion&) const = default;
};

// Key codes of the keys the forms answer.
inline constexpr int kVbKeyBack = 8;
inline constexpr int kVbKeyTab = 9;
inline constexpr int kVbKeyReturn = 13;
inline constexpr int kVbKeyEscape = 27;
inline constexpr int kVbKeySpace = 32;
inline constexpr int kVbKeyLeft = 37;
inline constexpr int kVbKeyUp = 38;
inline constexpr int kVbKeyRight = 39;
inline constexpr int kVbKeyDown = 40;
// Shift states of key events.
inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

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
  // Height then include the border and caption as the display gives them,
  // and follow the display when it is read again.
  void setClientSize(int width, int height);
  int clientWidth() const { return clientWidth_; }
  int clientHeight() const { return clientHeight_; }
  // The display's figures changed (application.h).
  void displayChanged();
  // Moves the form to the middle of the screen: (screen - form) \ 2 each way.
  void centreOnScreen();
  int windowState() const { return windowState_; } // 0 normal, 1 minimised
  void setWindowState(int state);
  const WindowRegion* region() const { return hasRegion_ ? &region_ : nullptr; }
  void setRegion(const WindowRegion& region);
  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture);

  bool loaded() const { return loaded_; }
  // Loaded, and its Load event has run: from then on its timers tick.
  bool running() const { return loaded_ && loadRun_; }
  // Loads the form (running Load once) if it isn't loaded.
  void load();
  // Loads the form if needed and makes it visible.
  void show();
  void hide();
  void unload();

  Control* activeControl() const { return active_; }

  // Every control in tab index order.
  const std::vector<Control*>& tabSequence() const { return tabSequence_; }
  // The controls Tab stops on now, in order: those that can take the focus,
  // are tab stops, take user input and lie inside the client area; of a
  // group of option buttons only the selected one (the first when none is).
  std::vector<Control*> tabStops() const;
  // The default button (Enter) and the cancel button (Esc), when the design
  // has one that takes input now.
  CommandButton* defaultButton() const;
  CommandButton* cancelButton() const;

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
  // Enter presses the command or picture button that has the focus, else the
  // default button; Esc presses the cancel button. False when nothing took
  // an Enter or Esc.
  bool userKey(int keyAscii);
  // A key pressed while the form itself has the focus.
  void userKeyDown(int keyCode, int shift);
  // The keys of a dialog, with the focus on a control of this form: Tab and
  // Shift+Tab move through the tab stops; Ctrl+Tab and Ctrl+Shift+Tab turn
  // the tab strip (the one holding the focus, else the form's first shown
  // one) to its next or previous tab; Space presses the focused button or
  // turns its check box over; the arrow keys move through the option buttons
  // of the focused one's group and select the one they reach. True when the
  // key was used.
  bool userNavigationKey(int keyCode, int shift);
  // Alt+letter, or a letter typed on a control that takes no text: the next
  // control after the focus whose caption has that access key acts. A label
  // or frame sends the focus to the next tab stop after it; a check box or
  // option button takes the focus and is clicked; a command button is
  // pressed. True when a control had the key.
  bool userAccessKey(char letter);
  // The presentation saw the focus move to this control (a click on it).
  void userFocused(Control* control);
  // Moves the focus on when the control that has it can no longer take it
  // (disabled, hidden, or on a tab that went to the back).
  void keepFocusUsable();
  // The presentation saw the form's size or window state change.
  void userResized(int width, int height);

private:
  friend class Control;
  template <class T> static ControlKind kindOf();
  void adopt(std::unique_ptr<Control> control, Bounds bounds);
  void focus(Control* control);
  int tabIndexOf(const Control* control) const;
  void moveInTabOrder(Control* control, int index);
  bool onClientArea(const Control& control) const;
  Control* nextTabStop(const Control* from, bool backwards) const;
  bool moveInOptionGroup(OptionButton& from, bool backwards);
  bool turnTabStrip(bool backwards);
  void fireResize();
  void startTimers();

  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<Control*> tabSequence_;
  std::string caption_;
  int clientWidth_ = 0;
  int clientHeight_ = 0;
  bool resizeAfterShow_ = true;
  int windowState_ = 0;
  bool hasRegion_ = false;
  WindowRegion region_;
  Picture picture_;
  bool loaded_ = false;
  bool loadRun_ = false;
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
