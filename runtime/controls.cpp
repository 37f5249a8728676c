#include "runtime/controls.h"

#include "platform/platform.h"
#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/form.h"
#include "runtime/text_functions.h"

#include <algorithm>
#include <cctype>
#include <unordered_set>
#include <utility>

namespace runtime {

namespace {

void runUserEvent(const std::function<void()>& event) { Application::instance().runEvent(event); }

} // namespace

// ---- Captioned, Label -------------------------------------------------------

void Captioned::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  notify(Property::Caption);
}

void Label::setAlignment(int alignment) {
  alignment_ = alignment;
  notify(Property::Caption);
}

void Label::setTransparent(bool transparent) {
  transparent_ = transparent;
  notify(Property::Colors);
}

// ---- TextBox ---------------------------------------------------------------

void TextBox::setText(const std::string& text) {
  std::string next = cutAtNul(text);
  if (maxLength_ > 0 && next.size() > static_cast<std::size_t>(maxLength_)) next.resize(maxLength_);
  if (next == text_) return;
  text_ = next;
  notify(Property::Text);
  fire(onChange);
}

void TextBox::userType(const std::string& characters) {
  if (!takesUserInput() || locked_) return;
  runUserEvent([&] {
    for (const char c : characters) {
      int key = static_cast<unsigned char>(c);
      if (form().keyPreview && form().onKeyPress) form().onKeyPress(key);
      if (key != 0 && onKeyPress) onKeyPress(key);
      if (key == 0) continue;
      if (key == 8) {
        if (!text_.empty()) setText(text_.substr(0, text_.size() - 1));
      } else if (key >= 32 || key == '\t') {
        setText(text_ + static_cast<char>(key));
      }
    }
  });
}

int TextBox::userFilterKey(int keyAscii) {
  if (!takesUserInput() || locked_) return 0;
  int key = keyAscii;
  runUserEvent([&] {
    if (form().keyPreview && form().onKeyPress) form().onKeyPress(key);
    if (key != 0 && onKeyPress) onKeyPress(key);
  });
  return Application::instance().ended() ? 0 : key;
}

void TextBox::userKeyUp(int keyCode, int shift) {
  if (!takesUserInput()) return;
  runUserEvent([&] {
    if (onKeyUp) onKeyUp(keyCode, shift);
  });
}

void TextBox::userSetText(const std::string& text) {
  if (!takesUserInput() || locked_) return;
  runUserEvent([&] { setText(text); });
}

// ---- CheckBox --------------------------------------------------------------

void CheckBox::setValue(int value) {
  if (value < 0 || value > 2) raiseError(kInvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  notify(Property::Value);
  fire(onClick);
}

void CheckBox::userClick() {
  if (!takesUserInput()) return;
  runUserEvent([&] { setValue(value_ == 1 ? 0 : 1); });
}

// ---- OptionButton ----------------------------------------------------------

void OptionButton::setValue(bool value) {
  if (value == value_) return;
  value_ = value;
  notify(Property::Value);
  if (!value) return;
  // One option of a container is set at a time.
  for (Control* sibling : container()->children()) {
    if (sibling == this || sibling->kind() != ControlKind::OptionButton) continue;
    auto* option = static_cast<OptionButton*>(sibling);
    if (option->value_) {
      option->value_ = false;
      option->notify(Property::Value);
    }
  }
  fire(onClick);
}

void OptionButton::userClick() {
  if (!takesUserInput()) return;
  runUserEvent([&] { setValue(true); });
}

// ---- CommandButton ---------------------------------------------------------

void CommandButton::userClick() {
  if (!takesUserInput()) return;
  runUserEvent([&] { fire(onClick); });
}

void CommandButton::press() { fire(onClick); }

// ---- PictureBox, Frame -----------------------------------------------------

void PictureBox::setPicture(const Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  notify(Property::Picture);
}

void Frame::setBordered(bool bordered) {
  bordered_ = bordered;
  notify(Property::Caption);
}

// ---- ListControl -----------------------------------------------------------

void ListControl::addItem(const std::string& item) { addItem(item, listCount()); }

void ListControl::addItem(const std::string& item, int index) {
  if (index < 0 || index > listCount()) raiseError(kInvalidProcedureCall);
  items_.insert(items_.begin() + index, item);
  if (listIndex_ >= index) ++listIndex_;
  itemsChanged();
  notify(Property::List);
}

void ListControl::removeItem(int index) {
  if (index < 0 || index >= listCount()) raiseError(kInvalidProcedureCall);
  items_.erase(items_.begin() + index);
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  itemsChanged();
  notify(Property::List);
}

void ListControl::clear() {
  items_.clear();
  listIndex_ = -1;
  itemsChanged();
  notify(Property::List);
}

const std::string& ListControl::list(int index) const {
  if (index < 0 || index >= listCount()) raiseError(381);
  return items_[static_cast<std::size_t>(index)];
}

void ListControl::setListIndex(int index) {
  if (index < -1 || index >= listCount()) raiseError(kInvalidPropertyValue);
  if (index == listIndex_) return;
  listIndex_ = index;
  notify(Property::ListIndex);
  fire(onClick);
}

void ListControl::userSelect(int index) {
  if (!takesUserInput() || index < 0 || index >= listCount()) return;
  runUserEvent([&] { setListIndex(index); });
}

std::string ComboBox::text() const { return listIndex_ < 0 ? std::string() : items_[listIndex_]; }

void ComboBox::setText(const std::string& text) {
  const auto it = std::find(items_.begin(), items_.end(), text);
  if (it == items_.end()) raiseError(kPropertyReadOnly);
  setListIndex(static_cast<int>(it - items_.begin()));
}

ListBox::ListBox(Form* form, ControlKind kind, std::string name, int index, Control* container,
                 bool checkMarks)
    : ListControl(form, kind, std::move(name), index, container), checkMarks_(checkMarks) {}

void ListBox::itemsChanged() { checked_.assign(items_.size(), false); }

bool ListBox::selected(int index) const {
  if (index < 0 || index >= listCount()) raiseError(381);
  return checkMarks_ ? checked_[static_cast<std::size_t>(index)] : index == listIndex_;
}

void ListBox::setSelected(int index, bool selected) {
  if (index < 0 || index >= listCount()) raiseError(381);
  if (!checkMarks_) {
    if (selected)
      setListIndex(index);
    else if (listIndex_ == index)
      setListIndex(-1);
    return;
  }
  if (checked_[static_cast<std::size_t>(index)] == selected) return;
  checked_[static_cast<std::size_t>(index)] = selected;
  notify(Property::ItemCheck);
  if (onItemCheck) onItemCheck(index);
}

void ListBox::userToggleCheck(int index) {
  if (!takesUserInput() || !checkMarks_ || index < 0 || index >= listCount()) return;
  runUserEvent([&] {
    setListIndex(index);
    setSelected(index, !checked_[static_cast<std::size_t>(index)]);
  });
}

// ---- FileListBox -----------------------------------------------------------

namespace {

std::string withoutTrailingSeparator(std::string path) {
  while (path.size() > 3 && (path.back() == '\\' || path.back() == '/'))
    path.pop_back();
  return path;
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

} // namespace

void FileListBox::setPath(const std::string& path) {
  const std::string folder = withoutTrailingSeparator(path);
  const auto attributes = platform::GetFileAttributesA(folder.c_str());
  if (attributes == platform::kInvalidFileAttributes ||
      !(attributes & platform::kAttributeDirectory))
    raiseError(kPathNotFound);
  path_ = folder;
  refresh();
}

void FileListBox::setPattern(const std::string& pattern) {
  pattern_ = pattern;
  if (!path_.empty()) refresh();
}

void FileListBox::refresh() {
  // Names are compared without regard to case; each name is listed once even
  // when several patterns match it.
  std::vector<std::pair<std::string, std::string>> found; // lower-case key, name
  std::unordered_set<std::string> seen;
  const std::string base = path_.back() == '\\' ? path_ : path_ + "\\";
  std::size_t start = 0;
  while (start <= pattern_.size()) {
    const std::size_t end = std::min(pattern_.find(';', start), pattern_.size());
    const std::string one = pattern_.substr(start, end - start);
    start = end + 1;
    if (one.empty()) continue;
    for (auto& entry : platform::FindFiles((base + one).c_str())) {
      constexpr auto kHiddenOrSystem = platform::kAttributeHidden | platform::kAttributeSystem;
      if (entry.attributes & (platform::kAttributeDirectory | kHiddenOrSystem)) continue;
      if (!seen.insert(entry.name).second) continue;
      found.emplace_back(lower(entry.name), std::move(entry.name));
    }
  }
  std::sort(found.begin(), found.end());
  items_.clear();
  items_.reserve(found.size());
  for (auto& [key, name] : found)
    items_.push_back(std::move(name));
  listIndex_ = -1;
  notify(Property::List);
}

// ---- Timer -----------------------------------------------------------------

void Timer::setInterval(int milliseconds) {
  if (milliseconds < 0 || milliseconds > 65535) raiseError(kInvalidPropertyValue);
  if (interval_ == milliseconds) return;
  interval_ = milliseconds;
  notify(Property::Timer);
}

bool Timer::running() const { return enabled() && interval_ > 0 && form().running(); }

void Timer::tick() {
  if (!running()) return;
  runUserEvent([&] { fire(onTimer); });
}

// ---- TabStrip --------------------------------------------------------------

void TabStrip::setTabs(int count) {
  if (count < 1) raiseError(kInvalidPropertyValue);
  captions_.resize(static_cast<std::size_t>(count));
  pictures_.resize(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i)
    if (captions_[i].empty()) captions_[i] = "Tab " + std::to_string(i);
  if (tab_ >= count) tab_ = count - 1;
  notify(Property::Tabs);
}

void TabStrip::setTabsPerRow(int count) {
  if (count < 1) raiseError(kInvalidPropertyValue);
  tabsPerRow_ = count;
  notify(Property::Tabs);
}

void TabStrip::checkTab(int tab) const {
  if (tab < 0 || tab >= tabs()) raiseError(kInvalidPropertyValue);
}

void TabStrip::setTab(int tab) {
  checkTab(tab);
  if (tab == tab_) return;
  previousTab_ = tab_;
  tab_ = tab;
  notify(Property::Tab);
  form().keepFocusUsable();
  fire(onClick);
}

const std::string& TabStrip::tabCaption(int tab) const {
  checkTab(tab);
  return captions_[static_cast<std::size_t>(tab)];
}

void TabStrip::setTabCaption(int tab, const std::string& caption) {
  checkTab(tab);
  captions_[static_cast<std::size_t>(tab)] = caption;
  notify(Property::Tabs);
}

const Picture& TabStrip::tabPicture(int tab) const {
  checkTab(tab);
  return pictures_[static_cast<std::size_t>(tab)];
}

void TabStrip::setTabPicture(int tab, const Picture& picture) {
  checkTab(tab);
  if (pictures_[static_cast<std::size_t>(tab)] == picture) return;
  pictures_[static_cast<std::size_t>(tab)] = picture;
  notify(Property::Tabs);
}

void TabStrip::userSelectTab(int tab) {
  if (!takesUserInput() || tab < 0 || tab >= tabs()) return;
  runUserEvent([&] { setTab(tab); });
}

// ---- SpinControl -----------------------------------------------------------

void SpinControl::setRange(int min, int max) {
  min_ = min;
  max_ = max;
  value_ = std::clamp(value_, std::min(min, max), std::max(min, max));
  notify(Property::Range);
}

void SpinControl::setValue(int value) {
  if (value < std::min(min_, max_) || value > std::max(min_, max_))
    raiseError(kInvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  notify(Property::Value);
  fire(onChange);
}

void SpinControl::userUp() {
  if (!takesUserInput()) return;
  runUserEvent([&] { setValue(std::min(value_ + increment_, std::max(min_, max_))); });
}

void SpinControl::userDown() {
  if (!takesUserInput()) return;
  runUserEvent([&] { setValue(std::max(value_ - increment_, std::min(min_, max_))); });
}

// ---- UserControlHost -------------------------------------------------------

void UserControlHost::userMouseDown(int button, int shift, float x, float y) {
  if (!takesUserInput() || !behavior_) return;
  runUserEvent([&] { behavior_->mouseDown(button, shift, x, y); });
}

void UserControlHost::userMouseUp(int button, int shift, float x, float y) {
  if (!takesUserInput() || !behavior_) return;
  runUserEvent([&] { behavior_->mouseUp(button, shift, x, y); });
}

void UserControlHost::userMouseMoveOver(int button, int shift, float x, float y) {
  if (!shown()) return;
  runUserEvent([&] {
    if (behavior_ && enabled()) behavior_->mouseMove(button, shift, x, y);
    if (onMouseMove) onMouseMove(button, shift, x, y);
  });
}

} // namespace runtime
