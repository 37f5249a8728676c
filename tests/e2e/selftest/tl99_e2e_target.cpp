// The end-to-end harness's target: one window, "Target", holding a check box,
// buttons, an edit, a label, a list box and a tab control, each named through
// the TL99.Name property the way the program names its controls.
//
//   check1   enables button1
//   button1  writes HKCU\Software\TL99E2E and C:\TL99E2E\out.txt
//   fail1    shows the failure box, then ends the program
//   edit1    Enter copies its text into label1
//   list1    three items, each click toggles one
//   tabs1    three tabs; the selected one shows picture 1 and its page
//   Esc      ends the program
//
// It removes what button1 writes when it starts.
#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace {

constexpr const char* kNameProperty = "TL99.Name";
constexpr const char* kKey = "Software\\TL99E2E";
constexpr const char* kFolder = "C:\\TL99E2E";
constexpr const char* kFile = "C:\\TL99E2E\\out.txt";
constexpr int kPages = 3;

enum ControlId { kCheck = 101, kWrite, kFail, kEdit, kLabel, kList, kTabs };

struct Controls {
  HWND main, check, write, fail, edit, label, list, tabs;
  HWND pages[kPages];
} ui;

std::vector<ATOM> atoms; // deleted again when the program ends

void name(HWND window, const char* designName) {
  const ATOM atom = ::GlobalAddAtomA(designName);
  atoms.push_back(atom);
  ::SetPropA(window, kNameProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom)));
}

BOOL CALLBACK unname(HWND window, LPARAM) {
  ::RemovePropA(window, kNameProperty);
  return TRUE;
}

void unnameAll(HWND window) {
  unname(window, 0);
  ::EnumChildWindows(window, unname, 0);
  for (const ATOM atom : atoms)
    ::GlobalDeleteAtom(atom);
  atoms.clear();
}

HWND child(HWND parent, const char* cls, const char* text, DWORD style, int x, int y, int w, int h,
           int id, const char* designName) {
  HWND window = ::CreateWindowExA(0, cls, text, WS_CHILD | WS_VISIBLE | style, x, y, w, h, parent,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                                  ::GetModuleHandleA(nullptr), nullptr);
  ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
  name(window, designName);
  return window;
}

std::string textOf(HWND window) {
  char text[512] = {};
  ::GetWindowTextA(window, text, sizeof text);
  return text;
}

class Key {
public:
  Key(HKEY root, const char* path) { ::RegCreateKeyA(root, path, &key_); }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_) ::RegCloseKey(key_);
  }
  void set(const char* value, DWORD type, const void* data, DWORD size) {
    ::RegSetValueExA(key_, value, 0, type, static_cast<const BYTE*>(data), size);
  }

private:
  HKEY key_ = nullptr;
};

void writeResults() {
  const std::string typed = textOf(ui.edit);
  {
    Key key(HKEY_CURRENT_USER, kKey);
    const BYTE clicked[] = {0x00, 0x00, 0x00, 0x20};
    const DWORD count = 67108860;
    key.set("Clicked", REG_BINARY, clicked, sizeof clicked);
    key.set("Typed", REG_SZ, typed.c_str(), static_cast<DWORD>(typed.size() + 1));
    key.set("Count", REG_DWORD, &count, sizeof count);
  }
  ::CreateDirectoryA(kFolder, nullptr);
  const std::string content = "Written by the e2e target\r\nTyped: " + typed + "\r\n";
  HANDLE file = ::CreateFileA(kFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    DWORD written = 0;
    ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    ::CloseHandle(file);
  }
  ::SetWindowTextA(ui.label, "Written");
}

void removeResults() {
  ::RegDeleteKeyA(HKEY_CURRENT_USER, kKey);
  ::DeleteFileA(kFile);
  ::RemoveDirectoryA(kFolder);
}

void showTab(int selected) {
  for (int i = 0; i < kPages; ++i) {
    TCITEMA item{};
    item.mask = TCIF_IMAGE;
    item.iImage = i == selected ? 1 : 0;
    ::SendMessageA(ui.tabs, TCM_SETITEMA, i, reinterpret_cast<LPARAM>(&item));
    ::ShowWindow(ui.pages[i], i == selected ? SW_SHOW : SW_HIDE);
  }
}

void createTabs(HWND parent) {
  ui.tabs = child(parent, WC_TABCONTROLA, "", WS_CLIPSIBLINGS, 10, 150, 410, 130, kTabs, "tabs1");
  HIMAGELIST images = ::ImageList_Create(16, 16, ILC_COLOR8 | ILC_MASK, 2, 0);
  ::ImageList_AddIcon(images, ::LoadIconA(nullptr, IDI_APPLICATION));
  ::ImageList_AddIcon(images, ::LoadIconA(nullptr, IDI_EXCLAMATION));
  ::SendMessageA(ui.tabs, TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
  const char* titles[kPages] = {"One", "Two", "Three"};
  const char* pageNames[kPages] = {"page0", "page1", "page2"};
  const char* pageTexts[kPages] = {"The first page", "The second page", "The third page"};
  for (int i = 0; i < kPages; ++i) {
    TCITEMA item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = const_cast<char*>(titles[i]);
    ::SendMessageA(ui.tabs, TCM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
  }
  RECT area{0, 0, 410, 130};
  ::SendMessageA(ui.tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  for (int i = 0; i < kPages; ++i)
    ui.pages[i] = child(ui.tabs, "STATIC", pageTexts[i], 0, area.left + 8, area.top + 8,
                        area.right - area.left - 16, 20, 0, pageNames[i]);
  showTab(0);
}

void createControls(HWND parent) {
  ui.check = child(parent, "BUTTON", "Enable Write", BS_AUTOCHECKBOX | WS_TABSTOP, 10, 10, 200, 22,
                   kCheck, "check1");
  ui.write = child(parent, "BUTTON", "Write", BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, 220, 10, 90,
                   24, kWrite, "button1");
  ui.fail =
      child(parent, "BUTTON", "Fail", BS_PUSHBUTTON | WS_TABSTOP, 320, 10, 90, 24, kFail, "fail1");
  ui.edit = child(parent, "EDIT", "", WS_BORDER | ES_AUTOHSCROLL | WS_TABSTOP, 10, 44, 200, 22,
                  kEdit, "edit1");
  ui.label = child(parent, "STATIC", "Nothing typed", 0, 220, 46, 200, 20, kLabel, "label1");
  ui.list = child(parent, "LISTBOX", "", WS_BORDER | WS_VSCROLL | LBS_MULTIPLESEL | LBS_NOTIFY, 10,
                  76, 200, 64, kList, "list1");
  for (const char* item : {"Alpha", "Beta", "Gamma"})
    ::SendMessageA(ui.list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
  createTabs(parent);
}

void fail() {
  ::MessageBoxA(ui.main, "Run-time error '5':\n\nInvalid procedure call or argument",
                "Tweakloom 99", MB_OK | MB_ICONEXCLAMATION);
  ::DestroyWindow(ui.main);
}

LRESULT CALLBACK mainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_COMMAND:
    if (HIWORD(wParam) != BN_CLICKED) break;
    if (LOWORD(wParam) == kCheck)
      ::EnableWindow(ui.write, ::SendMessageA(ui.check, BM_GETCHECK, 0, 0) == BST_CHECKED);
    if (LOWORD(wParam) == kWrite) writeResults();
    if (LOWORD(wParam) == kFail) fail();
    return 0;
  case WM_NOTIFY: {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->hwndFrom == ui.tabs && header->code == TCN_SELCHANGE)
      showTab(static_cast<int>(::SendMessageA(ui.tabs, TCM_GETCURSEL, 0, 0)));
    return 0;
  }
  case WM_DESTROY:
    unnameAll(window);
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcA(window, message, wParam, lParam);
}

// Keys the window takes before the control with the focus sees them.
bool handleKey(const MSG& msg) {
  if (msg.message != WM_KEYDOWN) return false;
  if (msg.wParam == VK_ESCAPE) {
    ::DestroyWindow(ui.main);
    return true;
  }
  if (msg.wParam == VK_RETURN && msg.hwnd == ui.edit) {
    ::SetWindowTextA(ui.label, ("Typed: " + textOf(ui.edit)).c_str());
    return true;
  }
  return false;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
  ::InitCommonControls();
  removeResults();
  WNDCLASSA cls{};
  cls.lpfnWndProc = mainProc;
  cls.hInstance = instance;
  cls.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
  cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  cls.lpszClassName = "TL99E2ETarget";
  ::RegisterClassA(&cls);
  ui.main = ::CreateWindowExA(0, cls.lpszClassName, "E2E Target", WS_OVERLAPPEDWINDOW, 40, 40, 440,
                              330, nullptr, nullptr, instance, nullptr);
  name(ui.main, "Target");
  createControls(ui.main);
  ::ShowWindow(ui.main, show);
  ::UpdateWindow(ui.main);
  MSG msg;
  while (::GetMessageA(&msg, nullptr, 0, 0) > 0) {
    if (handleKey(msg)) continue;
    ::TranslateMessage(&msg);
    ::DispatchMessageA(&msg);
  }
  return 0;
}
