// The simulated registry, with the behaviour of Windows 98 as Wine gives it
// when it reports a 9x system:
//  - a REG_SZ write ignores its byte count and stores the string up to and
//    including its terminator;
//  - RegDeleteKeyA removes the key with all its subkeys;
//  - key creation drops one leading backslash, while opening a path with a
//    leading backslash fails with ERROR_BAD_PATHNAME;
//  - a value that was never set, the default value included, is missing;
//  - HKEY_CLASSES_ROOT is the key HKEY_LOCAL_MACHINE\Software\Classes.
// Keys and values enumerate in the order of their upper-cased names.
#include "platform/sim/sim_machine.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace platform {

using namespace sim::detail;

namespace {

constexpr Status kErrorKeyDeleted = 1018;

const char* rootName(RegKey key) {
  switch (key) {
  case kClassesRoot: return "HKCR";
  case kCurrentUser: return "HKCU";
  case kLocalMachine: return "HKLM";
  case kUsers: return "HKU";
  default: return nullptr;
  }
}

std::string describe(RegKey key) {
  if (const char* root = rootName(key)) return root;
  char text[24];
  std::snprintf(text, sizeof text, "#%lx", static_cast<unsigned long>(key));
  return text;
}

std::string show(const char* text) { return text ? std::string("\"") + text + "\"" : "null"; }

// The key a handle stands for, or an error code.
Status lookUp(RegKey handle, std::shared_ptr<Key>* key) {
  auto& m = machine();
  if (handle >= kClassesRoot && handle <= kUsers) {
    *key = m.roots[handle - kClassesRoot];
    return 0;
  }
  const auto it = m.handles.find(handle);
  if (it == m.handles.end()) return kErrorInvalidHandle;
  if (it->second->deleted) return kErrorKeyDeleted;
  *key = it->second;
  return 0;
}

std::vector<std::string> splitPath(std::string_view path) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (start <= path.size()) {
    const std::size_t end = std::min(path.find('\\', start), path.size());
    if (end > start) parts.emplace_back(path.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

std::shared_ptr<Key> findSubkey(const Key& parent, std::string_view name) {
  for (const auto& sub : parent.subkeys)
    if (sameName(sub->name, name)) return sub;
  return nullptr;
}

std::shared_ptr<Key> addSubkey(Key& parent, const std::string& name) {
  auto sub = std::make_shared<Key>();
  sub->name = name;
  const auto at = std::find_if(parent.subkeys.begin(), parent.subkeys.end(),
                               [&](const auto& k) { return nameLess(name, k->name); });
  parent.subkeys.insert(at, sub);
  return sub;
}

Value* findValue(Key& key, std::string_view name) {
  for (auto& v : key.values)
    if (sameName(v.name, name)) return &v;
  return nullptr;
}

RegKey newHandle(std::shared_ptr<Key> key) {
  auto& m = machine();
  const RegKey handle = m.nextHandle;
  m.nextHandle += 4;
  m.handles[handle] = std::move(key);
  return handle;
}

void markDeleted(Key& key) {
  key.deleted = true;
  for (auto& sub : key.subkeys)
    markDeleted(*sub);
}

Status openPath(RegKey handle, const char* subKey, RegKey* result) {
  *result = 0;
  std::shared_ptr<Key> key;
  if (const Status rc = lookUp(handle, &key)) return rc;
  if (!subKey || !*subKey) {
    *result = handle;
    return 0;
  }
  if (*subKey == '\\') return kErrorBadPathname;
  for (const auto& part : splitPath(subKey)) {
    key = findSubkey(*key, part);
    if (!key) return kErrorFileNotFound;
  }
  *result = newHandle(key);
  return 0;
}

Status createPath(RegKey handle, const char* subKey, RegKey* result, Dword* disposition) {
  *result = 0;
  std::shared_ptr<Key> key;
  if (const Status rc = lookUp(handle, &key)) return rc;
  const char* path = subKey ? subKey : "";
  if (*path == '\\') ++path; // Windows 9x takes one leading backslash as absent
  if (*path == '\\') return kErrorBadPathname;
  Dword disp = 2; // opened an existing key
  for (const auto& part : splitPath(path)) {
    auto next = findSubkey(*key, part);
    if (!next) {
      next = addSubkey(*key, part);
      disp = 1; // created a new key
    }
    key = next;
  }
  if (disposition) *disposition = disp;
  *result = newHandle(key);
  return 0;
}

} // namespace

Status RegOpenKeyA(RegKey key, const char* subKey, RegKey* result) {
  log("RegOpenKeyA " + describe(key) + " " + show(subKey));
  return openPath(key, subKey, result);
}

Status RegOpenKeyExA(RegKey key, const char* subKey, Dword, Dword, RegKey* result) {
  log("RegOpenKeyExA " + describe(key) + " " + show(subKey));
  *result = 0;
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  if (!subKey || !*subKey) {
    // RegOpenKeyEx always hands out a handle of its own, even for the empty path.
    *result = (key >= kClassesRoot && key <= kUsers) ? key : newHandle(found);
    return 0;
  }
  return openPath(key, subKey, result);
}

Status RegCreateKeyA(RegKey key, const char* subKey, RegKey* result) {
  log("RegCreateKeyA " + describe(key) + " " + show(subKey));
  return createPath(key, subKey, result, nullptr);
}

Status RegCreateKeyExA(RegKey key, const char* subKey, Dword, const char*, Dword, Dword, bool,
                       RegKey* result, Dword* disposition) {
  log("RegCreateKeyExA " + describe(key) + " " + show(subKey));
  return createPath(key, subKey, result, disposition);
}

Status RegQueryValueExA(RegKey key, const char* valueName, Dword* type, std::uint8_t* data,
                        Dword* size) {
  log("RegQueryValueExA " + describe(key) + " " + show(valueName));
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  if (data && !size) return kErrorInvalidParameter;
  const Value* value = findValue(*found, valueName ? valueName : "");
  if (!value) return kErrorFileNotFound;
  if (type) *type = value->type;
  const auto length = static_cast<Dword>(value->data.size());
  if (!size) return 0;
  if (data && *size < length) {
    *size = length;
    return kErrorMoreData;
  }
  if (data && length) std::memcpy(data, value->data.data(), length);
  *size = length;
  return 0;
}

Status RegSetValueExA(RegKey key, const char* valueName, Dword, Dword type,
                      const std::uint8_t* data, Dword size) {
  log("RegSetValueExA " + describe(key) + " " + show(valueName) + " type " + std::to_string(type) +
      " size " + std::to_string(size));
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  if (type == kRegSz) {
    // Windows 9x stores a string up to and including its terminator, whatever
    // count it is given.
    if (!data) return kErrorInvalidParameter;
    size = static_cast<Dword>(std::strlen(reinterpret_cast<const char*>(data)) + 1);
  }
  if (!data && size) return kErrorInvalidParameter;
  const std::string name = valueName ? valueName : "";
  Value* value = findValue(*found, name);
  if (!value) {
    const auto at = std::find_if(found->values.begin(), found->values.end(),
                                 [&](const Value& v) { return nameLess(name, v.name); });
    value = &*found->values.insert(at, Value{name, type, {}});
  }
  value->type = type;
  value->data.assign(data, data + size);
  return 0;
}

Status RegEnumKeyA(RegKey key, Dword index, char* name, Dword nameSize) {
  log("RegEnumKeyA " + describe(key) + " " + std::to_string(index));
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  if (index >= found->subkeys.size()) return kErrorNoMoreItems;
  const std::string& subName = found->subkeys[index]->name;
  if (subName.size() + 1 > nameSize) return kErrorMoreData;
  std::memcpy(name, subName.c_str(), subName.size() + 1);
  return 0;
}

Status RegEnumValueA(RegKey key, Dword index, char* name, Dword* nameSize, Dword* type,
                     std::uint8_t* data, Dword* dataSize) {
  log("RegEnumValueA " + describe(key) + " " + std::to_string(index));
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  if (index >= found->values.size()) return kErrorNoMoreItems;
  const Value& value = found->values[index];
  if (value.name.size() >= *nameSize) return kErrorMoreData;
  const auto length = static_cast<Dword>(value.data.size());
  if (data && dataSize && *dataSize < length) {
    *dataSize = length;
    return kErrorMoreData;
  }
  std::memcpy(name, value.name.c_str(), value.name.size() + 1);
  *nameSize = static_cast<Dword>(value.name.size());
  if (type) *type = value.type;
  if (data && length) std::memcpy(data, value.data.data(), length);
  if (dataSize) *dataSize = length;
  return 0;
}

Status RegDeleteKeyA(RegKey key, const char* subKey) {
  log("RegDeleteKeyA " + describe(key) + " " + show(subKey));
  std::shared_ptr<Key> parent;
  if (const Status rc = lookUp(key, &parent)) return rc;
  if (!subKey || !*subKey) return kErrorAccessDenied;
  if (*subKey == '\\') return kErrorBadPathname;
  const auto parts = splitPath(subKey);
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
    parent = findSubkey(*parent, parts[i]);
    if (!parent) return kErrorFileNotFound;
  }
  auto& siblings = parent->subkeys;
  const auto it = std::find_if(siblings.begin(), siblings.end(),
                               [&](const auto& k) { return sameName(k->name, parts.back()); });
  if (it == siblings.end()) return kErrorFileNotFound;
  markDeleted(**it); // Windows 9x deletes the whole subtree
  siblings.erase(it);
  return 0;
}

Status RegDeleteValueA(RegKey key, const char* valueName) {
  log("RegDeleteValueA " + describe(key) + " " + show(valueName));
  std::shared_ptr<Key> found;
  if (const Status rc = lookUp(key, &found)) return rc;
  const std::string name = valueName ? valueName : "";
  auto& values = found->values;
  const auto it = std::find_if(values.begin(), values.end(),
                               [&](const Value& v) { return sameName(v.name, name); });
  if (it == values.end()) return kErrorFileNotFound;
  values.erase(it);
  return 0;
}

Status RegFlushKey(RegKey key) {
  log("RegFlushKey " + describe(key));
  std::shared_ptr<Key> found;
  return lookUp(key, &found);
}

Status RegCloseKey(RegKey key) {
  log("RegCloseKey " + describe(key));
  if (key >= kClassesRoot && key <= kUsers) return 0;
  if (machine().handles.erase(key) == 0) return kErrorInvalidHandle;
  return 0;
}

namespace sim {
namespace {

void exportKey(const Key& key, const std::string& path, std::string& out) {
  out += "[" + path + "]\n";
  for (const auto& v : key.values) {
    char head[32];
    std::snprintf(head, sizeof head, "\" type %lu:", static_cast<unsigned long>(v.type));
    out += "\"" + v.name + head;
    for (const auto byte : v.data) {
      char hex[4];
      std::snprintf(hex, sizeof hex, " %02X", byte);
      out += hex;
    }
    out += "\n";
  }
  for (const auto& sub : key.subkeys)
    exportKey(*sub, path + "\\" + sub->name, out);
}

} // namespace

std::string exportRegistry() {
  static constexpr const char* kRootNames[4] = {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER",
                                                "HKEY_LOCAL_MACHINE", "HKEY_USERS"};
  std::string out;
  for (std::size_t i = 0; i < machine().roots.size(); ++i)
    exportKey(*machine().roots[i], kRootNames[i], out);
  return out;
}

void storeRawValue(RegKey hive, const std::string& path, const std::string& name, Dword type,
                   const std::vector<std::uint8_t>& data) {
  RegKey key = 0;
  createPath(hive, path.c_str(), &key, nullptr);
  std::shared_ptr<Key> found;
  if (lookUp(key, &found) == 0) {
    Value* value = findValue(*found, name);
    if (!value) {
      const auto at = std::find_if(found->values.begin(), found->values.end(),
                                   [&](const Value& v) { return nameLess(name, v.name); });
      value = &*found->values.insert(at, Value{name, type, {}});
    }
    value->type = type;
    value->data = data;
  }
  machine().handles.erase(key);
}

} // namespace sim
} // namespace platform
