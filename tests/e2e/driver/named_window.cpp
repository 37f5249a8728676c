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

namespace {

// The windows named `name` below `parent`, or among all windows when
// `parent` is null.
std::vector<HWND> namedBelow(HWND parent, const std::string& name) {
  Search search{&name, {}};
  if (parent)
    ::EnumChildWindows(parent, collectChild, reinterpret_cast<LPARAM>(&search));
  else
    ::EnumWindows(collectTop, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

int depthOf(HWND window) {
  int depth = 0;
  for (HWND w = window; w && (::GetWindowLongA(w, GWL_STYLE) & WS_CHILD); w = ::GetParent(w))
    ++depth;
  return depth;
}

} // namespace

HWND findNamed(const std::string& path) {
  // "sl/knob(1)": each part is looked for below the windows the one before
  // it found.
  std::vector<HWND> found;
  std::size_t start = 0;
  bool first = true;
  while (true) {
    const std::size_t slash = path.find('/', start);
    const std::string part = path.substr(start, slash == std::string::npos ? slash : slash - start);
    std::vector<HWND> next;
    if (first) {
      next = namedBelow(nullptr, part);
    } else {
      for (HWND parent : found)
        for (HWND window : namedBelow(parent, part))
          next.push_back(window);
    }
    found = next;
    first = false;
    if (slash == std::string::npos || found.empty()) break;
    start = slash + 1;
  }
  // A visible window first; of several, the one nearest its top-level window
  // (a form's own Picture1 before the one inside a slider on it).
  HWND best = nullptr;
  for (HWND window : found) {
    if (!::IsWindowVisible(window)) continue;
    if (!best || depthOf(window) < depthOf(best)) best = window;
  }
  if (best) return best;
  return found.empty() ? nullptr : found.front();
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
