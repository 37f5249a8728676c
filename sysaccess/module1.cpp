#include "sysaccess/module1.h"

#include "platform/platform.h"

namespace sysaccess {

bool SetRegValueEx(const Hive& hive, const std::string& keyPath, const std::string& className,
                   const std::string& valueName, const runtime::Value& value,
                   const std::int32_t& valueType) {
  platform::RegKey key = 0;
  platform::Dword disposition = 0;
  if (platform::RegCreateKeyExA(hive, keyPath.c_str(), 0, className.c_str(), 0,
                                platform::kKeyAllAccess, true, &key, &disposition) != 0)
    return false;
  const std::string data = EncodeRegData(value, valueType);
  // The size leaves out the NUL that EncodeRegData appends.
  return platform::RegSetValueExA(key, valueName.c_str(), 0,
                                  static_cast<platform::Dword>(valueType),
                                  reinterpret_cast<const std::uint8_t*>(data.data()),
                                  static_cast<platform::Dword>(data.size() - 1)) == 0;
}

std::string EncodeRegData(const runtime::Value& value, const std::int32_t& valueType) {
  std::string data;
  if (valueType == kRegDword)
    data = DwordToBytes(runtime::toLong(value));
  else if (valueType == kRegDwordBigEndian)
    data = DwordToBytesBE(runtime::toLong(value));
  else
    data = runtime::toText(value);
  return data + '\0';
}

std::string DwordToBytes(const std::int32_t& number) {
  const auto bits = static_cast<std::uint32_t>(number);
  return {static_cast<char>(bits & 0xFF), static_cast<char>((bits >> 8) & 0xFF),
          static_cast<char>((bits >> 16) & 0xFF), static_cast<char>(bits >> 24)};
}

std::string DwordToBytesBE(const std::int32_t& number) {
  const std::string low = DwordToBytes(number);
  return {low[3], low[2], low[1], low[0]};
}

} // namespace sysaccess
