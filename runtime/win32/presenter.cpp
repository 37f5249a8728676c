#include "runtime/win32/presenter.h"

#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/win32/control_window.h"
#include "runtime/win32/units.h"

#include <commctrl.h>

#include <algorithm>

namespace runtime::win32 {

namespace {

constexpr COLORREF kClearColor = RGB(255, 0, 255); // the transparent colour of tab pictures
constexpr int kTabImageSize = 32;
constexpr int kInternalError = 51;

std::string className(HWND window) {
  char name[32] = {};
  ::GetClassNameA(window, name, sizeof name);
  return name;
}

// The window that sends a parent notification, for the messages routed to
// the control that sent them.
HWND senderOf(UINT message, LPARAM lParam) {
  switch (message) {
  case WM_COMMAND:
  case WM_CTLCOLORSTATIC:
  case WM_CTLCOLORBTN:
  case WM_CTLCOLOREDIT:
  case WM_CTLCOLORLISTBOX: return reinterpret_cast<HWND>(lParam);
  default: return nullptr;
  }
}

std::string fontKey(const Font& font) {
  return font.name + "/" + std::to_string(font.size) + (font.bold ? "/b" : "");
}

// "tab0.bmp" and "TAB0" name the same bitmap resource.
std::string resourceName(const std::string& picture) {
  std::string name = picture.substr(0, picture.find('.'));
  ::CharUpperBuffA(name.data(), static_cast<DWORD>(name.size()));
  return name;
}

} // namespace

ImageListHandle::~ImageListHandle() {
  if (list_) ::ImageList_Destroy(list_);
}

void ImageListHandle::reset(HIMAGELIST list) {
  if (list_) ::ImageList_Destroy(list_);
  list_ = list;
}

Application::Display readDisplay() {
  Application::Display display;
  const HDC screen = ::GetDC(nullptr);
  const int dpiX = ::GetDeviceCaps(screen, LOGPIXELSX);
  const int dpiY = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  if (dpiX > 0) display.twipsPerPixelX = 1440 / dpiX;
  if (dpiY > 0) display.twipsPerPixelY = 1440 / dpiY;
  display.screenPixelsX = ::GetSystemMetrics(SM_CXSCREEN);
  display.screenPixelsY = ::GetSystemMetrics(SM_CYSCREEN);
  // What the frame of a form's window adds to its client area, as the
  // system computes it for the forms' own window style.
  RECT frame{0, 0, 0, 0};
  ::AdjustWindowRectEx(&frame, kFormStyle, FALSE, 0);
  display.borderPixels = -frame.left;
  display.captionPixels = -frame.top - display.borderPixels;
  return display;
}

Presenter::Presenter(HINSTANCE instance) : instance_(instance) {
  ::InitCommonControls();
  auto& app = Application::instance();
  app.setDisplay(readDisplay());
  // The failure box is modal to every form: all of them are disabled while it
  // is up, and the runtime runs no handler meanwhile (application.h).
  app.beforeFailureBox = [] {
    for (Form* form : Application::instance().forms())
      if (auto* window = static_cast<ControlWindow*>(form->view()); window && window->hwnd())
        ::EnableWindow(window->hwnd(), FALSE);
  };
  app.beforeShow = [this](Form& form) {
    if (std::find(waiting_.begin(), waiting_.end(), &form) != waiting_.end()) present(form);
  };
  registerClasses();
  tabImages_.reset(::ImageList_Create(kTabImageSize, kTabImageSize, ILC_COLOR8 | ILC_MASK, 20, 4));
  Application::instance().onEnd = [] { ::PostQuitMessage(0); };
  Application::instance().pumpEvents = [this] {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        ::PostQuitMessage(static_cast<int>(message.wParam));
        return;
      }
      if (preTranslate(message)) continue;
      ::TranslateMessage(&message);
      ::DispatchMessageA(&message);
    }
  };
}

Presenter::~Presenter() {
  for (Form* form : Application::instance().forms())
    if (auto* window = static_cast<ControlWindow*>(form->view()); window && window->hwnd())
      ::DestroyWindow(window->hwnd());
  windows_.clear();
}

void Presenter::registerClasses() {
  for (const char* name :
       {"TL99Form", "TL99Label", "TL99Picture", "TL99Frame", "TL99UserControl", "TL99Line"}) {
    WNDCLASSA windowClass{};
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = &Presenter::windowProc;
    windowClass.hInstance = instance_;
    windowClass.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name;
    if (std::string(name) == "TL99Form") windowClass.hIcon = ::LoadIconA(instance_, "APPICON");
    ::RegisterClassA(&windowClass);
  }
}

void Presenter::presentWhenShown(Form& form) { waiting_.push_back(&form); }

void Presenter::present(Form& form) {
  waiting_.erase(std::remove(waiting_.begin(), waiting_.end(), &form), waiting_.end());
  // The tab pictures' image list holds the form's images first, in their
  // order (Image2(0) is image 0), as an image list bound to a tab strip does.
  for (const auto& control : form.controls())
    if (control->kind() == ControlKind::Image)
      if (const auto& picture = static_cast<Image&>(*control).picture(); !picture.empty())
        tabImageIndex(picture);
  createTree(form, nullptr);
}

void Presenter::createTree(Control& control, HWND parent) {
  auto window = std::make_unique<ControlWindow>(*this, control, parent);
  const HWND hwnd = window->hwnd();
  windows_.push_back(std::move(window));
  for (Control* child : control.children())
    createTree(*child, hwnd ? hwnd : parent);
  if (control.kind() == ControlKind::Timer) {
    auto& timer = static_cast<Timer&>(control);
    if (timer.running()) startTimer(timer, parent);
  }
}

HFONT Presenter::font(const Font& font) {
  auto& handle = fonts_[fontKey(font)];
  if (!handle) {
    const HDC screen = ::GetDC(nullptr);
    const int height = -::MulDiv(font.size, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    handle.reset(::CreateFontA(height, 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE,
                               FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                               DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS, font.name.c_str()));
  }
  return handle.get();
}

COLORREF Presenter::colorOf(std::uint32_t color) {
  if (color & kSystemColor) return ::GetSysColor(static_cast<int>(color & 0xFF));
  return static_cast<COLORREF>(color & 0xFFFFFF);
}

HBRUSH Presenter::brush(std::uint32_t color) {
  if (color & kSystemColor) return ::GetSysColorBrush(static_cast<int>(color & 0xFF));
  auto& handle = brushes_[color];
  if (!handle) handle.reset(::CreateSolidBrush(colorOf(color)));
  return handle.get();
}

HBITMAP Presenter::picture(const Picture& picture) {
  if (picture.empty()) return nullptr;
  auto& handle = pictures_[picture.resource];
  if (!handle)
    handle.reset(static_cast<HBITMAP>(
        ::LoadImageA(instance_, resourceName(picture.resource).c_str(), IMAGE_BITMAP, 0, 0, 0)));
  return handle.get();
}

int Presenter::tabImageIndex(const Picture& picture) {
  const auto found = tabImageIndexes_.find(picture.resource);
  if (found != tabImageIndexes_.end()) return found->second;
  int index = -1;
  if (const HBITMAP bitmap = this->picture(picture))
    index = ::ImageList_AddMasked(tabImages_.get(), bitmap, kClearColor);
  tabImageIndexes_[picture.resource] = index;
  return index;
}

void Presenter::startTimer(Timer& timer, HWND owner) {
  if (!owner) return;
  auto& id = timerIds_[&timer];
  if (id == 0) id = nextTimerId_++;
  timers_[id] = &timer;
  ::SetTimer(owner, id, static_cast<UINT>(timer.interval()), nullptr);
}

void Presenter::stopTimer(Timer& timer, HWND owner) {
  const auto found = timerIds_.find(&timer);
  if (found == timerIds_.end() || !owner) return;
  ::KillTimer(owner, found->second);
}

void Presenter::timerTicked(UINT_PTR id) {
  const auto found = timers_.find(id);
  if (found != timers_.end()) found->second->tick();
}

// Enter and Esc in a dropped-down combo list pick or drop the choice there.
bool Presenter::inOpenComboList(HWND window) {
  char className[16] = {};
  ::GetClassNameA(window, className, sizeof className);
  if (lstrcmpiA(className, "ComboLBox") == 0) return true;
  return lstrcmpiA(className, "ComboBox") == 0 && ::SendMessageA(window, CB_GETDROPPEDSTATE, 0, 0);
}

Form* Presenter::formOf(HWND window) const {
  HWND top = window;
  while (top && (::GetWindowLongA(top, GWL_STYLE) & WS_CHILD))
    top = ::GetParent(top);
  if (auto* view = ControlWindow::of(top); view && view->control().kind() == ControlKind::Form)
    return static_cast<Form*>(&view->control());
  return nullptr;
}

int Presenter::shiftState() {
  return (::GetKeyState(VK_SHIFT) < 0 ? kShiftMask : 0) |
         (::GetKeyState(VK_CONTROL) < 0 ? kCtrlMask : 0) |
         (::GetKeyState(VK_MENU) < 0 ? kAltMask : 0);
}

// Keys are taken before the window that has the focus sees them, as a
// dialog's message loop does: the form's own keys (a form with no control in
// focus), then Enter and Esc, the navigation keys and the access keys.
bool Presenter::preTranslate(MSG& message) {
  const UINT kind = message.message;
  if (kind != WM_KEYDOWN && kind != WM_CHAR && kind != WM_SYSCHAR) return false;
  Form* form = formOf(message.hwnd);
  if (!form) return false;
  auto& app = Application::instance();
  if (app.failing() || app.ended()) return true; // the failure box has the keyboard
  const int key = static_cast<int>(message.wParam);
  auto* view = ControlWindow::of(message.hwnd);
  const bool onForm = view && &view->control() == form;
  const std::string windowClass = className(message.hwnd);
  const bool takesText = lstrcmpiA(windowClass.c_str(), "EDIT") == 0;

  if (kind == WM_KEYDOWN) {
    if (onForm && form->onKeyDown) {
      form->userKeyDown(key, shiftState());
      return true;
    }
    if (key == VK_RETURN || key == VK_ESCAPE) {
      if (inOpenComboList(message.hwnd)) return false;
      // A dialog takes Enter and Esc whether or not a button answers them.
      form->userKey(key == VK_RETURN ? kVbKeyReturn : kVbKeyEscape);
      return true;
    }
    if (key == VK_TAB || key == VK_SPACE || (key >= VK_LEFT && key <= VK_DOWN)) {
      if (key != VK_TAB && inOpenComboList(message.hwnd)) return false;
      return form->userNavigationKey(key, shiftState());
    }
    return false;
  }
  if (kind == WM_SYSCHAR) {
    // Alt+letter: the control with that access key; anything else (Alt+F4,
    // Alt+Space) goes on to the system.
    return form->userAccessKey(static_cast<char>(key));
  }
  // WM_CHAR: Enter and Esc were taken as keys above.
  if (key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB) return true;
  if (takesText) return false;
  if (form->keyPreview && form->userKey(key)) return true;
  // A letter typed where no text is taken is an access key, as in a dialog;
  // list and combo boxes keep their letters for finding an item.
  if (lstrcmpiA(windowClass.c_str(), "LISTBOX") == 0 ||
      lstrcmpiA(windowClass.c_str(), "COMBOBOX") == 0 ||
      lstrcmpiA(windowClass.c_str(), "ComboLBox") == 0)
    return false;
  if (key > ' ' && form->userAccessKey(static_cast<char>(key))) return true;
  return false;
}

int Presenter::run() {
  MSG message;
  while (!Application::instance().ended() && ::GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (preTranslate(message)) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
  return 0;
}

LRESULT CALLBACK Presenter::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    if (message == WM_NCCREATE) {
      const auto* create = reinterpret_cast<CREATESTRUCTA*>(lParam);
      if (create->lpCreateParams) static_cast<ControlWindow*>(create->lpCreateParams)->bind(window);
    }
    ControlWindow* self = ControlWindow::of(window);
    if (!self) return ::DefWindowProcA(window, message, wParam, lParam);
    if (const HWND sender = senderOf(message, lParam)) {
      if (ControlWindow* child = ControlWindow::of(sender); child && child != self) {
        LRESULT result = 0;
        if (child->childMessage(message, wParam, lParam, result)) return result;
      }
    }
    bool handled = false;
    const LRESULT result = self->handle(message, wParam, lParam, handled);
    if (handled) return result;
    return self->callOriginal(message, wParam, lParam);
  } catch (const RuntimeError& error) {
    // Raised outside any event (a window being set up): the program can't go on.
    Application::instance().fail(error.number());
  } catch (...) {
    Application::instance().fail(kInternalError);
  }
  return 0;
}

} // namespace runtime::win32
