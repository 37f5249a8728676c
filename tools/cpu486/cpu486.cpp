#include "tools/cpu486/cpu486.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

namespace cpu486 {
namespace {

bool startsWith(const std::string& text, const std::string& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

std::string trim(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return "";
  const auto last = text.find_last_not_of(" \t\r");
  return text.substr(first, last - first + 1);
}

bool parseHex(const std::string& text, std::uint32_t& value) {
  std::string digits = text;
  if (startsWith(digits, "0x")) digits = digits.substr(2);
  if (digits.empty() || digits.size() > 16) return false;
  std::uint64_t v = 0;
  for (const char c : digits) {
    int d;
    if (c >= '0' && c <= '9')
      d = c - '0';
    else if (c >= 'a' && c <= 'f')
      d = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
      d = c - 'A' + 10;
    else
      return false;
    v = v << 4 | static_cast<std::uint64_t>(d);
  }
  value = static_cast<std::uint32_t>(v);
  return true;
}

// Prefixes that objdump prints before the operation they modify.
const std::set<std::string>& prefixes() {
  static const std::set<std::string> names = {
      "lock", "rep", "repz", "repnz", "repe", "repne", "data16", "data32",  "addr16",   "addr32",
      "cs",   "ds",  "es",   "fs",    "gs",   "ss",    "bnd",    "notrack", "xacquire", "xrelease"};
  return names;
}

// A register of the MMX, SSE or AVX files in the operand text.
std::string vectorRegister(const std::string& operands) {
  for (std::size_t at = operands.find('%'); at != std::string::npos;
       at = operands.find('%', at + 1)) {
    const std::string reg = operands.substr(at + 1, 3);
    if (startsWith(reg, "mm") && reg.size() == 3 && reg[2] >= '0' && reg[2] <= '7') return "MMX";
    if (reg == "xmm" || reg == "ymm" || reg == "zmm") return "SSE";
  }
  return "";
}

} // namespace

std::vector<Instruction> parseDisassembly(std::istream& in) {
  std::vector<Instruction> code;
  for (std::string line; std::getline(in, line);) {
    // "  401000:\tpush   %ebp"
    const auto colon = line.find(':');
    if (colon == std::string::npos || line.empty() || line[0] != ' ') continue;
    std::uint32_t address;
    if (!parseHex(trim(line.substr(0, colon)), address)) continue;
    std::istringstream words(line.substr(colon + 1));
    std::string mnemonic;
    while (words >> mnemonic && prefixes().count(mnemonic)) {
    }
    if (mnemonic.empty() || prefixes().count(mnemonic)) continue;
    std::string rest;
    std::getline(words, rest);
    code.push_back({address, mnemonic, trim(rest)});
  }
  return code;
}

std::string lacking(const Instruction& insn) {
  const std::string& m = insn.mnemonic;
  // Pentium Pro: conditional moves, flag-setting FPU compares, long NOPs and
  // hint NOPs (0F 18-1F), performance counters, fast system calls.
  if (startsWith(m, "cmov") || startsWith(m, "fcmov") || m == "fcomi" || m == "fcomip" ||
      m == "fucomi" || m == "fucomip" || startsWith(m, "nopw") || startsWith(m, "nopl") ||
      startsWith(m, "endbr") || m == "rdpmc" || m == "sysenter" || m == "sysexit" ||
      m == "fxsave" || m == "fxrstor")
    return "P6";
  // Pentium: 8-byte compare-exchange, time-stamp counter, model registers.
  if (startsWith(m, "cmpxchg8b") || m == "rdtsc" || m == "rdtscp" || m == "rdmsr" || m == "wrmsr" ||
      m == "rsm")
    return "Pentium";
  // CPUID: the first 486s lack it; code must test for it first.
  if (m == "cpuid") return "CPUID";
  if (m == "emms") return "MMX";
  if (m == "femms" || m == "pavgusb" || m == "pi2fd" || m == "pi2fw" || m == "pf2id" ||
      m == "pf2iw" || m == "pmulhrw" || m == "pswapd" || m == "prefetch" || m == "prefetchw" ||
      startsWith(m, "pf"))
    return "3DNow!";
  if (m == "ldmxcsr" || m == "stmxcsr" || startsWith(m, "vldmxcsr") || startsWith(m, "vstmxcsr") ||
      m == "sfence" || m == "lfence" || m == "mfence" || startsWith(m, "prefetcht") ||
      m == "prefetchnta" || startsWith(m, "movnti") || startsWith(m, "clflush") ||
      startsWith(m, "fisttp") || m == "monitor" || m == "mwait" || startsWith(m, "xsave") ||
      startsWith(m, "xrstor") || m == "xgetbv")
    return "SSE";
  if (m == "syscall" || m == "sysret" || m == "rdrand" || m == "rdseed" ||
      startsWith(m, "popcnt") || startsWith(m, "lzcnt") || startsWith(m, "movbe") ||
      startsWith(m, "crc32") || startsWith(m, "adcx") || startsWith(m, "adox") ||
      startsWith(m, "andn") || startsWith(m, "bextr") || startsWith(m, "blsi") ||
      startsWith(m, "blsr") || startsWith(m, "blsmsk") || startsWith(m, "bzhi") ||
      startsWith(m, "pdep") || startsWith(m, "pext") || startsWith(m, "rorx") ||
      startsWith(m, "sarx") || startsWith(m, "shlx") || startsWith(m, "shrx"))
    return "later";
  // Anything on an MMX, SSE or AVX register ("tzcnt" is "rep bsf", which
  // every x86 runs as bsf, so it is not here).
  if (m[0] == 'v' && !vectorRegister(insn.operands).empty()) return "AVX";
  return vectorRegister(insn.operands);
}

std::vector<Piece> parseMap(std::istream& in) {
  std::vector<Piece> pieces;
  bool inMemoryMap = false;
  bool pendingSection = false;
  std::string section;
  for (std::string line; std::getline(in, line);) {
    if (!inMemoryMap) {
      inMemoryMap = startsWith(line, "Linker script and memory map");
      continue;
    }
    // " .text$name   0x00401000   0x1c  dir/libfoo.a(bar.o)", the name alone
    // on its line when it is long, and the rest on the next one.
    std::istringstream words(line);
    std::vector<std::string> parts;
    for (std::string word; words >> word;)
      parts.push_back(word);
    const bool sectionLine =
        line.size() > 1 && line[0] == ' ' && (line[1] == '.' || startsWith(line, " COMMON"));
    std::size_t first;
    if (sectionLine) section = parts[0];
    if (sectionLine && parts.size() == 1) {
      pendingSection = true;
      continue;
    }
    if (sectionLine)
      first = 1;
    else if (pendingSection && !line.empty() && line[0] == ' ')
      first = 0;
    else {
      pendingSection = false;
      continue;
    }
    pendingSection = false;
    if (parts.size() < first + 3) continue;
    Piece piece;
    if (!parseHex(parts[first], piece.start) || !parseHex(parts[first + 1], piece.size)) continue;
    if (piece.size == 0) continue;
    std::string object = parts[first + 2];
    for (std::size_t i = first + 3; i < parts.size(); ++i)
      object += " " + parts[i];
    piece.object = shortName(object);
    piece.section = section;
    pieces.push_back(piece);
  }
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.start < b.start; });
  return pieces;
}

const Piece* pieceAt(const std::vector<Piece>& pieces, std::uint32_t address) {
  auto after = std::upper_bound(pieces.begin(), pieces.end(), address,
                                [](std::uint32_t a, const Piece& p) { return a < p.start; });
  if (after == pieces.begin()) return nullptr;
  const Piece& piece = *(after - 1);
  return address - piece.start < piece.size ? &piece : nullptr;
}

std::string objectAt(const std::vector<Piece>& pieces, std::uint32_t address) {
  const Piece* piece = pieceAt(pieces, address);
  return piece ? piece->object : "";
}

std::string shortName(const std::string& path) {
  const auto paren = path.find('(');
  const std::string file = path.substr(0, paren);
  const auto slash = file.find_last_of('/');
  const std::string base = slash == std::string::npos ? file : file.substr(slash + 1);
  return paren == std::string::npos ? base : base + path.substr(paren);
}

std::vector<Allowance> parseAllowances(std::istream& in) {
  std::vector<Allowance> list;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields;
    std::size_t from = 0;
    for (std::size_t tab; (tab = line.find('\t', from)) != std::string::npos && fields.size() < 3;
         from = tab + 1)
      fields.push_back(line.substr(from, tab - from));
    fields.push_back(line.substr(from));
    if (fields.size() < 4) continue;
    Allowance a;
    a.object = fields[0];
    a.mnemonic = fields[1];
    a.count = fields[2] == "*" ? -1 : std::atoi(fields[2].c_str());
    a.reason = fields[3];
    list.push_back(a);
  }
  return list;
}

Report check(const std::vector<Instruction>& code, const std::vector<Piece>& pieces,
             const std::vector<Allowance>& allowances, const std::string& defaultObject) {
  Report report;
  struct Hits { // the hits of one mnemonic in one object
    int count = 0;
    std::uint32_t first = 0;
    std::string why;
  };
  std::map<std::pair<std::string, std::string>, Hits> hits;
  std::map<std::size_t, int> usedBy; // allowance -> hits it allowed
  for (const Instruction& insn : code) {
    const std::string why = lacking(insn);
    if (why.empty()) continue;
    ++report.byMnemonic[insn.mnemonic];
    if (why == "P6") ++report.p6;
    const Piece* piece = pieceAt(pieces, insn.address);
    // An allowance for a whole input section (".gcc_except_table") covers
    // every hit in it, whatever the object.
    bool inAllowedSection = false;
    for (std::size_t i = 0; piece && i < allowances.size() && !inAllowedSection; ++i) {
      const Allowance& a = allowances[i];
      if (a.object == piece->section && (a.mnemonic == "*" || a.mnemonic == insn.mnemonic)) {
        inAllowedSection = true;
        ++usedBy[i];
      }
    }
    if (inAllowedSection) {
      ++report.allowed;
      continue;
    }
    static const std::string unknown("?");
    const std::string object = pieces.empty() ? defaultObject : piece ? piece->object : unknown;
    Hits& h = hits[{object, insn.mnemonic}];
    if (h.count++ == 0) {
      h.first = insn.address;
      h.why = why;
    }
  }
  for (const auto& [key, h] : hits) {
    int allowed = 0;
    std::vector<std::size_t> matching;
    for (std::size_t i = 0; i < allowances.size(); ++i) {
      if (allowances[i].object == key.first && allowances[i].mnemonic == key.second) {
        allowed = allowances[i].count < 0 || allowed < 0 ? -1 : allowed + allowances[i].count;
        matching.push_back(i);
      }
    }
    if (allowed < 0 || h.count <= allowed) {
      report.allowed += h.count;
      for (const std::size_t i : matching)
        usedBy[i] += h.count;
      continue;
    }
    report.refused += h.count;
    if (h.why == "P6") report.p6Refused += h.count;
    std::ostringstream line;
    line << key.first << ": " << h.count << " x " << key.second << " (" << h.why << ", first at 0x"
         << std::hex << h.first << std::dec << ")";
    if (allowed > 0) line << ", " << allowed << " allowed";
    report.problems.push_back(line.str());
  }
  for (std::size_t i = 0; i < allowances.size(); ++i) {
    const Allowance& a = allowances[i];
    const std::string name = a.object + " " + a.mnemonic;
    if (usedBy.count(i))
      report.used.push_back(name + ": " + std::to_string(usedBy[i]) + " (" + a.reason + ")");
    else
      report.unused.push_back(name);
  }
  return report;
}

} // namespace cpu486
