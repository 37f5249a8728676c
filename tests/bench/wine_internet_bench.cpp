// The Internet Connection page's reader and Apply under Wine, against the same
// profile and registry calls made bare, on the machine's own values. Apply
// writes back what it read, so the machine keeps its settings; the two things
// Apply changes with the page as read (the modem's log path, emptied because
// logging is off, and an empty COM1Buffer line) are put back afterwards.
#include "frame/page_set.h"
#include "frame/program.h"
#include "tests/bench/wine_bench.h"

#include <windows.h>

#include <string>

namespace {

constexpr char kNetTrans[] = "System\\CurrentControlSet\\Services\\Class\\NetTrans\\000";
constexpr char kAdapter[] = "System\\CurrentControlSet\\Services\\Class\\NetTrans\\0000";
constexpr char kMstcp[] = "System\\CurrentControlSet\\Services\\VxD\\MSTCP";
constexpr char kModem[] = "System\\CurrentControlSet\\Services\\Class\\Modem\\0000";

// GetRegValue's calls: open, query into 2048 bytes, close.
std::string read(const char* key, const char* name) {
  HKEY k = nullptr;
  ::RegOpenKeyA(HKEY_LOCAL_MACHINE, key, &k);
  char buffer[2048];
  DWORD size = sizeof buffer, type = 0;
  const LONG rc =
      ::RegQueryValueExA(k, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
  ::RegCloseKey(k);
  return rc == ERROR_SUCCESS && size > 0 ? std::string(buffer, size - 1) : std::string();
}

// SetRegValue's calls for a text: create, store with its terminator, flush,
// close.
void write(const char* key, const char* name, const std::string& text, DWORD size) {
  HKEY k = nullptr;
  ::RegCreateKeyA(HKEY_LOCAL_MACHINE, key, &k);
  ::RegSetValueExA(k, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size);
  ::RegFlushKey(k);
  ::RegCloseKey(k);
}
void write(const char* key, const char* name, const std::string& text) {
  write(key, name, text, static_cast<DWORD>(text.size() + 1));
}

void bareReader(const std::string& ini) {
  char buffer[255];
  ::GetPrivateProfileStringA("386Enh", "COM1Buffer", "", buffer, sizeof buffer, ini.c_str());
  ::GetPrivateProfileStringA("386Enh", "COM2Buffer", "", buffer, sizeof buffer, ini.c_str());
  for (const char* name : {"ProviderName", "Model", "Attachedto", "Logging"})
    read(kModem, name);
  for (int i = 0; i <= 9; ++i)
    read((kNetTrans + std::to_string(i)).c_str(), "MaxMTU");
  read(kAdapter, "MaxMTU");
  read(kAdapter, "MaxMSS");
  for (const char* name :
       {"DefaultRcvWindow", "PMTUBlackHoleDetect", "PMTUDiscovery", "DefaultTTL"})
    read(kMstcp, name);
}

void bareMtuOpt() {
  read(kAdapter, "MaxMTU");
  read(kAdapter, "MaxMSS");
}

} // namespace

void benchInternetConnection(frame::Program& program) {
  char windows[MAX_PATH];
  ::GetWindowsDirectoryA(windows, sizeof windows);
  program.fmain.windir = windows;
  const std::string ini = program.fmain.windir + "\\system.ini";
  const std::string loggingPath = read(kModem, "LoggingPath");
  char com1[255];
  const bool com1Set =
      ::GetPrivateProfileStringA("386Enh", "COM1Buffer", "", com1, sizeof com1, ini.c_str()) > 0;

  pages::InternetConnection& page = program.fmain.pages->internet;
  compare(
      "ref_connection", 1.2, 200, [&] { page.ref_connection(); }, [&] { bareReader(ini); });

  page.ref_connection();
  page.mtu_opt();
  page.rwin_refresh();
  const std::string window = page.Text8->text();
  compare(
      "ApplyM", 1.2, 100, [&] { page.ApplyM_Click(); },
      [&] {
        ::WritePrivateProfileStringA("386enh", "COM2Buffer", "1024", ini.c_str());
        ::WritePrivateProfileStringA("386enh", "COM1Buffer", "", ini.c_str());
        write(kAdapter, "MaxMTU", "576");
        write(kAdapter, "MaxMSS", "536");
        write(kMstcp, "DefaultMSS", "536");
        write(kMstcp, "DefaultRcvWindow", window, static_cast<DWORD>(window.size()));
        write(kMstcp, "PMTUBlackHoleDetect", "0");
        write(kMstcp, "PMTUDiscovery", "1");
        read(kMstcp, "DefaultTTL");
        write(kMstcp, "DefaultTTL", "128");
        write(kModem, "LoggingPath", "");
        // SetRegValueEx: the key is created and left open.
        HKEY k = nullptr;
        DWORD disposition = 0;
        SECURITY_ATTRIBUTES none{};
        ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, kModem, 0, const_cast<char*>(""), 0, KEY_ALL_ACCESS,
                          &none, &k, &disposition);
        const BYTE off = 0;
        ::RegSetValueExA(k, "Logging", 0, REG_BINARY, &off, 1);
        bareReader(ini);
        bareMtuOpt();
      });

  write(kModem, "LoggingPath", loggingPath);
  if (!com1Set) ::WritePrivateProfileStringA("386enh", "COM1Buffer", nullptr, ini.c_str());
}
