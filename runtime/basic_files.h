// Basic file statements over the platform's file primitives, raising the
// Basic error that matches the system's failure (53 file not found, 76 path
// not found, 75 path/file access error, 52 bad file name, ...).
#pragma once

#include <cstdint>
#include <string>

namespace runtime {

// The Basic error number for a Win32 error code.
int errorForSystemCode(std::int32_t code);

std::uint32_t GetAttr(const std::string& path);
// Deletes a file, or every file a pattern with * or ? matches; 53 when
// nothing matches.
void Kill(const std::string& path);
void FileCopy(const std::string& from, const std::string& to);
void MkDir(const std::string& path);
void RmDir(const std::string& path);

} // namespace runtime
