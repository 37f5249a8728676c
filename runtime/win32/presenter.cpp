#include "runtime/win32/presenter.h"

#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/win32/control_window.h"
#include "runtime/win32/units.h"

#include <commctrl.h>

namespace runtime::win32 {

namespace {

constexpr COLORREF kClearColor = RGB(255, 0, 255); // the transparent colour of tab pictures
constexpr int kTabImageSize = 32;
constexpr int kInternalError = 51;

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

Presenter::Presenter(HINSTANCE instance) : instance_(instance) {
  ::InitCommonControls();
  auto& app = Application::instance();
  app.screenWidth = ::GetSystemMetrics(SM_CXSCREEN) * kTwipsPerPixel;
  app.screenHeight = ::GetSystemMetrics(SM_CYSCREEN) * kTwipsPerPixel;
  app.borderWidth = ::GetSystemMetrics(SM_CXFIXEDFRAME) * kTwipsPerPixel;
  app.captionHeight = ::GetSystemMetrics(SM_CYCAPTION) * kTwipsPerPixel;
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

void Presenter::present(Form& form) { createTree(form, nullptr); }

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

bool Presenter::preTranslate(MSG& message) {
  if (message.message == WM_KEYDOWN) {
    // A key sent to the form's own window (it has no control with the focus).
    Form* form = formOf(message.hwnd);
    auto* view = ControlWindow::of(message.hwnd);
    if (form && view && &view->control() == form && form->onKeyDown) {
      const int shift =
          (::GetKeyState(VK_SHIFT) < 0 ? 1 : 0) | (::GetKeyState(VK_CONTROL) < 0 ? 2 : 0);
      form->userKeyDown(static_cast<int>(message.wParam), shift);
      return true;
    }
  }
  if (message.message == WM_KEYDOWN &&
      (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE) &&
      !inOpenComboList(message.hwnd)) {
    if (Form* form = formOf(message.hwnd)) {
      form->userKey(message.wParam == VK_RETURN ? kVbKeyReturn : kVbKeyEscape);
      return true;
    }
  }
  if (message.message == WM_CHAR && message.wParam != VK_RETURN && message.wParam != VK_ESCAPE) {
    char className[16] = {};
    ::GetClassNameA(message.hwnd, className, sizeof className);
    if (lstrcmpiA(className, "EDIT") != 0) {
      if (Form* form = formOf(message.hwnd); form && form->keyPreview) {
        form->userKey(static_cast<int>(message.wParam));
        return true;
      }
    }
  }
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
      if (create->lpCreateParams) {
        ::SetPropA(window, "TL99.View", create->lpCreateParams);
        static_cast<ControlWindow*>(create->lpCreateParams)->bind(window);
      }
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
