// The registry routines' calls in order, and the handles they leave open, as
// the simulated machine records them.
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "tests/host/sim_fixture.h"

#include <functional>
#include <vector>

using namespace sysaccess;
using platform::sim::callLog;

namespace {

const std::string kPolicies =
    ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

class RegistryCalls : public SimMachineTest {
protected:
  std::vector<std::string> record(const std::function<void()>& action) {
    platform::sim::clearCallLog();
    platform::sim::setCallLogging(true);
    action();
    platform::sim::setCallLogging(false);
    return callLog();
  }
};

TEST_F(RegistryCalls, GetRegValueOpensQueriesAndClosesEvenWhenTheKeyIsMissing) {
  const auto calls = record([] { GetRegValue(HKU, kPolicies, "NoDrives"); });
  ASSERT_EQ(3u, calls.size());
  EXPECT_EQ("RegOpenKeyA HKU \"" + kPolicies + "\"", calls[0]);
  EXPECT_EQ("RegQueryValueExA #0 \"NoDrives\"", calls[1]);
  EXPECT_EQ("RegCloseKey #0", calls[2]);
}

TEST_F(RegistryCalls, SetRegValueCreatesWritesFlushesAndCloses) {
  const auto calls =
      record([] { SetRegValue(HKU, kPolicies, "NoDrives", kRegDword, std::string("67108860")); });
  ASSERT_EQ(4u, calls.size());
  EXPECT_EQ(0u, calls[0].find("RegCreateKeyA HKU"));
  EXPECT_EQ(0u, calls[1].find("RegSetValueExA"));
  EXPECT_NE(std::string::npos, calls[1].find("type 4 size 4"));
  EXPECT_EQ(0u, calls[2].find("RegFlushKey"));
  EXPECT_EQ(0u, calls[3].find("RegCloseKey"));
  EXPECT_EQ(0u, platform::sim::openKeyHandles());
}

TEST_F(RegistryCalls, NumberWithTypeOneGoesOutAsItsDigitsWithoutATerminator) {
  const auto calls = record(
      [] { SetRegValue(HKLM, "System\\MSTCP", "DefaultRcvWindow", kRegSz, std::int16_t{8192}); });
  EXPECT_NE(std::string::npos, calls[1].find("type 1 size 4")) << calls[1];
  const auto text =
      record([] { SetRegValue(HKLM, "System\\MSTCP", "Name", kRegSz, std::string("abc")); });
  EXPECT_NE(std::string::npos, text[1].find("type 1 size 4")) << text[1];
}

TEST_F(RegistryCalls, EveryReaderClosesWhatItOpens) {
  SetRegValue(HKU, kPolicies, "NoRun", kRegSz, std::string("x"));
  GetRegValue(HKU, kPolicies, "NoRun");
  EnumRegKey(HKU, ".DEFAULT", 0);
  EnumRegValue(HKU, kPolicies, 0);
  DelRegValue(HKU, kPolicies, "NoRun");
  DelRegSubKey(HKU, kPolicies + "\\Sub");
  EXPECT_EQ(0u, platform::sim::openKeyHandles());
}

TEST_F(RegistryCalls, DelRegKeyDeletesThroughTheHiveAndLeavesItsHandleOpen) {
  SetRegValue(HKCR, "CLSID\\{Find}\\InProcServer32", "", kRegSz, std::string("x"));
  const auto calls = record([] { DelRegKey(HKCR, "CLSID\\{Find}"); });
  ASSERT_EQ(2u, calls.size());
  EXPECT_EQ("RegDeleteKeyA HKCR \"CLSID\\{Find}\"", calls[1]);
  EXPECT_EQ(1u, platform::sim::openKeyHandles());
  EXPECT_EQ("Not Found", EnumRegKey(HKCR, "CLSID\\{Find}", 0));
}

TEST_F(RegistryCalls, DelRegSubKeyOpensTheHiveWithFullAccess) {
  const auto calls = record([] { DelRegSubKey(HKCU, "Software\\Gone"); });
  ASSERT_EQ(3u, calls.size());
  EXPECT_EQ("RegOpenKeyExA HKCU \"\"", calls[0]);
  EXPECT_EQ("RegDeleteKeyA HKCU \"Software\\Gone\"", calls[1]);
}

TEST_F(RegistryCalls, SetRegValueExLeavesItsKeyOpenWithoutFlushing) {
  const auto calls = record([] {
    EXPECT_TRUE(
        SetRegValueEx(HKU, kPolicies, "", "NoDispCPL", std::string("\0\0\0 ", 4), kRegBinary));
  });
  ASSERT_EQ(2u, calls.size());
  EXPECT_EQ(0u, calls[0].find("RegCreateKeyExA HKU"));
  EXPECT_NE(std::string::npos, calls[1].find("type 3 size 4"));
  EXPECT_EQ(1u, platform::sim::openKeyHandles());
}

TEST_F(RegistryCalls, RegSzWithNoBytesAtAllReadsAsTheBlankBuffer) {
  // Windows 98's own writer can't make it; another program or an imported
  // file can.
  platform::sim::storeRawValue(platform::kUsers, ".DEFAULT\\X", "Empty", platform::kRegSz, {});
  EXPECT_EQ(std::string(2048, ' '), GetRegValue(HKU, ".DEFAULT\\X", "Empty"));
}

TEST_F(RegistryCalls, ARealNotFoundStringReadsAsMissing) {
  SetRegValue(HKCU, "Software\\X", "Value", kRegSz, std::string("Not Found"));
  EXPECT_EQ(kNotFound, GetRegValue(HKCU, "Software\\X", "Value"));
}

TEST_F(RegistryCalls, EncodersAndTheirErrors) {
  EXPECT_EQ(std::string("\x01\x00\x00\x00", 4), DwordToBytes(1));
  EXPECT_EQ(std::string("\xFF\xFF\xFF\xFF", 4), DwordToBytes(-1));
  EXPECT_EQ(std::string("\x80\x00\x00\x00", 4), DwordToBytesBE(std::int32_t(0x80000000u)));
  EXPECT_EQ(std::string("\x01\x00\x00\x20\x00", 5),
            EncodeRegData(std::string("\x01\x00\x00\x20", 4), kRegBinary));
  EXPECT_EQ(std::string("\x00\x00\x01\x00\x00", 5),
            EncodeRegData(std::string("256"), kRegDwordBigEndian));
  // Not in skip mode: a value that can't be a number passes the error on.
  try {
    EncodeRegData(std::string("abc"), kRegDword);
    FAIL() << "no error";
  } catch (const runtime::RuntimeError& e) {
    EXPECT_EQ(13, e.number());
  }
  EXPECT_THROW(SetRegValueEx(HKU, kPolicies, "", "x", std::string("99999999999"), kRegDword),
               runtime::RuntimeError);
}

TEST_F(RegistryCalls, ExportShowsKeysValuesTypesAndBytes) {
  SetRegValue(HKU, ".DEFAULT\\Control Panel\\Sound", "Beep", kRegSz, std::string("yes"));
  const std::string exported = platform::sim::exportRegistry();
  EXPECT_NE(std::string::npos,
            exported.find(
                "[HKEY_USERS\\.DEFAULT\\Control Panel\\Sound]\n\"Beep\" type 1: 79 65 73 00\n"));
}

} // namespace
