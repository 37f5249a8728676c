// Key paths as the Tracking Clearance page spells them: a trailing backslash,
// a key made directly below the root of HKEY_USERS, a wiped key made again
// with an empty default value, a number written as REG_SZ.
#include "platform/platform.h"
#include "sysaccess/ellreg.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <string>

using namespace sysaccess;

namespace {

const std::string kKey = std::string(conformance::kScratchKey) + "\\Desktop";
constexpr const char* kRootKey = "TL99ConformanceRoot";

class KeyPaths : public ::testing::Test {
protected:
  void SetUp() override {
    conformance::prepareMachine();
    platform::RegDeleteKeyA(platform::kUsers, kRootKey);
  }
  void TearDown() override { platform::RegDeleteKeyA(platform::kUsers, kRootKey); }
  static std::string bytesOf(platform::RegKey hive, const std::string& key, const char* name,
                             platform::Dword* type) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return "<no key>";
    std::uint8_t data[64];
    platform::Dword size = sizeof data;
    const auto rc = platform::RegQueryValueExA(handle, name, type, data, &size);
    platform::RegCloseKey(handle);
    return rc == 0 ? std::string(reinterpret_cast<char*>(data), size) : "<no value>";
  }
};

TEST_F(KeyPaths, ATrailingBackslashNamesTheSameKey) {
  SetRegValue(HKCU, kKey + "\\", "MenuShowDelay", kRegSz, std::string("400"));
  EXPECT_EQ("400", GetRegValue(HKCU, kKey, "MenuShowDelay"));
  EXPECT_EQ("400", GetRegValue(HKCU, kKey + "\\", "MenuShowDelay"));
  EXPECT_EQ("Not Found", GetRegValue(HKCU, kKey + "\\Desktop", "MenuShowDelay"));
}

TEST_F(KeyPaths, ANumberWrittenAsTextKeepsAllItsDigits) {
  SetRegValue(HKCU, kKey + "\\", "MenuShowDelay", kRegSz, std::int16_t{39});
  platform::Dword type = 0;
  EXPECT_EQ(std::string("39\0", 3), bytesOf(HKCU, kKey, "MenuShowDelay", &type));
  EXPECT_EQ(platform::kRegSz, type);
  EXPECT_EQ("39", GetRegValue(HKCU, kKey + "\\", "MenuShowDelay"));
  SetRegValue(HKCU, kKey + "\\", "MenuShowDelay", kRegSz, std::int16_t{0});
  EXPECT_EQ("0", GetRegValue(HKCU, kKey, "MenuShowDelay"));
}

TEST_F(KeyPaths, AWipedKeyComesBackWithOnlyAnEmptyDefaultValue) {
  const std::string list = kKey + "\\RunMRU";
  SetRegValue(HKCU, list, "a", kRegSz, std::string("notepad"));
  SetRegValue(HKCU, list + "\\Sub", "b", kRegSz, std::string("x"));
  DelRegSubKey(HKCU, list);
  EXPECT_EQ("Not Found", GetRegValue(HKCU, list, "a"));
  SetRegValue(HKCU, list, "", kRegSz, std::string());
  EXPECT_EQ("", GetRegValue(HKCU, list, ""));
  EXPECT_EQ("Not Found", EnumRegKey(HKCU, list, 0));
  const auto first = EnumRegValue(HKCU, list, 0);
  EXPECT_EQ(kRegSz, first.type);
  EXPECT_EQ("", first.name);
  EXPECT_EQ("Not Found", EnumRegValue(HKCU, list, 1).data);
  // Wiped twice in a row: the empty key goes and comes back.
  DelRegSubKey(HKCU, list);
  SetRegValue(HKCU, list, "", kRegSz, std::string());
  EXPECT_EQ("", GetRegValue(HKCU, list, ""));
}

TEST_F(KeyPaths, AKeyIsMadeDirectlyBelowTheRootOfHkeyUsers) {
  SetRegValue(HKU, kRootKey, "", kRegSz, std::string());
  EXPECT_EQ("", GetRegValue(HKU, kRootKey, ""));
  DelRegSubKey(HKU, kRootKey);
  EXPECT_EQ("Not Found", GetRegValue(HKU, kRootKey, ""));
}

TEST_F(KeyPaths, DeletingAMissingKeyBelowTheRootOfHkeyCurrentUserDoesNothing) {
  DelRegSubKey(HKCU, "TL99ConformanceNoSuchKey");
  EXPECT_EQ("Not Found", GetRegValue(HKCU, "TL99ConformanceNoSuchKey", ""));
}

} // namespace
