// Benchmark, run under Wine in the Windows 98 prefix: EmptyTempFolder on a
// temporary folder of 2,000 files in 50 subfolders, against the same find,
// attribute, delete and remove calls made bare. Each round fills the folder
// afresh outside the timing. Prints figures; never fails on time.
#include "pages/privacy/temp_clearing.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

namespace {

constexpr char kWindir[] = "C:\\TL99BENCH";
constexpr char kTemp[] = "C:\\TL99BENCH\\temp\\";
constexpr int kFolders = 50, kFilesPerFolder = 40, kRounds = 5;

void fill() {
  ::CreateDirectoryA(kWindir, nullptr);
  ::CreateDirectoryA(kTemp, nullptr);
  for (int f = 0; f < kFolders; ++f) {
    char folder[MAX_PATH];
    std::snprintf(folder, sizeof folder, "%s_ISTMP%02d.DIR", kTemp, f);
    ::CreateDirectoryA(folder, nullptr);
    for (int i = 0; i < kFilesPerFolder; ++i) {
      char file[MAX_PATH];
      std::snprintf(file, sizeof file, "%s\\~DF%04X.TMP", folder, i);
      HANDLE h = ::CreateFileA(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
      DWORD written = 0;
      ::WriteFile(h, "temporary", 9, &written, nullptr);
      ::CloseHandle(h);
    }
  }
}

// The calls EmptyTempFolder makes, without the program's layers.
void bareClear() {
  const std::string temp = kTemp;
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((temp + "*.*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::string name = entry.cFileName;
      if (name == "." || name == "..") continue;
      if (!(::GetFileAttributesA((temp + name).c_str()) & FILE_ATTRIBUTE_DIRECTORY)) continue;
      const std::string folder = temp + name + "\\";
      WIN32_FIND_DATAA inner;
      HANDLE files = ::FindFirstFileA((folder + "*.*").c_str(), &inner);
      if (files != INVALID_HANDLE_VALUE) {
        do {
          if (!(inner.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            ::DeleteFileA((folder + inner.cFileName).c_str());
        } while (::FindNextFileA(files, &inner));
        ::FindClose(files);
      }
      ::RemoveDirectoryA((temp + name).c_str());
    } while (::FindNextFileA(search, &entry));
    ::FindClose(search);
  }
  search = ::FindFirstFileA((temp + "*.*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
      const std::string path = temp + entry.cFileName;
      ::GetFileAttributesA(path.c_str());
      ::DeleteFileA(path.c_str());
      ::RemoveDirectoryA(path.c_str());
    } while (::FindNextFileA(search, &entry));
    ::FindClose(search);
  }
}

template <class Body> double timed(Body&& body) {
  fill();
  const auto start = std::chrono::steady_clock::now();
  body();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main() {
  double ours = 1e9, bare = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    bare = std::min(bare, timed(bareClear));
    ours = std::min(ours, timed([] { pages::EmptyTempFolder(kWindir); }));
  }
  WIN32_FIND_DATAA entry;
  HANDLE left = ::FindFirstFileA((std::string(kTemp) + "*.*").c_str(), &entry);
  int remaining = 0;
  if (left != INVALID_HANDLE_VALUE) {
    do
      ++remaining;
    while (::FindNextFileA(left, &entry));
    ::FindClose(left);
  }
  ::RemoveDirectoryA(kTemp);
  ::RemoveDirectoryA(kWindir);
  std::printf("EmptyTempFolder, %d files in %d subfolders: %8.1f ms, bare calls %8.1f ms, "
              "ratio %.3f (target <= 1.20); entries left %d\n",
              kFolders * kFilesPerFolder, kFolders, 1e3 * ours, 1e3 * bare, ours / bare, remaining);
}
