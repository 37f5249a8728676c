// The window regions of the two shaped forms, in window pixels, from the
// form's width in twips alone.
#pragma once

#include "runtime/form.h"

namespace frame {

// FMain: a round rectangle from w / 21 down to w - 59, XOR a thin rectangle
// that lies below the window's lower edge.
runtime::WindowRegion ShapeMainForm(int formWidthTwips, int twipsPerPixel);
// frmShape: a rectangle OR a round rectangle with corners 440 by 240.
runtime::WindowRegion ShapeAboutForm(int formWidthTwips, int twipsPerPixel);

} // namespace frame
