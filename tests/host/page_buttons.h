// Test helper: a page's Refresh or Apply picture button by its design name.
// The product reaches its buttons through pages::PageButtons only.
#pragma once

#include "frame/fmain.h"
#include "frame/page_table.h"

#include <gtest/gtest.h>

#include <string>

inline runtime::PictureBox& pageButton(const frame::FMain& fmain, const std::string& name) {
  for (const frame::PageRow& page : frame::kPages) {
    if (name == page.applyName) return *(fmain.pageButtons.*page.apply);
    if (name == page.refreshName) return *(fmain.pageButtons.*page.refresh);
  }
  ADD_FAILURE() << "no page button " << name;
  return *fmain.pageButtons.applyb;
}
