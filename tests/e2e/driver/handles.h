// Owners for the kernel objects and registry keys the driver opens.
#pragma once

#include <windows.h>

namespace drive {

// A kernel handle; both null and INVALID_HANDLE_VALUE mean "none".
class OwnedHandle {
public:
  explicit OwnedHandle(HANDLE handle = nullptr) : handle_(handle) {}
  OwnedHandle(const OwnedHandle&) = delete;
  OwnedHandle& operator=(const OwnedHandle&) = delete;
  ~OwnedHandle() {
    if (valid()) ::CloseHandle(handle_);
  }
  bool valid() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

private:
  HANDLE handle_;
};

class OwnedKey {
public:
  OwnedKey() = default;
  OwnedKey(const OwnedKey&) = delete;
  OwnedKey& operator=(const OwnedKey&) = delete;
  ~OwnedKey() {
    if (key_) ::RegCloseKey(key_);
  }
  HKEY* out() { return &key_; }
  HKEY get() const { return key_; }

private:
  HKEY key_ = nullptr;
};

} // namespace drive
