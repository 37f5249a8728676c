#include "runtime/text_functions.h"

#include "runtime/basic_error.h"

namespace runtime {

std::string Left(std::string_view text, std::int64_t length) {
  if (length < 0) raiseError(kInvalidProcedureCall);
  return std::string(text.substr(0, static_cast<std::size_t>(length)));
}

std::string Mid(std::string_view text, std::int64_t start) {
  if (start < 1) raiseError(kInvalidProcedureCall);
  if (static_cast<std::size_t>(start) > text.size()) return "";
  return std::string(text.substr(static_cast<std::size_t>(start - 1)));
}

std::string Mid(std::string_view text, std::int64_t start, std::int64_t length) {
  if (length < 0) raiseError(kInvalidProcedureCall);
  return Left(Mid(text, start), length);
}

std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view search) {
  if (start < 1) raiseError(kInvalidProcedureCall);
  if (static_cast<std::size_t>(start) > text.size())
    return search.empty() && static_cast<std::size_t>(start) == text.size() + 1 ? start : 0;
  const auto at = text.find(search, static_cast<std::size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<std::int64_t>(at) + 1;
}

std::string LTrim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? "" : std::string(text.substr(first));
}

Value add(const Value& left, const Value& right) {
  if (isText(left) && isText(right))
    return std::get<std::string>(left) + std::get<std::string>(right);
  if (std::holds_alternative<Empty>(left)) return right;
  if (std::holds_alternative<Empty>(right)) return left;
  return toDouble(left) + toDouble(right);
}

std::string cutAtNul(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

} // namespace runtime
