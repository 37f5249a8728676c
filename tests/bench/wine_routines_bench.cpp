// Benchmark, run under Wine in the Windows 98 prefix: the registry and
// profile routines against the bare Win32 calls they make, on the same values,
// measured in one run. Prints figures; never fails on time.
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

constexpr char kKey[] = "Software\\TL99Bench";
constexpr int kRounds = 5;

template <class Body> double secondsFor(int iterations, Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < iterations; ++i)
    body();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The fastest of several alternating rounds of each side, so both see the
// same machine state.
template <class Ours, class Bare>
void compare(const char* what, int iterations, Ours&& ours, Bare&& bare) {
  double bestOurs = 1e9, bestBare = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    bestBare = std::min(bestBare, secondsFor(iterations, bare));
    bestOurs = std::min(bestOurs, secondsFor(iterations, ours));
  }
  std::printf("%-12s %8.2f us/call, bare calls %8.2f us/call, ratio %.3f (target <= 1.10)\n", what,
              1e6 * bestOurs / iterations, 1e6 * bestBare / iterations, bestOurs / bestBare);
}

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
      "GetRegValue", 20000,
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
      "GetFromINI", 5000,
      [&] {
        sink = sink + sysaccess::GetFromINI("-=Note=-", "Altered by Tweakloom 99", ini).size();
      },
      [&] {
        char buffer[255];
        sink = sink + ::GetPrivateProfileStringA("-=Note=-", "Altered by Tweakloom 99", "", buffer,
                                                 sizeof buffer, ini.c_str());
      });
  ::RegDeleteKeyA(HKEY_CURRENT_USER, kKey);
  return 0;
}
