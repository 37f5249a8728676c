// Twips, the unit of the form designs, and pixels: 15 twips a pixel.
#pragma once

namespace runtime::win32 {

inline constexpr int kTwipsPerPixel = 15;

// Nearest whole pixel.
inline int toPixels(int twips) {
  return twips >= 0 ? (twips + kTwipsPerPixel / 2) / kTwipsPerPixel
                    : -((-twips + kTwipsPerPixel / 2) / kTwipsPerPixel);
}
inline float toTwips(int pixels) { return static_cast<float>(pixels * kTwipsPerPixel); }

} // namespace runtime::win32
