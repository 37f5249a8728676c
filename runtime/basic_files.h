// Basic file statements over the platform's file primitives, raising the
// Basic error that matches the system's failure (53 file not found, 76 path
// not found, 75 path/file access error, 52 bad file name, ...).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace runtime {

// The Basic error number for a Win32 error code.
int errorForSystemCode(std::int32_t code);

std::uint32_t GetAttr(const std::string& path);
// Deletes a file, or every file a pattern with * or ? matches. A pattern
// passes over folders and over hidden and system files, as a directory search
// for plain files does; a file that can't be deleted (read-only, open) is
// left and the others still go, and then the first failure is raised. 53 when
// the pattern matches nothing.
void Kill(const std::string& path);
void FileCopy(const std::string& from, const std::string& to);
void MkDir(const std::string& path);
void RmDir(const std::string& path);

// Attribute bits of a directory search.
inline constexpr std::uint32_t vbNormal = 0;
inline constexpr std::uint32_t vbHidden = 2;
inline constexpr std::uint32_t vbSystem = 4;
inline constexpr std::uint32_t vbDirectory = 16;

// Basic's Dir: a directory search of one pattern. A pattern that ends in a
// backslash searches every entry of that folder. Read-only and archived files
// always come back; hidden and system entries and folders ("." and ".."
// among them) only when `attributes` asks for them. The first name comes from
// the constructor's search, each next() gives the next one, and "" means the
// entries are used up; a folder that doesn't exist, or a name that is no
// folder, gives "" at once. The entries are those that matched when the search
// started.
class DirSearch {
public:
  DirSearch(const std::string& pathname, std::uint32_t attributes);
  const std::string& name() const { return name_; }
  const std::string& next();

private:
  std::vector<std::string> names_;
  std::size_t at_ = 0;
  std::string name_;
};
} // namespace runtime
