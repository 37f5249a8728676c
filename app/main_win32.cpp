// Program entry of the Win32 build: the three forms presented as windows,
// the splash first, then the message loop until the exit dialog ends it.
#include "frame/program.h"
#include "runtime/application.h"
#include "runtime/win32/presenter.h"

#include <windows.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  runtime::Application::instance().title = "Tweakloom 99";
  frame::Program program;
  runtime::win32::Presenter presenter(instance);
  // The splash's windows now; the main form's and the exit dialog's when
  // they first show, so the splash comes up without waiting for them.
  presenter.present(program.frmShape.form);
  presenter.presentWhenShown(program.fmain.form);
  presenter.presentWhenShown(program.winExit.form);
  program.start();
  return presenter.run();
}
