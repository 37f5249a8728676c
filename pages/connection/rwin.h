// The arithmetic of the receive window: RWIN = multiplier * MSS, where the
// slider's min counts 512ths of the multiplier and the MSS is the MTU less 40
// bytes of TCP/IP headers.
#pragma once

#include "runtime/basic_error.h"
#include "runtime/value.h"

#include <cstdint>
#include <string_view>

namespace pages {

inline constexpr int kSliderUnitsPerMultiplier = 512;
inline constexpr int kHeaderBytes = 40;

// (min / 512) * mss, in double precision in that order; no rounding, so a
// multiplier read back from the registry can leave a fraction.
inline double resultedRwin(std::int16_t sliderMin, std::int16_t mss) {
  return static_cast<double>(sliderMin) / kSliderUnitsPerMultiplier * mss;
}

// The slider position of a window-to-MSS ratio: ratio * 512 as a 16-bit
// integer, half to even; Overflow (6) beyond its range.
inline std::int16_t sliderMinFor(double ratio) {
  return runtime::toInteger(ratio * kSliderUnitsPerMultiplier);
}

// Basic's a / b of two integers: 0 / 0 is Overflow (6), any other number
// over 0 Division by zero (11).
inline double divide(std::int16_t a, std::int16_t b) {
  if (b == 0) runtime::raiseError(a == 0 ? runtime::kOverflow : runtime::kDivisionByZero);
  return static_cast<double>(a) / b;
}

// The segment size of an MTU text: Val of it rounded to an integer, less 40;
// Val gives 0 for a text that doesn't start with a number, so that is -40.
inline std::int16_t mtuLessHeaders(std::string_view mtuText) {
  const std::int16_t mtu = runtime::toInteger(runtime::Val(mtuText));
  return runtime::toInteger(static_cast<std::int32_t>(mtu) - kHeaderBytes);
}

} // namespace pages
