#include "runtime/win32/name_tag.h"

namespace runtime::win32 {

NameTag::NameTag(HWND window, const std::string& designName)
    : window_(window), atom_(::GlobalAddAtomA(designName.c_str())) {
  ::SetPropA(window_, kNameProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom_)));
}

NameTag::~NameTag() {
  if (::IsWindow(window_)) ::RemovePropA(window_, kNameProperty);
  if (atom_) ::GlobalDeleteAtom(atom_);
}

std::string nameOf(HWND window) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<UINT_PTR>(::GetPropA(window, kNameProperty)));
  if (!atom) return "";
  char name[256] = {};
  ::GlobalGetAtomNameA(atom, name, sizeof name);
  return name;
}

} // namespace runtime::win32
