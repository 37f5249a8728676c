// Benchmark, run under Wine in the Windows 98 prefix: the Software Components
// page listing 200 Uninstall entries and removing 20 of them, against the same
// registry calls made bare; and start-up with all ten page readers against
// the frame alone. Prints figures; never fails on time.
#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr char kWalk[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr char kDelete[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr int kEntries = 200;
constexpr int kRemoved = 20;
constexpr int kFirstRemoved = 50; // of the bench's own entries
constexpr int kRounds = 7;

std::string keyName(int i) {
  char name[32];
  std::snprintf(name, sizeof name, "TL99Bench%03d", i);
  return name;
}
std::string displayName(int i) {
  char name[48];
  std::snprintf(name, sizeof name, "TL99 Bench Application %03d", i);
  return name;
}

void makeEntries(int first, int last) {
  for (int i = first; i < last; ++i) {
    HKEY key = nullptr;
    ::RegCreateKeyA(HKEY_LOCAL_MACHINE, (std::string(kDelete) + keyName(i)).c_str(), &key);
    const std::string display = displayName(i);
    ::RegSetValueExA(key, "DisplayName", 0, REG_SZ, reinterpret_cast<const BYTE*>(display.c_str()),
                     static_cast<DWORD>(display.size() + 1));
    ::RegCloseKey(key);
  }
}

void dropEntries() {
  for (int i = 0; i < kEntries; ++i)
    ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, (std::string(kDelete) + keyName(i)).c_str());
}

double seconds(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The bare calls of one listing step: the index-th subkey's name, then its
// display name; false past the last key.
bool bareEntry(DWORD index, std::string* name, std::string* display) {
  HKEY walk = nullptr;
  ::RegOpenKeyA(HKEY_LOCAL_MACHINE, kWalk, &walk);
  char buffer[2048];
  const bool found = ::RegEnumKeyA(walk, index, buffer, sizeof buffer) == ERROR_SUCCESS;
  ::RegCloseKey(walk);
  *name = found ? buffer : "Not Found";
  HKEY key = nullptr;
  ::RegOpenKeyA(HKEY_LOCAL_MACHINE, (std::string(kWalk) + *name).c_str(), &key);
  char data[2048];
  DWORD size = sizeof data, type = 0;
  const bool read = ::RegQueryValueExA(key, "DisplayName", nullptr, &type,
                                       reinterpret_cast<BYTE*>(data), &size) == ERROR_SUCCESS;
  ::RegCloseKey(key);
  *display = read && size > 0 ? std::string(data, size - 1) : "Not Found";
  return found;
}

// The listing, the ticks and the Apply, made of the same calls bare.
void bareListAndRemove() {
  std::vector<std::string> listed;
  DWORD walked = 0;
  std::string name, display;
  while (bareEntry(walked, &name, &display)) {
    if (display != "Not Found") listed.push_back(display);
    ++walked;
  }
  std::vector<std::string> toRemove;
  for (int i = 0; i < kRemoved; ++i)
    toRemove.push_back(displayName(kFirstRemoved + i));
  for (DWORD k = 0; k <= walked; ++k) {
    for (std::size_t j = 0; j <= toRemove.size(); ++j) {
      bareEntry(k, &name, &display);
      const std::string entry = j < toRemove.size() ? toRemove[j] : std::string();
      if (display == entry) {
        HKEY root = nullptr;
        ::RegOpenKeyExA(HKEY_LOCAL_MACHINE, "", 0, KEY_ALL_ACCESS, &root);
        ::RegDeleteKeyA(root, (std::string(kDelete) + name).c_str());
        ::RegCloseKey(root);
      }
    }
  }
  listed.clear();
  walked = 0;
  while (bareEntry(walked, &name, &display)) {
    if (display != "Not Found") listed.push_back(display);
    ++walked;
  }
}

void pageListAndRemove(pages::SoftwareComponents& page) {
  page.ref_uninstall_list();
  for (int i = 0; i < page.prg_list->listCount(); ++i) {
    const std::string& entry = page.prg_list->list(i);
    for (int n = 0; n < kRemoved; ++n)
      if (entry == displayName(kFirstRemoved + n)) page.prg_list->setSelected(i, true);
  }
  page.ApplyUL_Click();
}

} // namespace

int main() {
  runtime::Application::instance().title = "Tweakloom 99";
  dropEntries();
  makeEntries(0, kEntries);

  // Start-up: the frame and its ten pages built, against the same and the
  // load routine that runs all ten readers (no windows are shown here).
  double frameAlone = 1e9, withReaders = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    runtime::Application::instance().reset();
    auto start = std::chrono::steady_clock::now();
    {
      frame::Program program;
      frameAlone = std::min(frameAlone, seconds(start));
    }
    runtime::Application::instance().reset();
    start = std::chrono::steady_clock::now();
    {
      frame::Program program;
      program.start();
      withReaders = std::min(withReaders, seconds(start));
    }
  }
  // No windows are made here: tools/bench-wine.sh times FMain becoming
  // visible. These figures split that into the frame and the readers.
  std::printf("start-up     frame and ten pages built %7.1f ms; built and loaded, all ten readers "
              "run, %7.1f ms: the readers take %.1f ms\n",
              1e3 * frameAlone, 1e3 * withReaders, 1e3 * (withReaders - frameAlone));

  runtime::Application::instance().reset();
  frame::Program program;
  pages::SoftwareComponents& page = program.fmain.pages->software;
  double ours = 1e9, bare = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    auto start = std::chrono::steady_clock::now();
    bareListAndRemove();
    bare = std::min(bare, seconds(start));
    makeEntries(kFirstRemoved, kFirstRemoved + kRemoved);
    start = std::chrono::steady_clock::now();
    pageListAndRemove(page);
    ours = std::min(ours, seconds(start));
    makeEntries(kFirstRemoved, kFirstRemoved + kRemoved);
  }
  std::printf(
      "Uninstall    %d more entries listed, %d removed: page %8.1f ms, bare calls %8.1f ms, "
      "ratio %.3f (target <= 1.20)\n",
      kEntries, kRemoved, 1e3 * ours, 1e3 * bare, ours / bare);
  dropEntries();
  return 0;
}
