#include "frame/program.h"

#include "runtime/application.h"

namespace frame {

Program::Program() {
  fmain.winExit = &winExit;
  fmain.frmShape = &frmShape;
  winExit.fmain = &fmain;
  winExit.frmShape = &frmShape;
  frmShape.fmain = &fmain;
}

void Program::start() {
  runtime::Application::instance().runEvent([this] { frmShape.form.load(); });
}

} // namespace frame
