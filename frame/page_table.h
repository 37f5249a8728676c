// The ten pages of the main form's tab strip: the frame each tab holds, its
// title, its Apply and Refresh picture buttons; the normal icon of tab t is
// Image2(2t), the highlighted one Image2(2t + 1).
#pragma once

#include "pages/page_host.h"

#include <array>

namespace frame {

using ButtonSlot = runtime::PictureBox* pages::PageButtons::*;

struct PageRow {
  int tab;
  int frame; // index in Frame4
  const char* title;
  ButtonSlot apply;
  const char* applyName;
  ButtonSlot refresh;
  const char* refreshName;
};

#define TL99_BUTTON(name) &pages::PageButtons::name, #name
inline constexpr std::array<PageRow, 10> kPages{{
    {0, 5, "Desktop && Explorer Settings", TL99_BUTTON(applyb), TL99_BUTTON(refreshb)},
    {1, 7, "Access Restriction Settings", TL99_BUTTON(app_b), TL99_BUTTON(ref_b)},
    {2, 4, "Registry Safety Settings", TL99_BUTTON(refa), TL99_BUTTON(ref_scan)},
    {3, 3, "OEM Info", TL99_BUTTON(Oem_apply), TL99_BUTTON(ref_oem)},
    {4, 2, "Troubleshooting", TL99_BUTTON(ondAp), TL99_BUTTON(ref_ond)},
    {5, 1, "Boot Options", TL99_BUTTON(Dos_apply), TL99_BUTTON(Dos_ref)},
    {6, 6, "InterNet Connection Settings", TL99_BUTTON(ApplyM), TL99_BUTTON(ref_mtu)},
    {7, 0, "Tracking Clearance", TL99_BUTTON(Clear), TL99_BUTTON(Ref_st)},
    {8, 8, "Software Componets Management", TL99_BUTTON(ApplyUL), TL99_BUTTON(RefUL)},
    {9, 9, "Security && Networking Settings", TL99_BUTTON(start_apply), TL99_BUTTON(start_refresh)},
}};
#undef TL99_BUTTON

// The order in which the mouse-elsewhere routine restores the page buttons.
inline constexpr std::array<ButtonSlot, 20> kRestoreOrder{
    &pages::PageButtons::ref_b,         &pages::PageButtons::app_b,
    &pages::PageButtons::ref_mtu,       &pages::PageButtons::ApplyM,
    &pages::PageButtons::ref_oem,       &pages::PageButtons::Oem_apply,
    &pages::PageButtons::ref_ond,       &pages::PageButtons::ondAp,
    &pages::PageButtons::ref_scan,      &pages::PageButtons::refa,
    &pages::PageButtons::Ref_st,        &pages::PageButtons::Clear,
    &pages::PageButtons::refreshb,      &pages::PageButtons::applyb,
    &pages::PageButtons::RefUL,         &pages::PageButtons::ApplyUL,
    &pages::PageButtons::start_refresh, &pages::PageButtons::start_apply,
    &pages::PageButtons::Dos_ref,       &pages::PageButtons::Dos_apply};

// Page geometry, in twips relative to the tab strip.
inline constexpr int kFrameLeft = 120, kFrameTop = 60, kFrameWidth = 6435, kFrameHeight = 5475;
inline constexpr int kButtonTop = 5610, kButtonWidth = 1065, kButtonHeight = 450;
inline constexpr int kRefreshLeft = 4350, kApplyLeft = 5460;

} // namespace frame
