// Owning wrappers for the GDI and USER handles the presentation creates.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

namespace runtime::win32 {

// Owns one GDI object (bitmap, font, brush, region) and deletes it.
template <class Handle> class GdiObject {
public:
  GdiObject() = default;
  explicit GdiObject(Handle handle) : handle_(handle) {}
  GdiObject(const GdiObject&) = delete;
  GdiObject& operator=(const GdiObject&) = delete;
  GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    if (this != &other) reset(std::exchange(other.handle_, nullptr));
    return *this;
  }
  ~GdiObject() { reset(); }

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  // Gives up ownership, for a call that takes the object over (SetWindowRgn).
  Handle release() { return std::exchange(handle_, nullptr); }
  void reset(Handle handle = nullptr) {
    if (handle_) ::DeleteObject(handle_);
    handle_ = handle;
  }

private:
  Handle handle_ = nullptr;
};

using Bitmap = GdiObject<HBITMAP>;
using FontHandle = GdiObject<HFONT>;
using Brush = GdiObject<HBRUSH>;
using Region = GdiObject<HRGN>;

// A memory DC with one bitmap selected, restored on destruction.
class MemoryDc {
public:
  MemoryDc(HDC compatible, HBITMAP bitmap)
      : dc_(::CreateCompatibleDC(compatible)), old_(::SelectObject(dc_, bitmap)) {}
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;
  ~MemoryDc() {
    ::SelectObject(dc_, old_);
    ::DeleteDC(dc_);
  }
  HDC get() const { return dc_; }

private:
  HDC dc_;
  HGDIOBJ old_;
};

// BeginPaint and EndPaint.
class PaintScope {
public:
  explicit PaintScope(HWND window) : window_(window) { dc_ = ::BeginPaint(window, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  ~PaintScope() { ::EndPaint(window_, &paint_); }
  HDC dc() const { return dc_; }

private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

// Owns an image list.
class ImageListHandle {
public:
  ImageListHandle() = default;
  explicit ImageListHandle(HIMAGELIST list) : list_(list) {}
  ImageListHandle(const ImageListHandle&) = delete;
  ImageListHandle& operator=(const ImageListHandle&) = delete;
  ~ImageListHandle();
  HIMAGELIST get() const { return list_; }
  void reset(HIMAGELIST list);

private:
  HIMAGELIST list_ = nullptr;
};

} // namespace runtime::win32
