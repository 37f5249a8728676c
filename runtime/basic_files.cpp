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
  // A pattern deletes every plain file it matches and fails with "File not
  // found" when it matches none; a file that stays doesn't stop the others.
  constexpr platform::Dword kPassedOver =
      platform::kAttributeDirectory | platform::kAttributeHidden | platform::kAttributeSystem;
  const std::string folder = path.substr(0, path.find_last_of("\\/") + 1);
  bool any = false;
  int firstFailure = 0;
  for (const auto& entry : platform::FindFiles(path.c_str())) {
    if (entry.attributes & kPassedOver) continue;
    any = true;
    if (!platform::DeleteFileA((folder + entry.name).c_str()) && firstFailure == 0)
      firstFailure = errorForSystemCode(platform::GetLastError());
  }
  if (!any) raiseError(kFileNotFound);
  if (firstFailure != 0) raiseError(firstFailure);
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

DirSearch::DirSearch(const std::string& pathname, std::uint32_t attributes) {
  std::string pattern = pathname;
  if (!pattern.empty() && (pattern.back() == '\\' || pattern.back() == '/')) pattern += "*.*";
  // Read-only and archive entries always come; the others only when asked.
  const platform::Dword allowed =
      attributes | platform::kAttributeReadOnly | platform::kAttributeArchive;
  constexpr platform::Dword kFiltered =
      platform::kAttributeDirectory | platform::kAttributeHidden | platform::kAttributeSystem;
  for (const auto& entry : platform::FindFiles(pattern.c_str()))
    if ((entry.attributes & kFiltered & ~allowed) == 0) names_.push_back(entry.name);
  next();
}

const std::string& DirSearch::next() {
  name_ = at_ < names_.size() ? names_[at_++] : std::string();
  return name_;
}

} // namespace runtime
