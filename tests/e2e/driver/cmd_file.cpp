// Files on the machine under test. Expected contents come from files of the
// test tree; a host path that starts with "/" is reached through Wine's Z:
// drive, a relative one from the driver's current folder.
#include "tests/e2e/driver/cmd_support.h"

#include <cstdio>

namespace drive::cmd {
namespace {

std::string windowsPathOf(const std::string& path) {
  if (path.empty() || path[0] != '/') return path;
  std::string converted = "Z:" + path;
  for (char& c : converted)
    if (c == '/') c = '\\';
  return converted;
}

bool readWhole(const std::string& path, std::string* content) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return false;
  char block[4096];
  std::size_t n = 0;
  content->clear();
  while ((n = std::fread(block, 1, sizeof block, file)) > 0)
    content->append(block, n);
  std::fclose(file);
  return true;
}

// Where two contents part: line and column (from 1) in `expected`.
std::string firstDifference(const std::string& actual, const std::string& expected) {
  std::size_t at = 0, line = 1, column = 1;
  while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) {
    if (expected[at] == '\n') {
      ++line;
      column = 0;
    }
    ++at;
    ++column;
  }
  return format("differs at line %u column %u (sizes %u and %u expected)",
                static_cast<unsigned>(line), static_cast<unsigned>(column),
                static_cast<unsigned>(actual.size()), static_cast<unsigned>(expected.size()));
}

} // namespace

Outcome expectFile(const Args& args) {
  std::string actual, expected;
  if (!readWhole(windowsPathOf(args[1]), &expected)) return fail("cannot read " + args[1]);
  if (!readWhole(args[0], &actual)) return fail("no file " + args[0]);
  if (actual == expected) return pass();
  return fail(firstDifference(actual, expected));
}

Outcome expectFileContains(const Args& args) {
  std::string actual;
  if (!readWhole(args[0], &actual)) return fail("no file " + args[0]);
  if (actual.find(args[1]) != std::string::npos) return pass();
  return fail(format("the file (%u bytes) does not hold it", static_cast<unsigned>(actual.size())));
}

Outcome expectNoFile(const Args& args) {
  if (::GetFileAttributesA(args[0].c_str()) == INVALID_FILE_ATTRIBUTES) return pass();
  return fail(args[0] + " is there");
}

} // namespace drive::cmd

namespace drive::cmd {

Outcome copyFile(const Args& args) {
  if (::CopyFileA(windowsPathOf(args[0]).c_str(), args[1].c_str(), FALSE)) return pass();
  return fail(format("cannot copy %s to %s (error %lu)", args[0].c_str(), args[1].c_str(),
                     ::GetLastError()));
}

Outcome deleteFile(const Args& args) {
  if (::GetFileAttributesA(args[0].c_str()) == INVALID_FILE_ATTRIBUTES) return pass("not there");
  ::SetFileAttributesA(args[0].c_str(), FILE_ATTRIBUTE_NORMAL);
  if (::DeleteFileA(args[0].c_str())) return pass();
  return fail(format("cannot delete %s (error %lu)", args[0].c_str(), ::GetLastError()));
}

Outcome setAttr(const Args& args) {
  DWORD attributes = 0;
  if (args[1] == "readonly")
    attributes = FILE_ATTRIBUTE_READONLY;
  else if (args[1] == "normal")
    attributes = FILE_ATTRIBUTE_NORMAL;
  else
    return fail("readonly or normal, not " + args[1]);
  if (::SetFileAttributesA(args[0].c_str(), attributes)) return pass();
  return fail(
      format("cannot set the attributes of %s (error %lu)", args[0].c_str(), ::GetLastError()));
}

} // namespace drive::cmd
