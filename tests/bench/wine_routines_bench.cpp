// Benchmark, run under Wine in the Windows 98 prefix: the registry and
// profile routines against the bare Win32 calls they make, on the same values,
// measured in one run. Prints figures; never fails on time.
#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"
#include "sysaccess/system_helpers.h"
#include "tests/bench/wine_bench.h"

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

constexpr char kKey[] = "Software\\TL99Bench";

} // namespace

int main() {
  HKEY key = nullptr;
  ::RegCreateKeyA(HKEY_CURRENT_USER, kKey, &key);
  const char text[] = "Please do not edit manually";
  ::RegSetValueExA(key, "Text", 0, REG_SZ, reinterpret_cast<const BYTE*>(text), sizeof text);
  const DWORD number = 67108860;
  ::RegSetValueExA(key, "Number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
  ::RegCloseKey(key);

  volatile std::size_t sink = 0;
  compare(
      "GetRegValue", 1.10, 20000,
      [&] {
        sink = sink + sysaccess::GetRegValue(sysaccess::HKCU, kKey, "Text").size();
        sink = sink + sysaccess::GetRegValue(sysaccess::HKCU, kKey, "Number").size();
      },
      [&] {
        for (const char* name : {"Text", "Number"}) {
          HKEY k = nullptr;
          ::RegOpenKeyA(HKEY_CURRENT_USER, kKey, &k);
          char buffer[2048];
          DWORD size = sizeof buffer, type = 0;
          ::RegQueryValueExA(k, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
          ::RegCloseKey(k);
          sink = sink + size;
        }
      });

  char windows[MAX_PATH];
  ::GetWindowsDirectoryA(windows, sizeof windows);
  const std::string ini = std::string(windows) + "\\scanreg.ini";
  ::WritePrivateProfileStringA("-=Note=-", "Altered by Tweakloom 99", text, ini.c_str());
  compare(
      "GetFromINI", 1.10, 5000,
      [&] {
        sink = sink + sysaccess::GetFromINI("-=Note=-", "Altered by Tweakloom 99", ini).size();
      },
      [&] {
        char buffer[255];
        sink = sink + ::GetPrivateProfileStringA("-=Note=-", "Altered by Tweakloom 99", "", buffer,
                                                 sizeof buffer, ini.c_str());
      });
  ::RegDeleteKeyA(HKEY_CURRENT_USER, kKey);

  // The Access Restriction page's reader and writer against the same
  // registry calls made bare: 28 values read, 28 written or deleted.
  static const struct {
    const char* key;
    const char* value;
  } kRows[] = {{"System", "NoDispCPL"},
               {"System", "NoDispBackgroundPage"},
               {"System", "NoDispScrSavPage"},
               {"System", "NoDispAppearancePage"},
               {"System", "NoDispSettingsPage"},
               {"System", "NoProfilePage"},
               {"System", "NoAdminPage"},
               {"System", "NoPwdPage"},
               {"System", "NoSecCPL"},
               {"System", "NoDevMgrPage"},
               {"System", "NoConfigPage"},
               {"System", "NoFileSysPage"},
               {"System", "NoVirtMemPage"},
               {"Network", "NoPrintSharingControl"},
               {"Explorer", "NoAddPrinter"},
               {"Explorer", "NoDeletePrinter"},
               {"Network", "NoNetSetupSecurityPage"},
               {"Network", "NoNetSetupIDPage"},
               {"Network", "NoNetSetup"},
               {"Network", "NoFileSharingControl"},
               {"Explorer", "NoDrives"},
               {"Network", "NoWorkgroupContents"},
               {"Network", "NoEntireNetwork"},
               {"Explorer", "NoDesktop"},
               {"Explorer", "NoClose"},
               {"WinOldApp", "NoRealMode"},
               {"WinOldApp", "Disabled"},
               {"Explorer", "NoCommonGroups"}};
  const std::string policies = ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\";
  runtime::Application::instance().title = "Tweakloom 99";
  frame::Program program;
  const auto bareRead = [&] {
    for (const auto& row : kRows) {
      HKEY k = nullptr;
      ::RegOpenKeyA(HKEY_USERS, (policies + row.key).c_str(), &k);
      char buffer[2048];
      DWORD size = sizeof buffer, type = 0;
      ::RegQueryValueExA(k, row.value, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
      ::RegCloseKey(k);
    }
  };
  compare(
      "ref_access", 1.2, 300, [&] { program.fmain.pages->access.ref_access(); }, bareRead);
  program.fmain.pages->access.net_check(0).setValue(1);
  program.fmain.pages->access.net_check(22).setValue(1);
  compare(
      "app_b Apply", 1.2, 100, [&] { program.fmain.pages->access.app_b_Click(); },
      [&] {
        for (const auto& row : kRows) {
          const std::string key = policies + row.key;
          if (std::string(row.value) == "NoDispCPL") {
            HKEY k = nullptr;
            DWORD disposition = 0;
            SECURITY_ATTRIBUTES none{};
            ::RegCreateKeyExA(HKEY_USERS, key.c_str(), 0, const_cast<char*>(""), 0, KEY_ALL_ACCESS,
                              &none, &k, &disposition);
            const BYTE flag[4] = {0, 0, 0, 0x20};
            ::RegSetValueExA(k, row.value, 0, REG_BINARY, flag, 4);
          } else if (std::string(row.value) == "NoDrives") {
            HKEY k = nullptr;
            ::RegCreateKeyA(HKEY_USERS, key.c_str(), &k);
            const DWORD mask = 67108860;
            ::RegSetValueExA(k, row.value, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&mask), 4);
            ::RegFlushKey(k);
            ::RegCloseKey(k);
          } else {
            HKEY k = nullptr;
            ::RegOpenKeyA(HKEY_USERS, key.c_str(), &k);
            ::RegDeleteValueA(k, row.value);
            ::RegCloseKey(k);
          }
        }
        bareRead();
      });
  program.fmain.pages->access.net_check(0).setValue(0);
  program.fmain.pages->access.net_check(22).setValue(0);
  program.fmain.pages->access.app_b_Click();

  benchInternetConnection(program);
  return 0;
}
