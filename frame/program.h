// The three forms of the program and how they start: the splash (frmShape)
// loads first, and its load shows FMain.
#pragma once

#include "frame/fmain.h"
#include "frame/frm_shape.h"
#include "frame/win_exit.h"

namespace frame {

struct Program {
  Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  FMain fmain;
  WinExit winExit;
  FrmShape frmShape;

  // Runs the first form's load: the splash, then the main form.
  void start();
};

} // namespace frame
