// The conformance suite's machine under Wine: the Windows 98 prefix itself,
// with a scratch folder and key, and message boxes answered by finding the
// box window and clicking its button.
#include "tests/conformance/support.h"

#include "platform/platform.h"

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace conformance {
namespace {

int pendingButton = 0;
std::vector<HANDLE> heldFiles;
SeenMessageBox seen;

std::string windowText(HWND window) {
  char text[1024] = {};
  ::GetWindowTextA(window, text, sizeof text);
  return text;
}

BOOL CALLBACK findBox(HWND window, LPARAM found) {
  char className[32] = {};
  ::GetClassNameA(window, className, sizeof className);
  if (std::string(className) == "#32770" && ::IsWindowVisible(window)) {
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }
  return TRUE;
}

// Runs inside the message box's own modal loop.
void CALLBACK pressButton(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND box = nullptr;
  ::EnumThreadWindows(::GetCurrentThreadId(), findBox, reinterpret_cast<LPARAM>(&box));
  if (!box) return;
  ::KillTimer(nullptr, timer);
  seen.shown = true;
  seen.caption = windowText(box);
  seen.text = windowText(::GetDlgItem(box, 0xFFFF));
  const bool yes = ::GetDlgItem(box, IDYES) != nullptr;
  const bool cancel = ::GetDlgItem(box, IDCANCEL) != nullptr;
  seen.buttons = yes ? (cancel ? MB_YESNOCANCEL : MB_YESNO) : MB_OK;
  // The icon control is 20 in Windows' message box and 1088 in Wine's.
  const HICON exclamation = ::LoadIconA(nullptr, IDI_EXCLAMATION);
  for (const int iconId : {20, 1088}) {
    const auto icon =
        reinterpret_cast<HICON>(::SendDlgItemMessageA(box, iconId, STM_GETICON, 0, 0));
    if (icon && icon == exclamation) seen.exclamation = true;
  }
  HWND button = ::GetDlgItem(box, pendingButton);
  if (button)
    ::SendMessageA(button, BM_CLICK, 0, 0);
  else
    ::PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(pendingButton), 0);
}

void removeTree(const std::string& folder) {
  for (const auto& entry : platform::FindFiles((folder + "\\*").c_str())) {
    if (entry.name == "." || entry.name == "..") continue;
    const std::string path = folder + "\\" + entry.name;
    platform::SetFileAttributesA(path.c_str(), 0);
    if (entry.attributes & platform::kAttributeDirectory)
      removeTree(path);
    else
      platform::DeleteFileA(path.c_str());
  }
  platform::RemoveDirectoryA(folder.c_str());
}

} // namespace

void prepareMachine() {
  for (HANDLE file : heldFiles)
    ::CloseHandle(file);
  heldFiles.clear();
  removeTree(kScratch);
  platform::CreateDirectoryA(kScratch);
  platform::RegDeleteKeyA(platform::kCurrentUser, kScratchKey);
  seen = {};
}

std::string hostPath(const std::string& windowsPath) { return windowsPath; }

void writeFile(const std::string& windowsPath, const std::string& content) {
  std::FILE* file = std::fopen(windowsPath.c_str(), "wb");
  if (!file) return;
  std::fwrite(content.data(), 1, content.size(), file);
  std::fclose(file);
}

std::string readFile(const std::string& windowsPath) {
  std::string content;
  std::FILE* file = std::fopen(windowsPath.c_str(), "rb");
  if (!file) return "<missing>";
  char block[4096];
  std::size_t n = 0;
  while ((n = std::fread(block, 1, sizeof block, file)) > 0)
    content.append(block, n);
  std::fclose(file);
  return content;
}

void holdOpen(const std::string& windowsPath) {
  HANDLE file =
      ::CreateFileA(windowsPath.c_str(), GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file != INVALID_HANDLE_VALUE) heldFiles.push_back(file);
}

void answerNextMessageBox(int button) {
  pendingButton = button;
  ::SetTimer(nullptr, 0, 50, pressButton);
}

SeenMessageBox lastMessageBox() { return seen; }

} // namespace conformance
