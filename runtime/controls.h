// The controls the pages use, with the event rules of the form runtime:
// setting a value from code fires the control's Click or Change handler
// exactly when a user's change would (on a real change only, synchronously,
// nested inside the code that set it); user input reaches a control only when
// it takes user input (enabled and shown); an error escaping a user event
// ends the program through the top level (application.h).
#pragma once

#include "runtime/control.h"

#include <functional>
#include <string>
#include <vector>

namespace runtime {

// A control that shows a caption.
class Captioned : public Control {
public:
  using Control::Control;
  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

private:
  std::string caption_;
};

class Label : public Captioned {
public:
  using Captioned::Captioned;
  int alignment() const { return alignment_; } // 0 left, 1 right, 2 centre
  void setAlignment(int alignment);
  bool transparent() const { return transparent_; }
  void setTransparent(bool transparent);
  bool canTakeFocus() const override { return false; }

private:
  int alignment_ = 0;
  bool transparent_ = false;
};

class TextBox : public Control {
public:
  using Control::Control;
  const std::string& text() const { return text_; }
  // Fires Change when the text differs; a NUL cuts the text, as a text box
  // can't hold one.
  void setText(const std::string& text);
  bool locked() const { return locked_; }
  void setLocked(bool locked) { locked_ = locked; }
  int maxLength() const { return maxLength_; } // 0: no limit
  void setMaxLength(int length) { maxLength_ = length; }

  std::function<void()> onChange;
  // KeyPress gets each typed character's code and may change it; 0 drops it.
  std::function<void(int&)> onKeyPress;
  // KeyUp gets the released key's code and the shift state (1 Shift, 2 Ctrl,
  // 4 Alt).
  std::function<void(int, int)> onKeyUp;

  // The user types characters at the end of the text (8 is Backspace), each
  // going through KeyPress first.
  void userType(const std::string& characters);
  // The user replaces the whole text (an edit the presentation saw).
  void userSetText(const std::string& text);
  // A key the user types, through the form's KeyPress (with KeyPreview) and
  // this box's KeyPress: the key to insert, or 0 to drop it.
  int userFilterKey(int keyAscii);
  // The user releases a key while the box has the focus.
  void userKeyUp(int keyCode, int shift);

private:
  std::string text_;
  bool locked_ = false;
  int maxLength_ = 0;
};

class CheckBox : public Captioned {
public:
  using Captioned::Captioned;
  int value() const { return value_; }
  // 0, 1 or 2; anything else is Invalid property value (380). Fires Click on
  // a change.
  void setValue(int value);
  void userClick() override;

private:
  int value_ = 0;
};

class OptionButton : public Captioned {
public:
  using Captioned::Captioned;
  bool value() const { return value_; }
  // Setting True clears the other option buttons of the same container and
  // fires Click on this one; setting False fires nothing.
  void setValue(bool value);
  void userClick() override;

private:
  bool value_ = false;
};

class CommandButton : public Captioned {
public:
  using Captioned::Captioned;
  bool isDefault() const { return default_; } // Enter presses it
  void setDefault(bool value) { default_ = value; }
  bool isCancel() const { return cancel_; } // Esc presses it
  void setCancel(bool value) { cancel_ = value; }
  void userClick() override;
  // Setting Value to True from code presses the button.
  void press();

private:
  bool default_ = false;
  bool cancel_ = false;
};

// A picture box or an image: shows a picture and reports clicks and moves.
// A picture box takes the focus where it is a tab stop (a picture button);
// Enter and Space then click it.
class PictureBox : public Control {
public:
  using Control::Control;
  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture);

private:
  Picture picture_;
};

class Image : public PictureBox {
public:
  using PictureBox::PictureBox;
  bool canTakeFocus() const override { return false; }
};

// A straight line between two corners of its bounds: horizontal when it has
// no height, vertical when it has no width.
class Line : public Control {
public:
  using Control::Control;
  bool canTakeFocus() const override { return false; }
};

class Frame : public Captioned {
public:
  using Captioned::Captioned;
  bool bordered() const { return bordered_; }
  void setBordered(bool bordered);
  bool canTakeFocus() const override { return false; }

private:
  bool bordered_ = true;
};

// The list of texts shared by the combo box and the list boxes.
class ListControl : public Control {
public:
  using Control::Control;
  void addItem(const std::string& item);
  void addItem(const std::string& item, int index); // 5 when index is out of range
  void removeItem(int index);                       // 5 when index is out of range
  void clear();
  int listCount() const { return static_cast<int>(items_.size()); }
  const std::string& list(int index) const; // 381 when index is out of range
  int listIndex() const { return listIndex_; }
  // -1 selects nothing; anything else outside the list is 380. Fires Click on
  // a change.
  void setListIndex(int index);
  void userSelect(int index);

protected:
  virtual void itemsChanged() {}
  std::vector<std::string> items_;
  int listIndex_ = -1;
};

// A combo box of the drop-down list kind.
class ComboBox : public ListControl {
public:
  using ListControl::ListControl;
  std::string text() const;
  // Selects the item with exactly this text; a text not in the list is
  // 'Text' property is read-only (383).
  void setText(const std::string& text);
};

// A list box, optionally with a check mark before each item.
class ListBox : public ListControl {
public:
  ListBox(Form* form, ControlKind kind, std::string name, int index, Control* container,
          bool checkMarks = false);
  bool hasCheckMarks() const { return checkMarks_; }
  bool selected(int index) const; // the check mark, or the selection
  // Fires ItemCheck with the item's index on a change of a check mark.
  void setSelected(int index, bool selected);
  std::function<void(int)> onItemCheck;
  void userToggleCheck(int index);

protected:
  void itemsChanged() override;

private:
  bool checkMarks_;
  std::vector<bool> checked_;
};

// The files of one folder that match a pattern, sorted by name.
class FileListBox : public ListControl {
public:
  using ListControl::ListControl;
  const std::string& path() const { return path_; }
  // Lists the folder's files; Path not found (76) for a folder that doesn't
  // exist, leaving the old path.
  void setPath(const std::string& path);
  const std::string& pattern() const { return pattern_; }
  void setPattern(const std::string& pattern); // "*.cab", or several: "*.bmp;*.ico"
  void refresh();

private:
  std::string path_;
  std::string pattern_ = "*.*";
};

class Timer : public Control {
public:
  using Control::Control;
  int interval() const { return interval_; } // milliseconds, 0 stops it
  void setInterval(int milliseconds);
  // Enabled, with an interval, on a form whose Load event has run.
  bool running() const;
  // The form's running state changed.
  void formStateChanged() { notify(Property::Timer); }
  std::function<void()> onTimer;
  // One tick, as the presentation's clock delivers it.
  void tick();
  bool canTakeFocus() const override { return false; }

private:
  int interval_ = 0;
};

// A tab strip whose tabs hold controls; only the current tab's controls show.
// Its controls stand at their positions relative to the strip's top-left
// corner, wherever the tabs themselves are drawn.
class TabStrip : public Control {
public:
  using Control::Control;
  enum class Orientation { Top, Bottom, Left, Right };
  Orientation orientation() const { return orientation_; }
  void setOrientation(Orientation orientation) {
    orientation_ = orientation;
    notify(Property::Tabs);
  }
  int tabs() const { return static_cast<int>(captions_.size()); }
  void setTabs(int count);
  int tabsPerRow() const { return tabsPerRow_; }
  void setTabsPerRow(int count);
  int tabHeight() const { return tabHeight_; }
  void setTabHeight(int twips) { tabHeight_ = twips; }
  int tab() const { return tab_; }
  // 380 outside 0..tabs-1. Fires Click on a change; previousTab() then tells
  // the tab that was in front.
  void setTab(int tab);
  int previousTab() const { return previousTab_; }
  const std::string& tabCaption(int tab) const;
  void setTabCaption(int tab, const std::string& caption);
  const Picture& tabPicture(int tab) const;
  void setTabPicture(int tab, const Picture& picture);
  void userSelectTab(int tab);

private:
  void checkTab(int tab) const;
  std::vector<std::string> captions_;
  std::vector<Picture> pictures_;
  int tabsPerRow_ = 3;
  int tabHeight_ = 0;
  int tab_ = 0;
  int previousTab_ = 0;
  Orientation orientation_ = Orientation::Top;
};

// An up-down control whose Value steps by Increment between Min and Max.
class SpinControl : public Control {
public:
  using Control::Control;
  int min() const { return min_; }
  int max() const { return max_; }
  void setRange(int min, int max);
  int increment() const { return increment_; }
  void setIncrement(int increment) { increment_ = increment; }
  int value() const { return value_; }
  // 380 outside the range. Fires Change on a change.
  void setValue(int value);
  std::function<void()> onChange;
  void userUp();
  void userDown();

private:
  int min_ = 0;
  int max_ = 10;
  int increment_ = 1;
  int value_ = 0;
};

// What a user control draws: a list of simple drawing steps in twips, which
// the presentation paints and host tests read.
struct DrawStep {
  enum class Kind { FillRect, Line, Text, Picture } kind = Kind::FillRect;
  int left = 0, top = 0, right = 0, bottom = 0;
  std::uint32_t color = 0;
  std::string text;
  Picture picture;
};

// The behaviour of a user control placed on a form (the slider).
class UserControl {
public:
  virtual ~UserControl() = default;
  virtual void mouseDown(int button, int shift, float x, float y) = 0;
  virtual void mouseMove(int button, int shift, float x, float y) = 0;
  virtual void mouseUp(int button, int shift, float x, float y) = 0;
  virtual std::vector<DrawStep> draw() const = 0;
  virtual void resized(int width, int height) = 0;
};

class UserControlHost : public Control {
public:
  using Control::Control;
  void setBehavior(UserControl* behavior) { behavior_ = behavior; }
  UserControl* behavior() const { return behavior_; }
  // The user control asks to be painted again.
  void redraw() { notify(Property::Drawing); }
  void userMouseDown(int button, int shift, float x, float y);
  void userMouseUp(int button, int shift, float x, float y);
  void userMouseMoveOver(int button, int shift, float x, float y);

private:
  UserControl* behavior_ = nullptr;
};

} // namespace runtime
