// The driver's commands: one row per command in a table (commands.cpp).
#pragma once

#include "tests/e2e/driver/outcome.h"

namespace drive {

// How the driver runs a command.
enum class Timing {
  Retried, // tried again until it succeeds or the step timeout runs out
  Once,    // takes its own time (sleep, waits with their own limit)
};

struct Command {
  const char* name;
  int minArgs;
  int maxArgs;
  Timing timing;
  Outcome (*run)(const Args& args);
  const char* args; // for the usage text
  const char* does;
};

// The row for a command name, or null.
const Command* findCommand(const std::string& name);

// Prints every command with its arguments.
void printCommands();

// How long a retried command keeps trying, in milliseconds (3000 at first).
unsigned stepTimeoutMs();
void setStepTimeoutMs(unsigned ms);

// Reading numbers in arguments: false when `text` is not a whole number.
bool parseNumber(const std::string& text, long* value);

namespace cmd {
// cmd_window.cpp: finding windows and reading their state
Outcome wait(const Args&);
Outcome expectGone(const Args&);
Outcome expectText(const Args&);
Outcome expectCheck(const Args&);
Outcome expectEnabled(const Args&);
Outcome expectVisible(const Args&);
Outcome expectItem(const Args&);
// cmd_list.cpp: list boxes
Outcome expectCount(const Args&);
Outcome expectList(const Args&);
// cmd_input.cpp: the mouse and the keyboard
Outcome click(const Args&);
Outcome clickInside(const Args&);
Outcome clickItem(const Args&);
Outcome type(const Args&);
Outcome key(const Args&);
// cmd_drag.cpp: dragging with the mouse
Outcome drag(const Args&);
// cmd_tab.cpp: tab controls
Outcome clickTab(const Args&);
Outcome expectTab(const Args&);
Outcome expectTabImage(const Args&);
Outcome expectTabText(const Args&);
// cmd_msgbox.cpp: message boxes
Outcome expectMsgbox(const Args&);
Outcome pressMsgbox(const Args&);
// cmd_registry.cpp
Outcome expectReg(const Args&);
Outcome expectKey(const Args&);
Outcome importReg(const Args&);
// cmd_file.cpp
Outcome expectFile(const Args&);
Outcome expectFileContains(const Args&);
Outcome expectNoFile(const Args&);
Outcome copyFile(const Args&);
Outcome deleteFile(const Args&);
Outcome setAttr(const Args&);
// cmd_frame.cpp: the pointer, the focus, client sizes, pictures on the
// screen, steady texts, counted message boxes
Outcome move(const Args&);
Outcome moveInside(const Args&);
Outcome expectFocus(const Args&);
Outcome expectClientSize(const Args&);
Outcome expectPicture(const Args&);
Outcome expectSteady(const Args&);
Outcome expectMsgboxes(const Args&);
// cmd_fixture.cpp: files and folders set up as a user or program leaves them
Outcome makeFile(const Args&);
Outcome makeFolder(const Args&);
Outcome setAttributes(const Args&);
Outcome holdOpen(const Args&);
Outcome removeTreeCommand(const Args&);
Outcome expectFolder(const Args&);
// cmd_process.cpp: processes and time
Outcome expectExit(const Args&);
Outcome sleep(const Args&);
Outcome timeout(const Args&);
// cmd_listed.cpp: a list box item by its text
Outcome expectListed(const Args&);
// cmd_titled.cpp: other programs' top-level windows, by title; processes
Outcome expectTitled(const Args&);
Outcome restoreTitled(const Args&);
Outcome clickTitled(const Args&);
Outcome closeTitled(const Args&);
Outcome expectRunning(const Args&);
} // namespace cmd

} // namespace drive
