// File primitives of the simulated machine, over the host folder. The
// read-only attribute is the owner's write bit of the host file and is
// enforced here (a host process running as root would ignore it).
#include "platform/sim/sim_machine.h"
#include "platform/sim/sim_paths.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

using namespace sim::detail;

namespace {

constexpr Status kErrorNoMoreFiles = 18;

bool failWith(Status error) {
  fail(error);
  return false;
}

Dword copyOut(const std::string& text, char* buffer, Dword size) {
  const auto length = static_cast<Dword>(text.size());
  if (length + 1 > size) return length + 1;
  std::memcpy(buffer, text.c_str(), length + 1);
  return length;
}

// Windows wildcard match of a long file name, without regard to case.
bool wildcardMatch(const char* pattern, const char* name) {
  if (*pattern == '\0') return *name == '\0';
  if (*pattern == '*') {
    for (const char* rest = name;; ++rest) {
      if (wildcardMatch(pattern + 1, rest)) return true;
      if (*rest == '\0') return false;
    }
  }
  if (*name == '\0') {
    // A trailing ".*" or "." also matches a name without an extension.
    return (std::strcmp(pattern, ".*") == 0 || std::strcmp(pattern, ".") == 0);
  }
  if (*pattern == '?' || sameName(std::string_view(pattern, 1), std::string_view(name, 1)))
    return wildcardMatch(pattern + 1, name + 1);
  return false;
}

Dword attributesOf(const std::string& host) {
  struct stat info {};
  if (::stat(host.c_str(), &info) != 0) return kInvalidFileAttributes;
  Dword attributes = S_ISDIR(info.st_mode) ? kAttributeDirectory : kAttributeArchive;
  if ((info.st_mode & S_IWUSR) == 0) attributes |= kAttributeReadOnly;
  const auto extra = machine().extraAttributes.find(host);
  if (extra != machine().extraAttributes.end()) attributes |= extra->second;
  return attributes;
}

} // namespace

Dword GetFileAttributesA(const char* path) {
  const auto resolved = resolve(path ? path : "");
  if (resolved.error) return fail(resolved.error), kInvalidFileAttributes;
  const Dword attributes = attributesOf(resolved.host);
  if (attributes == kInvalidFileAttributes)
    fail(resolved.parentExists ? kErrorFileNotFound : kErrorPathNotFound);
  return attributes;
}

bool SetFileAttributesA(const char* path, Dword attributes) {
  const auto resolved = resolve(path ? path : "");
  if (resolved.error) return failWith(resolved.error);
  struct stat info {};
  if (::stat(resolved.host.c_str(), &info) != 0)
    return failWith(resolved.parentExists ? kErrorFileNotFound : kErrorPathNotFound);
  mode_t mode = info.st_mode & 07777;
  mode = (attributes & kAttributeReadOnly) ? (mode & ~(S_IWUSR | S_IWGRP | S_IWOTH))
                                           : (mode | S_IWUSR);
  ::chmod(resolved.host.c_str(), mode);
  const Dword extra = attributes & (kAttributeHidden | kAttributeSystem);
  if (extra)
    machine().extraAttributes[resolved.host] = extra;
  else
    machine().extraAttributes.erase(resolved.host);
  return true;
}

bool CreateDirectoryA(const char* path) {
  const auto resolved = resolve(path ? path : "");
  if (resolved.error) return failWith(resolved.error);
  if (hostExists(resolved.host)) return failWith(kErrorAlreadyExists);
  if (!resolved.parentExists) return failWith(kErrorPathNotFound);
  if (::mkdir(resolved.host.c_str(), 0777) != 0) return failWith(kErrorAccessDenied);
  return true;
}

bool RemoveDirectoryA(const char* path) {
  const auto resolved = resolve(path ? path : "");
  if (resolved.error) return failWith(resolved.error);
  if (!hostExists(resolved.host))
    return failWith(resolved.parentExists ? kErrorFileNotFound : kErrorPathNotFound);
  if (!hostIsDirectory(resolved.host) || resolved.isRoot) return failWith(kErrorAccessDenied);
  if (::rmdir(resolved.host.c_str()) != 0) return failWith(kErrorDirNotEmpty);
  return true;
}

bool DeleteFileA(const char* path) {
  const auto resolved = resolve(path ? path : "");
  if (resolved.error) return failWith(resolved.error);
  if (!hostExists(resolved.host))
    return failWith(resolved.parentExists ? kErrorFileNotFound : kErrorPathNotFound);
  if (hostIsDirectory(resolved.host) || hostIsReadOnly(resolved.host))
    return failWith(kErrorAccessDenied);
  if (machine().filesInUse.count(resolved.host)) return failWith(kErrorSharingViolation);
  ::unlink(resolved.host.c_str());
  machine().extraAttributes.erase(resolved.host);
  return true;
}

bool CopyFileA(const char* from, const char* to, bool failIfExists) {
  const auto source = resolve(from ? from : "");
  if (source.error) return failWith(source.error);
  if (!hostExists(source.host) || hostIsDirectory(source.host))
    return failWith(source.parentExists ? kErrorFileNotFound : kErrorPathNotFound);
  const auto target = resolve(to ? to : "");
  if (target.error) return failWith(target.error);
  if (!target.parentExists) return failWith(kErrorPathNotFound);
  if (hostExists(target.host)) {
    if (failIfExists) return failWith(kErrorFileExists);
    if (hostIsDirectory(target.host) || hostIsReadOnly(target.host))
      return failWith(kErrorAccessDenied);
  }
  std::FILE* in = std::fopen(source.host.c_str(), "rb");
  if (!in) return failWith(kErrorAccessDenied);
  std::FILE* out = std::fopen(target.host.c_str(), "wb");
  if (!out) {
    std::fclose(in);
    return failWith(kErrorAccessDenied);
  }
  char block[4096];
  std::size_t n = 0;
  while ((n = std::fread(block, 1, sizeof block, in)) > 0)
    std::fwrite(block, 1, n, out);
  std::fclose(in);
  std::fclose(out);
  // The copy takes the attributes of its source, the read-only bit included.
  struct stat info {};
  if (::stat(source.host.c_str(), &info) == 0) ::chmod(target.host.c_str(), info.st_mode & 07777);
  return true;
}

Dword GetCurrentDirectoryA(Dword size, char* buffer) {
  return copyOut(machine().currentDirectory, buffer, size);
}

Status GetLastError() { return machine().lastError; }

std::vector<FoundFile> FindFiles(const char* pattern) {
  std::vector<FoundFile> found;
  // The search takes its pattern into a buffer of MAX_PATH characters.
  constexpr std::size_t kMaxPath = 260;
  if (pattern && std::strlen(pattern) >= kMaxPath) return fail(kErrorFilenameExcedRange), found;
  const std::string full = fullWindowsPath(pattern ? pattern : "");
  const std::size_t cut = full.find_last_of("\\/");
  const std::string folder = full.substr(0, cut + 1);
  const std::string mask = full.substr(cut + 1);
  const auto resolved = resolve(folder + ".");
  if (resolved.error) return fail(resolved.error), found;
  if (!hostIsDirectory(resolved.host)) return fail(kErrorPathNotFound), found;
  const bool all = mask == "*.*" || mask == "*";
  std::vector<std::string> names;
  if (DIR* dir = ::opendir(resolved.host.c_str())) {
    while (const dirent* entry = ::readdir(dir)) {
      const std::string name = entry->d_name;
      if ((name == "." || name == "..") && resolved.isRoot) continue;
      if (all || wildcardMatch(mask.c_str(), name.c_str())) names.push_back(name);
    }
    ::closedir(dir);
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const bool aDots = a == "." || a == "..";
    const bool bDots = b == "." || b == "..";
    if (aDots != bDots) return aDots;
    return nameLess(a, b);
  });
  for (const auto& name : names) {
    const std::string host = resolved.host + "/" + name;
    struct stat info {};
    ::stat(host.c_str(), &info);
    found.push_back(
        {name, attributesOf(host), S_ISDIR(info.st_mode) ? 0 : static_cast<Dword>(info.st_size)});
  }
  fail(found.empty() ? kErrorFileNotFound : kErrorNoMoreFiles);
  return found;
}

Dword GetWindowsDirectoryA(char* buffer, Dword size) {
  return copyOut(machine().windowsDirectory, buffer, size);
}

Dword GetTempPathA(Dword size, char* buffer) { return copyOut(machine().tempPath, buffer, size); }

} // namespace platform
