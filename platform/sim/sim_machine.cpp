// The machine state, its control interface, and name comparison.
#include "platform/sim/sim_machine.h"

#include <filesystem>
#include <sys/stat.h>

namespace platform::sim {
namespace detail {

namespace {
std::unique_ptr<Machine> theMachine = std::make_unique<Machine>();
} // namespace

Machine& machine() { return *theMachine; }

void log(const std::string& line) {
  if (machine().logging) machine().callLog.push_back(line);
}

Status fail(Status error) {
  machine().lastError = error;
  return error;
}

namespace {

// Code page 1252 bytes 0x80-0x9F as Unicode; the five unassigned bytes map to
// the control characters of the same value, as Windows does.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t upperUnicode(std::uint8_t byte) {
  if (byte >= 'a' && byte <= 'z') return static_cast<char16_t>(byte - 0x20);
  if (byte < 0x80) return byte;
  if (byte < 0xA0) {
    switch (const char16_t c = kHighControls[byte - 0x80]) {
    case 0x0161: return 0x0160;
    case 0x0153: return 0x0152;
    case 0x017E: return 0x017D;
    default: return c;
    }
  }
  if (byte >= 0xE0 && byte != 0xF7 && byte != 0xFF) return static_cast<char16_t>(byte - 0x20);
  if (byte == 0xFF) return 0x0178;
  return byte;
}

} // namespace

std::u16string foldedKey(std::string_view name) {
  std::u16string folded;
  folded.reserve(name.size());
  for (const char c : name)
    folded.push_back(upperUnicode(static_cast<std::uint8_t>(c)));
  return folded;
}

bool sameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && foldedKey(a) == foldedKey(b);
}

bool nameLess(std::string_view a, std::string_view b) { return foldedKey(a) < foldedKey(b); }

} // namespace detail

using detail::machine;

void reset(const std::string& hostRoot) {
  detail::theMachine = std::make_unique<detail::Machine>();
  auto& m = machine();
  static constexpr const char* kRootNames[4] = {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER",
                                                "HKEY_LOCAL_MACHINE", "HKEY_USERS"};
  for (int i = 0; i < 4; ++i) {
    m.roots[i] = std::make_shared<detail::Key>();
    m.roots[i]->name = kRootNames[i];
  }
  // HKEY_CLASSES_ROOT is HKEY_LOCAL_MACHINE\Software\Classes under another
  // name: one key, reached through either root.
  auto software = std::make_shared<detail::Key>();
  software->name = "Software";
  m.roots[2]->subkeys.push_back(software);
  m.roots[0]->name = "Classes";
  software->subkeys.push_back(m.roots[0]);
  m.hostRoot = hostRoot;
  std::filesystem::create_directories(hostRoot + "/c");
  m.version = VersionInfo{4, 10, 0x040A07CE, 1, " "};
  m.memory =
      MemoryStatus{40, 64u << 20, 20u << 20, 128u << 20, 100u << 20, 2047u << 20, 2000u << 20};
}

void setWindowsDirectory(const std::string& path) { machine().windowsDirectory = path; }
void setTempPath(const std::string& path) { machine().tempPath = path; }
void setCurrentDirectory(const std::string& path) { machine().currentDirectory = path; }
void setVersion(const VersionInfo& info) { machine().version = info; }
void setUserName(std::optional<std::string> name) { machine().userName = std::move(name); }
void setTickCount(Dword ticks) { machine().tickCount = ticks; }
void setMemoryStatus(const MemoryStatus& status) { machine().memory = status; }

void queueMessageBoxAnswer(int answer) { machine().messageBoxAnswers.push_back(answer); }
const std::vector<ShownMessageBox>& shownMessageBoxes() { return machine().shownBoxes; }
const std::vector<StartedCommand>& startedCommands() { return machine().startedCommands; }
const std::vector<Dword>& exitRequests() { return machine().exitRequests; }
void setWinExecResult(Dword result) { machine().winExecResult = result; }

void setCallLogging(bool on) { machine().logging = on; }
const std::vector<std::string>& callLog() { return machine().callLog; }
void clearCallLog() { machine().callLog.clear(); }

std::size_t openKeyHandles() { return machine().handles.size(); }

} // namespace platform::sim
