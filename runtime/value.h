// Basic values and the conversions the program relies on: whole numbers
// rounded half to even with overflow errors, text to number with type-mismatch
// errors, Val, numbers in general form, and the "000" picture.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace runtime {

struct Empty {
  bool operator==(const Empty&) const = default;
};

// A Basic Variant: Empty, Boolean, Integer (16 bits), Long (32 bits),
// Double or String.
using Value = std::variant<Empty, bool, std::int16_t, std::int32_t, double, std::string>;

bool isText(const Value& value);
bool isNumber(const Value& value);

// The number a text stands for as Basic reads it in a numeric context:
// surrounding blanks allowed, a sign, digits with one decimal point, an
// exponent, or &H / &O notation. Anything else, the empty text included,
// raises Type mismatch (13).
double textToNumber(std::string_view text);

// CDbl: Empty is 0, True is -1, texts as textToNumber.
double toDouble(const Value& value);
// CInt and CLng: rounded half to even; Overflow (6) outside the type's range.
std::int16_t toInteger(const Value& value);
std::int32_t toLong(const Value& value);
// CStr: numbers in general form, True/False, Empty as "".
std::string toText(const Value& value);

// Round half to the even neighbour, as every Basic conversion to a whole number.
double roundHalfEven(double number);

// Val: the number at the start of a text; blanks anywhere are skipped, the
// first character that can't continue the number ends it; 0 when none.
double Val(std::string_view text);

// A number in general form: up to 15 significant digits, no trailing zeros,
// exponent form ("1E+15", "1E-05") for very large and small magnitudes.
std::string generalForm(double number);

// Format(number, "000"): the rounded number with at least three digits.
std::string formatThreeDigits(double number);

} // namespace runtime
