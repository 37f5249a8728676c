// Presents runtime forms and controls as real Win32 windows, keeps each
// window in step with its control's state, and turns the user's input into
// the runtime's user events. Every window carries its design name in the
// "TL99.Name" property.
#pragma once

#include "runtime/application.h"
#include "runtime/form.h"
#include "runtime/win32/gdi.h"

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace runtime::win32 {

class ControlWindow;

// The window style of every form, and the display's figures read from the
// system: twips per pixel from its dots per inch, the screen, and what a
// form's frame adds to its client area.
inline constexpr DWORD kFormStyle =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
Application::Display readDisplay();

class Presenter {
public:
  explicit Presenter(HINSTANCE instance);
  Presenter(const Presenter&) = delete;
  Presenter& operator=(const Presenter&) = delete;
  ~Presenter();

  // Creates the windows of a form and of all its controls, hidden until the
  // form shows.
  void present(Form& form);
  // The same, when the form first shows: its Load event then runs with no
  // window to keep in step, and the first form shows sooner.
  void presentWhenShown(Form& form);
  // Runs the message loop until the program ends; returns the exit code.
  int run();

  // Shared resources of the windows.
  HINSTANCE instance() const { return instance_; }
  HFONT font(const Font& font);
  HBRUSH brush(std::uint32_t color);
  static COLORREF colorOf(std::uint32_t color);
  HBITMAP picture(const Picture& picture);
  // The image list of tab pictures (32 by 32, magenta as the clear colour),
  // and the index of a picture in it.
  HIMAGELIST tabImages() const { return tabImages_.get(); }
  int tabImageIndex(const Picture& picture);

  void startTimer(Timer& timer, HWND owner);
  void stopTimer(Timer& timer, HWND owner);
  void timerTicked(UINT_PTR id);

  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
  void registerClasses();
  void createTree(Control& control, HWND parent);
  bool preTranslate(MSG& message);
  static int shiftState();
  Form* formOf(HWND window) const;
  static bool inOpenComboList(HWND window);

  HINSTANCE instance_;
  std::vector<std::unique_ptr<ControlWindow>> windows_;
  std::map<std::string, FontHandle> fonts_;
  std::map<std::uint32_t, Brush> brushes_;
  std::map<std::string, Bitmap> pictures_;
  ImageListHandle tabImages_;
  std::map<std::string, int> tabImageIndexes_;
  std::map<UINT_PTR, Timer*> timers_;
  std::map<Timer*, UINT_PTR> timerIds_;
  UINT_PTR nextTimerId_ = 1;
  std::vector<Form*> waiting_; // forms presented when they first show
};

} // namespace runtime::win32
