// What the conformance suite needs of the machine it runs on. One test source
// runs twice: natively against the simulated Windows 98 and, built with MinGW,
// against the real calls under Wine in the Windows 98 prefix. Only this file's
// two implementations differ.
#pragma once

#include <string>

namespace conformance {

// The folder every test starts with, empty: C:\TL99TEST.
inline constexpr const char* kScratch = "C:\\TL99TEST";
// The registry key every test starts with, absent: HKCU\Software\TL99Conformance.
inline constexpr const char* kScratchKey = "Software\\TL99Conformance";

// Makes the scratch folder and key fresh.
void prepareMachine();

// Where the C library reaches a Windows path of the machine.
std::string hostPath(const std::string& windowsPath);

// Writes and reads a whole file byte for byte.
void writeFile(const std::string& windowsPath, const std::string& content);
std::string readFile(const std::string& windowsPath);

// Holds a file open as another program would, sharing it for reading and
// writing but not for deletion, until prepareMachine() runs again.
void holdOpen(const std::string& windowsPath);

// Arms an answer for the next message box: the box is found as a user sees
// it and the button with this id (IDOK = 1, IDCANCEL = 2, ...) is pressed.
void answerNextMessageBox(int button);

struct SeenMessageBox {
  bool shown = false;
  std::string text;
  std::string caption;
  unsigned buttons = 0; // MB_OK 0, MB_YESNOCANCEL 3, MB_YESNO 4
  bool exclamation = false;
};
// The last message box shown since prepareMachine().
SeenMessageBox lastMessageBox();

} // namespace conformance
