// The automation name of a window: the window property "TL99.Name" holding a
// global atom with the control's design name ("net_check(3)", "FMain"). Tests
// and automation find controls only through it. The atom and the property go
// when the tag does.
#pragma once

#include <windows.h>

#include <string>

namespace runtime::win32 {

inline constexpr char kNameProperty[] = "TL99.Name";

class NameTag {
public:
  NameTag(HWND window, const std::string& designName);
  NameTag(const NameTag&) = delete;
  NameTag& operator=(const NameTag&) = delete;
  ~NameTag();

private:
  HWND window_;
  ATOM atom_;
};

// The design name a window carries, or "" when it has none.
std::string nameOf(HWND window);

} // namespace runtime::win32
