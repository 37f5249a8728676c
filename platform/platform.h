// The operating-system services the program uses, as one small interface.
//
// Every function here has the name and the contract of the Windows 98 ANSI
// call it stands for. Texts are byte strings in the system's single-byte code
// page and are passed through unchanged. Two implementations exist and one is
// picked at link time:
//   platform/win32/  the real calls (MinGW build)
//   platform/sim/    a simulated Windows 98 (host build and host tests)
// Nothing above this layer includes <windows.h>.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

using RegKey = std::uintptr_t; // an open key, or one of the four root keys
using Dword = std::uint32_t;
using Status = std::int32_t; // 0 on success, otherwise a Win32 error code

inline constexpr RegKey kClassesRoot = 0x80000000u;
inline constexpr RegKey kCurrentUser = 0x80000001u;
inline constexpr RegKey kLocalMachine = 0x80000002u;
inline constexpr RegKey kUsers = 0x80000003u;

// Value types.
inline constexpr Dword kRegNone = 0;
inline constexpr Dword kRegSz = 1;
inline constexpr Dword kRegExpandSz = 2;
inline constexpr Dword kRegBinary = 3;
inline constexpr Dword kRegDword = 4;
inline constexpr Dword kRegDwordBigEndian = 5;
inline constexpr Dword kRegMultiSz = 7;
inline constexpr Dword kRegQword = 11;

inline constexpr Dword kKeyAllAccess = 0xF003F;

// Win32 error codes the callers and tests look at.
inline constexpr Status kErrorSuccess = 0;
inline constexpr Status kErrorFileNotFound = 2;
inline constexpr Status kErrorPathNotFound = 3;
inline constexpr Status kErrorAccessDenied = 5;
inline constexpr Status kErrorSharingViolation = 32;
inline constexpr Status kErrorInvalidHandle = 6;
inline constexpr Status kErrorInvalidParameter = 87;
inline constexpr Status kErrorInvalidName = 123;
inline constexpr Status kErrorBadPathname = 161;
inline constexpr Status kErrorFilenameExcedRange = 206;
inline constexpr Status kErrorAlreadyExists = 183;
inline constexpr Status kErrorMoreData = 234;
inline constexpr Status kErrorNoMoreItems = 259;
inline constexpr Status kErrorDirNotEmpty = 145;
inline constexpr Status kErrorFileExists = 80;

// ---- Registry (advapi32) -------------------------------------------------
// A null or empty path given to RegOpenKeyA yields the key itself.
Status RegOpenKeyA(RegKey key, const char* subKey, RegKey* result);
Status RegOpenKeyExA(RegKey key, const char* subKey, Dword options, Dword samDesired,
                     RegKey* result);
Status RegCreateKeyA(RegKey key, const char* subKey, RegKey* result);
// `securityRecord` stands for a SECURITY_ATTRIBUTES record; the program always
// passes one of three zero words, which is what `true` asks for.
Status RegCreateKeyExA(RegKey key, const char* subKey, Dword reserved, const char* className,
                       Dword options, Dword samDesired, bool securityRecord, RegKey* result,
                       Dword* disposition);
// `type`, `data` and `size` may each be null, as in the Win32 call.
Status RegQueryValueExA(RegKey key, const char* valueName, Dword* type, std::uint8_t* data,
                        Dword* size);
Status RegSetValueExA(RegKey key, const char* valueName, Dword reserved, Dword type,
                      const std::uint8_t* data, Dword size);
Status RegEnumKeyA(RegKey key, Dword index, char* name, Dword nameSize);
Status RegEnumValueA(RegKey key, Dword index, char* name, Dword* nameSize, Dword* type,
                     std::uint8_t* data, Dword* dataSize);
Status RegDeleteKeyA(RegKey key, const char* subKey);
Status RegDeleteValueA(RegKey key, const char* valueName);
Status RegFlushKey(RegKey key);
Status RegCloseKey(RegKey key);

bool GetUserNameA(char* buffer, Dword* size);

// ---- Profile files and directories (kernel32) -----------------------------
Dword GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                               char* buffer, Dword size, const char* fileName);
bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                const char* fileName);
Dword GetWindowsDirectoryA(char* buffer, Dword size);
Dword GetTempPathA(Dword size, char* buffer);

// ---- Version, clock, memory -----------------------------------------------
struct VersionInfo {
  Dword major = 0;
  Dword minor = 0;
  Dword build = 0; // the whole 32-bit field; Windows 9x keeps the version in its high word
  Dword platformId = 0;
  std::string servicePack;
};
// Fills `info` from GetVersionExA with a record of 148 bytes.
bool GetVersionExA(VersionInfo* info);
Dword GetTickCount();

// The figures of GlobalMemoryStatus, in bytes.
struct MemoryStatus {
  Dword memoryLoad = 0;
  Dword totalPhys = 0;
  Dword availPhys = 0;
  Dword totalPageFile = 0;
  Dword availPageFile = 0;
  Dword totalVirtual = 0;
  Dword availVirtual = 0;
};
MemoryStatus GlobalMemoryStatus();

// ---- Files ---------------------------------------------------------------
inline constexpr Dword kInvalidFileAttributes = 0xFFFFFFFFu;
inline constexpr Dword kAttributeReadOnly = 0x01;
inline constexpr Dword kAttributeHidden = 0x02;
inline constexpr Dword kAttributeSystem = 0x04;
inline constexpr Dword kAttributeDirectory = 0x10;
inline constexpr Dword kAttributeArchive = 0x20;

// Each returns its result as the Win32 call does; on failure GetLastError()
// tells why.
Dword GetFileAttributesA(const char* path);
bool SetFileAttributesA(const char* path, Dword attributes);
bool CreateDirectoryA(const char* path);
bool RemoveDirectoryA(const char* path);
bool DeleteFileA(const char* path);
bool CopyFileA(const char* from, const char* to, bool failIfExists);
Dword GetCurrentDirectoryA(Dword size, char* buffer);
Status GetLastError();

struct FoundFile {
  std::string name; // the long name, no path
  Dword attributes = 0;
  Dword size = 0;
};
// The entries matching `pattern` (a path whose last part may hold * and ?),
// in the order the file system gives them, "." and ".." included when the
// pattern matches them. Empty with GetLastError() set when nothing matches,
// and with ERROR_FILENAME_EXCED_RANGE for a pattern of 260 characters or more.
std::vector<FoundFile> FindFiles(const char* pattern);

// ---- Shell and user interaction -------------------------------------------
// Starts a command line as WinExec does; a result above 31 means started.
Dword WinExec(const char* commandLine, Dword showCommand);
bool ExitWindowsEx(Dword flags, Dword reserved);
// Shows a system message box and returns the button pressed (IDOK = 1 ...).
int MessageBoxA(const char* text, const char* caption, Dword type);

} // namespace platform
