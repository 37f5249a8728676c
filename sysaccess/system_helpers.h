// Public helpers of the main form for profile files, system folders and
// files.
#pragma once

#include "runtime/value.h"

#include <string>

namespace sysaccess {

// The value of `varName` in `sectionHeader` of an INI-style file: at most 254
// characters; a missing key, section or file all read as the empty text.
std::string GetFromINI(const std::string& sectionHeader, const std::string& varName,
                       const std::string& fileName);

// The Windows directory in a 256-character buffer: the path, its NUL and the
// blanks behind it, leading blanks removed. The main form passes it through
// its Hidden text box before use.
std::string GetWinDir();

// The folder for temporary files with its trailing backslash.
std::string TempPath();

// True when the name exists and is not a directory; false on any error.
bool FileExists(const std::string& fileName);

// `searchLine` with the first exact match of `searchFor` replaced.
std::string sReplace(const std::string& searchLine, const std::string& searchFor,
                     const std::string& replaceWith);

} // namespace sysaccess
