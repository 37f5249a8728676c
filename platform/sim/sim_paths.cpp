#include "platform/sim/sim_paths.h"

#include "platform/sim/sim_machine.h"

#include <cctype>
#include <dirent.h>
#include <sys/stat.h>
#include <vector>

namespace platform::sim::detail {
namespace {

bool isSeparator(char c) { return c == '\\' || c == '/'; }

bool hasForbiddenCharacter(const std::string& part) {
  for (const char c : part) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20) return true;
    switch (c) {
    case '<':
    case '>':
    case ':':
    case '"':
    case '|':
    case '?':
    case '*': return true;
    default: break;
    }
  }
  return false;
}

// The entry of `folder` whose name equals `name` without regard to case.
std::string matchEntry(const std::string& folder, const std::string& name) {
  if (hostExists(folder + "/" + name)) return name;
  DIR* dir = ::opendir(folder.c_str());
  if (!dir) return name;
  std::string match = name;
  while (const dirent* entry = ::readdir(dir)) {
    if (sameName(entry->d_name, name)) {
      match = entry->d_name;
      break;
    }
  }
  ::closedir(dir);
  return match;
}

} // namespace

std::string fullWindowsPath(const std::string& path) {
  const std::string& cwd = machine().currentDirectory;
  if (path.size() >= 2 && path[1] == ':') {
    if (path.size() == 2 || !isSeparator(path[2])) return path.substr(0, 2) + "\\" + path.substr(2);
    return path;
  }
  if (!path.empty() && isSeparator(path[0])) return cwd.substr(0, 2) + path;
  std::string base = cwd;
  if (base.empty() || !isSeparator(base.back())) base += "\\";
  return base + path;
}

ResolvedPath resolve(const std::string& path) {
  ResolvedPath result;
  if (path.empty()) {
    result.error = kErrorPathNotFound;
    return result;
  }
  const std::string full = fullWindowsPath(path);
  const char drive = static_cast<char>(std::tolower(static_cast<unsigned char>(full[0])));
  const std::string driveFolder = machine().hostRoot + "/" + std::string(1, drive);
  if (drive < 'c' || drive > 'h' || !hostIsDirectory(driveFolder)) {
    result.error = kErrorPathNotFound;
    return result;
  }
  std::vector<std::string> parts;
  std::string part;
  for (std::size_t i = 3; i <= full.size(); ++i) {
    if (i == full.size() || isSeparator(full[i])) {
      if (part == "..") {
        if (!parts.empty()) parts.pop_back();
      } else if (!part.empty() && part != ".") {
        parts.push_back(part);
      }
      part.clear();
    } else {
      part += full[i];
    }
  }
  for (const auto& p : parts) {
    if (hasForbiddenCharacter(p)) {
      result.error = kErrorInvalidName;
      return result;
    }
  }
  std::string host = driveFolder;
  result.isRoot = parts.empty();
  result.parent = driveFolder;
  result.parentExists = true;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i + 1 == parts.size()) {
      result.parent = host;
      result.parentExists = hostIsDirectory(host);
    }
    const std::string entry = matchEntry(host, parts[i]);
    host += '/';
    host += entry;
  }
  result.host = host;
  return result;
}

bool hostExists(const std::string& host) {
  struct stat info {};
  return ::stat(host.c_str(), &info) == 0;
}

bool hostIsDirectory(const std::string& host) {
  struct stat info {};
  return ::stat(host.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool hostIsReadOnly(const std::string& host) {
  struct stat info {};
  return ::stat(host.c_str(), &info) == 0 && (info.st_mode & S_IWUSR) == 0;
}

} // namespace platform::sim::detail

namespace platform::sim {
std::string hostPath(const std::string& windowsPath) {
  const auto resolved = detail::resolve(windowsPath);
  return resolved.error ? std::string() : resolved.host;
}
} // namespace platform::sim
