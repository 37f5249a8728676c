// The processor check of an executable or object file: fails when it holds an
// instruction that a 486 lacks and that the exception list doesn't allow.
//
//   tl99_cpu486 FILE [--map MAPFILE] [--allow LIST] [--objdump TOOL]
//
// MAPFILE is the linker's map of FILE (-Wl,-Map), which names the object file
// of each hit; LIST holds the exceptions (see tools/cpu486/allow.txt). Prints
// the count by mnemonic and one line per refused object; exits 1 when any hit
// is refused, 2 when FILE can't be disassembled.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "tools/cpu486/cpu486.h"

namespace {

std::string quoted(const std::string& text) {
  std::string out = "'";
  for (const char c : text)
    out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

bool runCapture(const std::string& command, std::string& output) {
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return false;
  char buffer[65536];
  for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;)
    output.append(buffer, n);
  return pclose(pipe) == 0;
}

} // namespace

int main(int argc, char** argv) {
  std::string file, mapPath, allowPath, objdump = "i686-w64-mingw32-objdump";
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if ((arg == "--map" || arg == "--allow" || arg == "--objdump") && i + 1 < argc) {
      (arg == "--map" ? mapPath : arg == "--allow" ? allowPath : objdump) = argv[++i];
    } else if (file.empty() && arg[0] != '-') {
      file = arg;
    } else {
      std::cerr << "usage: tl99_cpu486 FILE [--map MAPFILE] [--allow LIST] [--objdump TOOL]\n";
      return 2;
    }
  }
  if (file.empty()) {
    std::cerr << "usage: tl99_cpu486 FILE [--map MAPFILE] [--allow LIST] [--objdump TOOL]\n";
    return 2;
  }

  std::string listing;
  if (!runCapture(objdump + " -d --no-show-raw-insn -- " + quoted(file) + " 2>/dev/null",
                  listing)) {
    std::cerr << "cpu486: " << objdump << " can't disassemble " << file << "\n";
    return 2;
  }
  std::istringstream listingIn(listing);
  const auto code = cpu486::parseDisassembly(listingIn);
  if (code.empty()) {
    std::cerr << "cpu486: no instructions in " << file << "\n";
    return 2;
  }

  std::vector<cpu486::Piece> pieces;
  if (!mapPath.empty()) {
    std::ifstream mapIn(mapPath);
    if (!mapIn) {
      std::cerr << "cpu486: can't read " << mapPath << "\n";
      return 2;
    }
    pieces = cpu486::parseMap(mapIn);
  }
  std::vector<cpu486::Allowance> allowances;
  if (!allowPath.empty()) {
    std::ifstream allowIn(allowPath);
    if (!allowIn) {
      std::cerr << "cpu486: can't read " << allowPath << "\n";
      return 2;
    }
    allowances = cpu486::parseAllowances(allowIn);
  }

  const auto report = cpu486::check(code, pieces, allowances, cpu486::shortName(file));
  std::cout << "cpu486: " << file << ": " << code.size() << " instructions\n";
  std::cout << "  a 486 lacks:";
  if (report.byMnemonic.empty()) std::cout << " none";
  for (const auto& [mnemonic, count] : report.byMnemonic)
    std::cout << " " << mnemonic << " " << count;
  std::cout << "\n";
  for (const auto& line : report.used)
    std::cout << "  allowed " << line << "\n";
  for (const auto& line : report.problems)
    std::cout << "  REFUSED " << line << "\n";
  for (const auto& line : report.unused)
    std::cout << "  (exception not used: " << line << ")\n";
  std::cout << "cpu486: P6-only instructions (cmov, fcmov, fcomi, fucomi): " << report.p6
            << ", that can run: " << report.p6Refused << "\n";
  std::cout << "cpu486: " << report.allowed + report.refused << " instructions a 486 lacks, "
            << report.allowed << " allowed by the exception list, " << report.refused
            << " refused\n";
  return report.refused == 0 ? 0 : 1;
}
