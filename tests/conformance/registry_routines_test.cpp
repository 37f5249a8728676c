// The registry routines on the machine: text forms, the 2048-character
// buffers, the three-character kRegDword text, skip-on-error results.
#include "platform/platform.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

using namespace sysaccess;

namespace {

const std::string kKey = std::string(conformance::kScratchKey) + "\\Routines";

class RegistryRoutines : public ::testing::Test {
protected:
  void SetUp() override { conformance::prepareMachine(); }

  // Stores exact bytes through the platform, as another program would.
  static void store(const std::string& name, platform::Dword type, const std::string& bytes) {
    platform::RegKey key = 0;
    ASSERT_EQ(0, platform::RegCreateKeyA(HKCU, kKey.c_str(), &key));
    ASSERT_EQ(0, platform::RegSetValueExA(key, name.c_str(), 0, type,
                                          reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                          static_cast<platform::Dword>(bytes.size())));
    platform::RegCloseKey(key);
  }
  static void stored(const std::string& name, platform::Dword* type, std::string* bytes) {
    platform::RegKey key = 0;
    ASSERT_EQ(0, platform::RegOpenKeyA(HKCU, kKey.c_str(), &key));
    std::string buffer(8192, '\0');
    platform::Dword size = 8192;
    ASSERT_EQ(0, platform::RegQueryValueExA(key, name.c_str(), type,
                                            reinterpret_cast<std::uint8_t*>(buffer.data()), &size));
    *bytes = buffer.substr(0, size);
    platform::RegCloseKey(key);
  }
  static std::string read(const std::string& name) { return GetRegValue(HKCU, kKey, name); }
};

TEST_F(RegistryRoutines, MissingKeyValueAndOversizedValueReadAsNotFound) {
  EXPECT_EQ("Not Found", GetRegValue(HKCU, kKey + "\\Nowhere", "x"));
  store("Present", kRegSz, std::string("y\0", 2));
  EXPECT_EQ("Not Found", read("Absent"));
  store("Big", kRegBinary, std::string(2049, 'b'));
  EXPECT_EQ("Not Found", read("Big"));
}

TEST_F(RegistryRoutines, DwordReadsAsThreeCharacters) {
  const struct {
    std::uint32_t number;
    const char* text;
  } rows[] = {{0, "000"},   {1, "001"},    {5, "005"},    {20, "020"},       {128, "128"},
              {999, "999"}, {1000, "100"}, {5000, "500"}, {67108860, "671"}, {0xFFFFFFFFu, "429"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.number);
    const std::string bytes = DwordToBytes(static_cast<std::int32_t>(row.number));
    store("D", kRegDword, bytes);
    EXPECT_EQ(row.text, read("D"));
  }
}

TEST_F(RegistryRoutines, BinaryReadsAsUpperCaseHex) {
  store("B", kRegBinary, std::string("\xFF\x00", 2));
  EXPECT_EQ("FF00", read("B"));
  store("B", kRegBinary, std::string("\x01\x00\x00\x00", 4));
  EXPECT_EQ("01000000", read("B"));
  store("B", kRegBinary, std::string("\x00\x00\x00\x20", 4));
  EXPECT_EQ("00000020", read("B"));
  store("B", kRegBinary, "");
  EXPECT_EQ("", read("B"));
}

TEST_F(RegistryRoutines, StringsLoseTheirLastByte) {
  store("S", kRegSz, std::string("\0", 1));
  EXPECT_EQ("", read("S"));
  store("S", kRegSz, std::string("Yes\0", 4));
  EXPECT_EQ("Yes", read("S"));
}

TEST_F(RegistryRoutines, StringTypeWithNoBytesReadsAsTheBlankBuffer) {
  store("E", platform::kRegExpandSz, "");
  EXPECT_EQ(std::string(2048, ' '), read("E"));
  store("N", platform::kRegNone, "");
  EXPECT_EQ(std::string(2048, ' '), read("N"));
}

TEST_F(RegistryRoutines, ZeroLengthDwordTakesTheBlanksAsItsNumber) {
  // The four blank characters of the buffer make 0x20202020; the cut by one
  // character less than no data fails, so the whole picture stays.
  store("D", kRegDword, "");
  EXPECT_EQ("538976288", read("D"));
}

TEST_F(RegistryRoutines, OtherTypesComeBackAsRawTextMinusTheLastByte) {
  store("T2", platform::kRegExpandSz, std::string("%windir%\0", 9));
  EXPECT_EQ("%windir%", read("T2"));
  store("T7", platform::kRegMultiSz, std::string("a\0b\0\0", 5));
  EXPECT_EQ(std::string("a\0b\0", 4), read("T7"));
  store("T11", platform::kRegQword, std::string("\x01\x02\x03\x04\x05\x06\x07\x08", 8));
  EXPECT_EQ(std::string("\x01\x02\x03\x04\x05\x06\x07", 7), read("T11"));
  store("T0", platform::kRegNone, "xyz");
  EXPECT_EQ("xy", read("T0"));
}

TEST_F(RegistryRoutines, BufferBoundaries) {
  store("S2047", kRegSz, std::string(2047, 's') + '\0');
  EXPECT_EQ(std::string(2047, 's'), read("S2047"));
  store("S2048", kRegSz, std::string(2048, 's') + '\0');
  EXPECT_EQ("Not Found", read("S2048"));
  store("B2047", kRegBinary, std::string(2047, '\x0A'));
  EXPECT_EQ(4094u, read("B2047").size());
  store("B2048", kRegBinary, std::string(2048, '\x0A'));
  const std::string hex = read("B2048");
  EXPECT_EQ(4096u, hex.size());
  EXPECT_EQ("0A0A", hex.substr(0, 4));
  store("B2049", kRegBinary, std::string(2049, '\x0A'));
  EXPECT_EQ("Not Found", read("B2049"));
}

TEST_F(RegistryRoutines, HighBytesInNamesAndData) {
  SetRegValue(HKCU, kKey, "Pr\xE9nom", kRegSz, std::string("\xC9l\xE8ve \xFF\x80"));
  EXPECT_EQ("\xC9l\xE8ve \xFF\x80", read("Pr\xE9nom"));
}

TEST_F(RegistryRoutines, SetRegValueDwordStoresTheWholeNumber) {
  SetRegValue(HKCU, kKey, "NoDrives", kRegDword, std::string("67108860"));
  platform::Dword type = 0;
  std::string bytes;
  stored("NoDrives", &type, &bytes);
  EXPECT_EQ(platform::kRegDword, type);
  EXPECT_EQ(DwordToBytes(67108860), bytes);
  EXPECT_EQ("671", read("NoDrives"));
}

TEST_F(RegistryRoutines, SetRegValueDwordOfTextThatIsNoNumberStoresZero) {
  SetRegValue(HKCU, kKey, "Blank", kRegDword, std::string(""));
  platform::Dword type = 0;
  std::string bytes;
  stored("Blank", &type, &bytes);
  EXPECT_EQ(std::string(4, '\0'), bytes);
  SetRegValue(HKCU, kKey, "Huge", kRegDword, std::string("4294967295"));
  stored("Huge", &type, &bytes);
  EXPECT_EQ(std::string(4, '\0'), bytes);
}

TEST_F(RegistryRoutines, SetRegValueTextStoresItsTerminator) {
  SetRegValue(HKCU, kKey, "Abc", kRegSz, std::string("abc"));
  platform::Dword type = 0;
  std::string bytes;
  stored("Abc", &type, &bytes);
  EXPECT_EQ(platform::kRegSz, type);
  EXPECT_EQ(std::string("abc\0", 4), bytes);
  EXPECT_EQ("abc", read("Abc"));
}

TEST_F(RegistryRoutines, SetRegValueNumberWithTypeOneKeepsItsDigitsWhole) {
  // The digits go out with no terminator counted; Windows 98 stores the
  // string with its terminator all the same, so they come back whole.
  SetRegValue(HKCU, kKey, "DefaultRcvWindow", kRegSz, std::int32_t{8192});
  platform::Dword type = 0;
  std::string bytes;
  stored("DefaultRcvWindow", &type, &bytes);
  EXPECT_EQ(platform::kRegSz, type);
  EXPECT_EQ(std::string("8192\0", 5), bytes);
  EXPECT_EQ("8192", read("DefaultRcvWindow"));
}

TEST_F(RegistryRoutines, SetRegValueWithOtherTypesWritesRegSz) {
  SetRegValue(HKCU, kKey, "Three", 3, std::string("xy"));
  platform::Dword type = 0;
  std::string bytes;
  stored("Three", &type, &bytes);
  EXPECT_EQ(platform::kRegSz, type);
  EXPECT_EQ(std::string("xy\0", 3), bytes);
}

TEST_F(RegistryRoutines, LeadingBackslashWritesWithoutItAndReadsNotFound) {
  SetRegValue(HKCU, "\\" + kKey + "\\Sound", "Beep", kRegSz, std::string("yes"));
  EXPECT_EQ("yes", GetRegValue(HKCU, kKey + "\\Sound", "Beep"));
  EXPECT_EQ("Not Found", GetRegValue(HKCU, "\\" + kKey + "\\Sound", "Beep"));
}

TEST_F(RegistryRoutines, MissingHiveReadsNotFoundAndWritesNothing) {
  EXPECT_EQ("Not Found", GetRegValue(0, kKey, "x"));
  EXPECT_EQ("Not Found", GetRegValue(0x80000010u, kKey, "x"));
  SetRegValue(0, kKey, "x", kRegSz, std::string("v"));
  DelRegValue(0, kKey, "x");
  DelRegKey(0, kKey);
  DelRegSubKey(0, kKey);
  EXPECT_EQ("Not Found", EnumRegKey(0, kKey, 0));
  EXPECT_EQ("Not Found", EnumRegValue(0, kKey, 0).data);
}

TEST_F(RegistryRoutines, SetRegValueExStoresExactlyTheGivenBytes) {
  EXPECT_TRUE(
      SetRegValueEx(HKCU, kKey, "", "NoDispCPL", std::string("\x00\x00\x00\x20", 4), kRegBinary));
  platform::Dword type = 0;
  std::string bytes;
  stored("NoDispCPL", &type, &bytes);
  EXPECT_EQ(platform::kRegBinary, type);
  EXPECT_EQ(std::string("\x00\x00\x00\x20", 4), bytes);
  EXPECT_EQ("00000020", read("NoDispCPL"));
  EXPECT_TRUE(SetRegValueEx(HKCU, kKey, "", "Logging", std::string("\x01", 1), kRegBinary));
  EXPECT_EQ("01", read("Logging"));
}

TEST_F(RegistryRoutines, SetRegValueExEncodesDwords) {
  EXPECT_TRUE(SetRegValueEx(HKCU, kKey, "", "D", std::int32_t{258}, kRegDword));
  platform::Dword type = 0;
  std::string bytes;
  stored("D", &type, &bytes);
  EXPECT_EQ(std::string("\x02\x01\x00\x00", 4), bytes);
  EXPECT_TRUE(SetRegValueEx(HKCU, kKey, "", "E", std::int32_t{258}, kRegDwordBigEndian));
  stored("E", &type, &bytes);
  EXPECT_EQ(platform::Dword{kRegDwordBigEndian}, type);
  EXPECT_EQ(std::string("\x00\x00\x01\x02", 4), bytes);
}

TEST_F(RegistryRoutines, SetRegValueExFailsOnAMissingHive) {
  EXPECT_FALSE(SetRegValueEx(0, kKey, "", "x", std::string("a"), kRegBinary));
}

TEST_F(RegistryRoutines, EnumRegKeyWalksSubkeysUntilNotFound) {
  SetRegValue(HKCU, kKey + "\\WinZip", "DisplayName", kRegSz, std::string("WinZip"));
  SetRegValue(HKCU, kKey + "\\DirectX", "DisplayName", kRegSz, std::string("DirectX"));
  std::int32_t index = 0;
  std::vector<std::string> names;
  for (std::string name; (name = EnumRegKey(HKCU, kKey, index)) != "Not Found"; ++index)
    names.push_back(name);
  ASSERT_EQ(2u, names.size());
  EXPECT_NE(names[0], names[1]);
}

TEST_F(RegistryRoutines, EnumRegValueGivesTypeNameAndData) {
  store("Bin", kRegBinary, std::string("AB\x01", 3));
  store("Num", kRegDword, DwordToBytes(5000));
  store("Str", kRegSz, std::string("Text\0", 5));
  std::map<std::string, EnumeratedValue> seen;
  std::int32_t index = 0;
  for (;; ++index) {
    const auto value = EnumRegValue(HKCU, kKey, index);
    if (value.data == "Not Found") break;
    seen[value.name] = value;
  }
  ASSERT_EQ(3, index);
  EXPECT_EQ(kRegBinary, seen["Bin"].type);
  EXPECT_EQ("AB", seen["Bin"].data);
  EXPECT_EQ(kRegDword, seen["Num"].type);
  EXPECT_EQ("500", seen["Num"].data);
  EXPECT_EQ(kRegSz, seen["Str"].type);
  EXPECT_EQ("Text", seen["Str"].data);
}

TEST_F(RegistryRoutines, EnumRegValuePastTheEnd) {
  store("Only", kRegSz, std::string("x\0", 2));
  const auto past = EnumRegValue(HKCU, kKey, 1);
  EXPECT_EQ(0, past.type);
  EXPECT_EQ(std::string(2048, ' '), past.name);
  EXPECT_EQ("Not Found", past.data);
}

TEST_F(RegistryRoutines, DeletingMissingKeysDoesNothing) {
  DelRegKey(HKCU, kKey + "\\Missing");
  DelRegSubKey(HKCU, kKey + "\\Missing");
  DelRegValue(HKCU, kKey + "\\Missing", "v");
  EXPECT_EQ("Not Found", GetRegValue(HKCU, kKey + "\\Missing", "v"));
}

TEST_F(RegistryRoutines, DeletionRemovesKeysWithTheirSubkeysAndSingleValues) {
  SetRegValue(HKCU, kKey + "\\Ext\\Sub", "v", kRegSz, std::string("1"));
  SetRegValue(HKCU, kKey + "\\Ext2\\Sub", "v", kRegSz, std::string("1"));
  SetRegValue(HKCU, kKey, "keep", kRegSz, std::string("k"));
  SetRegValue(HKCU, kKey, "drop", kRegSz, std::string("d"));
  DelRegKey(HKCU, kKey + "\\Ext");
  DelRegSubKey(HKCU, kKey + "\\Ext2");
  DelRegValue(HKCU, kKey, "drop");
  EXPECT_EQ("Not Found", GetRegValue(HKCU, kKey + "\\Ext\\Sub", "v"));
  EXPECT_EQ("Not Found", GetRegValue(HKCU, kKey + "\\Ext2\\Sub", "v"));
  EXPECT_EQ("Not Found", read("drop"));
  EXPECT_EQ("k", read("keep"));
}

} // namespace
