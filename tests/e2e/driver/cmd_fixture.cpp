// Setting up files and folders of the machine under test the way a user or
// another program leaves them: files with attributes, folders, a file held
// open by this process, a tree taken away.
#include "tests/e2e/driver/cmd_support.h"

#include <vector>

namespace drive::cmd {
namespace {

// Files held open by hold-open, until the driver ends.
std::vector<HANDLE>& heldFiles() {
  static std::vector<HANDLE> files;
  return files;
}

std::string lastErrorText(const std::string& what) {
  return format("%s failed with error %lu", what.c_str(), ::GetLastError());
}

bool removeTree(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return true;
  ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) return ::DeleteFileA(path.c_str()) != 0;
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((path + "\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::string name = entry.cFileName;
      if (name != "." && name != "..") removeTree(path + "\\" + name);
    } while (::FindNextFileA(search, &entry));
    ::FindClose(search);
  }
  return ::RemoveDirectoryA(path.c_str()) != 0;
}

} // namespace

Outcome makeFile(const Args& args) {
  HANDLE file = ::CreateFileA(args[0].c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return fail(lastErrorText("making " + args[0]));
  const std::string content = args.size() > 1 ? args[1] : "data";
  DWORD written = 0;
  ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
  ::CloseHandle(file);
  return pass();
}

Outcome makeFolder(const Args& args) {
  if (::CreateDirectoryA(args[0].c_str(), nullptr)) return pass();
  return fail(lastErrorText("making the folder " + args[0]));
}

Outcome setAttributes(const Args& args) {
  DWORD attributes = 0;
  for (const char c : args.size() > 1 ? args[1] : std::string()) {
    switch (c) {
    case 'R': attributes |= FILE_ATTRIBUTE_READONLY; break;
    case 'H': attributes |= FILE_ATTRIBUTE_HIDDEN; break;
    case 'S': attributes |= FILE_ATTRIBUTE_SYSTEM; break;
    case 'A': attributes |= FILE_ATTRIBUTE_ARCHIVE; break;
    default: return fail(format("no attribute %c (R, H, S, A)", c));
    }
  }
  if (!::SetFileAttributesA(args[0].c_str(), attributes ? attributes : FILE_ATTRIBUTE_NORMAL))
    return fail(lastErrorText("setting the attributes of " + args[0]));
  const DWORD now = ::GetFileAttributesA(args[0].c_str());
  const DWORD asked = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  if ((now & asked) != (attributes & asked))
    return fail(format("the attributes are %lX, not %lX", now, attributes));
  return pass();
}

Outcome holdOpen(const Args& args) {
  // Shared for reading and writing but not for deletion, as an editor holds
  // its document.
  HANDLE file = ::CreateFileA(args[0].c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return fail(lastErrorText("opening " + args[0]));
  heldFiles().push_back(file);
  return pass();
}

Outcome removeTreeCommand(const Args& args) {
  if (removeTree(args[0])) return pass();
  return fail(lastErrorText("removing " + args[0]));
}

Outcome expectFolder(const Args& args) {
  const DWORD attributes = ::GetFileAttributesA(args[0].c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
    return pass();
  return fail(args[0] + " is no folder");
}

} // namespace drive::cmd
