// The processor check: which instructions a 486 lacks, where they came from,
// and the exception list.
#include <gtest/gtest.h>

#include <sstream>

#include "tools/cpu486/cpu486.h"

namespace {

cpu486::Instruction insn(const std::string& mnemonic, const std::string& operands = "") {
  return {0x401000, mnemonic, operands};
}

std::vector<cpu486::Instruction> disassembly(const std::string& text) {
  std::istringstream in(text);
  return cpu486::parseDisassembly(in);
}

const char* const kListing =
    "\nfile.exe:     file format pei-i386\n\n\nDisassembly of section .text:\n\n"
    "00401000 <.text>:\n"
    "  401000:\tpush   %ebp\n"
    "  401001:\tcmovl  %edx,%eax\n"
    "  401004:\tlock cmpxchg8b (%esi)\n"
    "  401008:\trep stos %eax,%es:(%edi)\n"
    "  40100a:\tpaddb  %mm1,%mm0\n"
    "  401010:\tfucomip %st(1),%st\n"
    "  401012:\tmovaps %xmm0,(%eax)\n"
    "  40100d:\tpavgb  %mm1,%mm0\n";

const char* const kMap =
    "Archive member included to satisfy reference by file (symbol)\n\n"
    " .text  0x00401000  0x4  not/yet/the/memory/map.o\n"
    "Linker script and memory map\n\n"
    ".text           0x00401000     0x2000\n"
    " *(.text)\n"
    " .text          0x00401000        0x4 /usr/lib/crt2.o\n"
    "                0x00401000                mainCRTStartup\n"
    " .text$_ZN4Form4showEv\n"
    "                0x00401004        0x8 frame/libtl99_frame.a(fmain.cpp.obj)\n"
    " *fill*         0x0040100c        0x4 \n"
    " .text          0x00401010       0x10 /x/lib/libmingwex.a(fesetenv.o)\n";

} // namespace

TEST(Cpu486, ReadsObjdumpListingsWithPrefixesSetAside) {
  const auto code = disassembly(kListing);
  ASSERT_EQ(code.size(), 8u);
  EXPECT_EQ(code[0].address, 0x401000u);
  EXPECT_EQ(code[0].mnemonic, "push");
  EXPECT_EQ(code[1].mnemonic, "cmovl");
  EXPECT_EQ(code[1].operands, "%edx,%eax");
  EXPECT_EQ(code[2].mnemonic, "cmpxchg8b");
  EXPECT_EQ(code[3].mnemonic, "stos");
  EXPECT_EQ(code[6].address, 0x401012u);
  EXPECT_EQ(code[6].mnemonic, "movaps");
}

TEST(Cpu486, KnowsWhatA486Lacks) {
  EXPECT_EQ(cpu486::lacking(insn("cmove", "%ecx,%eax")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("fcmovbe", "%st(1),%st")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("fcomip", "%st(1),%st")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("fucomi", "%st(1),%st")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("nopw", "0x0(%eax,%eax,1)")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("sysenter")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("cmpxchg8b", "(%esi)")), "Pentium");
  EXPECT_EQ(cpu486::lacking(insn("rdtsc")), "Pentium");
  EXPECT_EQ(cpu486::lacking(insn("rdpmc")), "P6");
  EXPECT_EQ(cpu486::lacking(insn("cpuid")), "CPUID");
  EXPECT_EQ(cpu486::lacking(insn("emms")), "MMX");
  EXPECT_EQ(cpu486::lacking(insn("movq", "%mm0,(%eax)")), "MMX");
  EXPECT_EQ(cpu486::lacking(insn("pfadd", "%mm1,%mm0")), "3DNow!");
  EXPECT_EQ(cpu486::lacking(insn("femms")), "3DNow!");
  EXPECT_EQ(cpu486::lacking(insn("ldmxcsr", "0x4(%esp)")), "SSE");
  EXPECT_EQ(cpu486::lacking(insn("movhps", "0x10(%eax),%xmm2")), "SSE");
  EXPECT_EQ(cpu486::lacking(insn("vmovdqa", "%ymm0,%ymm1")), "AVX");
  EXPECT_EQ(cpu486::lacking(insn("rdrand", "%eax")), "later");
  // what a 486 has: its own additions, the FPU, "rep bsf" and "rep nop"
  EXPECT_EQ(cpu486::lacking(insn("bswap", "%eax")), "");
  EXPECT_EQ(cpu486::lacking(insn("cmpxchg", "%ecx,(%edx)")), "");
  EXPECT_EQ(cpu486::lacking(insn("xadd", "%eax,(%edx)")), "");
  EXPECT_EQ(cpu486::lacking(insn("fucompp")), "");
  EXPECT_EQ(cpu486::lacking(insn("tzcnt", "%eax,%eax")), "");
  EXPECT_EQ(cpu486::lacking(insn("pause")), "");
  EXPECT_EQ(cpu486::lacking(insn("movl", "%esp,%ebp")), "");
  EXPECT_EQ(cpu486::lacking(insn("verw", "%ax")), "");
}

TEST(Cpu486, ReadsTheObjectOfEachAddressFromTheLinkerMap) {
  std::istringstream in(kMap);
  const auto pieces = cpu486::parseMap(in);
  EXPECT_EQ(cpu486::objectAt(pieces, 0x401000), "crt2.o");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x401003), "crt2.o");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x401004), "libtl99_frame.a(fmain.cpp.obj)");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x40100b), "libtl99_frame.a(fmain.cpp.obj)");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x401014), "libmingwex.a(fesetenv.o)");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x401020), "");
  EXPECT_EQ(cpu486::objectAt(pieces, 0x400fff), "");
}

TEST(Cpu486, RefusesWhatTheExceptionListDoesNotAllow) {
  std::istringstream mapIn(kMap);
  const auto pieces = cpu486::parseMap(mapIn);
  const auto code = disassembly(kListing);

  const auto bare = cpu486::check(code, pieces, {}, "x");
  EXPECT_EQ(bare.allowed, 0);
  EXPECT_EQ(bare.refused, 6);
  EXPECT_EQ(bare.byMnemonic.at("cmovl"), 1);
  EXPECT_EQ(bare.byMnemonic.at("movaps"), 1);
  ASSERT_EQ(bare.problems.size(), 6u);
  // an address outside every input section (here: padding) has no object
  EXPECT_EQ(bare.problems[0], "?: 1 x pavgb (MMX, first at 0x40100d)");
  EXPECT_EQ(bare.problems[1], "crt2.o: 1 x cmovl (P6, first at 0x401001)");

  std::istringstream listIn("# object\tmnemonic\tcount\treason\n"
                            "crt2.o\tcmovl\t1\tdata\n"
                            "libtl99_frame.a(fmain.cpp.obj)\tcmpxchg8b\t1\tguarded\n"
                            "libtl99_frame.a(fmain.cpp.obj)\tpaddb\t1\tguarded\n"
                            "libmingwex.a(fesetenv.o)\tmovaps\t1\tguarded\n"
                            "?\tpavgb\t1\tdata\n"
                            "libmingwex.a(fesetenv.o)\tldmxcsr\t1\tguarded\n");
  const auto allowances = cpu486::parseAllowances(listIn);
  ASSERT_EQ(allowances.size(), 6u);
  EXPECT_EQ(allowances[5].reason, "guarded");
  const auto listed = cpu486::check(code, pieces, allowances, "x");
  EXPECT_EQ(listed.allowed, 5);
  EXPECT_EQ(listed.refused, 1);
  ASSERT_EQ(listed.problems.size(), 1u);
  EXPECT_EQ(listed.problems[0], "libmingwex.a(fesetenv.o): 1 x fucomip (P6, first at 0x401010)");
  ASSERT_EQ(listed.unused.size(), 1u);
  EXPECT_EQ(listed.unused[0], "libmingwex.a(fesetenv.o) ldmxcsr");
}

TEST(Cpu486, AllowsNoMoreHitsThanListed) {
  const std::vector<cpu486::Instruction> code = {{0x401000, "cmove", ""}, {0x401004, "cmove", ""}};
  const auto report = cpu486::check(code, {}, {{"a.o", "cmove", 1, "data"}}, "a.o");
  EXPECT_EQ(report.refused, 2);
  ASSERT_EQ(report.problems.size(), 1u);
  EXPECT_EQ(report.problems[0], "a.o: 2 x cmove (P6, first at 0x401000), 1 allowed");
}

TEST(Cpu486, AllowsAWholeInputSectionOfData) {
  std::istringstream mapIn("Linker script and memory map\n\n"
                           " .text          0x00401000       0x10 a.o\n"
                           " .gcc_except_table\n"
                           "                0x00401010       0x20 lib.a(b.o)\n"
                           " .gcc_except_table\n"
                           "                0x00401030       0x20 c.o\n");
  const auto pieces = cpu486::parseMap(mapIn);
  ASSERT_EQ(pieces.size(), 3u);
  EXPECT_EQ(pieces[1].section, ".gcc_except_table");
  EXPECT_EQ(pieces[1].object, "lib.a(b.o)");
  const std::vector<cpu486::Instruction> code = {{0x401012, "movhps", "(%eax),%xmm1"},
                                                 {0x401034, "cmovs", "%eax,%ecx"},
                                                 {0x401036, "cmovs", "%eax,%ecx"},
                                                 {0x401004, "cmovs", "%eax,%ecx"}};
  const auto report =
      cpu486::check(code, pieces, {{".gcc_except_table", "*", -1, "data"}}, "x.exe");
  EXPECT_EQ(report.allowed, 3);
  EXPECT_EQ(report.refused, 1);
  EXPECT_EQ(report.p6, 3);
  EXPECT_EQ(report.p6Refused, 1);
  ASSERT_EQ(report.problems.size(), 1u);
  EXPECT_EQ(report.problems[0], "a.o: 1 x cmovs (P6, first at 0x401004)");
  ASSERT_EQ(report.used.size(), 1u);
  EXPECT_EQ(report.used[0], ".gcc_except_table *: 3 (data)");
}
