// Mouse and keyboard input delivered as a user's: the cursor is moved and the
// button pressed, and keys are struck, through the system's input queue
// (SetCursorPos, mouse_event, keybd_event), so the program under test gets
// the same messages, in the same order, as from a person at the machine.
#pragma once

#include "tests/e2e/driver/outcome.h"

#include <windows.h>

#include <string>

namespace drive {

// Clicks the left button at a point on the screen that should fall on
// `target`. Fails, without clicking, when another window covers the point.
Outcome clickAt(HWND target, POINT screen);

// Clicks the middle of a window.
Outcome clickWindow(HWND target);

// Strikes one key given by name, with modifiers: "Enter", "Esc", "Tab",
// "Shift+Tab", "Alt+F4", "Ctrl+Home", "Down", "F1", "a". False, with the
// reason in *error, for a name it does not know.
bool strikeKey(const std::string& keys, std::string* error);

// Types text into `focus`, the window that has the keyboard focus.
void typeText(HWND focus, const std::string& text);

// The window that has the keyboard focus in `window`'s thread, or null.
// It shares that thread's input state for a moment, which can lose a shift
// key that thread has not yet taken: ask only when the input has settled.
HWND focusOf(HWND window);

// Returns when the thread of `window` has taken the input sent so far.
void settle(HWND window);

} // namespace drive
