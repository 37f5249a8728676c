// frmShape, the shaped About window: the start-up splash and the window
// behind the About corner button. One picture holds the About text.
#pragma once

#include "runtime/form.h"

namespace frame {

struct FMain;

class FrmShape {
public:
  FrmShape();
  FrmShape(const FrmShape&) = delete;
  FrmShape& operator=(const FrmShape&) = delete;

  runtime::Form form{"frmShape"};
  FMain* fmain = nullptr;

  // Passes of the event pump that make the splash delay.
  static constexpr int kSplashPumps = 10000;

  void ShapeAboutForm();

private:
  void Form_Load();
  void leave(); // hide, and show the main form
};

} // namespace frame
