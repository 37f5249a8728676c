// Benchmark of the simulated Windows 98: registry and profile operations per
// second through the program's routines. Prints figures; never fails on time.
#include "platform/sim/sim_control.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

template <class Body> void rate(const char* what, int iterations, Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < iterations; ++i)
    body(i);
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::printf("sim %-34s %10.0f operations/s\n", what, iterations / seconds);
}

} // namespace

int main() {
  char pattern[] = "/tmp/tl99-bench-XXXXXX";
  const std::string root = ::mkdtemp(pattern);
  platform::sim::reset(root);
  const std::string key =
      ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
  using namespace sysaccess;
  volatile std::size_t sink = 0;
  rate("SetRegValue (REG_SZ)", 100000, [&](int i) {
    SetRegValue(HKU, key, "Value" + std::to_string(i % 50), kRegSz, std::string("text"));
  });
  rate("GetRegValue", 100000, [&](int i) {
    sink = sink + GetRegValue(HKU, key, "Value" + std::to_string(i % 50)).size();
  });
  rate("GetRegValue of a missing key", 100000,
       [&](int) { sink = sink + GetRegValue(HKU, key + "\\Nowhere", "x").size(); });
  rate("EnumRegValue", 100000,
       [&](int i) { sink = sink + EnumRegValue(HKU, key, i % 60).data.size(); });
  platform::CreateDirectoryA("C:\\WINDOWS");
  platform::WritePrivateProfileStringA("1", "Files", "30,AUTOEXEC.BAT", "C:\\WINDOWS\\scanreg.ini");
  rate("GetFromINI", 20000,
       [&](int) { sink = sink + GetFromINI("1", "Files", "C:\\WINDOWS\\scanreg.ini").size(); });
  std::filesystem::remove_all(root);
  return 0;
}
