// A block of memory inside another process, for the common-control messages
// that take a pointer: the system carries WM_GETTEXT and the list box
// messages across processes, but a tab control's TCM_ messages read and
// write the caller's pointer in the control's own address space.
#pragma once

#include "tests/e2e/driver/handles.h"

#include <windows.h>

#include <cstddef>

namespace drive {

class RemoteMemory {
public:
  // Memory in the process that owns `window`.
  RemoteMemory(HWND window, std::size_t size);
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory();

  bool valid() const { return address_ != nullptr; }
  LPARAM address() const { return reinterpret_cast<LPARAM>(address_); }
  bool write(const void* data, std::size_t size);
  bool read(void* data, std::size_t size) const;

private:
  OwnedHandle process_;
  void* address_ = nullptr;
};

} // namespace drive
