// Basic's whole-number operators: both round their operands half to even
// first, and division by zero is error 11.
#pragma once

#include "runtime/value.h"

#include <cstdint>

namespace runtime {

// a \ b: both rounded to whole numbers, the quotient cut toward zero.
std::int32_t integerDivide(const Value& a, const Value& b);
// a Mod b: both rounded to whole numbers; the result takes the sign of a.
std::int32_t modulo(const Value& a, const Value& b);

} // namespace runtime

namespace runtime {

// Randomize: seeds the generator behind Rnd from the seconds since midnight,
// as Basic's Timer gives them. Rnd: the next number in [0, 1).
void Randomize();
float Rnd();

} // namespace runtime
