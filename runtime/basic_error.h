// Run-time errors with the numbers and texts of the Basic runtime, the Err
// object that remembers the last one, and "resume at the next statement".
#pragma once

#include <exception>
#include <string>

namespace runtime {

// Error numbers the program raises or meets.
enum ErrorNumber : int {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileNameOrNumber = 52,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceIoError = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kInputPastEndOfFile = 62,
  kBadFileName = 64,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
  kInvalidPropertyValue = 380,
  kPropertyReadOnly = 383,
};

// The standard text of an error number ("Type mismatch"); "Application-defined
// or object-defined error" for numbers the runtime doesn't name.
std::string errorText(int number);

class RuntimeError : public std::exception {
public:
  explicit RuntimeError(int number);
  int number() const { return number_; }
  const char* what() const noexcept override { return text_.c_str(); }

private:
  int number_;
  std::string text_;
};

[[noreturn]] void raiseError(int number);

// The Err object: the number of the last error that a resuming routine
// swallowed, 0 when none stands.
struct ErrObject {
  int number = 0;
  void clear() { number = 0; }
};
ErrObject& Err();

// Runs statements in "resume next" mode: a statement that raises a run-time
// error is abandoned, the error is kept in Err, and the next one runs.
// Entering the mode clears Err, as Basic's On Error statement does.
//   ResumeNext resume;
//   resume([&] { ... });
class ResumeNext {
public:
  ResumeNext() { Err().clear(); }
  template <class Statement> void operator()(Statement&& statement) {
    try {
      statement();
    } catch (const RuntimeError& error) {
      Err().number = error.number();
    }
  }
};

} // namespace runtime
