// What a page needs of the main form it lives on: the form and the page's
// frame, the Apply and Refresh picture buttons of every page (a page's change
// handlers may arm another page's Apply button), the form-level fields the
// pages share, the text normaliser, the Windows directory and the control
// array Check2 that two pages share.
#pragma once

#include "runtime/control_array.h"
#include "runtime/form.h"
#include "runtime/value.h"

#include <cstdint>
#include <string>

namespace pages {

// The ten pages' picture buttons, by design name.
struct PageButtons {
  runtime::PictureBox* applyb = nullptr; // Desktop & Explorer
  runtime::PictureBox* refreshb = nullptr;
  runtime::PictureBox* app_b = nullptr; // Access Restriction
  runtime::PictureBox* ref_b = nullptr;
  runtime::PictureBox* refa = nullptr; // Registry Safety
  runtime::PictureBox* ref_scan = nullptr;
  runtime::PictureBox* Oem_apply = nullptr; // OEM Info
  runtime::PictureBox* ref_oem = nullptr;
  runtime::PictureBox* ondAp = nullptr; // Troubleshooting
  runtime::PictureBox* ref_ond = nullptr;
  runtime::PictureBox* Dos_apply = nullptr; // Boot Options
  runtime::PictureBox* Dos_ref = nullptr;
  runtime::PictureBox* ApplyM = nullptr; // Internet Connection
  runtime::PictureBox* ref_mtu = nullptr;
  runtime::PictureBox* Clear = nullptr; // Tracking Clearance
  runtime::PictureBox* Ref_st = nullptr;
  runtime::PictureBox* ApplyUL = nullptr; // Software Components
  runtime::PictureBox* RefUL = nullptr;
  runtime::PictureBox* start_apply = nullptr; // Security & Networking
  runtime::PictureBox* start_refresh = nullptr;
};

// The form-level fields of FMain that pages read and set.
struct FormFields {
  std::string boot_drive;             // drive of msdos.sys, "c:" at load
  std::string windir;                 // Windows directory, no trailing backslash
  runtime::Value clock_focus_armed;   // Desktop page, Check14
  runtime::Value mtu_option;          // Internet page, the MTU option in force
  std::int16_t net_sec_ready = 0;     // Security page: 5 once ref_net_sec has run
  std::int16_t mss_value = 0;         // Internet page
  std::int32_t run_count_machine = 0; // Software page: Run entries of HKLM
  std::int32_t run_count_user = 0;    // ... and of HKCU
};

class PageHost {
public:
  virtual ~PageHost() = default;
  virtual runtime::Form& mainForm() = 0;
  virtual runtime::Frame& pageFrame(int frameIndex) = 0;
  virtual PageButtons& buttons() = 0;
  virtual FormFields& fields() = 0;
  // The hidden text box; throughHidden is its store-and-read-back round trip:
  // the value as text, cut at its first NUL.
  virtual runtime::TextBox& Hidden() = 0;
  virtual std::string throughHidden(const runtime::Value& value) = 0;
  // The Windows directory, without a trailing backslash.
  virtual const std::string& windowsDirectory() const = 0;
  // Check2(0..14) stand on the Desktop page, Check2(15..20) on the
  // Troubleshooting page; the frame gives the array its one Click handler.
  virtual runtime::ControlArray<runtime::CheckBox>& Check2() = 0;
};

} // namespace pages
