#include "sysaccess/ellreg.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/text_functions.h"

#include <cstdio>

namespace sysaccess {

using platform::Dword;
using platform::RegKey;
using runtime::ResumeNext;

namespace {

std::uint8_t* bytes(std::string& buffer) { return reinterpret_cast<std::uint8_t*>(buffer.data()); }

// A kRegDword as the three-digit picture: the first four characters of the
// buffer, first one least significant, read as an unsigned number.
std::string dwordText(const std::string& buffer) {
  double number = 0;
  double weight = 1;
  for (int i = 0; i < 4; ++i, weight *= 256)
    number += weight * static_cast<unsigned char>(buffer[static_cast<std::size_t>(i)]);
  return runtime::formatThreeDigits(number);
}

std::string hexText(const std::string& buffer, Dword size) {
  std::string text;
  for (Dword i = 0; i < size; ++i) {
    char pair[3];
    std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned char>(buffer[i]));
    text += pair;
  }
  return text;
}

// The read counts as good only when the call succeeded and no run-time error
// stands at that moment.
bool goodRead(platform::Status rc) { return rc == 0 && runtime::Err().number == 0; }

} // namespace

std::string GetRegValue(Hive hive, const std::string& keyPath, const std::string& valueName) {
  ResumeNext resume;
  RegKey key = 0;
  platform::RegOpenKeyA(hive, keyPath.c_str(), &key);
  std::string buffer(kBufferLength, ' ');
  Dword size = kBufferLength;
  Dword type = 0;
  const auto rc = platform::RegQueryValueExA(key, valueName.c_str(), &type, bytes(buffer), &size);
  std::string text;
  if (!goodRead(rc)) {
    text = kNotFound;
  } else if (type == kRegBinary) {
    text = hexText(buffer, size);
  } else {
    if (type == kRegDword) buffer = dwordText(buffer);
    // Cuts the terminator, or kRegDword text to three characters; with no
    // data at all the cut fails and the buffer stays as it is.
    resume([&] { buffer = runtime::Left(buffer, static_cast<std::int64_t>(size) - 1); });
    text = buffer;
  }
  platform::RegCloseKey(key);
  return text;
}

void SetRegValue(Hive hive, const std::string& keyPath, const std::string& valueName,
                 std::int32_t valueType, const runtime::Value& value) {
  ResumeNext resume;
  RegKey key = 0;
  platform::RegCreateKeyA(hive, keyPath.c_str(), &key);
  if (valueType == kRegDword) {
    std::int32_t number = 0;
    resume([&] { number = runtime::toLong(value); });
    const auto bits = static_cast<std::uint32_t>(number);
    const std::uint8_t data[4] = {
        static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
        static_cast<std::uint8_t>(bits >> 16), static_cast<std::uint8_t>(bits >> 24)};
    platform::RegSetValueExA(key, valueName.c_str(), 0, kRegDword, data, 4);
  } else {
    runtime::Value data = value;
    // A text takes its terminator; a number can't, and keeps its digits only.
    if (valueType == kRegSz) resume([&] { data = runtime::add(data, std::string(1, '\0')); });
    std::string text;
    resume([&] { text = runtime::toText(data); });
    platform::RegSetValueExA(key, valueName.c_str(), 0, kRegSz, bytes(text),
                             static_cast<Dword>(text.size()));
  }
  platform::RegFlushKey(key);
  platform::RegCloseKey(key);
}

std::string EnumRegKey(Hive hive, const std::string& keyPath, const std::int32_t& index) {
  ResumeNext resume;
  RegKey key = 0;
  platform::RegOpenKeyA(hive, keyPath.c_str(), &key);
  std::string buffer(kBufferLength, ' ');
  const auto rc = platform::RegEnumKeyA(key, static_cast<Dword>(index), buffer.data(),
                                        static_cast<Dword>(kBufferLength));
  std::string text = kNotFound;
  if (goodRead(rc)) text = buffer.substr(0, buffer.find('\0'));
  platform::RegCloseKey(key);
  return text;
}

EnumeratedValue EnumRegValue(Hive hive, const std::string& keyPath, const std::int32_t& index) {
  ResumeNext resume;
  RegKey key = 0;
  platform::RegOpenKeyA(hive, keyPath.c_str(), &key);
  std::string name(kBufferLength, ' ');
  std::string data(kBufferLength, ' ');
  Dword nameSize = kBufferLength;
  Dword dataSize = kBufferLength;
  Dword type = 0;
  const auto rc = platform::RegEnumValueA(key, static_cast<Dword>(index), name.data(), &nameSize,
                                          &type, bytes(data), &dataSize);
  EnumeratedValue result;
  if (goodRead(rc)) {
    if (type == kRegDword) data = dwordText(data);
    resume([&] { data = runtime::Left(data, static_cast<std::int64_t>(dataSize) - 1); });
    result.type = static_cast<std::int32_t>(type);
    result.name = name.substr(0, nameSize);
    result.data = data;
  } else {
    result.type = 0;
    result.name = std::string(kBufferLength, ' ');
    result.data = kNotFound;
  }
  platform::RegCloseKey(key);
  return result;
}

void DelRegSubKey(Hive hive, const std::string& keyPath) {
  ResumeNext resume;
  RegKey root = 0;
  platform::RegOpenKeyExA(hive, "", 0, platform::kKeyAllAccess, &root);
  platform::RegDeleteKeyA(root, keyPath.c_str());
  platform::RegCloseKey(root);
}

void DelRegValue(Hive hive, const std::string& keyPath, const std::string& valueName) {
  ResumeNext resume;
  RegKey key = 0;
  platform::RegOpenKeyA(hive, keyPath.c_str(), &key);
  platform::RegDeleteValueA(key, valueName.c_str());
  platform::RegCloseKey(key);
}

void DelRegKey(Hive hive, const std::string& keyPath) {
  ResumeNext resume;
  RegKey key = 0;
  // The handle takes no part in the deletion and is never closed.
  platform::RegOpenKeyA(hive, keyPath.c_str(), &key);
  platform::RegDeleteKeyA(hive, keyPath.c_str());
}

} // namespace sysaccess
