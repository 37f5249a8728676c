// Benchmark, run under Wine in the Windows 98 prefix: the Desktop & Explorer
// page's reader ref_desk and its Apply against the same registry calls made
// bare, measured in one run. Prints figures; never fails on time.
#include "frame/page_set.h"
#include "frame/program.h"
#include "pages/shell/named_tweaks.h"
#include "runtime/application.h"
#include "tests/bench/wine_bench.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

HKEY rootOf(std::uint32_t hive) {
  return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG>(hive)));
}

struct Read {
  HKEY root;
  std::string key;
  std::string value;
};

void bareRead(const Read& read) {
  HKEY k = nullptr;
  ::RegOpenKeyA(read.root, read.key.c_str(), &k);
  char buffer[2048];
  DWORD size = sizeof buffer, type = 0;
  ::RegQueryValueExA(k, read.value.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
  ::RegCloseKey(k);
}

// One write of Apply with every box ticked, as the registry sees it.
struct Write {
  enum Kind { Text, Binary, DeleteTree } kind;
  HKEY root;
  std::string key;
  std::string value;
  std::string data;
};

void bareWrite(const Write& write) {
  HKEY k = nullptr;
  switch (write.kind) {
  case Write::Text: {
    ::RegCreateKeyA(write.root, write.key.c_str(), &k);
    const std::string data = write.data + '\0';
    ::RegSetValueExA(k, write.value.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(data.data()),
                     static_cast<DWORD>(data.size()));
    ::RegFlushKey(k);
    ::RegCloseKey(k);
    break;
  }
  case Write::Binary: {
    DWORD disposition = 0;
    SECURITY_ATTRIBUTES none{};
    ::RegCreateKeyExA(write.root, write.key.c_str(), 0, const_cast<char*>(""), 0, KEY_ALL_ACCESS,
                      &none, &k, &disposition);
    ::RegSetValueExA(k, write.value.c_str(), 0, REG_BINARY,
                     reinterpret_cast<const BYTE*>(write.data.data()),
                     static_cast<DWORD>(write.data.size()));
    break; // the key stays open, as the program's binary writer leaves it
  }
  case Write::DeleteTree:
    ::RegOpenKeyExA(write.root, "", 0, KEY_ALL_ACCESS, &k);
    ::RegDeleteKeyA(k, write.key.c_str());
    ::RegCloseKey(k);
    break;
  }
}

} // namespace

int main() {
  runtime::Application::instance().title = "Tweakloom 99";
  frame::Program program;
  auto& page = program.fmain.pages->desktop;
  char windows[MAX_PATH];
  ::GetWindowsDirectoryA(windows, sizeof windows);
  const std::string windir = windows;

  // The reads of ref_desk: the three icon values, the 26 words' values (the
  // clock caption two, the time format four), the three task values.
  const std::string wm = ".DEFAULT\\Control Panel\\Desktop\\WindowMetrics";
  const std::string deskl = "Control Panel\\desktop";
  std::vector<Read> reads{{HKEY_USERS, wm, "Shell Icon Size"},
                          {HKEY_USERS, wm, "IconSpacing"},
                          {HKEY_USERS, wm, "IconVerticalSpacing"}};
  const char* const words[] = {pages::tweak::kUseHiColorIcons,
                               pages::tweak::kShowWindowsVersion,
                               pages::tweak::kSaveDesktopSettings,
                               pages::tweak::kUseShortcutArrows,
                               pages::tweak::kPrefixShortcutTo,
                               pages::tweak::kWinSmCcr,
                               pages::tweak::kQVOFAF,
                               pages::tweak::kBeepOnErrors,
                               pages::tweak::kMoreCpuInfo,
                               pages::tweak::kXMouseAutoRaise,
                               pages::tweak::kOpenWithAlwaysEnabled,
                               pages::tweak::kDDM,
                               pages::tweak::kFullWindowDraging,
                               pages::tweak::kSmallIconsOnStartMenu,
                               pages::tweak::kExploreFromHere,
                               pages::tweak::kSmoothFonts,
                               pages::tweak::kOpenFolderInMsDos,
                               pages::tweak::kFindOnTheInternet,
                               pages::tweak::kClockStaticCaption,
                               pages::tweak::kUse24hTimeFormat,
                               pages::tweak::kOpenUnknownInNotepad,
                               pages::tweak::kFlexibleRycycleBin,
                               pages::tweak::kTurnOffWindowAnimation,
                               pages::tweak::kTurnOffStartBanner,
                               pages::tweak::kBlinkingTextCursor,
                               pages::tweak::kShowTipsOnStartup};
  for (const char* word : words) {
    const pages::tweak::Row& row = *pages::tweak::find(word);
    if (row.rule == pages::tweak::Rule::ClockCaption) {
      reads.push_back({rootOf(row.hive), row.key, pages::tweak::kClockMorning});
      reads.push_back({rootOf(row.hive), row.key, pages::tweak::kClockAfternoon});
    } else if (row.rule == pages::tweak::Rule::TimeFormat) {
      for (const char* name : pages::tweak::kTimeFormatValues)
        reads.push_back({rootOf(row.hive), row.key, name});
    } else {
      reads.push_back({rootOf(row.hive), row.key, row.value});
    }
  }
  for (const char* name : {"AutoEndTasks", "HungAppTimeout", "WaitToKillAppTimeout"})
    reads.push_back({HKEY_CURRENT_USER, deskl, name});

  compare(
      "ref_desk", 1.2, 200, [&] { page.ref_desk(); },
      [&] {
        for (const Read& read : reads)
          bareRead(read);
      });

  // Apply with every box of the page ticked and "Right" chosen.
  for (int i = 0; i < 15; ++i)
    program.fmain.Check2_(i).setValue(1);
  for (int i : {0, 1, 3, 4, 6})
    page.CD2(i).setValue(1);
  for (runtime::CheckBox* box : {page.Check1, page.Check10, page.Check11, page.Check12})
    box->setValue(1);
  page.ex_opt(0).setValue(1);
  page.timeout1->setValue(1);
  page.timeout3->setValue(1);
  page.Combo1->setText("Right");
  page.Check14->setValue(0);
  const std::string pol = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
  const std::string ifind =
      "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\FindExtensions\\Static\\InetFind";
  const std::string intl = "Control Panel\\International";
  const std::string one("\x01\0\0\0", 4), zero("\0\0\0\0", 4);
  const std::vector<Write> writes{
      {Write::Text, HKEY_USERS, wm, "Shell Icon Size", page.icnWset->text()},
      {Write::Text, HKEY_USERS, wm, "IconSpacing", "-1125"},
      {Write::Text, HKEY_USERS, wm, "IconVerticalSpacing", "-1125"},
      {Write::Text, HKEY_CURRENT_USER, deskl, "AutoEndTasks", "1"},
      {Write::Text, HKEY_CURRENT_USER, deskl, "HungAppTimeout", "5000"},
      {Write::Text, HKEY_CURRENT_USER, deskl, "WaitToKillAppTimeout", "20000"},
      {Write::Text, HKEY_CURRENT_USER, deskl, "PaintDesktopVersion", "1"},
      {Write::Binary, HKEY_CURRENT_USER, pol, "NoSaveSettings", one},
      {Write::Text, HKEY_CURRENT_USER, "Control Panel\\desktop\\WindowMetrics", "Shell Icon BPP",
       "16"},
      {Write::DeleteTree, HKEY_USERS,
       ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\link", "", ""},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\lnkfile", "IsShortCut", ""},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\piffile", "IsShortCut", ""},
      {Write::Binary, HKEY_CURRENT_USER, "Control Panel\\Desktop", "SmoothScroll", one},
      {Write::Binary, HKEY_USERS,
       ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Tips", "Show", one},
      {Write::Text, HKEY_CLASSES_ROOT, "QuickView", "", "*"},
      {Write::Text, HKEY_CURRENT_USER, "Control Panel\\Desktop", "MenuDropAlignment", "1"},
      {Write::Text, HKEY_USERS, wm, "MinAnimate", "0"},
      {Write::Binary, HKEY_CURRENT_USER, pol, "NoStartBanner", zero},
      {Write::Text, HKEY_USERS, "\\.DEFAULT\\Control Panel\\Sound", "Beep", "Yes"},
      {Write::Text, HKEY_LOCAL_MACHINE, "Hardware\\Description\\System\\CentralProcessor\\0",
       "VendorIdentifier", "Genuine Intel"},
      {Write::Text, HKEY_CURRENT_USER,
       "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SmallIcons", "SmallIcons", "Yes"},
      {Write::Text, HKEY_CURRENT_USER, "Control Panel\\Desktop", "FontSmoothing", "1"},
      {Write::Text, HKEY_CURRENT_USER, "Control Panel\\Desktop", "DragFullWindows", "1"},
      {Write::Text, HKEY_LOCAL_MACHINE, ifind, "", "{37865980-75d1-11cf-bfc7-444553540000}"},
      {Write::Text, HKEY_LOCAL_MACHINE, ifind + "\\0", "", "On the &Internet..."},
      {Write::Text, HKEY_LOCAL_MACHINE, ifind + "\\0\\DefaultIcon", "",
       windir + "\\SYSTEM\\ShellExt\\InetFind.dll,0"},
      {Write::Text, HKEY_CLASSES_ROOT, "Unknown\\shell\\Open in Notepad\\Command", "",
       "Notepad %1"},
      {Write::Text, HKEY_USERS, ".DEFAULT\\Control Panel\\Desktop", "CursorBlinkRate", "800"},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\Directory\\shell\\ExploreHere", "",
       "Explore from Here"},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\Directory\\shell\\ExploreHere\\Command",
       "", "explorer.exe /e,/root,/idlist,%I"},
      {Write::Binary, HKEY_CLASSES_ROOT,
       "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder", "Attributes",
       std::string("\x70\x01\0\x20", 4)},
      {Write::Text, HKEY_CLASSES_ROOT, "Directory\\shell\\MSDOS Prompt here", "", ""},
      {Write::Text, HKEY_CLASSES_ROOT, "Directory\\shell\\MSDOS Prompt here\\Command", "",
       "command.com /k cd %1"},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\*\\Shell\\OpenWith", "",
       "Op&en With ..."},
      {Write::Text, HKEY_LOCAL_MACHINE, "Software\\CLASSES\\*\\Shell\\OpenWith\\Command", "",
       windir + "\\rundll32.exe shell32.dll,OpenAs_RunDLL %1"},
      {Write::Text, HKEY_CURRENT_USER, "Control Panel\\Mouse", "ActiveWindowTracking", "1"},
      {Write::Text, HKEY_CURRENT_USER, intl, "iTime", "1"},
      {Write::Text, HKEY_CURRENT_USER, intl, "iTLZero", "1"},
      {Write::Text, HKEY_CURRENT_USER, intl, "sTime", ""},
      {Write::Text, HKEY_CURRENT_USER, intl, "sTimeFormat", "HHmm tt"},
      {Write::Text, HKEY_CURRENT_USER, intl, "s1159", ""},
      {Write::Text, HKEY_CURRENT_USER, intl, "s2359", ""},
  };
  compare(
      "applyb Apply", 1.2, 50, [&] { page.applyb_Click(); },
      [&] {
        for (const Write& write : writes)
          bareWrite(write);
        for (const Read& read : reads)
          bareRead(read);
      });
  return 0;
}
