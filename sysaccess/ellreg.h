// The everyday registry routines. Everything comes back as text and nothing
// fails loudly: a reader gets the value's text form or "Not Found", a writer
// returns nothing. Each call opens and closes its own key (DelRegKey's handle
// is the one exception: it stays open). The routines run in "resume next"
// mode, so a failing statement is skipped and the routine goes on.
//
// Text forms, as GetRegValue gives them:
//   REG_DWORD   decimal, padded to three digits, cut to three: 5 "005",
//               1000 "100", 67108860 "671"
//   REG_BINARY  two upper-case hex digits a byte: 01 00 00 00 "01000000"
//   any other   the stored bytes minus the last one (a string's terminator)
//   unreadable  "Not Found"
#pragma once

#include "runtime/value.h"

#include <cstdint>
#include <string>

namespace sysaccess {

// Root keys by their numbers, and value types (names chosen so as not to
// clash with the macros of <windows.h>).
using Hive = std::uint32_t;
inline constexpr Hive HKCR = 0x80000000u;
inline constexpr Hive HKCU = 0x80000001u;
inline constexpr Hive HKLM = 0x80000002u;
inline constexpr Hive HKU = 0x80000003u;

inline constexpr std::int32_t kRegSz = 1;
inline constexpr std::int32_t kRegBinary = 3;
inline constexpr std::int32_t kRegDword = 4;
inline constexpr std::int32_t kRegDwordBigEndian = 5;

// The nine characters every reader compares against to tell a missing value.
inline constexpr const char* kNotFound = "Not Found";
// Every read buffer holds this many characters, filled with blanks first.
inline constexpr std::size_t kBufferLength = 2048;

std::string GetRegValue(Hive hive, const std::string& keyPath, const std::string& valueName);

// Type 4 stores the value as a 32-bit number (0 when it can't be one); any
// other type stores kRegSz: a text with its terminator, a number as its
// digits with no terminator counted.
void SetRegValue(Hive hive, const std::string& keyPath, const std::string& valueName,
                 std::int32_t valueType, const runtime::Value& value);

// The name of the index-th subkey, or "Not Found".
std::string EnumRegKey(Hive hive, const std::string& keyPath, const std::int32_t& index);

// The index-th value: its type, name and data text. Past the last value the
// type is 0, the name 2048 blanks and the data "Not Found". kRegBinary data
// comes back as raw characters minus the last one (there is no hex form here).
struct EnumeratedValue {
  std::int32_t type = 0;
  std::string name;
  std::string data;
};
EnumeratedValue EnumRegValue(Hive hive, const std::string& keyPath, const std::int32_t& index);

// Deletes a key with all its subkeys, through a handle of the hive itself.
void DelRegSubKey(Hive hive, const std::string& keyPath);
void DelRegValue(Hive hive, const std::string& keyPath, const std::string& valueName);
// Deletes a key with all its subkeys; the handle it opens first is left open.
void DelRegKey(Hive hive, const std::string& keyPath);

} // namespace sysaccess
