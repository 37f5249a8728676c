#include "sysaccess/file_errors.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"

#include <string>

namespace sysaccess {
namespace {

constexpr platform::Dword kExclamationOk = 48;
constexpr platform::Dword kExclamationYesNoCancel = 51;
constexpr platform::Dword kExclamationYesNo = 52;

struct DiskErrorRow {
  int number;
  std::string text;
  platform::Dword type;
};

// The texts stand as the program has always shown them: 62 runs on without
// the words its middle needs, and 75 keeps "Occured", "currenty" and the
// blank at the end of its second line.
const DiskErrorRow kDiskErrors[] = {
    {52, "That filename is illegal.", kExclamationYesNo},
    {55, "This file is already open.", kExclamationYesNo},
    {57, "Internal disk error.", kExclamationYesNo},
    {61, "Disk is full. Continue?", kExclamationYesNoCancel},
    {62,
     std::string("This file has a nonstandard ") + "end-of-file marker, " +
         "or an attempt was made " + "the end-of-file marker.",
     kExclamationYesNo},
    {64, "That filename is illegal.", kExclamationYesNo},
    {68, "That device appears unavailable.", kExclamationYesNo},
    {71, std::string("Insert a disk in the drive ") + "and close the door.", kExclamationYesNo},
    {75,
     std::string("File Sharing Violation Occured.") + "\r\n" +
         "One or more files in the TEMP directory are " + "\r\n" +
         "currenty being used by another application.",
     kExclamationOk},
    {76, "That path doesn't exist.", kExclamationYesNo},
};

int recoveryCode(int answer) {
  switch (answer) {
  case 1: // OK
  case 4: // Retry
    return kRetry;
  case 2: // Cancel
  case 3: // Abort
    return kGiveUp;
  case 5: // Ignore
    return kResumeNext;
  case 6: // Yes
  case 7: // No
    return kNotRecognised;
  default: return 0;
  }
}

} // namespace

int FileErrors() {
  const int number = runtime::Err().number;
  for (const auto& row : kDiskErrors) {
    if (row.number != number) continue;
    return recoveryCode(platform::MessageBoxA(row.text.c_str(), "Disk Error", row.type));
  }
  return kNotRecognised;
}

} // namespace sysaccess
