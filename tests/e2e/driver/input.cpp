#include "tests/e2e/driver/input.h"

#include "tests/e2e/driver/named_window.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace drive {
namespace {

// The last click, so that two clicks on the same spot are not taken for a
// double click. It is kept in a file of the temp folder as well, because one
// case runs the driver several times.
POINT lastClick{-10000, -10000};
DWORD lastClickTime = 0;

std::string lastClickFile() {
  char folder[MAX_PATH] = {};
  ::GetTempPathA(sizeof folder, folder);
  return std::string(folder) + "tl99drive-click.txt";
}

void loadLastClick() {
  if (FILE* file = std::fopen(lastClickFile().c_str(), "r")) {
    long x = 0, y = 0;
    unsigned long tick = 0;
    if (std::fscanf(file, "%ld %ld %lu", &x, &y, &tick) == 3) {
      lastClick = {x, y};
      lastClickTime = tick;
    }
    std::fclose(file);
  }
}

void saveLastClick() {
  if (FILE* file = std::fopen(lastClickFile().c_str(), "w")) {
    std::fprintf(file, "%ld %ld %lu\n", lastClick.x, lastClick.y,
                 static_cast<unsigned long>(lastClickTime));
    std::fclose(file);
  }
}

void waitOutDoubleClick(POINT point) {
  loadLastClick();
  const int dx = std::abs(point.x - lastClick.x);
  const int dy = std::abs(point.y - lastClick.y);
  if (dx > ::GetSystemMetrics(SM_CXDOUBLECLK) || dy > ::GetSystemMetrics(SM_CYDOUBLECLK)) return;
  const DWORD elapsed = ::GetTickCount() - lastClickTime;
  const DWORD limit = ::GetDoubleClickTime() + 50;
  if (elapsed < limit) ::Sleep(limit - elapsed);
}

bool isSelfOrRelative(HWND target, HWND hit) {
  // The hit window may be the target, a child of it, or, when the target is
  // disabled, its parent: WindowFromPoint passes over disabled windows.
  return hit == target || ::IsChild(target, hit) || ::IsChild(hit, target);
}

struct NamedKey {
  const char* name;
  BYTE vk;
};

constexpr NamedKey kKeys[] = {
    {"Enter", VK_RETURN},  {"Esc", VK_ESCAPE},     {"Escape", VK_ESCAPE}, {"Tab", VK_TAB},
    {"Space", VK_SPACE},   {"Backspace", VK_BACK}, {"Delete", VK_DELETE}, {"Del", VK_DELETE},
    {"Insert", VK_INSERT}, {"Home", VK_HOME},      {"End", VK_END},       {"PageUp", VK_PRIOR},
    {"PageDown", VK_NEXT}, {"Up", VK_UP},          {"Down", VK_DOWN},     {"Left", VK_LEFT},
    {"Right", VK_RIGHT},   {"F1", VK_F1},          {"F2", VK_F2},         {"F3", VK_F3},
    {"F4", VK_F4},         {"F5", VK_F5},          {"F6", VK_F6},         {"F7", VK_F7},
    {"F8", VK_F8},         {"F9", VK_F9},          {"F10", VK_F10},       {"F11", VK_F11},
    {"F12", VK_F12},
};

bool isExtended(BYTE vk) {
  switch (vk) {
  case VK_INSERT:
  case VK_DELETE:
  case VK_HOME:
  case VK_END:
  case VK_PRIOR:
  case VK_NEXT:
  case VK_UP:
  case VK_DOWN:
  case VK_LEFT:
  case VK_RIGHT: return true;
  default: return false;
  }
}

void keyDown(BYTE vk) {
  const DWORD flags = isExtended(vk) ? KEYEVENTF_EXTENDEDKEY : 0;
  ::keybd_event(vk, static_cast<BYTE>(::MapVirtualKeyA(vk, 0)), flags, 0);
}

void keyUp(BYTE vk) {
  const DWORD flags = (isExtended(vk) ? KEYEVENTF_EXTENDEDKEY : 0) | KEYEVENTF_KEYUP;
  ::keybd_event(vk, static_cast<BYTE>(::MapVirtualKeyA(vk, 0)), flags, 0);
}

// Modifier bits as VkKeyScanA gives them in its high byte.
constexpr int kShift = 1, kCtrl = 2, kAlt = 4;

void strike(BYTE vk, int modifiers) {
  if (modifiers & kCtrl) keyDown(VK_CONTROL);
  if (modifiers & kAlt) keyDown(VK_MENU);
  if (modifiers & kShift) keyDown(VK_SHIFT);
  keyDown(vk);
  keyUp(vk);
  if (modifiers & kShift) keyUp(VK_SHIFT);
  if (modifiers & kAlt) keyUp(VK_MENU);
  if (modifiers & kCtrl) keyUp(VK_CONTROL);
}

bool sameName(const std::string& a, const char* b) { return ::lstrcmpiA(a.c_str(), b) == 0; }

} // namespace

Outcome clickAt(HWND target, POINT screen) {
  HWND hit = ::WindowFromPoint(screen);
  if (!isSelfOrRelative(target, hit))
    return fail(format("(%ld,%ld) is covered by %s", screen.x, screen.y, describe(hit).c_str()));
  waitOutDoubleClick(screen);
  ::SetCursorPos(screen.x, screen.y);
  ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
  lastClick = screen;
  lastClickTime = ::GetTickCount();
  saveLastClick();
  settle(target);
  return pass(format("at (%ld,%ld)", screen.x, screen.y));
}

Outcome clickWindow(HWND target) {
  RECT area{};
  ::GetWindowRect(target, &area);
  return clickAt(target, POINT{(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

bool strikeKey(const std::string& keys, std::string* error) {
  int modifiers = 0;
  std::string rest = keys;
  for (std::size_t plus; (plus = rest.find('+')) != std::string::npos && plus + 1 < rest.size();) {
    const std::string modifier = rest.substr(0, plus);
    if (sameName(modifier, "Shift"))
      modifiers |= kShift;
    else if (sameName(modifier, "Ctrl"))
      modifiers |= kCtrl;
    else if (sameName(modifier, "Alt"))
      modifiers |= kAlt;
    else {
      *error = "unknown modifier " + modifier;
      return false;
    }
    rest = rest.substr(plus + 1);
  }
  for (const auto& key : kKeys) {
    if (sameName(rest, key.name)) {
      strike(key.vk, modifiers);
      return true;
    }
  }
  if (rest.size() == 1 && std::isalnum(static_cast<unsigned char>(rest[0]))) {
    strike(static_cast<BYTE>(std::toupper(static_cast<unsigned char>(rest[0]))), modifiers);
    return true;
  }
  *error = "unknown key " + rest;
  return false;
}

void typeText(HWND focus, const std::string& text) {
  for (const char c : text) {
    const SHORT scan = ::VkKeyScanA(c);
    if (scan == -1) {
      // No key makes this character on the keyboard layout (under Xvfb, Wine
      // finds none for "(" and ")"): once the keys struck so far are taken,
      // hand the character itself to the focused window and wait for it.
      settle(focus);
      DWORD_PTR ignored = 0;
      ::SendMessageTimeoutA(focus, WM_CHAR, static_cast<unsigned char>(c), 1, SMTO_ABORTIFHUNG,
                            2000, &ignored);
      continue;
    }
    strike(static_cast<BYTE>(scan & 0xFF), (scan >> 8) & 0xFF);
  }
}

HWND focusOf(HWND window) {
  const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
  const DWORD self = ::GetCurrentThreadId();
  if (thread == 0 || thread == self) return ::GetFocus();
  // Sharing the other thread's input state for a moment lets GetFocus answer
  // for it.
  if (!::AttachThreadInput(self, thread, TRUE)) return nullptr;
  HWND focus = ::GetFocus();
  ::AttachThreadInput(self, thread, FALSE);
  return focus;
}

void settle(HWND window) {
  ::Sleep(50);
  ask(topLevelOf(window), WM_NULL);
}

} // namespace drive
