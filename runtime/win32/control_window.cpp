#include "runtime/win32/control_window.h"

#include "runtime/application.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "runtime/win32/gdi.h"
#include "runtime/win32/presenter.h"
#include "runtime/win32/units.h"

#include <commctrl.h>

#include <string>
#include <unordered_map>

namespace runtime::win32 {

namespace {

// The view of each window of the program, found without asking the system
// (a window property costs a trip to the window server under Wine, and every
// message of our windows needs its view).
std::unordered_map<HWND, ControlWindow*>& views() {
  static std::unordered_map<HWND, ControlWindow*> all;
  return all;
}
constexpr int kCheckMarkWidth = 16; // pixels of a check-mark list's box column
constexpr int kComboDropHeight = 160;

// WM_CHANGEUISTATE and its flags (declared for Windows 2000 on; Windows 98
// has no such message and passes it by).
constexpr UINT kChangeUiState = 0x0127;
constexpr WORD kUisClear = 2;
constexpr WORD kUisfHideAll = 0x1 | 0x2; // UISF_HIDEFOCUS | UISF_HIDEACCEL

struct WindowKind {
  const char* className;
  DWORD style;
  DWORD exStyle;
};

WindowKind windowKindOf(const Control& control) {
  constexpr DWORD child = WS_CHILD | WS_CLIPSIBLINGS;
  switch (control.kind()) {
  case ControlKind::Form: return {"TL99Form", kFormStyle, 0};
  case ControlKind::Label:
    return {"TL99Label", child,
            static_cast<const Label&>(control).transparent() ? DWORD{WS_EX_TRANSPARENT} : 0};
  case ControlKind::TextBox:
    return {"EDIT",
            child | WS_TABSTOP |
                (static_cast<const TextBox&>(control).multiLine()
                     ? DWORD{ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL}
                     : DWORD{ES_AUTOHSCROLL}),
            WS_EX_CLIENTEDGE};
  case ControlKind::CheckBox: return {"BUTTON", child | WS_TABSTOP | BS_CHECKBOX, 0};
  case ControlKind::OptionButton: return {"BUTTON", child | WS_TABSTOP | BS_RADIOBUTTON, 0};
  case ControlKind::CommandButton:
    return {"BUTTON",
            child | WS_TABSTOP |
                (static_cast<const CommandButton&>(control).isDefault() ? BS_DEFPUSHBUTTON
                                                                        : BS_PUSHBUTTON),
            0};
  case ControlKind::PictureBox:
  case ControlKind::Image: return {"TL99Picture", child | WS_CLIPCHILDREN, 0};
  case ControlKind::Frame: return {"TL99Frame", child | WS_CLIPCHILDREN, 0};
  case ControlKind::ComboBox:
    return {"COMBOBOX", child | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 0};
  case ControlKind::ListBox:
    return {"LISTBOX",
            child | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                (static_cast<const ListBox&>(control).hasCheckMarks()
                     ? DWORD{LBS_OWNERDRAWFIXED | LBS_HASSTRINGS}
                     : 0),
            WS_EX_CLIENTEDGE};
  case ControlKind::FileListBox:
    return {"LISTBOX", child | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
            WS_EX_CLIENTEDGE};
  case ControlKind::TabStrip: {
    DWORD placement = 0;
    switch (static_cast<const TabStrip&>(control).orientation()) {
    case TabStrip::Orientation::Top: break;
    case TabStrip::Orientation::Bottom: placement = TCS_BOTTOM; break;
    case TabStrip::Orientation::Left: placement = TCS_VERTICAL; break;
    case TabStrip::Orientation::Right: placement = TCS_VERTICAL | TCS_RIGHT; break;
    }
    return {WC_TABCONTROLA, child | WS_CLIPCHILDREN | TCS_MULTILINE | TCS_FIXEDWIDTH | placement,
            0};
  }
  case ControlKind::SpinControl: return {UPDOWN_CLASSA, child | UDS_ARROWKEYS, 0};
  case ControlKind::UserControlHost: return {"TL99UserControl", child, 0};
  case ControlKind::Line: return {"TL99Line", child, 0};
  case ControlKind::Timer: return {nullptr, 0, 0};
  }
  return {nullptr, 0, 0};
}

bool isOwnClass(const Control& control) {
  const char* name = windowKindOf(control).className;
  return name && std::string(name).rfind("TL99", 0) == 0;
}

int mouseButtons(WPARAM flags) {
  return ((flags & MK_LBUTTON) ? kLeftButton : 0) | ((flags & MK_RBUTTON) ? kRightButton : 0) |
         ((flags & MK_MBUTTON) ? 4 : 0);
}

int shiftState(WPARAM flags) {
  return ((flags & MK_SHIFT) ? 1 : 0) | ((flags & MK_CONTROL) ? 2 : 0) |
         ((::GetKeyState(VK_MENU) < 0) ? 4 : 0);
}

std::string windowText(HWND window) {
  const int length = ::GetWindowTextLengthA(window);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  ::GetWindowTextA(window, text.data(), length + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

const std::string* captionOf(const Control& control) {
  switch (control.kind()) {
  case ControlKind::Form: return &static_cast<const Form&>(control).caption();
  case ControlKind::TextBox: return &static_cast<const TextBox&>(control).text();
  case ControlKind::Label:
  case ControlKind::CheckBox:
  case ControlKind::OptionButton:
  case ControlKind::CommandButton:
  case ControlKind::Frame: return &static_cast<const Captioned&>(control).caption();
  default: return nullptr;
  }
}

void fillWith(HDC dc, const RECT& rect, HBRUSH brush) { ::FillRect(dc, &rect, brush); }

} // namespace

ControlWindow::ControlWindow(Presenter& presenter, Control& control, HWND parent)
    : presenter_(presenter), control_(control) {
  control_.attachView(this);
  create(parent);
}

ControlWindow::~ControlWindow() {
  control_.attachView(nullptr);
  if (hwnd_ && ::IsWindow(hwnd_) && originalProc_)
    ::SetWindowLongA(hwnd_, GWL_WNDPROC, reinterpret_cast<LONG>(originalProc_));
  if (const auto found = views().find(hwnd_); found != views().end() && found->second == this)
    views().erase(found);
}

ControlWindow* ControlWindow::of(HWND window) {
  const auto found = views().find(window);
  return found == views().end() ? nullptr : found->second;
}

void ControlWindow::bind(HWND window) {
  if (!hwnd_) hwnd_ = window;
  views()[window] = this;
}

void ControlWindow::create(HWND parent) {
  const WindowKind kind = windowKindOf(control_);
  if (!kind.className) return; // a timer has no window
  shownItems_.clear();         // a new window starts empty
  static int nextId = 100;
  const bool own = isOwnClass(control_);
  const HMENU id =
      control_.kind() == ControlKind::Form ? nullptr : reinterpret_cast<HMENU>(nextId++);
  hwnd_ = ::CreateWindowExA(kind.exStyle, kind.className, "", kind.style, 0, 0, 0, 0, parent, id,
                            presenter_.instance(), own ? this : nullptr);
  if (!hwnd_) return;
  if (!own) {
    bind(hwnd_);
    originalProc_ = reinterpret_cast<WNDPROC>(
        ::SetWindowLongA(hwnd_, GWL_WNDPROC, reinterpret_cast<LONG>(&Presenter::windowProc)));
  }
  name_ = std::make_unique<NameTag>(hwnd_, control_.designName());
  // Each control lies above the ones created before it.
  if (control_.kind() != ControlKind::Form)
    ::SetWindowPos(hwnd_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ::SendMessageA(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(presenter_.font(control_.font())),
                 FALSE);
  if (control_.kind() == ControlKind::TabStrip)
    ::SendMessageA(hwnd_, TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(presenter_.tabImages()));
  applyAll();
}

void ControlWindow::applyAll() {
  updating_ = true;
  applyGeometry();
  applyText();
  applyList();
  applyTabs();
  applyRange();
  applyValue();
  applyRegion();
  ::EnableWindow(hwnd_, control_.enabled());
  updating_ = false;
  applyVisibility();
}

void ControlWindow::applyRegion() {
  if (!hwnd_ || control_.kind() != ControlKind::Form) return;
  if (const WindowRegion* wanted = static_cast<Form&>(control_).region()) {
    auto shape = [](const RegionShape& s) {
      return Region(s.kind == RegionShape::Kind::Rect
                        ? ::CreateRectRgn(s.left, s.top, s.right, s.bottom)
                        : ::CreateRoundRectRgn(s.left, s.top, s.right, s.bottom, s.cornerWidth,
                                               s.cornerHeight));
    };
    Region source1 = shape(wanted->source1);
    Region result;
    if (wanted->combineMode == 0) {
      result = std::move(source1);
    } else {
      Region source2 = shape(wanted->source2);
      result.reset(::CreateRectRgn(0, 0, 0, 0));
      ::CombineRgn(result.get(), source1.get(), source2.get(), wanted->combineMode);
    }
    // The window owns the region once SetWindowRgn succeeds.
    if (::SetWindowRgn(hwnd_, result.get(), TRUE)) result.release();
  }
}

POINT ControlWindow::childOrigin() const { return POINT{0, 0}; }

void ControlWindow::applyGeometry() {
  if (!hwnd_) return;
  Bounds b = control_.bounds();
  if (control_.kind() == ControlKind::Line) {
    // An etched line is two pixels across.
    if (b.width == 0) b.width = 2 * Application::instance().twipsPerPixelX;
    if (b.height == 0) b.height = 2 * Application::instance().twipsPerPixelY;
  }
  if (control_.kind() == ControlKind::Form) {
    ::SetWindowPos(hwnd_, nullptr, toPixelsX(b.left), toPixelsY(b.top), toPixelsX(b.width),
                   toPixelsY(b.height), SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  POINT origin{0, 0};
  if (Control* container = control_.container())
    if (auto* parent = static_cast<ControlWindow*>(container->view()))
      origin = parent->childOrigin();
  int height = toPixelsY(b.height);
  if (control_.kind() == ControlKind::ComboBox) height += kComboDropHeight;
  ::SetWindowPos(hwnd_, nullptr, origin.x + toPixelsX(b.left), origin.y + toPixelsY(b.top),
                 toPixelsX(b.width), height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlWindow::applyVisibility() {
  if (!hwnd_) return;
  bool visible = control_.visible();
  if (Control* container = control_.container())
    if (container->kind() == ControlKind::TabStrip)
      visible = visible && static_cast<TabStrip*>(container)->tab() == control_.containerTab();
  if (control_.kind() == ControlKind::Form) {
    const auto& form = static_cast<Form&>(control_);
    ::ShowWindow(hwnd_, !visible ? SW_HIDE : form.windowState() == 1 ? SW_MINIMIZE : SW_SHOW);
    if (visible) {
      // The focus rectangle and the access-key underlines always show, as on
      // Windows 98 (later systems hide them until a key is used).
      ::SendMessageA(hwnd_, kChangeUiState, MAKEWPARAM(kUisClear, kUisfHideAll), 0);
      ::UpdateWindow(hwnd_);
    }
    return;
  }
  ::ShowWindow(hwnd_, visible ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::applyText() {
  const std::string* text = captionOf(control_);
  if (!text || !hwnd_) return;
  if (windowText(hwnd_) == *text) return; // keeps an edit's caret where it is
  const bool wasUpdating = updating_;
  updating_ = true;
  ::SetWindowTextA(hwnd_, text->c_str());
  updating_ = wasUpdating;
  if (!isOwnClass(control_)) return;
  if (control_.kind() == ControlKind::Label && static_cast<Label&>(control_).transparent()) {
    // The parent paints the background again under a see-through label.
    RECT area;
    ::GetWindowRect(hwnd_, &area);
    const HWND parent = ::GetParent(hwnd_);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
    ::RedrawWindow(parent, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return;
  }
  ::InvalidateRect(hwnd_, nullptr, TRUE);
}

void ControlWindow::applyValue() {
  if (!hwnd_) return;
  switch (control_.kind()) {
  case ControlKind::CheckBox:
    ::SendMessageA(hwnd_, BM_SETCHECK,
                   static_cast<WPARAM>(static_cast<CheckBox&>(control_).value()), 0);
    break;
  case ControlKind::OptionButton:
    ::SendMessageA(hwnd_, BM_SETCHECK,
                   static_cast<OptionButton&>(control_).value() ? BST_CHECKED : BST_UNCHECKED, 0);
    break;
  default: break;
  }
  switch (control_.kind()) {
  case ControlKind::CheckBox:
  case ControlKind::OptionButton:
    // Wine redraws only the box on a new check state, and draws the focus
    // rectangle again over the one there, which wipes it out: the whole
    // button is drawn again so that the focus shows.
    if (::GetFocus() == hwnd_) ::InvalidateRect(hwnd_, nullptr, TRUE);
    break;
  case ControlKind::ComboBox:
    ::SendMessageA(hwnd_, CB_SETCURSEL,
                   static_cast<WPARAM>(static_cast<ListControl&>(control_).listIndex()), 0);
    break;
  case ControlKind::ListBox:
  case ControlKind::FileListBox:
    ::SendMessageA(hwnd_, LB_SETCURSEL,
                   static_cast<WPARAM>(static_cast<ListControl&>(control_).listIndex()), 0);
    ::InvalidateRect(hwnd_, nullptr, FALSE);
    break;
  case ControlKind::SpinControl:
    ::SendMessageA(hwnd_, UDM_SETPOS, 0, MAKELONG(static_cast<SpinControl&>(control_).value(), 0));
    break;
  case ControlKind::TabStrip:
    ::SendMessageA(hwnd_, TCM_SETCURSEL,
                   static_cast<WPARAM>(static_cast<TabStrip&>(control_).tab()), 0);
    break;
  default: break;
  }
}

void ControlWindow::applyList() {
  const bool combo = control_.kind() == ControlKind::ComboBox;
  if (!hwnd_ || !(combo || control_.kind() == ControlKind::ListBox ||
                  control_.kind() == ControlKind::FileListBox))
    return;
  auto& list = static_cast<ListControl&>(control_);
  const int count = list.listCount();
  // Entries only added at the end (a list filled one entry at a time) go in
  // one by one; any other change lists the whole list anew.
  std::size_t same = 0;
  while (same < static_cast<std::size_t>(count) && same < shownItems_.size() &&
         shownItems_[same] == list.list(static_cast<int>(same)))
    ++same;
  const UINT add = combo ? CB_ADDSTRING : LB_ADDSTRING;
  if (same > 0 && same == shownItems_.size()) {
    for (int i = static_cast<int>(same); i < count; ++i) {
      shownItems_.push_back(list.list(i));
      callOriginal(add, 0, reinterpret_cast<LPARAM>(shownItems_.back().c_str()));
    }
    applyValue();
    return;
  }
  // The whole list goes in with the drawing off and the storage reserved at
  // once, then shows in one repaint: a folder of thousands of files is
  // listed without a repaint or a reallocation per item.
  ::SendMessageA(hwnd_, WM_SETREDRAW, FALSE, 0);
  ::SendMessageA(hwnd_, combo ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
  shownItems_.clear();
  if (count > 0) {
    std::size_t bytes = 0;
    for (int i = 0; i < count; ++i)
      bytes += list.list(i).size() + 1;
    ::SendMessageA(hwnd_, combo ? CB_INITSTORAGE : LB_INITSTORAGE, static_cast<WPARAM>(count),
                   static_cast<LPARAM>(bytes));
  }
  // Straight to the list's own procedure: the items need nothing of ours.
  for (int i = 0; i < count; ++i) {
    shownItems_.push_back(list.list(i));
    callOriginal(add, 0, reinterpret_cast<LPARAM>(shownItems_.back().c_str()));
  }
  applyValue();
  ::SendMessageA(hwnd_, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(hwnd_, nullptr, TRUE);
}

void ControlWindow::applyTabs() {
  if (!hwnd_ || control_.kind() != ControlKind::TabStrip) return;
  auto& tabs = static_cast<TabStrip&>(control_);
  ::SendMessageA(hwnd_, TCM_DELETEALLITEMS, 0, 0);
  for (int i = 0; i < tabs.tabs(); ++i) {
    TCITEMA item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    std::string caption = tabs.tabCaption(i);
    item.pszText = caption.data();
    item.iImage = tabs.tabPicture(i).empty() ? -1 : presenter_.tabImageIndex(tabs.tabPicture(i));
    ::SendMessageA(hwnd_, TCM_INSERTITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
  RECT client;
  ::GetClientRect(hwnd_, &client);
  if (tabs.orientation() == TabStrip::Orientation::Right ||
      tabs.orientation() == TabStrip::Orientation::Left) {
    // Tabs that show only a picture stand in one column along the edge.
    ::SendMessageA(hwnd_, TCM_SETITEMSIZE, 0, MAKELPARAM(40, 44));
  } else {
    const int width = (client.right - client.left) / tabs.tabsPerRow() - 1;
    const int height = tabs.tabHeight() > 0 ? toPixelsY(tabs.tabHeight()) : 0;
    ::SendMessageA(hwnd_, TCM_SETITEMSIZE, 0, MAKELPARAM(width, height));
  }
  ::SendMessageA(hwnd_, TCM_SETCURSEL, static_cast<WPARAM>(tabs.tab()), 0);
  for (Control* child : control_.children())
    if (auto* window = static_cast<ControlWindow*>(child->view())) window->applyGeometry();
}

void ControlWindow::applyRange() {
  if (!hwnd_ || control_.kind() != ControlKind::SpinControl) return;
  auto& spin = static_cast<SpinControl&>(control_);
  ::SendMessageA(hwnd_, UDM_SETRANGE, 0, MAKELONG(spin.max(), spin.min()));
}

void ControlWindow::changed(Property property) {
  if (control_.kind() == ControlKind::Timer) {
    auto& timer = static_cast<Timer&>(control_);
    auto* form = static_cast<ControlWindow*>(control_.form().view());
    const HWND owner = form ? form->hwnd() : nullptr;
    presenter_.stopTimer(timer, owner);
    if (timer.running()) presenter_.startTimer(timer, owner);
    return;
  }
  if (!hwnd_) return;
  updating_ = true;
  switch (property) {
  case Property::Value:
  case Property::ListIndex:
  case Property::Tab: applyValue(); break;
  case Property::Text:
  case Property::Caption: applyText(); break;
  case Property::Enabled:
    ::EnableWindow(hwnd_, control_.enabled());
    // Our own classes draw a disabled caption grey.
    if (isOwnClass(control_)) ::InvalidateRect(hwnd_, nullptr, TRUE);
    break;
  case Property::Geometry: applyGeometry(); break;
  case Property::List: applyList(); break;
  case Property::Tabs: applyTabs(); break;
  case Property::Range: applyRange(); break;
  case Property::Font:
    ::SendMessageA(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(presenter_.font(control_.font())),
                   TRUE);
    break;
  case Property::Focus: {
    // The system gives the focus only in a form that is on the screen; the
    // form hands it on when it is shown or activated (WM_SETFOCUS below).
    auto* form = static_cast<ControlWindow*>(control_.form().view());
    if (control_.hasFocus() && form && ::IsWindowVisible(form->hwnd()) && ::GetFocus() != hwnd_) {
      ::SetFocus(hwnd_);
      // Tabbing into a text box selects its text, as in a dialog.
      if (control_.kind() == ControlKind::TextBox) ::SendMessageA(hwnd_, EM_SETSEL, 0, -1);
    }
    if (isOwnClass(control_)) ::InvalidateRect(hwnd_, nullptr, TRUE);
    break;
  }
  case Property::Region: applyRegion(); break;
  case Property::ItemCheck:
  case Property::Picture:
  case Property::Colors:
  case Property::Drawing:
    ::InvalidateRect(hwnd_, nullptr, TRUE);
    if (control_.kind() == ControlKind::Form) ::UpdateWindow(hwnd_);
    break;
  case Property::Visible:
  case Property::WindowState: break;
  case Property::Timer: break;
  }
  updating_ = false;
  if (property == Property::Visible || property == Property::WindowState) applyVisibility();
  if (property == Property::Tab)
    for (Control* child : control_.children())
      if (auto* window = static_cast<ControlWindow*>(child->view())) window->applyVisibility();
}

LRESULT ControlWindow::callOriginal(UINT message, WPARAM wParam, LPARAM lParam) {
  if (originalProc_) return ::CallWindowProcA(originalProc_, hwnd_, message, wParam, lParam);
  return ::DefWindowProcA(hwnd_, message, wParam, lParam);
}

void ControlWindow::mouseEvent(UINT message, WPARAM wParam, LPARAM lParam) {
  const float x = toTwipsX(static_cast<short>(LOWORD(lParam)));
  const float y = toTwipsY(static_cast<short>(HIWORD(lParam)));
  const int button = mouseButtons(wParam);
  const int shift = shiftState(wParam);
  const bool host = control_.kind() == ControlKind::UserControlHost;
  auto& userControl = static_cast<UserControlHost&>(control_);
  switch (message) {
  case WM_MOUSEMOVE:
    if (host)
      userControl.userMouseMoveOver(button, shift, x, y);
    else
      control_.userMouseMove(button, shift, x, y);
    break;
  case WM_LBUTTONDOWN:
    pressed_ = true;
    ::SetCapture(hwnd_);
    if (host)
      userControl.userMouseDown(kLeftButton, shift, x, y);
    else
      control_.userMouseDown(kLeftButton, shift, x, y);
    break;
  case WM_RBUTTONDOWN: control_.userMouseDown(kRightButton, shift, x, y); break;
  case WM_RBUTTONUP: control_.userMouseUp(kRightButton, shift, x, y); break;
  case WM_LBUTTONUP: {
    const bool wasPressed = pressed_;
    pressed_ = false;
    ::ReleaseCapture();
    if (host) {
      userControl.userMouseUp(kLeftButton, shift, x, y);
      break;
    }
    control_.userMouseUp(kLeftButton, shift, x, y);
    RECT client;
    ::GetClientRect(hwnd_, &client);
    const POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    if (wasPressed && ::PtInRect(&client, at)) control_.userClick();
    break;
  }
  default: break;
  }
}

void ControlWindow::paint() {
  PaintScope scope(hwnd_);
  const HDC dc = scope.dc();
  RECT client;
  ::GetClientRect(hwnd_, &client);
  const bool transparent =
      control_.kind() == ControlKind::Label && static_cast<Label&>(control_).transparent();
  if (!transparent) fillWith(dc, client, presenter_.brush(control_.backColor()));
  const HGDIOBJ oldFont = ::SelectObject(dc, presenter_.font(control_.font()));
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, Presenter::colorOf(control_.foreColor()));
  auto drawPicture = [&](const Picture& picture, int x, int y) {
    if (const HBITMAP bitmap = presenter_.picture(picture)) {
      BITMAP info{};
      ::GetObjectA(bitmap, sizeof info, &info);
      MemoryDc source(dc, bitmap);
      ::BitBlt(dc, x, y, info.bmWidth, info.bmHeight, source.get(), 0, 0, SRCCOPY);
    }
  };
  switch (control_.kind()) {
  case ControlKind::Form: drawPicture(static_cast<Form&>(control_).picture(), 0, 0); break;
  case ControlKind::PictureBox:
  case ControlKind::Image:
    drawPicture(static_cast<PictureBox&>(control_).picture(), 0, 0);
    // A picture button with the focus shows the system's focus rectangle.
    if (control_.hasFocus() && ::GetFocus() == hwnd_) {
      RECT focus = client;
      ::InflateRect(&focus, -3, -3);
      ::SetTextColor(dc, RGB(0, 0, 0));
      ::SetBkColor(dc, RGB(255, 255, 255));
      ::DrawFocusRect(dc, &focus);
    }
    break;
  case ControlKind::Label: {
    const auto& label = static_cast<Label&>(control_);
    const UINT align = label.alignment() == 1   ? DT_RIGHT
                       : label.alignment() == 2 ? DT_CENTER
                                                : DT_LEFT;
    if (!control_.enabled()) ::SetTextColor(dc, ::GetSysColor(COLOR_GRAYTEXT));
    ::DrawTextA(dc, label.caption().c_str(), -1, &client, align | DT_WORDBREAK);
    break;
  }
  case ControlKind::Line: {
    RECT edge = client;
    const bool across = client.right - client.left > client.bottom - client.top;
    ::DrawEdge(dc, &edge, EDGE_ETCHED, across ? BF_TOP : BF_LEFT);
    break;
  }
  case ControlKind::Frame: {
    const auto& frame = static_cast<Frame&>(control_);
    if (!frame.bordered()) break;
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(dc, &metrics);
    RECT edge = client;
    edge.top += metrics.tmHeight / 2;
    ::DrawEdge(dc, &edge, EDGE_ETCHED, BF_RECT);
    if (!frame.caption().empty()) {
      RECT text{client.left + 8, client.top, client.right - 8, client.top + metrics.tmHeight};
      ::SetBkMode(dc, OPAQUE);
      ::SetBkColor(dc, Presenter::colorOf(control_.backColor()));
      if (!control_.enabled()) ::SetTextColor(dc, ::GetSysColor(COLOR_GRAYTEXT));
      ::DrawTextA(dc, (" " + frame.caption() + " ").c_str(), -1, &text, DT_LEFT | DT_SINGLELINE);
    }
    break;
  }
  case ControlKind::UserControlHost: {
    auto* behavior = static_cast<UserControlHost&>(control_).behavior();
    if (!behavior) break;
    for (const DrawStep& step : behavior->draw()) {
      RECT rect{toPixelsX(step.left), toPixelsY(step.top), toPixelsX(step.right),
                toPixelsY(step.bottom)};
      switch (step.kind) {
      case DrawStep::Kind::FillRect: fillWith(dc, rect, presenter_.brush(step.color)); break;
      case DrawStep::Kind::Line: {
        GdiObject<HPEN> pen(::CreatePen(PS_SOLID, 1, Presenter::colorOf(step.color)));
        const HGDIOBJ old = ::SelectObject(dc, pen.get());
        ::MoveToEx(dc, rect.left, rect.top, nullptr);
        ::LineTo(dc, rect.right, rect.bottom);
        ::SelectObject(dc, old);
        break;
      }
      case DrawStep::Kind::Text:
        ::SetTextColor(dc, Presenter::colorOf(step.color));
        ::DrawTextA(dc, step.text.c_str(), -1, &rect, DT_LEFT | DT_SINGLELINE | DT_NOCLIP);
        break;
      case DrawStep::Kind::Picture: drawPicture(step.picture, rect.left, rect.top); break;
      }
    }
    break;
  }
  default: break;
  }
  ::SelectObject(dc, oldFont);
}

HBRUSH ControlWindow::colorControl(HDC dc) {
  ::SetTextColor(dc, Presenter::colorOf(control_.foreColor()));
  ::SetBkColor(dc, Presenter::colorOf(control_.backColor()));
  return presenter_.brush(control_.backColor());
}

void ControlWindow::drawListItem(const DRAWITEMSTRUCT& item) {
  if (item.itemID == static_cast<UINT>(-1)) return;
  auto& list = static_cast<ListBox&>(control_);
  const int index = static_cast<int>(item.itemID);
  if (index >= list.listCount()) return;
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  RECT box{item.rcItem.left + 1, item.rcItem.top + 1, item.rcItem.left + kCheckMarkWidth - 2,
           item.rcItem.bottom - 1};
  ::DrawFrameControl(item.hDC, &box, DFC_BUTTON,
                     DFCS_BUTTONCHECK | DFCS_FLAT | (list.selected(index) ? DFCS_CHECKED : 0));
  RECT text = item.rcItem;
  text.left += kCheckMarkWidth;
  ::SetBkMode(item.hDC, TRANSPARENT);
  ::SetTextColor(item.hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  ::DrawTextA(item.hDC, list.list(index).c_str(), -1, &text, DT_LEFT | DT_SINGLELINE | DT_VCENTER);
  if (item.itemState & ODS_FOCUS) ::DrawFocusRect(item.hDC, &item.rcItem);
}

bool ControlWindow::commandFromSelf(WORD code) {
  if (updating_) return false;
  switch (control_.kind()) {
  case ControlKind::CheckBox:
  case ControlKind::OptionButton:
  case ControlKind::CommandButton:
    if (code != BN_CLICKED) return false;
    control_.userClick();
    applyValue(); // the runtime may have refused
    return true;
  case ControlKind::TextBox:
    if (code != EN_CHANGE) return false;
    static_cast<TextBox&>(control_).userSetText(windowText(hwnd_));
    applyText();
    return true;
  case ControlKind::ComboBox:
    if (code != CBN_SELCHANGE) return false;
    static_cast<ListControl&>(control_).userSelect(
        static_cast<int>(::SendMessageA(hwnd_, CB_GETCURSEL, 0, 0)));
    applyValue();
    return true;
  case ControlKind::ListBox:
  case ControlKind::FileListBox:
    if (code != LBN_SELCHANGE) return false;
    static_cast<ListControl&>(control_).userSelect(
        static_cast<int>(::SendMessageA(hwnd_, LB_GETCURSEL, 0, 0)));
    applyValue();
    return true;
  default: return false;
  }
}

bool ControlWindow::notifyFromSelf(NMHDR* header, LRESULT& result) {
  if (control_.kind() == ControlKind::TabStrip &&
      header->code == static_cast<UINT>(TCN_SELCHANGE)) {
    static_cast<TabStrip&>(control_).userSelectTab(
        static_cast<int>(::SendMessageA(hwnd_, TCM_GETCURSEL, 0, 0)));
    applyValue();
    result = 0;
    return true;
  }
  if (control_.kind() == ControlKind::SpinControl &&
      header->code == static_cast<UINT>(UDN_DELTAPOS)) {
    auto* change = reinterpret_cast<NMUPDOWN*>(header);
    auto& spin = static_cast<SpinControl&>(control_);
    if (change->iDelta > 0)
      spin.userUp();
    else if (change->iDelta < 0)
      spin.userDown();
    applyValue();
    result = 1; // the control's own position follows the runtime, not the click
    return true;
  }
  return false;
}

bool ControlWindow::childMessage(UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
  switch (message) {
  case WM_COMMAND: return commandFromSelf(HIWORD(wParam));
  case WM_CTLCOLORSTATIC:
  case WM_CTLCOLORBTN:
  case WM_CTLCOLOREDIT:
  case WM_CTLCOLORLISTBOX:
    result = reinterpret_cast<LRESULT>(colorControl(reinterpret_cast<HDC>(wParam)));
    return true;
  default: return false;
  }
}

LRESULT ControlWindow::handle(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
  const bool own = isOwnClass(control_);
  switch (message) {
  case WM_NCDESTROY:
    name_.reset(); // the design name's atom goes with the window
    views().erase(hwnd_);
    break;
  case WM_SETFOCUS:
    if (control_.kind() == ControlKind::Form) {
      // The form hands the focus on to its control that had it last, as a
      // dialog does when it is activated again.
      auto& form = static_cast<Form&>(control_);
      if (Control* active = form.activeControl(); active && active->takesUserInput())
        if (auto* view = static_cast<ControlWindow*>(active->view()); view && view->hwnd()) {
          ::SetFocus(view->hwnd());
          handled = true;
          return 0;
        }
      break;
    }
    control_.form().userFocused(&control_);
    if (own) ::InvalidateRect(hwnd_, nullptr, TRUE);
    break;
  case WM_KILLFOCUS:
    if (own) ::InvalidateRect(hwnd_, nullptr, TRUE);
    break;
  case WM_SIZE:
    if (control_.kind() == ControlKind::Form && !updating_) {
      // The user minimised or restored the window (the system menu, the
      // task bar): a change of window state raises Resize.
      auto& form = static_cast<Form&>(control_);
      const int state = wParam == SIZE_MINIMIZED ? 1 : 0;
      if (state != form.windowState() && form.loaded())
        Application::instance().runEvent([&] { form.setWindowState(state); });
    }
    break;
  case WM_PAINT:
    if (!own) break;
    paint();
    handled = true;
    // A repaint asked for by the Paint event itself raises no second event.
    if (control_.kind() == ControlKind::Form && !painting_) {
      painting_ = true;
      static_cast<Form&>(control_).userPaint();
      painting_ = false;
    }
    return 0;
  case WM_ERASEBKGND:
    if (!own) break;
    handled = true;
    return 1; // painted in WM_PAINT
  case WM_MOUSEMOVE: mouseEvent(message, wParam, lParam); break;
  case WM_LBUTTONUP:
  case WM_RBUTTONDOWN:
  case WM_RBUTTONUP:
    // System controls (buttons, lists) press and capture on their own.
    if (own) mouseEvent(message, wParam, lParam);
    break;
  case WM_LBUTTONDOWN:
    // A click anywhere on an item of a check-mark list selects it and turns
    // its check mark over.
    if (control_.kind() == ControlKind::ListBox &&
        static_cast<ListBox&>(control_).hasCheckMarks()) {
      const LRESULT hit = ::SendMessageA(hwnd_, LB_ITEMFROMPOINT, 0, lParam);
      if (HIWORD(hit) == 0) {
        ::SetFocus(hwnd_);
        static_cast<ListBox&>(control_).userToggleCheck(LOWORD(hit));
        applyValue();
        handled = true;
        return 0;
      }
    }
    if (own) mouseEvent(message, wParam, lParam);
    break;
  case WM_CHAR:
    if (control_.kind() == ControlKind::TextBox) {
      const int key = static_cast<TextBox&>(control_).userFilterKey(static_cast<int>(wParam));
      if (key == 0) {
        handled = true;
        return 0;
      }
      handled = true; // the edit gets the key once, as the filter left it
      return callOriginal(message, static_cast<WPARAM>(key), lParam);
    }
    if (control_.kind() == ControlKind::ListBox && wParam == ' ' &&
        static_cast<ListBox&>(control_).hasCheckMarks()) {
      auto& list = static_cast<ListBox&>(control_);
      const int current = static_cast<int>(::SendMessageA(hwnd_, LB_GETCURSEL, 0, 0));
      if (current >= 0) list.userToggleCheck(current);
      applyValue();
      handled = true;
      return 0;
    }
    break;
  case WM_KEYUP:
    if (control_.kind() == ControlKind::TextBox) {
      const int shift = ((::GetKeyState(VK_SHIFT) < 0) ? 1 : 0) |
                        ((::GetKeyState(VK_CONTROL) < 0) ? 2 : 0) |
                        ((::GetKeyState(VK_MENU) < 0) ? 4 : 0);
      static_cast<TextBox&>(control_).userKeyUp(static_cast<int>(wParam), shift);
    }
    break;
  case LB_GETSEL:
    // A check-mark list answers with the item's check mark.
    if (control_.kind() == ControlKind::ListBox &&
        static_cast<ListBox&>(control_).hasCheckMarks()) {
      auto& list = static_cast<ListBox&>(control_);
      const int index = static_cast<int>(wParam);
      handled = true;
      return index >= 0 && index < list.listCount() && list.selected(index) ? 1 : 0;
    }
    break;
  case WM_NOTIFY:
    if (auto* header = reinterpret_cast<NMHDR*>(lParam)) {
      if (auto* child = ControlWindow::of(header->hwndFrom)) {
        LRESULT result = 0;
        if (child->notifyFromSelf(header, result)) {
          handled = true;
          return result;
        }
      }
    }
    break;
  case WM_DRAWITEM:
    if (auto* item = reinterpret_cast<DRAWITEMSTRUCT*>(lParam)) {
      if (auto* child = ControlWindow::of(item->hwndItem)) {
        child->drawListItem(*item);
        handled = true;
        return TRUE;
      }
    }
    break;
  case WM_MEASUREITEM:
    if (auto* item = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        item && item->CtlType == ODT_LISTBOX) {
      item->itemHeight = kCheckMarkWidth;
      handled = true;
      return TRUE;
    }
    break;
  case WM_TIMER:
    if (control_.kind() == ControlKind::Form) {
      presenter_.timerTicked(wParam);
      handled = true;
      return 0;
    }
    break;
  case WM_CLOSE:
    if (control_.kind() == ControlKind::Form) {
      auto& form = static_cast<Form&>(control_);
      Application::instance().runEvent([&] { form.unload(); });
      bool anyLoaded = false;
      for (Form* f : Application::instance().forms())
        anyLoaded = anyLoaded || f->loaded();
      if (!anyLoaded) Application::instance().end();
      handled = true;
      return 0;
    }
    break;
  default: break;
  }
  return 0;
}

} // namespace runtime::win32
