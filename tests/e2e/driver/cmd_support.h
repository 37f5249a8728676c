// Small helpers shared by the command implementations.
#pragma once

#include "tests/e2e/driver/commands.h"
#include "tests/e2e/driver/named_window.h"

#include <windows.h>

namespace drive {

// The window named `name`, or null with *failure saying so.
inline HWND lookup(const std::string& name, Outcome* failure) {
  HWND window = findNamed(name);
  if (!window) *failure = fail("no window is named " + name);
  return window;
}

// A visible window named `name`, for input.
inline HWND lookupVisible(const std::string& name, Outcome* failure) {
  HWND window = lookup(name, failure);
  if (window && !::IsWindowVisible(window)) {
    *failure = fail(name + " is hidden");
    return nullptr;
  }
  return window;
}

// A number argument; *failure names the argument when it is not one.
inline bool number(const std::string& text, long* value, Outcome* failure) {
  if (parseNumber(text, value)) return true;
  *failure = fail("not a number: " + text);
  return false;
}

// Compares what was read with what was expected.
inline Outcome compare(const std::string& what, long actual, long expected) {
  if (actual == expected) return pass();
  return fail(format("%s is %ld, expected %ld", what.c_str(), actual, expected));
}

// "NAME NUMBER": what `read` gives for the window NAME, compared with NUMBER.
template <class Read> Outcome expectNumber(const Args& args, const std::string& what, Read read) {
  Outcome failure;
  long expected = 0;
  HWND window = lookup(args[0], &failure);
  if (!window || !number(args[1], &expected, &failure)) return failure;
  return compare(what, read(window), expected);
}

} // namespace drive
