// Processes and time.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/handles.h"

#include <tlhelp32.h>

namespace drive::cmd {
namespace {

// The file name of a path: "C:\dir\prog.exe" gives "prog.exe". Windows 98
// lists a process by its full path, Wine and NT by its file name.
std::string fileNameOf(const char* path) {
  std::string name = path;
  const std::size_t slash = name.find_last_of("\\/");
  return slash == std::string::npos ? name : name.substr(slash + 1);
}

bool isRunning(const std::string& program) {
  OwnedHandle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot.valid()) return false;
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = ::Process32First(snapshot.get(), &entry); more;
       more = ::Process32Next(snapshot.get(), &entry))
    if (::lstrcmpiA(fileNameOf(entry.szExeFile).c_str(), program.c_str()) == 0) return true;
  return false;
}

} // namespace

Outcome expectExit(const Args& args) {
  long ms = 0;
  Outcome failure;
  if (!number(args[1], &ms, &failure)) return failure;
  const DWORD start = ::GetTickCount();
  while (isRunning(args[0])) {
    if (::GetTickCount() - start >= static_cast<DWORD>(ms))
      return fail(args[0] + " is still running");
    ::Sleep(100);
  }
  return pass(format("after %lu ms", ::GetTickCount() - start));
}

Outcome sleep(const Args& args) {
  long ms = 0;
  Outcome failure;
  if (!number(args[0], &ms, &failure)) return failure;
  if (ms < 0) return fail("a time cannot be negative");
  ::Sleep(static_cast<DWORD>(ms));
  return pass();
}

Outcome timeout(const Args& args) {
  long ms = 0;
  Outcome failure;
  if (!number(args[0], &ms, &failure)) return failure;
  if (ms < 0) return fail("a time cannot be negative");
  setStepTimeoutMs(static_cast<unsigned>(ms));
  return pass();
}

} // namespace drive::cmd
