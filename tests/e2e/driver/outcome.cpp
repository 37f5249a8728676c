#include "tests/e2e/driver/outcome.h"

#include <cstdarg>
#include <cstdio>

namespace drive {

std::string format(const char* pattern, ...) {
  char text[2048];
  va_list args;
  va_start(args, pattern);
  std::vsnprintf(text, sizeof text, pattern, args);
  va_end(args);
  return text;
}

} // namespace drive
