// The base of every runtime control: design name and array index, container,
// geometry in twips, Enabled and Visible, colours and font, focus, and the
// link to the window that presents it. No Win32 types here.
#pragma once

#include "runtime/picture.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace runtime {

class Form;

enum class ControlKind {
  Form,
  Label,
  TextBox,
  CheckBox,
  OptionButton,
  CommandButton,
  PictureBox,
  Image,
  Frame,
  ComboBox,
  ListBox,
  FileListBox,
  Timer,
  TabStrip,
  SpinControl,
  UserControlHost,
  Line,
};

// What changed, so that the presentation updates only that.
enum class Property {
  Value,
  Text,
  Caption,
  Enabled,
  Visible,
  Geometry,
  Colors,
  Font,
  Picture,
  List,
  ListIndex,
  ItemCheck,
  Tab,
  Tabs,
  Focus,
  Timer,
  Range,
  Drawing,
  WindowState,
  Region,
};

// The presentation of a control (a real window, or nothing in host tests).
class ControlView {
public:
  virtual ~ControlView() = default;
  virtual void changed(Property property) = 0;
};

struct Bounds {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

struct Font {
  std::string name = "MS Sans Serif";
  int size = 8;
  bool bold = false;
};

// Colours are 0x00BBGGRR, or a system colour: 0x80000000 | COLOR_ index.
inline constexpr std::uint32_t kSystemColor = 0x80000000u;
inline constexpr std::uint32_t kButtonFace = kSystemColor | 15;
inline constexpr std::uint32_t kWindowBackground = kSystemColor | 5;
inline constexpr std::uint32_t kWindowText = kSystemColor | 8;
inline constexpr std::uint32_t kButtonText = kSystemColor | 18;

// Mouse buttons as the MouseMove and MouseDown events report them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

class Control {
public:
  Control(Form* form, ControlKind kind, std::string name, int index, Control* container);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; } // -1 when not in a control array
  std::string designName() const;      // "net_check(3)", or "app_b"
  Form& form() const { return *form_; }
  Control* container() const { return container_; }
  // The tab of its container that holds this control, when the container is
  // a tab strip; -1 otherwise.
  int containerTab() const { return containerTab_; }
  void placeOnTab(int tab) { containerTab_ = tab; }
  const std::vector<Control*>& children() const { return children_; }

  const Bounds& bounds() const { return bounds_; }
  void move(int left, int top, int width, int height);
  int left() const { return bounds_.left; }
  int top() const { return bounds_.top; }
  int width() const { return bounds_.width; }
  int height() const { return bounds_.height; }

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  // Visible itself and in every container, on the container tab in front.
  bool shown() const;
  // Enabled and shown, with every container enabled: only then does the
  // control take the user's input.
  bool takesUserInput() const;

  std::uint32_t backColor() const { return backColor_; }
  void setBackColor(std::uint32_t color);
  std::uint32_t foreColor() const { return foreColor_; }
  void setForeColor(std::uint32_t color);
  const Font& font() const { return font_; }
  void setFont(const Font& font);

  // Gives the control the focus; Invalid procedure call (5) when it can't
  // take it.
  void setFocus();
  bool hasFocus() const;
  virtual bool canTakeFocus() const;

  // Keyboard order. TabIndex is the control's place in its form's tab order
  // (0 first); controls take their places in creation order unless set, and
  // setting one moves the controls in between by one place, as Basic does.
  // TabStop says whether Tab stops on the control; a picture box stops only
  // where the program makes it a button.
  int tabIndex() const;
  void setTabIndex(int index);
  bool tabStop() const { return tabStop_; }
  void setTabStop(bool stop) { tabStop_ = stop; }
  // The access key of the caption: the letter after a single "&" (lower
  // case), or 0 when the caption has none. "&&" is an ampersand.
  char accessKey() const;

  // Mouse events every visible control reports: button, shift, x, y (twips).
  std::function<void(int, int, float, float)> onMouseMove;
  std::function<void()> onClick;
  // MouseDown and MouseUp: button, shift, x, y (twips).
  std::function<void(int, int, float, float)> onMouseDown;
  std::function<void(int, int, float, float)> onMouseUp;
  // The user moves the mouse over the control or clicks it.
  void userMouseMove(int button, int shift, float x, float y);
  // The user presses or releases a mouse button on the control; only a
  // control that takes user input reports it.
  void userMouseDown(int button, int shift, float x, float y);
  void userMouseUp(int button, int shift, float x, float y);
  virtual void userClick();

  void attachView(ControlView* view) { view_ = view; }
  ControlView* view() const { return view_; }

protected:
  void notify(Property property);
  void setVisibleQuietly(bool visible) { visible_ = visible; }
  // Runs a handler as the event it is: synchronously, and, when no other
  // event is running, under the top level's failure handling.
  void fire(const std::function<void()>& handler);

private:
  friend class Form;
  Form* form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  Control* container_;
  int containerTab_ = -1;
  std::vector<Control*> children_;
  Bounds bounds_;
  bool enabled_ = true;
  bool visible_ = true;
  bool tabStop_ = true;
  std::uint32_t backColor_ = kButtonFace;
  std::uint32_t foreColor_ = kButtonText;
  Font font_;
  ControlView* view_ = nullptr;
};

} // namespace runtime
