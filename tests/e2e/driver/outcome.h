// What a driver command found: success or failure, with a line of detail.
#pragma once

#include <string>
#include <vector>

namespace drive {

using Args = std::vector<std::string>;

struct Outcome {
  bool ok = false;
  std::string detail;
};

inline Outcome pass(std::string detail = {}) { return {true, std::move(detail)}; }
inline Outcome fail(std::string detail) { return {false, std::move(detail)}; }

// printf-style formatting into a std::string.
std::string format(const char* pattern, ...) __attribute__((format(printf, 1, 2)));

} // namespace drive
