#include "tests/e2e/driver/remote_memory.h"

namespace drive {
namespace {

HANDLE openOwner(HWND window) {
  DWORD processId = 0;
  ::GetWindowThreadProcessId(window, &processId);
  return ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
}

} // namespace

// VirtualAllocEx is a failing stub on Windows 98 (there, a file mapping in
// the shared arena would serve); the driver only ever runs under Wine.
RemoteMemory::RemoteMemory(HWND window, std::size_t size) : process_(openOwner(window)) {
  if (process_.valid())
    address_ = ::VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT, PAGE_READWRITE);
}

RemoteMemory::~RemoteMemory() {
  if (address_) ::VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE);
}

bool RemoteMemory::write(const void* data, std::size_t size) {
  SIZE_T done = 0;
  return ::WriteProcessMemory(process_.get(), address_, data, size, &done) && done == size;
}

bool RemoteMemory::read(void* data, std::size_t size) const {
  SIZE_T done = 0;
  return ::ReadProcessMemory(process_.get(), address_, data, size, &done) && done == size;
}

} // namespace drive
