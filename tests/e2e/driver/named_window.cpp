#include "tests/e2e/driver/named_window.h"

#include <vector>

namespace drive {
namespace {

constexpr const char* kNameProperty = "TL99.Name";
constexpr UINT kAnswerTimeoutMs = 2000;

struct Search {
  const std::string* name;
  std::vector<HWND> found;
};

BOOL CALLBACK collectChild(HWND window, LPARAM lParam) {
  auto* search = reinterpret_cast<Search*>(lParam);
  if (designName(window) == *search->name) search->found.push_back(window);
  return TRUE;
}

BOOL CALLBACK collectTop(HWND window, LPARAM lParam) {
  collectChild(window, lParam);
  // EnumChildWindows walks every descendant, not only the direct children.
  ::EnumChildWindows(window, collectChild, lParam);
  return TRUE;
}

} // namespace

std::string designName(HWND window) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<UINT_PTR>(::GetPropA(window, kNameProperty)));
  if (atom == 0) return {};
  char name[256] = {};
  if (::GlobalGetAtomNameA(atom, name, sizeof name) == 0) return {};
  return name;
}

HWND findNamed(const std::string& name) {
  Search search{&name, {}};
  ::EnumWindows(collectTop, reinterpret_cast<LPARAM>(&search));
  for (HWND window : search.found)
    if (::IsWindowVisible(window)) return window;
  return search.found.empty() ? nullptr : search.found.front();
}

LRESULT ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  if (!::SendMessageTimeoutA(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerTimeoutMs,
                             &answer))
    return -1;
  return static_cast<LRESULT>(answer);
}

std::string windowText(HWND window) {
  // WM_GETTEXT rather than GetWindowTextA: for a window of another process
  // GetWindowTextA gives the caption the system keeps, not an edit's text.
  char text[4096] = {};
  DWORD_PTR length = 0;
  if (!::SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text),
                             SMTO_ABORTIFHUNG, kAnswerTimeoutMs, &length))
    return {};
  return std::string(text, length < sizeof text ? length : sizeof text - 1);
}

std::string className(HWND window) {
  char name[64] = {};
  ::GetClassNameA(window, name, sizeof name);
  return name;
}

HWND topLevelOf(HWND window) {
  while (window && (::GetWindowLongA(window, GWL_STYLE) & WS_CHILD)) {
    HWND parent = ::GetParent(window);
    if (!parent) break;
    window = parent;
  }
  return window;
}

std::string describe(HWND window) {
  if (!window) return "nothing";
  const std::string name = designName(window);
  if (!name.empty()) return name;
  return className(window) + " \"" + windowText(window) + "\"";
}

} // namespace drive
