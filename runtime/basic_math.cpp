#include "runtime/basic_math.h"

#include "runtime/basic_error.h"

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
