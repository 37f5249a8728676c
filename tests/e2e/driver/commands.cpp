#include "tests/e2e/driver/commands.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace drive {
namespace {

using enum Timing;

// Arguments count after the command name.
constexpr Command kCommands[] = {
    {"wait", 2, 2, Once, cmd::wait, "NAME MS", "window NAME exists and is visible within MS"},
    {"expect-gone", 1, 1, Retried, cmd::expectGone, "NAME", "no visible window is NAME"},
    {"click", 1, 1, Retried, cmd::click, "NAME", "left click on the middle of NAME"},
    {"clickat", 3, 3, Retried, cmd::clickInside, "NAME X Y", "left click at X,Y pixels in NAME"},
    {"clickitem", 2, 2, Retried, cmd::clickItem, "NAME INDEX", "click list box item INDEX"},
    {"clicktab", 2, 2, Retried, cmd::clickTab, "NAME INDEX", "click tab INDEX (from 0)"},
    {"move", 1, 1, Retried, cmd::move, "NAME", "the pointer moves onto the middle of NAME"},
    {"moveat", 3, 3, Retried, cmd::moveInside, "NAME X Y", "the pointer moves to X,Y in NAME"},
    {"type", 2, 2, Retried, cmd::type, "NAME TEXT", "click into NAME, select all, type TEXT"},
    {"key", 1, 1, Once, cmd::key, "KEY", "strike Enter, Esc, Tab, Shift+Tab, Alt+F4, ..."},
    {"drag", 3, 4, Once, cmd::drag, "NAME DX DY [MS]",
     "press on NAME's middle, move DX,DY pixels over MS ms, release"},
    {"expect-text", 2, 2, Retried, cmd::expectText, "NAME TEXT", "window text is TEXT"},
    {"expect-check", 2, 2, Retried, cmd::expectCheck, "NAME 0|1|2", "BM_GETCHECK answers so"},
    {"expect-enabled", 2, 2, Retried, cmd::expectEnabled, "NAME 0|1", "IsWindowEnabled"},
    {"expect-visible", 2, 2, Retried, cmd::expectVisible, "NAME 0|1", "IsWindowVisible"},
    {"expect-item", 3, 3, Retried, cmd::expectItem, "NAME INDEX 0|1", "list box item selected"},
    {"expect-count", 2, 2, Retried, cmd::expectCount, "NAME N", "the list box has N entries"},
    {"expect-list", 3, 3, Retried, cmd::expectList, "NAME INDEX TEXT",
     "list box entry INDEX is TEXT"},
    {"expect-focus", 1, 1, Retried, cmd::expectFocus, "NAME", "NAME has the keyboard focus"},
    {"expect-client-size", 3, 3, Retried, cmd::expectClientSize, "NAME W H",
     "GetClientRect gives W x H pixels"},
    {"expect-picture", 2, 2, Retried, cmd::expectPicture, "NAME HOSTBMP",
     "NAME shows the picture of HOSTBMP"},
    {"expect-steady", 2, 2, Once, cmd::expectSteady, "NAME MS",
     "the window text does not change for MS"},
    {"expect-msgboxes", 2, 2, Retried, cmd::expectMsgboxes, "CAPTION N",
     "exactly N message boxes CAPTION are up"},
    {"expect-tab", 2, 2, Retried, cmd::expectTab, "NAME INDEX", "the selected tab"},
    {"expect-tabimage", 3, 3, Retried, cmd::expectTabImage, "NAME TAB IMAGE", "a tab's picture"},
    {"expect-tabtext", 3, 3, Retried, cmd::expectTabText, "NAME TAB TEXT", "a tab's caption"},
    {"expect-reg", 4, 5, Retried, cmd::expectReg, "ROOT KEY VALUE TYPE [DATA]",
     "TYPE: binary HEX, sz TEXT, dword N, absent"},
    {"expect-key", 3, 3, Retried, cmd::expectKey, "ROOT KEY 0|1", "the key exists (1) or not (0)"},
    {"import-reg", 1, 1, Once, cmd::importReg, "HOSTFILE",
     "regedit /S HOSTFILE (REGEDIT4; [-KEY] deletes)"},
    {"expect-file", 2, 2, Retried, cmd::expectFile, "WINPATH HOSTFILE", "same bytes as HOSTFILE"},
    {"expect-file-contains", 2, 2, Retried, cmd::expectFileContains, "WINPATH TEXT",
     "the file holds TEXT"},
    {"expect-nofile", 1, 1, Retried, cmd::expectNoFile, "WINPATH", "no such file or folder"},
    {"expect-folder", 1, 1, Retried, cmd::expectFolder, "WINPATH", "a folder of that name"},
    {"make-file", 1, 2, Once, cmd::makeFile, "WINPATH [TEXT]", "a file holding TEXT (\"data\")"},
    {"make-folder", 1, 1, Once, cmd::makeFolder, "WINPATH", "a new folder"},
    {"set-attributes", 1, 2, Once, cmd::setAttributes, "WINPATH [RHSA]",
     "read-only, hidden, system, archive; none: normal"},
    {"hold-open", 1, 1, Once, cmd::holdOpen, "WINPATH",
     "keep the file open, not shared for deletion, until the driver ends"},
    {"remove-tree", 1, 1, Once, cmd::removeTreeCommand, "WINPATH",
     "a file, or a folder with everything in it, removed"},
    {"copy-file", 2, 2, Once, cmd::copyFile, "HOSTFILE WINPATH",
     "puts a copy of HOSTFILE at WINPATH"},
    {"delete-file", 1, 1, Once, cmd::deleteFile, "WINPATH", "deletes the file if it is there"},
    {"set-attr", 2, 2, Once, cmd::setAttr, "WINPATH readonly|normal", "sets a file's attributes"},
    {"expect-msgbox", 2, 2, Retried, cmd::expectMsgbox, "CAPTION TEXT",
     "a message box CAPTION whose text holds TEXT"},
    {"press-msgbox", 1, 2, Retried, cmd::pressMsgbox, "BUTTON [CAPTION]",
     "click IDOK, IDCANCEL, IDYES, ... of a message box"},
    {"expect-exit", 2, 2, Once, cmd::expectExit, "PROGRAM.EXE MS", "the program ends within MS"},
    {"expect-listed", 2, 2, Retried, cmd::expectListed, "NAME TEXT", "a list box item is TEXT"},
    {"expect-titled", 1, 1, Retried, cmd::expectTitled, "TITLE", "a top-level window has TITLE"},
    {"restore-titled", 1, 1, Retried, cmd::restoreTitled, "TITLE", "restore and raise it"},
    {"clickat-titled", 3, 3, Retried, cmd::clickTitled, "TITLE X Y",
     "left click at X,Y pixels from the window's top left corner"},
    {"close-titled", 1, 1, Retried, cmd::closeTitled, "TITLE", "send it WM_CLOSE"},
    {"expect-running", 1, 1, Retried, cmd::expectRunning, "PROGRAM.EXE", "a process runs it"},
    {"sleep", 1, 1, Once, cmd::sleep, "MS", "wait MS milliseconds"},
    {"timeout", 1, 1, Once, cmd::timeout, "MS", "how long later steps keep trying"},
};

unsigned stepTimeout = 3000;

} // namespace

const Command* findCommand(const std::string& name) {
  for (const auto& command : kCommands)
    if (name == command.name) return &command;
  return nullptr;
}

void printCommands() {
  for (const auto& command : kCommands)
    std::printf("  %-20s %-26s %s\n", command.name, command.args, command.does);
  std::printf("  %-20s %-26s %s\n", "not", "COMMAND ARGS...", "the command fails (tried once)");
}

unsigned stepTimeoutMs() { return stepTimeout; }
void setStepTimeoutMs(unsigned ms) { stepTimeout = ms; }

bool parseNumber(const std::string& text, long* value) {
  if (text.empty()) return false;
  char* end = nullptr;
  *value = std::strtol(text.c_str(), &end, 0);
  return *end == '\0';
}

} // namespace drive
