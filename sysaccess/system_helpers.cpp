#include "sysaccess/system_helpers.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "runtime/text_functions.h"

namespace sysaccess {

std::string GetFromINI(const std::string& sectionHeader, const std::string& varName,
                       const std::string& fileName) {
  std::string buffer(255, '\0');
  const auto copied = platform::GetPrivateProfileStringA(
      sectionHeader.c_str(), varName.c_str(), "", buffer.data(),
      static_cast<platform::Dword>(buffer.size()), fileName.c_str());
  return runtime::Left(buffer, copied);
}

std::string GetWinDir() {
  std::string buffer(256, ' ');
  platform::GetWindowsDirectoryA(buffer.data(), static_cast<platform::Dword>(buffer.size()));
  return runtime::LTrim(buffer);
}

std::string TempPath() {
  std::string buffer(50, '\0');
  const auto length =
      platform::GetTempPathA(static_cast<platform::Dword>(buffer.size()), buffer.data());
  return runtime::Left(buffer, length);
}

bool FileExists(const std::string& fileName) {
  try {
    return (runtime::GetAttr(fileName) & platform::kAttributeDirectory) == 0;
  } catch (const runtime::RuntimeError&) {
    return false;
  }
}

std::string sReplace(const std::string& searchLine, const std::string& searchFor,
                     const std::string& replaceWith) {
  const auto at = runtime::InStr(1, searchLine, searchFor);
  if (at == 0) return searchLine;
  return runtime::Left(searchLine, at - 1) + replaceWith +
         runtime::Mid(searchLine, at + static_cast<std::int64_t>(searchFor.size()));
}

} // namespace sysaccess
