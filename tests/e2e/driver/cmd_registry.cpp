// Registry values, read from the same Wine prefix the program writes to.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/handles.h"

#include <cctype>
#include <vector>

namespace drive::cmd {
namespace {

struct RootName {
  const char* shortName;
  const char* longName;
  HKEY key;
};

const RootName kRoots[] = {
    {"HKCR", "HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},
    {"HKCU", "HKEY_CURRENT_USER", HKEY_CURRENT_USER},
    {"HKLM", "HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
    {"HKU", "HKEY_USERS", HKEY_USERS},
    {"HKCC", "HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
    {"HKDD", "HKEY_DYN_DATA", HKEY_DYN_DATA},
};

HKEY rootOf(const std::string& name) {
  for (const auto& root : kRoots)
    if (name == root.shortName || name == root.longName) return root.key;
  return nullptr;
}

const char* typeName(DWORD type) {
  switch (type) {
  case REG_SZ: return "sz";
  case REG_EXPAND_SZ: return "expand_sz";
  case REG_BINARY: return "binary";
  case REG_DWORD: return "dword";
  case REG_MULTI_SZ: return "multi_sz";
  default: return "other";
  }
}

std::string hex(const std::vector<BYTE>& bytes) {
  std::string text;
  for (const BYTE b : bytes)
    text += format("%02X", b);
  return text;
}

// "00 00 00 20" or "00000020" as bytes; false for anything else.
bool parseHex(const std::string& text, std::vector<BYTE>* bytes) {
  std::string digits;
  for (const char c : text) {
    if (c == ' ') continue;
    if (!std::isxdigit(static_cast<unsigned char>(c))) return false;
    digits += c;
  }
  if (digits.size() % 2) return false;
  for (std::size_t i = 0; i < digits.size(); i += 2)
    bytes->push_back(static_cast<BYTE>(std::stoul(digits.substr(i, 2), nullptr, 16)));
  return true;
}

struct Value {
  LONG status = ERROR_FILE_NOT_FOUND;
  DWORD type = 0;
  std::vector<BYTE> data;
};

Value readValue(HKEY root, const std::string& key, const std::string& name) {
  Value value;
  OwnedKey opened;
  value.status = ::RegOpenKeyExA(root, key.c_str(), 0, KEY_QUERY_VALUE, opened.out());
  if (value.status != ERROR_SUCCESS) return value;
  DWORD size = 0;
  value.status =
      ::RegQueryValueExA(opened.get(), name.c_str(), nullptr, &value.type, nullptr, &size);
  if (value.status != ERROR_SUCCESS) return value;
  value.data.resize(size);
  value.status = ::RegQueryValueExA(opened.get(), name.c_str(), nullptr, &value.type,
                                    value.data.data(), &size);
  value.data.resize(size);
  return value;
}

std::string shown(const Value& value) {
  if (value.type == REG_SZ || value.type == REG_EXPAND_SZ) {
    std::string text(value.data.begin(), value.data.end());
    return format("%s \"%s\"", typeName(value.type), text.c_str());
  }
  if (value.type == REG_DWORD && value.data.size() == 4)
    return format("dword %lu", *reinterpret_cast<const DWORD*>(value.data.data()));
  return format("%s %s", typeName(value.type), hex(value.data).c_str());
}

} // namespace

Outcome expectReg(const Args& args) {
  HKEY root = rootOf(args[0]);
  if (!root) return fail("unknown root key " + args[0]);
  const std::string& type = args[3];
  const Value value = readValue(root, args[1], args[2]);
  if (type == "absent") {
    if (value.status != ERROR_SUCCESS) return pass();
    return fail("the value is there: " + shown(value));
  }
  if (args.size() < 5) return fail(type + " needs the expected data");
  if (value.status != ERROR_SUCCESS)
    return fail(format("the value is absent (error %ld)", value.status));
  const std::string& data = args[4];
  bool same = false;
  if (type == "binary") {
    std::vector<BYTE> expected;
    if (!parseHex(data, &expected)) return fail("not hex: " + data);
    same = value.type == REG_BINARY && value.data == expected;
  } else if (type == "sz") {
    // The stored text ends at its terminator.
    std::string text(value.data.begin(), value.data.end());
    text = text.c_str();
    same = value.type == REG_SZ && text == data;
  } else if (type == "dword") {
    long expected = 0;
    if (!parseNumber(data, &expected)) return fail("not a number: " + data);
    same = value.type == REG_DWORD && value.data.size() == 4 &&
           *reinterpret_cast<const DWORD*>(value.data.data()) == static_cast<DWORD>(expected);
  } else {
    return fail("unknown value type " + type + " (binary, sz, dword, absent)");
  }
  if (same) return pass();
  return fail("the value is " + shown(value));
}

} // namespace drive::cmd

namespace drive::cmd {

Outcome expectKey(const Args& args) {
  HKEY root = rootOf(args[0]);
  if (!root) return fail("unknown root key " + args[0]);
  long expected = 0;
  Outcome failure;
  if (!number(args[2], &expected, &failure)) return failure;
  OwnedKey opened;
  const bool exists =
      ::RegOpenKeyExA(root, args[1].c_str(), 0, KEY_QUERY_VALUE, opened.out()) == ERROR_SUCCESS;
  return compare("key exists", exists ? 1 : 0, expected);
}

// Wine's regedit imports a REGEDIT4 file in the system's code page, with
// "[-KEY]" lines that delete a key and "name"=- lines that delete a value.
Outcome importReg(const Args& args) {
  std::string file = args[0];
  if (!file.empty() && file[0] == '/') file = "Z:" + file;
  for (char& c : file)
    if (c == '/') c = '\\';
  std::string command = "regedit.exe /S \"" + file + "\"";
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION info{};
  if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &info))
    return fail(format("cannot start regedit (error %lu)", ::GetLastError()));
  OwnedHandle process(info.hProcess), thread(info.hThread);
  if (::WaitForSingleObject(process.get(), 60000) != WAIT_OBJECT_0)
    return fail("regedit did not end within 60 s");
  DWORD code = 1;
  ::GetExitCodeProcess(process.get(), &code);
  if (code != 0) return fail(format("regedit ended with %lu", code));
  return pass();
}

} // namespace drive::cmd
