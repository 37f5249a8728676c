// The processor check of a Windows 98 executable: which of its instructions a
// 486 lacks. Windows 98 runs on a 486DX and later; an instruction of a later
// processor (CMOV, FCOMI, CMPXCHG8B, RDTSC, MMX, 3DNow!, SSE, ...) stops the
// program with an illegal-instruction fault on the machines that lack it.
//
// The check reads the disassembly of every executable section (objdump -d),
// attributes each instruction to the object file it came from (the linker's
// map file), and weighs the hits against an exception list: instructions
// that a 486 never runs, each with its reason (bytes of data that a linear
// disassembly reads as code, or code behind a CPUID test).
#pragma once

#include <cstdint>
#include <istream>
#include <map>
#include <string>
#include <vector>

namespace cpu486 {

// One disassembled instruction: its address, mnemonic and operand text.
struct Instruction {
  std::uint32_t address = 0;
  std::string mnemonic;
  std::string operands;
};

// The instructions of `objdump -d --no-show-raw-insn` output, prefixes
// (lock, rep, data16, ...) set aside so that the mnemonic is the operation.
std::vector<Instruction> parseDisassembly(std::istream& in);

// Why a 486 can't run `insn` ("P6", "MMX", "SSE", ...), or "" when it can.
std::string lacking(const Instruction& insn);

// One input section of the linked image: where it lies and which object
// file gave it ("libmingwex.a(fesetenv.o)", "fmain.cpp.obj").
struct Piece {
  std::uint32_t start = 0;
  std::uint32_t size = 0;
  std::string object;
  std::string section; // the input section's name: ".text", ".gcc_except_table"
};

// The input sections of a GNU ld map file (-Wl,-Map), sorted by address.
std::vector<Piece> parseMap(std::istream& in);

// The input section that holds `address`, or null when none does.
const Piece* pieceAt(const std::vector<Piece>& pieces, std::uint32_t address);

// The object whose input section holds `address`, or "" when none does.
std::string objectAt(const std::vector<Piece>& pieces, std::uint32_t address);

// "dir/lib/libfoo.a(bar.o)" -> "libfoo.a(bar.o)"; "dir/x.obj" -> "x.obj".
std::string shortName(const std::string& path);

// An exception: `count` hits of `mnemonic` in `object` are allowed, for
// `reason`. Lines of the list: OBJECT <TAB> MNEMONIC <TAB> COUNT <TAB> REASON.
// OBJECT may instead name an input section (".gcc_except_table"): then the
// allowance covers that section in every object. MNEMONIC "*" is any
// mnemonic (for a section), COUNT "*" any number (-1 here).
struct Allowance {
  std::string object;
  std::string mnemonic;
  int count = 0;
  std::string reason;
};

std::vector<Allowance> parseAllowances(std::istream& in);

// The verdict on a set of hits.
struct Report {
  std::map<std::string, int> byMnemonic; // every hit
  int allowed = 0;
  int refused = 0;
  int p6 = 0;                        // hits of the Pentium Pro's instructions (cmov, fcomi, ...)
  int p6Refused = 0;                 // ... of them refused
  std::vector<std::string> problems; // one line per refused object/mnemonic
  std::vector<std::string> used;     // allowances that allowed hits, with counts
  std::vector<std::string> unused;   // allowances that matched nothing
};

// Weighs every instruction a 486 lacks against the allowances: a hit is
// allowed when its input section is listed, or its object and mnemonic with
// at least as many hits (else all of them are refused).
Report check(const std::vector<Instruction>& code, const std::vector<Piece>& pieces,
             const std::vector<Allowance>& allowances, const std::string& defaultObject);

} // namespace cpu486
