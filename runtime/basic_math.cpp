#include "runtime/basic_math.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"

#include <cstring>

namespace runtime {

std::int32_t integerDivide(const Value& a, const Value& b) {
  const std::int32_t dividend = toLong(a);
  const std::int32_t divisor = toLong(b);
  if (divisor == 0) raiseError(kDivisionByZero);
  if (dividend == INT32_MIN && divisor == -1) raiseError(kOverflow);
  return dividend / divisor;
}

std::int32_t modulo(const Value& a, const Value& b) {
  const std::int32_t dividend = toLong(a);
  const std::int32_t divisor = toLong(b);
  if (divisor == 0) raiseError(kDivisionByZero);
  if (divisor == -1) return 0;
  return dividend % divisor;
}

} // namespace runtime

namespace runtime {

namespace {
// Basic's generator: a 24-bit linear congruence.
std::uint32_t rndState = 0x50000;
} // namespace

void Randomize() {
  const double timer = static_cast<double>(platform::GetTickCount() % 86400000u) / 1000.0;
  float single = static_cast<float>(timer);
  std::uint32_t bits = 0;
  std::memcpy(&bits, &single, sizeof bits);
  // The seed's high and low words are mixed into the middle of the state.
  const std::uint32_t mixed = ((bits >> 16) ^ (bits & 0xFFFF)) << 8;
  rndState = (rndState & 0xFF0000FFu) | (mixed & 0x00FFFF00u);
}

float Rnd() {
  rndState = (rndState * 1140671485u + 12820163u) & 0xFFFFFFu;
  return static_cast<float>(rndState) / 16777216.0f;
}

} // namespace runtime
