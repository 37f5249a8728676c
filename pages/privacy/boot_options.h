// The Boot Options page (tab 5, Frame4(1)): the [Options] section of
// msdos.sys, the [vcache] section of system.ini on the two-knob slider `sl`,
// and the registry value DontDisplayLastUserName. Both files are read and
// written through the profile interface only; no file attribute is touched.
// The memory group Frame6 on this page belongs to the frame.
#pragma once

#include "controls/veld_slider.h"
#include "pages/page_host.h"
#include "runtime/control_array.h"

#include <string>

namespace pages {

class BootOptions {
public:
  explicit BootOptions(PageHost& host);
  BootOptions(const BootOptions&) = delete;
  BootOptions& operator=(const BootOptions&) = delete;

  // Reads system.ini, finds msdos.sys on c: to h:, reads it and the
  // registry into the controls, and disarms Dos_apply.
  void ref_boot();
  void Dos_ref_Click();
  // Writes all eighteen settings, changed or not, then reads them back.
  void Dos_apply_Click();
  void dos_opt_Click(int index);
  void cache_op_Click(int index);

private:
  PageHost& host_;

public:
  controls::VeldSlider sl;
  runtime::ControlArray<runtime::CheckBox> dos_opt{"dos_opt"};
  runtime::ControlArray<runtime::OptionButton> cache_op{"cache_op"};
  runtime::ControlArray<runtime::Label> Label39{"Label39"};
  runtime::ControlArray<runtime::TextBox> Text1{"Text1"}; // legends only
  runtime::Label* Label36 = nullptr;
  runtime::Label* Label37 = nullptr;
};

} // namespace pages
