// Windows paths of the simulated machine mapped onto the host folder.
#pragma once

#include "platform/platform.h"

#include <string>

namespace platform::sim::detail {

struct ResolvedPath {
  Status error = 0;   // 0, or why the name can't be mapped
  std::string host;   // host path of the name (existing or not)
  std::string parent; // host path of the folder that holds it
  bool parentExists = false;
  bool isRoot = false; // the name is a drive's root folder
};

// Resolves `path` against the current directory; each component is matched
// without regard to case against what exists. Names with characters that
// Windows forbids give ERROR_INVALID_NAME; drives other than c: to h:, or a
// drive whose folder is missing, give ERROR_PATH_NOT_FOUND.
ResolvedPath resolve(const std::string& path);

// The full Windows form of a relative or absolute name ("C:\WINDOWS\x.ini").
std::string fullWindowsPath(const std::string& path);

bool hostExists(const std::string& host);
bool hostIsDirectory(const std::string& host);
bool hostIsReadOnly(const std::string& host);

} // namespace platform::sim::detail
