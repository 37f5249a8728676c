// The ten pages of the main form's tab strip: the frame each tab holds, its
// title, its Apply and Refresh picture buttons; the normal icon of tab t is
// Image2(2t), the highlighted one Image2(2t + 1).
#pragma once

#include <array>

namespace frame {

struct PageRow {
  int tab;
  int frame; // index in Frame4
  const char* title;
  const char* apply;
  const char* refresh;
};

inline constexpr std::array<PageRow, 10> kPages{{
    {0, 5, "Desktop && Explorer Settings", "applyb", "refreshb"},
    {1, 7, "Access Restriction Settings", "app_b", "ref_b"},
    {2, 4, "Registry Safety Settings", "refa", "ref_scan"},
    {3, 3, "OEM Info", "Oem_apply", "ref_oem"},
    {4, 2, "Troubleshooting", "ondAp", "ref_ond"},
    {5, 1, "Boot Options", "Dos_apply", "Dos_ref"},
    {6, 6, "InterNet Connection Settings", "ApplyM", "ref_mtu"},
    {7, 0, "Tracking Clearance", "Clear", "Ref_st"},
    {8, 8, "Software Componets Management", "ApplyUL", "RefUL"},
    {9, 9, "Security && Networking Settings", "start_apply", "start_refresh"},
}};

// The order in which the mouse-elsewhere routine restores the page buttons.
inline constexpr std::array<const char*, 20> kRestoreOrder{
    "ref_b", "app_b",    "ref_mtu",       "ApplyM",      "ref_oem", "Oem_apply", "ref_ond",
    "ondAp", "ref_scan", "refa",          "Ref_st",      "Clear",   "refreshb",  "applyb",
    "RefUL", "ApplyUL",  "start_refresh", "start_apply", "Dos_ref", "Dos_apply"};

// Page geometry, in twips relative to the tab strip.
inline constexpr int kFrameLeft = 120, kFrameTop = 60, kFrameWidth = 6435, kFrameHeight = 5475;
inline constexpr int kButtonTop = 5610, kButtonWidth = 1065, kButtonHeight = 450;
inline constexpr int kRefreshLeft = 4350, kApplyLeft = 5460;

} // namespace frame
