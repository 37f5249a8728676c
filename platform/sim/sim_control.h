// Settings and observations of the simulated Windows 98 (host builds only).
//
// The simulation is a second implementation of platform.h, not a mock: an
// in-memory registry with Windows 98 semantics, profile files kept as real
// files in a host folder that stands for drives c: to h: (c:\ is <root>/c/),
// and settable version, user, clock and memory figures. Tests set it up here
// and read back what the program did.
#pragma once

#include "platform/platform.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace platform::sim {

// Starts a fresh machine: an empty registry with the four root keys, drives
// c: to h: under `hostRoot` (created as needed; only c: exists at first), the
// Windows directory C:\WINDOWS, temp directory C:\WINDOWS\TEMP\, current
// directory C:\, Windows 98 build 1998, user "User", tick count 0.
void reset(const std::string& hostRoot);

// Host path of a Windows path, resolved as the simulation resolves it (each
// component matched without regard to case). Empty for a name it can't map.
std::string hostPath(const std::string& windowsPath);

void setWindowsDirectory(const std::string& path);
void setTempPath(const std::string& path);
void setCurrentDirectory(const std::string& path);
void setVersion(const VersionInfo& info);
void setUserName(std::optional<std::string> name); // nullopt: GetUserNameA fails
void setTickCount(Dword ticks);
void setMemoryStatus(const MemoryStatus& status);
// Marks a file as held open by another program that shares it for reading
// and writing only: deleting it fails with ERROR_SHARING_VIOLATION until it
// is released.
void setFileInUse(const std::string& windowsPath, bool inUse);

// Message boxes: each box shown takes the next queued answer (IDOK = 1 when
// none is queued) and is recorded.
struct ShownMessageBox {
  std::string text;
  std::string caption;
  Dword type = 0;
  int answer = 0;
};
void queueMessageBoxAnswer(int answer);
const std::vector<ShownMessageBox>& shownMessageBoxes();

// Command lines started with WinExec, and ExitWindowsEx requests.
struct StartedCommand {
  std::string commandLine;
  Dword showCommand = 0;
};
const std::vector<StartedCommand>& startedCommands();
const std::vector<Dword>& exitRequests();
// The result WinExec gives for every later call (33: started).
void setWinExecResult(Dword result);

// Every registry and profile call, one line each ("RegOpenKeyA HKU\.DEFAULT\x"),
// in order, while logging is on.
void setCallLogging(bool on);
const std::vector<std::string>& callLog();
void clearCallLog();

// Number of key handles opened and not closed.
std::size_t openKeyHandles();

// The whole registry as text: one line per key path and one per value with
// its type and data bytes in hex, keys and values in enumeration order.
std::string exportRegistry();

} // namespace platform::sim

namespace platform::sim {
// Stores a value with exactly the given type and bytes, creating the key as
// needed, as another program or an imported registry file may have left it
// (a REG_SZ with no bytes at all, say, which RegSetValueExA can't make on 9x).
void storeRawValue(RegKey hive, const std::string& path, const std::string& name, Dword type,
                   const std::vector<std::uint8_t>& data);
} // namespace platform::sim
