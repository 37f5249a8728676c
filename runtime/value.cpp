#include "runtime/value.h"

#include "runtime/basic_error.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace runtime {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Reads "&Hxx" or "&Oxx" at `text`; false when it isn't such a literal.
bool readRadixLiteral(std::string_view text, std::size_t* used, double* number) {
  if (text.size() < 3 || text[0] != '&') return false;
  const char kind = static_cast<char>(std::toupper(static_cast<unsigned char>(text[1])));
  const int radix = kind == 'H' ? 16 : kind == 'O' ? 8 : 0;
  if (radix == 0) return false;
  std::size_t i = 2;
  std::uint32_t accumulated = 0;
  for (; i < text.size(); ++i) {
    const int c = std::toupper(static_cast<unsigned char>(text[i]));
    int digit = -1;
    if (c >= '0' && c <= '9')
      digit = c - '0';
    else if (radix == 16 && c >= 'A' && c <= 'F')
      digit = c - 'A' + 10;
    if (digit < 0 || digit >= radix) break;
    accumulated =
        accumulated * static_cast<std::uint32_t>(radix) + static_cast<std::uint32_t>(digit);
  }
  if (i == 2) return false;
  *used = i;
  // Up to four hex digits make a 16-bit Integer, more a 32-bit Long.
  if (i - 2 <= 4 && radix == 16)
    *number = static_cast<std::int16_t>(accumulated);
  else
    *number = static_cast<std::int32_t>(accumulated);
  return true;
}

// Reads a decimal number (sign, digits, point, exponent) at the start of
// `text`; returns the count of characters used, 0 when there is no number.
std::size_t readDecimal(std::string_view text, double* number) {
  std::size_t i = 0;
  std::string digits;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) digits += text[i++];
  bool anyDigit = false;
  while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
    digits += text[i++];
    anyDigit = true;
  }
  if (i < text.size() && text[i] == '.') {
    digits += text[i++];
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
      digits += text[i++];
      anyDigit = true;
    }
  }
  if (!anyDigit) return 0;
  if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
    const std::size_t start = j;
    while (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j])))
      exponent += text[j++];
    if (j > start) {
      digits += exponent;
      i = j;
    }
  }
  *number = std::strtod(digits.c_str(), nullptr);
  return i;
}

} // namespace

bool isText(const Value& value) { return std::holds_alternative<std::string>(value); }

bool isNumber(const Value& value) {
  return std::holds_alternative<std::int16_t>(value) ||
         std::holds_alternative<std::int32_t>(value) || std::holds_alternative<double>(value);
}

double textToNumber(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  double number = 0;
  std::size_t used = 0;
  if (!readRadixLiteral(text, &used, &number)) used = readDecimal(text, &number);
  if (used == 0 || used != text.size() || !std::isfinite(number)) raiseError(kTypeMismatch);
  return number;
}

double toDouble(const Value& value) {
  if (std::holds_alternative<Empty>(value)) return 0;
  if (const bool* b = std::get_if<bool>(&value)) return *b ? -1 : 0;
  if (const auto* i = std::get_if<std::int16_t>(&value)) return *i;
  if (const auto* l = std::get_if<std::int32_t>(&value)) return *l;
  if (const double* d = std::get_if<double>(&value)) return *d;
  return textToNumber(std::get<std::string>(value));
}

// Halves to the even neighbour, in exact arithmetic and whatever the rounding
// mode. Not through fesetround: MinGW-w64's also sets the SSE control register
// on a processor that has SSE, which faults where the system hasn't enabled SSE
// (a Pentium III under Windows 98 before the Second Edition).
double roundHalfEven(double number) {
  if (!std::isfinite(number)) return number;
  const double below = std::floor(number);
  const double fraction = number - below; // exact for every double
  const double rounded = fraction < 0.5               ? below
                         : fraction > 0.5             ? below + 1
                         : std::fmod(below, 2.0) == 0 ? below
                                                      : below + 1;
  return rounded == 0 ? std::copysign(0.0, number) : rounded; // -0.4 gives -0, as rint does
}

std::int16_t toInteger(const Value& value) {
  const double rounded = roundHalfEven(toDouble(value));
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) raiseError(kOverflow);
  return static_cast<std::int16_t>(rounded);
}

std::int32_t toLong(const Value& value) {
  const double rounded = roundHalfEven(toDouble(value));
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) raiseError(kOverflow);
  return static_cast<std::int32_t>(rounded);
}

std::string toText(const Value& value) {
  if (std::holds_alternative<Empty>(value)) return "";
  if (const bool* b = std::get_if<bool>(&value)) return *b ? "True" : "False";
  if (const auto* s = std::get_if<std::string>(&value)) return *s;
  return generalForm(toDouble(value));
}

double Val(std::string_view text) {
  std::string compact;
  for (const char c : text)
    if (!isBlank(c) && c != '\n' && c != '\r') compact += c;
  double number = 0;
  std::size_t used = 0;
  if (readRadixLiteral(compact, &used, &number)) return number;
  return readDecimal(compact, &number) ? number : 0;
}

std::string generalForm(double number) {
  if (number == 0) return "0";
  char text[40];
  std::snprintf(text, sizeof text, "%.14E", number);
  // text is "-d.ddddddddddddddE+xx": take the mantissa digits and exponent.
  std::string mantissa;
  const char* p = text;
  const bool negative = *p == '-';
  if (negative) ++p;
  for (; *p && *p != 'E'; ++p)
    if (*p != '.') mantissa += *p;
  const int exponent = std::atoi(p + 1);
  while (mantissa.size() > 1 && mantissa.back() == '0')
    mantissa.pop_back();
  std::string out = negative ? "-" : "";
  if (exponent >= 15 || exponent < -4) {
    out += mantissa.substr(0, 1);
    if (mantissa.size() > 1) {
      out += '.';
      out += mantissa.substr(1);
    }
    char tail[16];
    std::snprintf(tail, sizeof tail, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return out + tail;
  }
  if (exponent < 0)
    return out + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + mantissa;
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (mantissa.size() <= whole) return out + mantissa + std::string(whole - mantissa.size(), '0');
  return out + mantissa.substr(0, whole) + "." + mantissa.substr(whole);
}

std::string formatThreeDigits(double number) {
  const double rounded = std::round(number); // Format rounds halves away from zero
  char text[40];
  std::snprintf(text, sizeof text, "%03.0f", std::fabs(rounded));
  std::string result = rounded < 0 ? "-" : "";
  result += text;
  return result;
}

} // namespace runtime
