// The real window of one runtime control: created for its kind, updated when
// the control changes, and the place where the window's input becomes the
// control's user events.
#pragma once

#include "runtime/control.h"
#include "runtime/win32/name_tag.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace runtime::win32 {

class Presenter;

class ControlWindow : public ControlView {
public:
  ControlWindow(Presenter& presenter, Control& control, HWND parent);
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;
  ~ControlWindow() override;

  HWND hwnd() const { return hwnd_; }
  Control& control() const { return control_; }
  void changed(Property property) override;

  // Messages the window gets itself. Sets `handled` when no default
  // processing is wanted.
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
  // Notifications a child control sends to this window as its parent.
  bool childMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  // Default processing: the subclassed window's own procedure, or DefWindowProc.
  LRESULT callOriginal(UINT message, WPARAM wParam, LPARAM lParam);

  // The window that children of this control go in, and the offset of their
  // design position inside it.
  POINT childOrigin() const;

  static ControlWindow* of(HWND window);
  // Takes the handle from the window's first message, before CreateWindowEx
  // has returned it.
  void bind(HWND window);

private:
  void create(HWND parent);
  void applyAll();
  void applyGeometry();
  void applyVisibility();
  void applyText();
  void applyValue();
  void applyList();
  void applyTabs();
  void applyRange();
  void applyRegion();
  void applyColors();
  void paint();
  void mouseEvent(UINT message, WPARAM wParam, LPARAM lParam);
  bool commandFromSelf(WORD code);
  bool notifyFromSelf(NMHDR* header, LRESULT& result);
  HBRUSH colorControl(HDC dc);
  void drawListItem(const DRAWITEMSTRUCT& item);

  Presenter& presenter_;
  Control& control_;
  HWND hwnd_ = nullptr;
  WNDPROC originalProc_ = nullptr;
  std::unique_ptr<NameTag> name_;
  bool updating_ = false; // the window is being set from the control
  bool pressed_ = false;  // the left button went down on this window
  bool painting_ = false; // the form's Paint event is running
  // The entries the list or combo window holds, as last given to it, so that
  // a change touches only the entries that differ (a list filled one entry
  // at a time would otherwise be rebuilt whole at every entry).
  std::vector<std::string> shownItems_;
};

} // namespace runtime::win32
