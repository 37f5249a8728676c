// The registry calls as Windows 98 answers them; the simulation must give the
// same answers as Wine in the Windows 98 prefix.
#include "platform/platform.h"
#include "tests/conformance/support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace platform;

namespace {

class RegistryPlatform : public ::testing::Test {
protected:
  void SetUp() override {
    conformance::prepareMachine();
    ASSERT_EQ(0, RegCreateKeyA(kCurrentUser, conformance::kScratchKey, &key_));
  }
  void TearDown() override { RegCloseKey(key_); }

  Status set(const char* name, Dword type, const std::string& bytes, Dword size) {
    return RegSetValueExA(key_, name, 0, type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                          size);
  }
  Status set(const char* name, Dword type, const std::string& bytes) {
    return set(name, type, bytes, static_cast<Dword>(bytes.size()));
  }
  // The stored type and bytes of a value, read with a large enough buffer.
  Status get(const char* name, Dword* type, std::string* bytes) {
    std::vector<std::uint8_t> buffer(8192);
    Dword size = static_cast<Dword>(buffer.size());
    const Status rc = RegQueryValueExA(key_, name, type, buffer.data(), &size);
    if (rc == 0) bytes->assign(reinterpret_cast<char*>(buffer.data()), size);
    return rc;
  }

  RegKey key_ = 0;
};

TEST_F(RegistryPlatform, StringWriteIgnoresItsCountAndStoresTheTerminator) {
  ASSERT_EQ(0, set("Window", kRegSz, std::string("8192\0", 5), 4));
  Dword type = 0;
  std::string bytes;
  ASSERT_EQ(0, get("Window", &type, &bytes));
  EXPECT_EQ(kRegSz, type);
  EXPECT_EQ(std::string("8192\0", 5), bytes);
}

TEST_F(RegistryPlatform, StringWriteWithALargerCountStillStopsAtTheTerminator) {
  ASSERT_EQ(0, set("Short", kRegSz, std::string("ab\0cd\0", 6), 6));
  Dword type = 0;
  std::string bytes;
  ASSERT_EQ(0, get("Short", &type, &bytes));
  EXPECT_EQ(std::string("ab\0", 3), bytes);
}

TEST_F(RegistryPlatform, EmptyStringStoresOneByte) {
  ASSERT_EQ(0, set("Empty", kRegSz, std::string("\0", 1), 0));
  Dword type = 0;
  std::string bytes;
  ASSERT_EQ(0, get("Empty", &type, &bytes));
  EXPECT_EQ(std::string("\0", 1), bytes);
}

TEST_F(RegistryPlatform, NonStringTypesStoreExactlyTheirCount) {
  for (const Dword type : {kRegNone, kRegExpandSz, kRegBinary, kRegDword, kRegMultiSz, kRegQword}) {
    SCOPED_TRACE(type);
    ASSERT_EQ(0, set("V", type, std::string("\x01\x02\x03\x04\x05\x06\x07\x08", 8), 3));
    Dword stored = 0;
    std::string bytes;
    ASSERT_EQ(0, get("V", &stored, &bytes));
    EXPECT_EQ(type, stored);
    EXPECT_EQ(std::string("\x01\x02\x03", 3), bytes);
  }
}

TEST_F(RegistryPlatform, ZeroLengthDataOfNonStringTypes) {
  for (const Dword type : {kRegNone, kRegExpandSz, kRegBinary, kRegDword, kRegMultiSz, kRegQword}) {
    SCOPED_TRACE(type);
    ASSERT_EQ(0, set("Z", type, std::string("x"), 0));
    Dword stored = 0;
    std::string bytes = "unchanged";
    ASSERT_EQ(0, get("Z", &stored, &bytes));
    EXPECT_EQ(type, stored);
    EXPECT_EQ("", bytes);
  }
}

TEST_F(RegistryPlatform, DefaultValueThatWasNeverSetIsMissing) {
  Dword type = 0;
  std::string bytes;
  EXPECT_EQ(kErrorFileNotFound, get("", &type, &bytes));
  EXPECT_EQ(kErrorFileNotFound, get(nullptr, &type, &bytes));
  ASSERT_EQ(0, set("", kRegSz, std::string("d\0", 2)));
  ASSERT_EQ(0, get(nullptr, &type, &bytes));
  EXPECT_EQ(std::string("d\0", 2), bytes);
}

TEST_F(RegistryPlatform, MissingValueAndTooSmallBuffer) {
  Dword type = 0;
  std::string bytes;
  EXPECT_EQ(kErrorFileNotFound, get("Nothing", &type, &bytes));
  ASSERT_EQ(0, set("Long", kRegBinary, std::string(100, 'x')));
  std::uint8_t small[10];
  Dword size = sizeof small;
  EXPECT_EQ(kErrorMoreData, RegQueryValueExA(key_, "Long", &type, small, &size));
  EXPECT_EQ(100u, size);
  size = 0;
  EXPECT_EQ(0, RegQueryValueExA(key_, "Long", &type, nullptr, &size));
  EXPECT_EQ(100u, size);
}

TEST_F(RegistryPlatform, DeletingAKeyRemovesItsWholeSubtree) {
  RegKey deep = 0;
  ASSERT_EQ(0, RegCreateKeyA(key_, "Unknown\\shell\\Open in Notepad\\Command", &deep));
  ASSERT_EQ(0, RegSetValueExA(deep, "", 0, kRegSz, reinterpret_cast<const std::uint8_t*>("n"), 2));
  RegCloseKey(deep);
  EXPECT_EQ(0, RegDeleteKeyA(key_, "Unknown\\shell\\Open in Notepad"));
  RegKey probe = 0;
  EXPECT_EQ(kErrorFileNotFound, RegOpenKeyA(key_, "Unknown\\shell\\Open in Notepad", &probe));
  EXPECT_EQ(0, RegOpenKeyA(key_, "Unknown\\shell", &probe));
  RegCloseKey(probe);
  EXPECT_EQ(kErrorFileNotFound, RegDeleteKeyA(key_, "Unknown\\shell\\Open in Notepad"));
}

TEST_F(RegistryPlatform, LeadingBackslashIsDroppedOnCreateAndRefusedOnOpen) {
  RegKey created = 0;
  ASSERT_EQ(0, RegCreateKeyA(key_, "\\Control Panel\\Sound", &created));
  RegCloseKey(created);
  RegKey opened = 0;
  EXPECT_EQ(0, RegOpenKeyA(key_, "Control Panel\\Sound", &opened));
  RegCloseKey(opened);
  EXPECT_EQ(kErrorBadPathname, RegOpenKeyA(key_, "\\Control Panel\\Sound", &opened));
  EXPECT_EQ(0u, opened);
  Dword disposition = 0;
  ASSERT_EQ(
      0, RegCreateKeyExA(key_, "\\Other", 0, "", 0, kKeyAllAccess, true, &created, &disposition));
  EXPECT_EQ(1u, disposition);
  RegCloseKey(created);
  EXPECT_EQ(0, RegOpenKeyA(key_, "Other", &opened));
  RegCloseKey(opened);
}

TEST_F(RegistryPlatform, CreateReportsNewOrExisting) {
  RegKey created = 0;
  Dword disposition = 0;
  ASSERT_EQ(0,
            RegCreateKeyExA(key_, "A\\B", 0, "", 0, kKeyAllAccess, true, &created, &disposition));
  EXPECT_EQ(1u, disposition);
  RegCloseKey(created);
  ASSERT_EQ(0,
            RegCreateKeyExA(key_, "a\\b", 0, "", 0, kKeyAllAccess, true, &created, &disposition));
  EXPECT_EQ(2u, disposition);
  RegCloseKey(created);
}

TEST_F(RegistryPlatform, HandleZeroFailsQuietly) {
  RegKey opened = 1;
  EXPECT_EQ(kErrorInvalidHandle, RegOpenKeyA(0, "Software", &opened));
  EXPECT_EQ(0u, opened);
  Dword type = 0;
  std::uint8_t data[8];
  Dword size = sizeof data;
  EXPECT_EQ(kErrorInvalidHandle, RegQueryValueExA(0, "x", &type, data, &size));
  EXPECT_EQ(kErrorInvalidHandle, RegSetValueExA(0, "x", 0, kRegBinary, data, 1));
  EXPECT_EQ(kErrorInvalidHandle, RegDeleteValueA(0, "x"));
  EXPECT_EQ(kErrorInvalidHandle, RegFlushKey(0));
  EXPECT_EQ(kErrorInvalidHandle, RegCloseKey(0));
  char name[16];
  EXPECT_EQ(kErrorInvalidHandle, RegEnumKeyA(0, 0, name, sizeof name));
}

TEST_F(RegistryPlatform, EmptyPathOpensTheKeyItself) {
  RegKey same = 0;
  ASSERT_EQ(0, RegOpenKeyA(key_, "", &same));
  EXPECT_EQ(key_, same);
  ASSERT_EQ(0, RegOpenKeyA(kUsers, nullptr, &same));
  EXPECT_EQ(kUsers, same);
  EXPECT_EQ(0, RegCloseKey(kUsers));
}

TEST_F(RegistryPlatform, NamesCompareWithoutCase) {
  ASSERT_EQ(0, set("MaxMTU", kRegSz, std::string("576\0", 4)));
  Dword type = 0;
  std::string bytes;
  ASSERT_EQ(0, get("MAXmtu", &type, &bytes));
  EXPECT_EQ(std::string("576\0", 4), bytes);
  RegKey sub = 0;
  ASSERT_EQ(0, RegCreateKeyA(key_, "NetTrans\\0000", &sub));
  RegCloseKey(sub);
  EXPECT_EQ(0, RegOpenKeyA(key_, "NETTRANS\\0000", &sub));
  RegCloseKey(sub);
}

TEST_F(RegistryPlatform, HighBytesRoundTripInNamesAndData) {
  const std::string name = "Caf\xE9 \xC0\xFF\x80";
  std::string data;
  for (int c = 0x80; c <= 0xFF; ++c)
    data += static_cast<char>(c);
  ASSERT_EQ(0, set(name.c_str(), kRegBinary, data));
  ASSERT_EQ(0, set((name + "s").c_str(), kRegSz, data + '\0'));
  Dword type = 0;
  std::string bytes;
  ASSERT_EQ(0, get(name.c_str(), &type, &bytes));
  EXPECT_EQ(data, bytes);
  ASSERT_EQ(0, get((name + "s").c_str(), &type, &bytes));
  EXPECT_EQ(data + '\0', bytes);
  char found[64];
  Dword foundSize = sizeof found;
  ASSERT_EQ(0, RegEnumValueA(key_, 0, found, &foundSize, &type, nullptr, nullptr));
  EXPECT_EQ(name, std::string(found, foundSize));
  RegKey sub = 0;
  ASSERT_EQ(0, RegCreateKeyA(key_, "\xC4rger", &sub));
  RegCloseKey(sub);
  char subName[64];
  ASSERT_EQ(0, RegEnumKeyA(key_, 0, subName, sizeof subName));
  EXPECT_STREQ("\xC4rger", subName);
}

TEST_F(RegistryPlatform, EnumerationWalksAllAndEndsWithNoMoreItems) {
  for (const char* sub : {"Beta", "alpha", "Gamma"}) {
    RegKey k = 0;
    ASSERT_EQ(0, RegCreateKeyA(key_, sub, &k));
    RegCloseKey(k);
  }
  std::vector<std::string> names;
  char name[64];
  Dword index = 0;
  while (RegEnumKeyA(key_, index, name, sizeof name) == 0) {
    names.push_back(name);
    ++index;
  }
  EXPECT_EQ(3u, names.size());
  EXPECT_EQ(kErrorNoMoreItems, RegEnumKeyA(key_, 3, name, sizeof name));
  EXPECT_EQ(kErrorMoreData, RegEnumKeyA(key_, 0, name, 3));

  ASSERT_EQ(0, set("One", kRegDword, std::string("\x01\0\0\0", 4)));
  ASSERT_EQ(0, set("Two", kRegSz, std::string("2\0", 2)));
  Dword nameSize = sizeof name;
  Dword type = 0;
  std::uint8_t data[16];
  Dword dataSize = sizeof data;
  EXPECT_EQ(0, RegEnumValueA(key_, 1, name, &nameSize, &type, data, &dataSize));
  nameSize = sizeof name;
  dataSize = sizeof data;
  EXPECT_EQ(kErrorNoMoreItems, RegEnumValueA(key_, 2, name, &nameSize, &type, data, &dataSize));
}

TEST_F(RegistryPlatform, DeleteValue) {
  ASSERT_EQ(0, set("Gone", kRegBinary, "x"));
  EXPECT_EQ(0, RegDeleteValueA(key_, "Gone"));
  EXPECT_EQ(kErrorFileNotFound, RegDeleteValueA(key_, "Gone"));
}

TEST_F(RegistryPlatform, RootKeysOpenWithAHandleOfTheirOwnOrThemselves) {
  RegKey root = 0;
  ASSERT_EQ(0, RegOpenKeyExA(kCurrentUser, "", 0, kKeyAllAccess, &root));
  EXPECT_NE(0u, root);
  EXPECT_EQ(0, RegDeleteKeyA(root, "Software\\TL99Conformance"));
  EXPECT_EQ(0, RegCloseKey(root));
}

TEST_F(RegistryPlatform, ClassesRootIsTheMachineClassesKey) {
  RegKey written = 0;
  ASSERT_EQ(0, RegCreateKeyA(kLocalMachine, "Software\\CLASSES\\TL99Conformance\\Verb", &written));
  ASSERT_EQ(0,
            RegSetValueExA(written, "", 0, kRegSz, reinterpret_cast<const std::uint8_t*>("x"), 2));
  RegCloseKey(written);
  RegKey read = 0;
  ASSERT_EQ(0, RegOpenKeyA(kClassesRoot, "TL99Conformance\\Verb", &read));
  std::uint8_t data[8];
  Dword size = sizeof data, type = 0;
  EXPECT_EQ(0, RegQueryValueExA(read, "", &type, data, &size));
  EXPECT_EQ(2u, size);
  RegCloseKey(read);
  EXPECT_EQ(0, RegDeleteKeyA(kClassesRoot, "TL99Conformance"));
  EXPECT_EQ(kErrorFileNotFound,
            RegOpenKeyA(kLocalMachine, "Software\\Classes\\TL99Conformance", &read));
}

} // namespace
