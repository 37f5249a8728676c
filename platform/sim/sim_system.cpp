// User, version, clock, memory, shell and message-box services of the
// simulated machine.
#include "platform/sim/sim_machine.h"

#include <cstring>

namespace platform {

using namespace sim::detail;

namespace {
constexpr Status kErrorInsufficientBuffer = 122;
constexpr Status kErrorNotLoggedOn = 1245;
} // namespace

bool GetUserNameA(char* buffer, Dword* size) {
  const auto& name = machine().userName;
  if (!name) {
    fail(kErrorNotLoggedOn);
    return false;
  }
  const auto needed = static_cast<Dword>(name->size() + 1);
  if (*size < needed) {
    *size = needed;
    fail(kErrorInsufficientBuffer);
    return false;
  }
  std::memcpy(buffer, name->c_str(), needed);
  *size = needed;
  return true;
}

bool GetVersionExA(VersionInfo* info) {
  *info = machine().version;
  return true;
}

Dword GetTickCount() { return machine().tickCount; }

MemoryStatus GlobalMemoryStatus() { return machine().memory; }

Dword WinExec(const char* commandLine, Dword showCommand) {
  machine().startedCommands.push_back({commandLine ? commandLine : "", showCommand});
  return machine().winExecResult;
}

bool ExitWindowsEx(Dword flags, Dword) {
  machine().exitRequests.push_back(flags);
  return true;
}

int MessageBoxA(const char* text, const char* caption, Dword type) {
  auto& m = machine();
  int answer = 1;
  if (!m.messageBoxAnswers.empty()) {
    answer = m.messageBoxAnswers.front();
    m.messageBoxAnswers.pop_front();
  }
  m.shownBoxes.push_back({text ? text : "", caption ? caption : "", type, answer});
  return answer;
}

} // namespace platform
