// Windows 98 has only failing stubs for the wide-character functions that the
// static MinGW runtime imports: CreateSemaphoreW (libgcc's mutex set-up, run
// at start-up and at the first throw), GetModuleHandleW (CRT helpers) and
// LoadLibraryW (rand_s). This object defines those symbols, and their import
// pointers, as forwarders to the ANSI functions, so the linker never pulls
// the import-library members and the exe imports only working calls. It is
// linked as a plain object, ahead of the libraries.
#include <windows.h>

namespace {

// The ANSI form of a wide name; names these callers pass are plain ASCII.
class NarrowName {
public:
  explicit NarrowName(const wchar_t* wide) {
    if (!wide) return;
    if (!::WideCharToMultiByte(CP_ACP, 0, wide, -1, text_, sizeof text_, nullptr, nullptr))
      text_[0] = '\0';
    valid_ = true;
  }
  const char* get() const { return valid_ ? text_ : nullptr; }

private:
  char text_[MAX_PATH] = {};
  bool valid_ = false;
};

} // namespace

// The forwarders, under the decorated names of the imports they replace.
extern "C" {
HANDLE WINAPI createSemaphore(LPSECURITY_ATTRIBUTES attributes, LONG initial, LONG maximum,
                              LPCWSTR name) __asm__("_CreateSemaphoreW@16");
HMODULE WINAPI getModuleHandle(LPCWSTR name) __asm__("_GetModuleHandleW@4");
HMODULE WINAPI loadLibrary(LPCWSTR name) __asm__("_LoadLibraryW@4");
}

extern "C" HANDLE WINAPI createSemaphore(LPSECURITY_ATTRIBUTES attributes, LONG initial,
                                         LONG maximum, LPCWSTR name) {
  return ::CreateSemaphoreA(attributes, initial, maximum, NarrowName(name).get());
}

extern "C" HMODULE WINAPI getModuleHandle(LPCWSTR name) {
  return ::GetModuleHandleA(NarrowName(name).get());
}

extern "C" HMODULE WINAPI loadLibrary(LPCWSTR name) {
  return ::LoadLibraryA(NarrowName(name).get());
}

// The import pointers that code compiled with dllimport calls through.
extern "C" {
void* shimCreateSemaphoreW __asm__("__imp__CreateSemaphoreW@16") =
    reinterpret_cast<void*>(&createSemaphore);
void* shimGetModuleHandleW __asm__("__imp__GetModuleHandleW@4") =
    reinterpret_cast<void*>(&getModuleHandle);
void* shimLoadLibraryW __asm__("__imp__LoadLibraryW@4") = reinterpret_cast<void*>(&loadLibrary);
}
