// Basic text functions, with their run-time errors.
#pragma once

#include "runtime/value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// Left(text, n): the first n characters; the whole text when n is longer;
// Invalid procedure call (5) for a negative n.
std::string Left(std::string_view text, std::int64_t length);
// Mid(text, start[, length]), start counted from 1; 5 for start < 1 or a
// negative length.
std::string Mid(std::string_view text, std::int64_t start);
std::string Mid(std::string_view text, std::int64_t start, std::int64_t length);
// InStr(start, text, search), exact comparison; 0 when not found; a start
// beyond the text gives 0, an empty search gives start.
std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view search);
// LTrim: the text without its leading blanks (spaces only).
std::string LTrim(std::string_view text);
// What a text box keeps of a text: everything before its first NUL, which a
// text box can't hold. The program's text normaliser (FMain's Hidden box)
// rests on this.
std::string cutAtNul(std::string_view text);

// The Basic "+" operator: two texts join, Empty takes the other side's value,
// anything else adds as numbers (a text that isn't a number raises 13).
Value add(const Value& left, const Value& right);

} // namespace runtime
