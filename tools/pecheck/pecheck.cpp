// Static check of a Windows 98 executable: PE32 for i386, GUI subsystem
// version 4.0, OS version 4.0, and every imported function on the Windows 98
// allowlist and none on the denylist, from DLLs that Windows 98 ships.
//
//   tl99_pecheck EXE ALLOWLIST DENYLIST [EXCEPTIONS]
//
// EXCEPTIONS, given for a program that is not ours (the installer's stub),
// names imports accepted in spite of the two lists, each with the reason why
// it is safe on Windows 98; a DLL all of whose imports are named there is
// accepted too. Prints what it found and one line per problem; exits 1 when
// there is any.
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<std::uint8_t> readAll(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

// "DLL!Function" keys of a list file (the first column of each line).
std::map<std::string, std::string> readList(const char* path) {
  std::map<std::string, std::string> entries;
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const auto tab = line.find('\t');
    const std::string key = line.substr(0, tab);
    const auto bang = key.find('!');
    if (bang == std::string::npos) continue;
    entries[upper(key.substr(0, bang)) + "!" + key.substr(bang + 1)] =
        tab == std::string::npos ? "" : line.substr(tab + 1);
  }
  return entries;
}

class Image {
public:
  explicit Image(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
  bool has(std::size_t offset, std::size_t count) const { return offset + count <= bytes_.size(); }
  std::uint16_t u16(std::size_t at) const {
    return has(at, 2) ? bytes_[at] | bytes_[at + 1] << 8 : 0;
  }
  std::uint32_t u32(std::size_t at) const {
    return has(at, 4) ? u16(at) | static_cast<std::uint32_t>(u16(at + 2)) << 16 : 0;
  }
  std::string text(std::size_t at) const {
    std::string out;
    while (at < bytes_.size() && bytes_[at])
      out += static_cast<char>(bytes_[at++]);
    return out;
  }
  std::size_t size() const { return bytes_.size(); }

private:
  std::vector<std::uint8_t> bytes_;
};

struct Section {
  std::uint32_t virtualAddress, virtualSize, rawOffset, rawSize;
};

} // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    std::fprintf(stderr, "usage: %s EXE ALLOWLIST DENYLIST [EXCEPTIONS]\n", argv[0]);
    return 2;
  }
  const Image image(readAll(argv[1]));
  const auto allow = readList(argv[2]);
  const auto deny = readList(argv[3]);
  const auto exceptions = argc == 5 ? readList(argv[4]) : std::map<std::string, std::string>{};
  for (const auto& [key, reason] : exceptions)
    if (reason.empty()) {
      std::printf("%s: exception %s gives no reason\n", argv[4], key.c_str());
      return 1;
    }
  std::vector<std::string> problems;
  auto expect = [&](bool ok, const std::string& problem) {
    if (!ok) problems.push_back(problem);
  };

  const std::uint32_t pe = image.u32(0x3C);
  if (image.u16(0) != 0x5A4D || image.u32(pe) != 0x00004550) {
    std::printf("%s: not a PE executable\n", argv[1]);
    return 1;
  }
  const std::size_t file = pe + 4;
  const std::uint16_t machine = image.u16(file);
  const std::uint16_t sectionCount = image.u16(file + 2);
  const std::uint16_t optionalSize = image.u16(file + 16);
  const std::size_t optional = file + 20;
  const std::uint16_t magic = image.u16(optional);
  const std::uint16_t osMajor = image.u16(optional + 40), osMinor = image.u16(optional + 42);
  const std::uint16_t subMajor = image.u16(optional + 48), subMinor = image.u16(optional + 50);
  const std::uint16_t subsystem = image.u16(optional + 68);
  std::printf(
      "machine 0x%04x, optional header 0x%03x, subsystem %u version %u.%u, OS version %u.%u\n",
      machine, magic, subsystem, subMajor, subMinor, osMajor, osMinor);
  expect(machine == 0x14C, "machine is not i386");
  expect(magic == 0x10B, "not a PE32 image");
  expect(subsystem == 2, "subsystem is not GUI");
  expect(subMajor == 4 && subMinor == 0, "subsystem version is not 4.0");
  expect(osMajor == 4 && osMinor == 0, "OS version is not 4.0");

  std::vector<Section> sections;
  const std::size_t sectionTable = optional + optionalSize;
  for (std::size_t i = 0; i < sectionCount; ++i) {
    const std::size_t at = sectionTable + i * 40;
    sections.push_back(
        {image.u32(at + 12), image.u32(at + 8), image.u32(at + 20), image.u32(at + 16)});
  }
  auto fileOffset = [&](std::uint32_t rva) -> std::size_t {
    for (const auto& s : sections)
      if (rva >= s.virtualAddress && rva < s.virtualAddress + std::max(s.virtualSize, s.rawSize))
        return rva - s.virtualAddress + s.rawOffset;
    return image.size();
  };

  static const std::set<std::string> kWindows98Dlls = {
      "KERNEL32.DLL", "USER32.DLL",   "GDI32.DLL", "ADVAPI32.DLL",
      "SHELL32.DLL",  "COMCTL32.DLL", "MSVCRT.DLL"};
  const std::uint32_t importRva = image.u32(optional + 104);
  int functionCount = 0;
  for (std::size_t d = fileOffset(importRva);; d += 20) {
    const std::uint32_t lookup = image.u32(d), nameRva = image.u32(d + 12),
                        thunk = image.u32(d + 16);
    if (nameRva == 0) break;
    const std::string dll = upper(image.text(fileOffset(nameRva)));
    const bool shipped = kWindows98Dlls.count(dll) == 1;
    int count = 0, excepted = 0;
    for (std::size_t t = fileOffset(lookup ? lookup : thunk);; t += 4) {
      const std::uint32_t entry = image.u32(t);
      if (entry == 0) break;
      ++count;
      if (entry & 0x80000000u) {
        problems.push_back(dll + " imported by ordinal " + std::to_string(entry & 0xFFFF));
        continue;
      }
      const std::string name = image.text(fileOffset(entry) + 2);
      const std::string key = dll + "!" + name;
      if (const auto accepted = exceptions.find(key); accepted != exceptions.end()) {
        std::printf("accepted %s: %s\n", key.c_str(), accepted->second.c_str());
        ++excepted;
      } else if (const auto denied = deny.find(key); denied != deny.end())
        problems.push_back(key + " is on the denylist: " + denied->second.substr(0, 60));
      else if (allow.count(key) == 0)
        problems.push_back(key + " is not on the allowlist");
    }
    expect(shipped || (count > 0 && excepted == count),
           dll + " is not a DLL that Windows 98 ships");
    std::printf("imports %-13s %3d functions\n", dll.c_str(), count);
    functionCount += count;
  }
  std::printf("%d imported functions checked\n", functionCount);
  for (const auto& p : problems)
    std::printf("PROBLEM: %s\n", p.c_str());
  std::printf("static check %s\n", problems.empty() ? "passed" : "FAILED");
  return problems.empty() ? 0 : 1;
}
