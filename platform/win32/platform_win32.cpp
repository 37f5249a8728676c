// The platform calls, made one-to-one with the Windows 98 ANSI functions.
#include "platform/platform.h"

#include <windows.h>

namespace platform {
namespace {

HKEY toHkey(RegKey key) { return reinterpret_cast<HKEY>(key); }
RegKey fromHkey(HKEY key) { return reinterpret_cast<RegKey>(key); }

// Owns a find handle for the length of one directory listing.
class FindHandle {
public:
  explicit FindHandle(HANDLE handle) : handle_(handle) {}
  FindHandle(const FindHandle&) = delete;
  FindHandle& operator=(const FindHandle&) = delete;
  ~FindHandle() {
    if (valid()) ::FindClose(handle_);
  }
  bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

private:
  HANDLE handle_;
};

} // namespace

Status RegOpenKeyA(RegKey key, const char* subKey, RegKey* result) {
  HKEY opened = nullptr;
  const LONG rc = ::RegOpenKeyA(toHkey(key), subKey, &opened);
  *result = rc == ERROR_SUCCESS ? fromHkey(opened) : 0;
  return rc;
}

Status RegOpenKeyExA(RegKey key, const char* subKey, Dword options, Dword samDesired,
                     RegKey* result) {
  HKEY opened = nullptr;
  const LONG rc = ::RegOpenKeyExA(toHkey(key), subKey, options, samDesired, &opened);
  *result = rc == ERROR_SUCCESS ? fromHkey(opened) : 0;
  return rc;
}

Status RegCreateKeyA(RegKey key, const char* subKey, RegKey* result) {
  HKEY created = nullptr;
  const LONG rc = ::RegCreateKeyA(toHkey(key), subKey, &created);
  *result = rc == ERROR_SUCCESS ? fromHkey(created) : 0;
  return rc;
}

Status RegCreateKeyExA(RegKey key, const char* subKey, Dword reserved, const char* className,
                       Dword options, Dword samDesired, bool securityRecord, RegKey* result,
                       Dword* disposition) {
  SECURITY_ATTRIBUTES zeroRecord{}; // three zero words
  HKEY created = nullptr;
  DWORD disp = 0;
  const LONG rc =
      ::RegCreateKeyExA(toHkey(key), subKey, reserved, const_cast<char*>(className), options,
                        samDesired, securityRecord ? &zeroRecord : nullptr, &created, &disp);
  *result = rc == ERROR_SUCCESS ? fromHkey(created) : 0;
  if (disposition) *disposition = disp;
  return rc;
}

Status RegQueryValueExA(RegKey key, const char* valueName, Dword* type, std::uint8_t* data,
                        Dword* size) {
  DWORD t = 0;
  DWORD s = size ? *size : 0;
  const LONG rc =
      ::RegQueryValueExA(toHkey(key), valueName, nullptr, &t, data, size ? &s : nullptr);
  if (type) *type = t;
  if (size) *size = s;
  return rc;
}

Status RegSetValueExA(RegKey key, const char* valueName, Dword reserved, Dword type,
                      const std::uint8_t* data, Dword size) {
  return ::RegSetValueExA(toHkey(key), valueName, reserved, type, data, size);
}

Status RegEnumKeyA(RegKey key, Dword index, char* name, Dword nameSize) {
  return ::RegEnumKeyA(toHkey(key), index, name, nameSize);
}

Status RegEnumValueA(RegKey key, Dword index, char* name, Dword* nameSize, Dword* type,
                     std::uint8_t* data, Dword* dataSize) {
  DWORD ns = nameSize ? *nameSize : 0;
  DWORD ds = dataSize ? *dataSize : 0;
  DWORD t = 0;
  const LONG rc =
      ::RegEnumValueA(toHkey(key), index, name, &ns, nullptr, &t, data, dataSize ? &ds : nullptr);
  if (nameSize) *nameSize = ns;
  if (dataSize) *dataSize = ds;
  if (type) *type = t;
  return rc;
}

Status RegDeleteKeyA(RegKey key, const char* subKey) {
  return ::RegDeleteKeyA(toHkey(key), subKey);
}

Status RegDeleteValueA(RegKey key, const char* valueName) {
  return ::RegDeleteValueA(toHkey(key), valueName);
}

Status RegFlushKey(RegKey key) { return ::RegFlushKey(toHkey(key)); }

Status RegCloseKey(RegKey key) { return ::RegCloseKey(toHkey(key)); }

bool GetUserNameA(char* buffer, Dword* size) {
  DWORD s = *size;
  const BOOL ok = ::GetUserNameA(buffer, &s);
  *size = s;
  return ok != FALSE;
}

Dword GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                               char* buffer, Dword size, const char* fileName) {
  return ::GetPrivateProfileStringA(section, key, defaultValue, buffer, size, fileName);
}

bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                const char* fileName) {
  return ::WritePrivateProfileStringA(section, key, value, fileName) != FALSE;
}

Dword GetWindowsDirectoryA(char* buffer, Dword size) {
  return ::GetWindowsDirectoryA(buffer, size);
}

Dword GetTempPathA(Dword size, char* buffer) { return ::GetTempPathA(size, buffer); }

bool GetVersionExA(VersionInfo* info) {
  OSVERSIONINFOA record{};
  record.dwOSVersionInfoSize = sizeof(record); // 148 bytes
  if (!::GetVersionExA(&record)) return false;
  info->major = record.dwMajorVersion;
  info->minor = record.dwMinorVersion;
  info->build = record.dwBuildNumber;
  info->platformId = record.dwPlatformId;
  info->servicePack = record.szCSDVersion;
  return true;
}

Dword GetTickCount() { return ::GetTickCount(); }

MemoryStatus GlobalMemoryStatus() {
  MEMORYSTATUS status{};
  status.dwLength = sizeof(status);
  ::GlobalMemoryStatus(&status);
  MemoryStatus figures;
  figures.memoryLoad = status.dwMemoryLoad;
  figures.totalPhys = static_cast<Dword>(status.dwTotalPhys);
  figures.availPhys = static_cast<Dword>(status.dwAvailPhys);
  figures.totalPageFile = static_cast<Dword>(status.dwTotalPageFile);
  figures.availPageFile = static_cast<Dword>(status.dwAvailPageFile);
  figures.totalVirtual = static_cast<Dword>(status.dwTotalVirtual);
  figures.availVirtual = static_cast<Dword>(status.dwAvailVirtual);
  return figures;
}

Dword GetFileAttributesA(const char* path) { return ::GetFileAttributesA(path); }

bool SetFileAttributesA(const char* path, Dword attributes) {
  return ::SetFileAttributesA(path, attributes) != FALSE;
}

bool CreateDirectoryA(const char* path) { return ::CreateDirectoryA(path, nullptr) != FALSE; }

bool RemoveDirectoryA(const char* path) { return ::RemoveDirectoryA(path) != FALSE; }

bool DeleteFileA(const char* path) { return ::DeleteFileA(path) != FALSE; }

bool CopyFileA(const char* from, const char* to, bool failIfExists) {
  return ::CopyFileA(from, to, failIfExists ? TRUE : FALSE) != FALSE;
}

Dword GetCurrentDirectoryA(Dword size, char* buffer) {
  return ::GetCurrentDirectoryA(size, buffer);
}

Status GetLastError() { return static_cast<Status>(::GetLastError()); }

std::vector<FoundFile> FindFiles(const char* pattern) {
  std::vector<FoundFile> found;
  WIN32_FIND_DATAA data{};
  FindHandle handle(::FindFirstFileA(pattern, &data));
  if (!handle.valid()) return found;
  do {
    found.push_back({data.cFileName, data.dwFileAttributes, data.nFileSizeLow});
  } while (::FindNextFileA(handle.get(), &data));
  return found;
}

Dword WinExec(const char* commandLine, Dword showCommand) {
  return ::WinExec(commandLine, showCommand);
}

bool ExitWindowsEx(Dword flags, Dword reserved) {
  return ::ExitWindowsEx(flags, reserved) != FALSE;
}

int MessageBoxA(const char* text, const char* caption, Dword type) {
  return ::MessageBoxA(nullptr, text, caption, type);
}

} // namespace platform
