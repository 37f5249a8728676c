// Finding windows by the design name the program gives them: the window
// property "TL99.Name" holds a global atom whose name is the design name.
#pragma once

#include <windows.h>

#include <string>

namespace drive {

// The design name of a window, or "" when it has none.
std::string designName(HWND window);

// The window with that design name among all top-level windows and their
// descendants; a visible one is preferred, and of several the one nearest
// its top-level window. A path "sl/knob(1)" names a window below another:
// each part is looked for among the descendants of the windows the part
// before it found. Null when there is none.
HWND findNamed(const std::string& path);

// Text of a window of any process (WM_GETTEXT), and its class name.
std::string windowText(HWND window);
std::string className(HWND window);

// The top-level window that holds `window` (GetAncestor is not on 98).
HWND topLevelOf(HWND window);

// A short description for messages: design name, else class and text.
std::string describe(HWND window);

// Sends a message that carries no pointer; the answer, or -1 when the
// window's thread does not answer within two seconds.
LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

} // namespace drive
