#include "runtime/basic_files.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"

namespace runtime {

int errorForSystemCode(std::int32_t code) {
  switch (code) {
  case platform::kErrorFileNotFound: return kFileNotFound;
  case platform::kErrorPathNotFound: return kPathNotFound;
  case platform::kErrorInvalidName:
  case platform::kErrorBadPathname: return kBadFileNameOrNumber;
  case platform::kErrorFileExists: return kFileAlreadyExists;
  case 15:                            // ERROR_INVALID_DRIVE
  case 21: return kDeviceUnavailable; // ERROR_NOT_READY
  case 32:                            // ERROR_SHARING_VIOLATION
  case 33: return kPermissionDenied;  // ERROR_LOCK_VIOLATION
  case 112: return kDiskFull;         // ERROR_DISK_FULL
  default: return kPathFileAccessError;
  }
}

namespace {
[[noreturn]] void raiseLastSystemError() {
  raiseError(errorForSystemCode(platform::GetLastError()));
}
} // namespace

std::uint32_t GetAttr(const std::string& path) {
  const auto attributes = platform::GetFileAttributesA(path.c_str());
  if (attributes == platform::kInvalidFileAttributes) raiseLastSystemError();
  return attributes;
}

void Kill(const std::string& path) {
  if (path.find_first_of("*?") == std::string::npos) {
    if (!platform::DeleteFileA(path.c_str())) raiseLastSystemError();
    return;
  }
  // A pattern deletes every file it matches (folders are left alone) and
  // fails with "File not found" when it matches none.
  const std::string folder = path.substr(0, path.find_last_of("\\/") + 1);
  bool any = false;
  for (const auto& entry : platform::FindFiles(path.c_str())) {
    if (entry.attributes & platform::kAttributeDirectory) continue;
    any = true;
    if (!platform::DeleteFileA((folder + entry.name).c_str())) raiseLastSystemError();
  }
  if (!any) raiseError(kFileNotFound);
}

void FileCopy(const std::string& from, const std::string& to) {
  if (!platform::CopyFileA(from.c_str(), to.c_str(), false)) raiseLastSystemError();
}

void MkDir(const std::string& path) {
  if (!platform::CreateDirectoryA(path.c_str())) raiseLastSystemError();
}

void RmDir(const std::string& path) {
  if (!platform::RemoveDirectoryA(path.c_str())) raiseLastSystemError();
}

} // namespace runtime
