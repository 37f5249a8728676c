#include "frame/win_exit.h"

#include "frame/fmain.h"
#include "frame/frm_shape.h"
#include "platform/platform.h"
#include "runtime/application.h"

namespace frame {

using namespace runtime;

namespace {
constexpr platform::Dword kShutdown = 1; // EWX_SHUTDOWN
constexpr platform::Dword kReboot = 2;   // EWX_REBOOT
} // namespace

const std::string WinExit::kDesignCaption =
    "It is recemmended to Restart or Shutdown the computer for the changes to effect." +
    std::string(74, ' ') + "Select one of the follwoing options:";

WinExit::WinExit() {
  form.setCaption("Exit Tweakloom");
  form.setClientSize(4365, 2805);
  Areyousurelabel = &form.add<Label>("Areyousurelabel", -1, nullptr, {240, 180, 3945, 855});
  Shutdown = &form.add<OptionButton>("Shutdown", -1, nullptr, {225, 1170, 2565, 195});
  Restart = &form.add<OptionButton>("Restart", -1, nullptr, {210, 1500, 2295, 195});
  Logoff = &form.add<OptionButton>("Logoff", -1, nullptr, {225, 1830, 2175, 195});
  Yes = &form.add<CommandButton>("Yes", -1, nullptr, {510, 2280, 975, 375});
  No = &form.add<CommandButton>("No", -1, nullptr, {1590, 2265, 975, 405});
  Picture1 = &form.add<PictureBox>("Picture1", -1, nullptr, {2640, 1230, 1755, 1680});
  Shutdown->setCaption("Shut down the computer?");
  Restart->setCaption("Restart the computer?");
  Logoff->setCaption("Exit Tweakloom");
  Yes->setCaption("&OK");
  No->setCaption("&Cancel"); // no default button: Enter presses only a focused button
  No->setCancel(true);
  // The design's tab indexes: the three options, OK, then Cancel at 5.
  Shutdown->setTabIndex(0);
  Restart->setTabIndex(1);
  Logoff->setTabIndex(2);
  Yes->setTabIndex(3);
  No->setTabIndex(5);
  Picture1->setPicture({"exit.bmp"});

  form.onLoad = [this] { Form_Load(); };
  Yes->onClick = [this] { Yes_Click(); };
  No->onClick = [this] { No_Click(); };
}

void WinExit::Form_Load() {
  // Every load starts from the design: Logoff selected, both buttons there.
  Areyousurelabel->setCaption(kDesignCaption);
  Logoff->setValue(true);
  No->setVisible(true);
  form.centreOnScreen();
  form.show();
  Yes->setFocus();
}

void WinExit::Yes_Click() {
  // After a system request the program stays loaded, hidden or not, until the
  // system ends it; if the system refuses, the dialog simply stays up.
  if (Shutdown->value()) {
    platform::ExitWindowsEx(kShutdown, 0);
  } else if (Restart->value()) {
    platform::ExitWindowsEx(kReboot, 0);
  } else {
    form.unload();
    frmShape->form.unload();
    fmain->form.unload();
    Application::instance().end();
  }
}

void WinExit::No_Click() {
  form.unload();
  fmain->form.show();
}

} // namespace frame
