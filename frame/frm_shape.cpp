#include "frame/frm_shape.h"

#include "frame/fmain.h"
#include "frame/regions.h"
#include "runtime/application.h"
#include "runtime/basic_math.h"

namespace frame {

using namespace runtime;

FrmShape::FrmShape() {
  form.setCaption("About Tweakloom 98");
  form.setClientSize(5595, 6960);
  form.setFont({"Arial", 8, true});
  form.setPicture({"about.bmp"});
  form.onLoad = [this] { Form_Load(); };
  form.onClick = [this] { leave(); };
  form.onKeyDown = [this](int, int) { leave(); };
  form.onPaint = [this] { form.refresh(); };
  form.onResize = [this] { form.refresh(); };
}

void FrmShape::ShapeAboutForm() {
  form.setRegion(frame::ShapeAboutForm(form.width(), Application::instance().twipsPerPixelX));
}

void FrmShape::Form_Load() {
  auto& app = Application::instance();
  form.centreOnScreen();
  Randomize();
  ShapeAboutForm();
  form.show();
  // The splash delay: the event queue runs this many times, so a click or a
  // key on the splash can bring the main form early.
  for (int pass = 1; pass <= kSplashPumps; ++pass)
    app.doEvents();
  form.hide();
  fmain->form.show();
}

void FrmShape::leave() {
  form.hide();
  fmain->form.show();
}

} // namespace frame
