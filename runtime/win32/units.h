// Twips, the unit of the form designs, and pixels, at the display's own
// figure (application.h): 15 twips a pixel at 96 dots per inch, 12 at 120.
#pragma once

#include "runtime/application.h"

namespace runtime::win32 {

// Nearest whole pixel, across or down.
inline int toPixels(int twips, int twipsPerPixel) {
  return twips >= 0 ? (twips + twipsPerPixel / 2) / twipsPerPixel
                    : -((-twips + twipsPerPixel / 2) / twipsPerPixel);
}
inline int toPixelsX(int twips) { return toPixels(twips, Application::instance().twipsPerPixelX); }
inline int toPixelsY(int twips) { return toPixels(twips, Application::instance().twipsPerPixelY); }
inline float toTwipsX(int pixels) {
  return static_cast<float>(pixels * Application::instance().twipsPerPixelX);
}
inline float toTwipsY(int pixels) {
  return static_cast<float>(pixels * Application::instance().twipsPerPixelY);
}

} // namespace runtime::win32
