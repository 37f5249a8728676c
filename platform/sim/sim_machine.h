// The state of the simulated Windows 98 machine, shared by the files of
// platform/sim/. One machine per process; reset() in sim_control.h starts a
// new one.
#pragma once

#include "platform/platform.h"
#include "platform/sim/sim_control.h"

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace platform::sim::detail {

struct Value {
  std::string name;
  Dword type = 0;
  std::vector<std::uint8_t> data;
};

struct Key {
  std::string name;
  std::vector<Value> values;                 // kept in enumeration order
  std::vector<std::shared_ptr<Key>> subkeys; // kept in enumeration order
  bool deleted = false;
};

struct Machine {
  std::array<std::shared_ptr<Key>, 4> roots;
  std::map<RegKey, std::shared_ptr<Key>> handles;
  RegKey nextHandle = 0x1000;

  std::string hostRoot;
  std::string windowsDirectory = "C:\\WINDOWS";
  std::string tempPath = "C:\\WINDOWS\\TEMP\\";
  std::string currentDirectory = "C:\\";
  VersionInfo version;
  std::optional<std::string> userName = std::string("User");
  Dword tickCount = 0;
  MemoryStatus memory;

  std::deque<int> messageBoxAnswers;
  std::vector<ShownMessageBox> shownBoxes;
  std::vector<StartedCommand> startedCommands;
  std::vector<Dword> exitRequests;
  Dword winExecResult = 33;

  bool logging = false;
  std::vector<std::string> callLog;

  std::map<std::string, Dword> extraAttributes; // hidden/system bits by host path
  std::set<std::string> filesInUse;             // host paths held open elsewhere
  Status lastError = 0;
};

Machine& machine();
void log(const std::string& line);
Status fail(Status error); // sets the last error and returns it

// Comparison of names as Windows 98 compares them: each byte is taken in
// code page 1252 and compared by its upper-case Unicode character.
std::u16string foldedKey(std::string_view name);
bool sameName(std::string_view a, std::string_view b);
bool nameLess(std::string_view a, std::string_view b);

} // namespace platform::sim::detail
