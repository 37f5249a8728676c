// The Tracking Clearance page (tab 7, Frame4(0)): eleven recently-used lists
// to wipe (registry keys, the recent folder, the temporary folder), the
// document-history policy, seven Start Menu restrictions, ten special folders
// in the Start Menu and the Start Menu delay. Clear is its Apply button,
// Ref_st its Refresh button.
#pragma once

#include "controls/veld_slider.h"
#include "pages/page_host.h"
#include "runtime/control_array.h"

namespace pages {

class TrackingClearance {
public:
  explicit TrackingClearance(PageHost& host);
  TrackingClearance(const TrackingClearance&) = delete;
  TrackingClearance& operator=(const TrackingClearance&) = delete;

  // Left column, in Frame4(0).
  runtime::ControlArray<runtime::CheckBox> List{"List"}; // 0 to 10
  runtime::CheckBox* noHistory = nullptr;
  runtime::CheckBox* SMDS = nullptr;
  runtime::TextBox* Text2 = nullptr; // the slider's legend
  // Right column, on the tab itself beside the frame.
  runtime::ControlArray<runtime::CheckBox> stmenu_add{"stmenu_add"}; // 0 to 9
  runtime::ControlArray<runtime::CheckBox> st_m{"st_m"};             // 0 to 6

  // Reads every setting into the controls and disarms Clear.
  void ref_tracking();
  void Clear_Click();
  void Ref_st_Click();

private:
  void List_Click();
  void SMDS_Click();
  PageHost& host_;

public:
  controls::VeldSlider menu_delay_slider;
};

} // namespace pages
