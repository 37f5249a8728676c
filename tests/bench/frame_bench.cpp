// Benchmark of the form runtime's real windows under Wine (figures only,
// never a pass or fail):
//  - a file list box filled from a folder of 20,000 *.cab files (the list of
//    registry backups), against a bare FindFirstFileA/FindNextFileA walk of
//    the same folder; target under 1 s and at most 1.5 times the walk;
//  - one pass of the event pump the splash runs 10,000 times, against a bare
//    PeekMessageA pass; target at most 1.1;
//  - one tick of Timer1 (status band and memory figures), and the memory
//    figures alone.
// Usage: tl99_frame_bench.exe [FOLDER [COUNT]]; the folder is filled with
// COUNT files (20000) when it holds fewer.
#include "frame/program.h"
#include "platform/platform.h"
#include "runtime/application.h"
#include "runtime/form.h"
#include "runtime/win32/presenter.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

double nowMs() {
  LARGE_INTEGER frequency, counter;
  ::QueryPerformanceFrequency(&frequency);
  ::QueryPerformanceCounter(&counter);
  return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Body> double timeMs(Body&& body) {
  const double start = nowMs();
  body();
  return nowMs() - start;
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

// The list box window of the bench form (the form's only child).
HWND listWindow(const runtime::Form&) {
  HWND top = ::FindWindowA("TL99Form", nullptr);
  return ::FindWindowExA(top, nullptr, "LISTBOX", nullptr);
}

// Processor time (user and kernel) the process has used, in milliseconds.
double cpuMs() {
  FILETIME created, ended, kernel, user;
  ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
  const auto ms = [](const FILETIME& time) {
    return static_cast<double>((static_cast<unsigned long long>(time.dwHighDateTime) << 32) |
                               time.dwLowDateTime) /
           10000.0;
  };
  return ms(kernel) + ms(user);
}

int countCabs(const std::string& folder) {
  WIN32_FIND_DATAA data{};
  HANDLE find = ::FindFirstFileA((folder + "\\*.cab").c_str(), &data);
  if (find == INVALID_HANDLE_VALUE) return 0;
  int count = 0;
  do {
    if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) ++count;
  } while (::FindNextFileA(find, &data));
  ::FindClose(find);
  return count;
}

void fillFolder(const std::string& folder, int count) {
  ::CreateDirectoryA(folder.c_str(), nullptr);
  if (countCabs(folder) >= count) return;
  std::printf("making %d files in %s ...\n", count, folder.c_str());
  char name[32];
  for (int i = 0; i < count; ++i) {
    std::snprintf(name, sizeof name, "\\rb%05d.cab", i);
    HANDLE file = ::CreateFileA((folder + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
  }
}

void pumpAll() {
  MSG message;
  while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
}

} // namespace

int main(int argc, char** argv) {
  const std::string folder = argc > 1 ? argv[1] : "C:\\TL99BENCH";
  const int count = argc > 2 ? std::atoi(argv[2]) : 20000;
  fillFolder(folder, count);

  auto& app = runtime::Application::instance();
  runtime::win32::Presenter presenter(::GetModuleHandleA(nullptr));
  runtime::Form form("Bench");
  form.setClientSize(6435, 5475);
  auto& list = form.add<runtime::FileListBox>("File1", -1, nullptr, {240, 240, 5895, 1980});
  list.setPattern("*.cab");
  presenter.present(form);
  form.show();
  pumpAll();

  // ---- The list of backups ----
  // The runs of what is compared alternate, so that a busy machine weighs on
  // both alike.
  runtime::Form hidden("Unpresented");
  auto& bareList = hidden.add<runtime::FileListBox>("File2", -1, nullptr, {});
  bareList.setPattern("*.cab");
  std::vector<double> walks, fills, runtimeOnly;
  int walked = 0, listed = 0;
  for (int run = 0; run < 7; ++run) {
    walks.push_back(timeMs([&] { walked = countCabs(folder); }));
    fills.push_back(timeMs([&] {
      list.setPath(folder);
      pumpAll(); // the list box shows its new contents
      listed = static_cast<int>(::SendMessageA(listWindow(form), LB_GETCOUNT, 0, 0));
    }));
    runtimeOnly.push_back(timeMs([&] { bareList.setPath(folder); }));
  }
  const double walk = median(walks), fill = median(fills), inRuntime = median(runtimeOnly);
  std::printf("file list: %d files listed and shown in %.1f ms (of which %.1f ms reading and "
              "sorting the folder, %.1f ms the list box); a bare FindFirstFileA walk of %d files "
              "%.1f ms; ratio %.2f (target under 1000 ms and at most 1.5)\n",
              listed, fill, inRuntime, fill - inRuntime, walked, walk, fill / walk);

  // ---- One pass of the event pump ----
  // Short runs of each, one after the other, and the median of their
  // ratios: the machine's load changes little within one pair.
  constexpr int kPasses = 1000;
  std::vector<double> bares, ours, ratios;
  for (int run = 0; run < 21; ++run) {
    bares.push_back(timeMs([] {
      MSG message;
      for (int pass = 0; pass < kPasses; ++pass)
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
          ::TranslateMessage(&message);
          ::DispatchMessageA(&message);
        }
    }));
    ours.push_back(timeMs([&] {
      for (int pass = 0; pass < kPasses; ++pass)
        app.doEvents();
    }));
    ratios.push_back(ours.back() / bares.back());
  }
  std::printf("event pump: one pass %.2f us, a bare PeekMessageA pass %.2f us; ratio %.2f "
              "(median of 21 paired runs; target at most 1.1)\n",
              1000.0 * median(ours) / kPasses, 1000.0 * median(bares) / kPasses, median(ratios));

  // ---- One tick of Timer1 ----
  // Processor time of the process, not the clock: other programs on the
  // machine don't count.
  {
    frame::Program program;
    constexpr int kTicks = 5000;
    const double before = cpuMs();
    for (int i = 0; i < kTicks; ++i)
      program.fmain.Timer1_Timer();
    const double ticks = cpuMs() - before;
    const double beforeMemory = cpuMs();
    for (int i = 0; i < kTicks; ++i)
      platform::GlobalMemoryStatus();
    const double memory = cpuMs() - beforeMemory;
    std::printf("Timer1: one tick %.1f us of processor time, of which the memory figures %.1f us; "
                "50 ticks a second take %.2f%% of one core\n",
                1000.0 * ticks / kTicks, 1000.0 * memory / kTicks,
                100.0 * 50 * ticks / kTicks / 1000.0);
  }
  form.unload();
  return 0;
}
