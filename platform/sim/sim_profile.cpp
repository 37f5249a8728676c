// Profile (INI) files of the simulated machine, read and written the way the
// Windows profile calls do it under Wine: a file is parsed into sections of
// keys (comment and bare lines kept as keys without a value, blank lines
// dropped), looked up without regard to case, and written back whole, one
// "[section]" line and one "key=value" line each, with CR LF line ends.
#include "platform/sim/sim_machine.h"
#include "platform/sim/sim_paths.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>

namespace platform {

using namespace sim::detail;

namespace {

struct ProfileKey {
  std::string name;
  std::optional<std::string> value;
};

struct ProfileSection {
  std::string name; // empty for the lines before the first section
  std::vector<ProfileKey> keys;
};

bool isProfileSpace(char c) { return (c >= 0x09 && c <= 0x0D) || c == 0x1A || c == ' '; }

std::string_view trim(std::string_view text) {
  while (!text.empty() && isProfileSpace(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isProfileSpace(text.back()))
    text.remove_suffix(1);
  return text;
}

std::vector<ProfileSection> parse(const std::string& content) {
  std::vector<ProfileSection> sections;
  if (content.empty()) return sections;
  sections.push_back({});
  const ProfileKey* previous = nullptr;
  std::size_t pos = 0;
  while (pos < content.size()) {
    std::size_t end = pos;
    while (end < content.size() && content[end] != '\n' && content[end] != '\r')
      ++end;
    std::string_view line = trim(std::string_view(content).substr(pos, end - pos));
    while (end < content.size() && (content[end] == '\n' || content[end] == '\r'))
      ++end;
    pos = end;
    if (line.empty()) continue;
    if (line.front() == '[') {
      const std::size_t close = line.rfind(']');
      if (close != std::string_view::npos) {
        sections.push_back({std::string(trim(line.substr(1, close - 1))), {}});
        previous = nullptr;
        continue;
      }
    }
    ProfileKey key;
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos) {
      key.name = std::string(trim(line.substr(0, equals)));
      key.value = std::string(trim(line.substr(equals + 1)));
    } else {
      key.name = std::string(line);
    }
    if (!key.name.empty() || !previous || !previous->name.empty()) {
      sections.back().keys.push_back(std::move(key));
      previous = &sections.back().keys.back();
    }
  }
  return sections;
}

std::string serialise(const std::vector<ProfileSection>& sections) {
  std::string out;
  for (const auto& section : sections) {
    if (!section.name.empty()) out += "[" + section.name + "]\r\n";
    for (const auto& key : section.keys) {
      out += key.name;
      if (key.value) out += "=" + *key.value;
      out += "\r\n";
    }
  }
  return out;
}

// The host file of a profile name: a bare file name lies in the Windows
// directory, anything else is taken as a path.
ResolvedPath profilePath(const char* fileName) {
  std::string name = fileName ? fileName : "win.ini";
  if (name.find_first_of("\\/") == std::string::npos && !(name.size() >= 2 && name[1] == ':'))
    name = machine().windowsDirectory + "\\" + name;
  return resolve(name);
}

enum class OpenResult { Loaded, Missing, Failed };

OpenResult load(const ResolvedPath& path, std::vector<ProfileSection>* sections) {
  if (path.error) return OpenResult::Failed;
  if (!hostExists(path.host)) return path.parentExists ? OpenResult::Missing : OpenResult::Failed;
  if (hostIsDirectory(path.host)) return OpenResult::Failed;
  std::FILE* file = std::fopen(path.host.c_str(), "rb");
  if (!file) return OpenResult::Failed;
  std::string content;
  char block[4096];
  std::size_t n = 0;
  while ((n = std::fread(block, 1, sizeof block, file)) > 0)
    content.append(block, n);
  std::fclose(file);
  *sections = parse(content);
  return OpenResult::Loaded;
}

bool save(const ResolvedPath& path, const std::vector<ProfileSection>& sections) {
  std::FILE* file = std::fopen(path.host.c_str(), "wb");
  if (!file) return false;
  const std::string content = serialise(sections);
  std::fwrite(content.data(), 1, content.size(), file);
  std::fclose(file);
  return true;
}

bool matches(std::string_view stored, std::string_view wanted) {
  return sameName(stored, trim(wanted));
}

ProfileSection* findSection(std::vector<ProfileSection>& sections, std::string_view name) {
  for (auto& s : sections)
    if (!s.name.empty() && matches(s.name, name)) return &s;
  // The unnamed part before the first section answers to the empty name.
  for (auto& s : sections)
    if (s.name.empty() && trim(name).empty()) return &s;
  return nullptr;
}

ProfileKey* findKey(ProfileSection& section, std::string_view name) {
  for (auto& k : section.keys)
    if (matches(k.name, name)) return &k;
  return nullptr;
}

// Copies an entry into the caller's buffer as the profile calls do: at most
// size - 1 characters, and one pair of matching quotes around it removed.
Dword copyEntry(std::string_view value, char* buffer, Dword size) {
  char quote = '\0';
  if (!value.empty() && (value.front() == '\'' || value.front() == '"') && value.size() > 1 &&
      value.back() == value.front()) {
    quote = value.front();
    value.remove_prefix(1);
  }
  std::size_t length = std::min<std::size_t>(value.size(), size - 1);
  std::memcpy(buffer, value.data(), length);
  buffer[length] = '\0';
  if (quote && size >= value.size() && length > 0) buffer[--length] = '\0';
  return static_cast<Dword>(length);
}

Dword copyTruncated(std::string_view value, char* buffer, Dword size) {
  const std::size_t length = std::min<std::size_t>(value.size(), size - 1);
  std::memcpy(buffer, value.data(), length);
  buffer[length] = '\0';
  return static_cast<Dword>(length);
}

// A list of NUL-terminated names ending in a second NUL, cut to fit.
Dword copyList(const std::vector<std::string>& names, char* buffer, Dword size) {
  std::string list;
  for (const auto& n : names)
    list += n + '\0';
  if (list.size() + 1 <= size) {
    std::memcpy(buffer, list.data(), list.size());
    buffer[list.size()] = '\0';
    return static_cast<Dword>(list.size());
  }
  if (size < 2) {
    if (size == 1) buffer[0] = '\0';
    return 0;
  }
  std::memcpy(buffer, list.data(), size - 2);
  buffer[size - 2] = '\0';
  buffer[size - 1] = '\0';
  return size - 2;
}

std::string show(const char* text) { return text ? std::string("\"") + text + "\"" : "null"; }

} // namespace

Dword GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                               char* buffer, Dword size, const char* fileName) {
  log("GetPrivateProfileStringA " + show(section) + " " + show(key) + " " + show(fileName));
  if (!buffer || size == 0) return 0;
  std::string fallback = defaultValue ? defaultValue : "";
  std::vector<ProfileSection> sections;
  const OpenResult opened = load(profilePath(fileName), &sections);
  if (!section) {
    std::vector<std::string> names;
    for (const auto& s : sections)
      if (!s.name.empty()) names.push_back(s.name);
    return copyList(names, buffer, size);
  }
  if (!key) {
    std::vector<std::string> names;
    if (ProfileSection* found = findSection(sections, section)) {
      for (const auto& k : found->keys)
        if (k.value && !k.name.empty() && k.name.front() != ';') names.push_back(k.name);
    }
    if (names.empty()) return copyEntry(fallback, buffer, size);
    return copyList(names, buffer, size);
  }
  while (!fallback.empty() && fallback.back() == ' ')
    fallback.pop_back();
  if (opened == OpenResult::Failed) return copyTruncated(fallback, buffer, size);
  const ProfileKey* found = nullptr;
  if (ProfileSection* s = findSection(sections, section)) found = findKey(*s, key);
  return copyEntry(found && found->value ? std::string_view(*found->value) : fallback, buffer,
                   size);
}

bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                const char* fileName) {
  log("WritePrivateProfileStringA " + show(section) + " " + show(key) + " " + show(value) + " " +
      show(fileName));
  const ResolvedPath path = profilePath(fileName);
  std::vector<ProfileSection> sections;
  const OpenResult opened = load(path, &sections);
  if (opened == OpenResult::Failed) {
    fail(path.error                   ? path.error
         : hostIsDirectory(path.host) ? kErrorAccessDenied
                                      : kErrorPathNotFound);
    return false;
  }
  if (opened == OpenResult::Loaded && hostIsReadOnly(path.host)) {
    fail(kErrorAccessDenied);
    return false;
  }
  if (!section) return true;
  bool changed = false;
  if (!key) {
    const auto it = std::find_if(sections.begin(), sections.end(), [&](const ProfileSection& s) {
      return sameName(s.name, section);
    });
    if (it != sections.end()) {
      sections.erase(it);
      changed = true;
    }
  } else if (!value) {
    for (auto& s : sections) {
      if (!sameName(s.name, section)) continue;
      const auto it = std::find_if(s.keys.begin(), s.keys.end(),
                                   [&](const ProfileKey& k) { return sameName(k.name, key); });
      if (it != s.keys.end()) {
        s.keys.erase(it);
        changed = true;
        break;
      }
    }
  } else {
    std::string_view sectionName = section;
    while (!sectionName.empty() && isProfileSpace(sectionName.front()))
      sectionName.remove_prefix(1);
    std::string_view keyName = key;
    while (!keyName.empty() && isProfileSpace(keyName.front()))
      keyName.remove_prefix(1);
    std::string_view newValue = value;
    while (!newValue.empty() && isProfileSpace(newValue.front()))
      newValue.remove_prefix(1);
    ProfileSection* s = findSection(sections, sectionName);
    if (!s) {
      sections.push_back({std::string(sectionName), {}});
      s = &sections.back();
    }
    ProfileKey* k = findKey(*s, keyName);
    if (!k) {
      s->keys.push_back({std::string(keyName), std::nullopt});
      k = &s->keys.back();
    }
    if (!k->value || *k->value != newValue) {
      k->value = std::string(newValue);
      changed = true;
    }
  }
  if (changed && !save(path, sections)) {
    fail(kErrorAccessDenied);
    return false;
  }
  return true;
}

} // namespace platform
