#include "pages/shell/access_restriction.h"

#include "sysaccess/ellreg.h"
#include "sysaccess/module1.h"

#include <array>
#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKU;

namespace {

constexpr const char* kPolicies =
    ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\";

// What a ticked box stores: four REG_BINARY bytes 00 00 00 20 ("00000020" when
// read), or, for NoDrives, the REG_DWORD 67108860 (drives C to Z hidden),
// whose text the registry layer cuts to "671".
enum class Stored { PolicyFlag, DriveMask };

struct Restriction {
  int index;
  const char* caption; // as the design has it, misspellings and blanks included
  const char* key;
  const char* value;
  Stored stored;
};

constexpr std::array<Restriction, 28> kRestrictions{{
    {0, "Disable Display Panel", "System", "NoDispCPL", Stored::PolicyFlag},
    {1, "Disable Background Page", "System", "NoDispBackgroundPage", Stored::PolicyFlag},
    {2, "Disable Screen Save Page", "System", "NoDispScrSavPage", Stored::PolicyFlag},
    {3, "Disable Appearance Page", "System", "NoDispAppearancePage", Stored::PolicyFlag},
    {4, "Disable Settings Page", "System", "NoDispSettingsPage", Stored::PolicyFlag},
    {6, "Disable User Profile Page", "System", "NoProfilePage", Stored::PolicyFlag},
    {7, "Disable Remote Administration Page", "System", "NoAdminPage", Stored::PolicyFlag},
    {8, "Disable Change Password Page", "System", "NoPwdPage", Stored::PolicyFlag},
    {9, "Disable Password Panel", "System", "NoSecCPL", Stored::PolicyFlag},
    {10, "Disable Device Manager Page", "System", "NoDevMgrPage", Stored::PolicyFlag},
    {11, "Disable Hardware Profile Page", "System", "NoConfigPage", Stored::PolicyFlag},
    {12, "Disable File System Settings", "System", "NoFileSysPage", Stored::PolicyFlag},
    {13, "Disable Vitual Memory Settings", "System", "NoVirtMemPage", Stored::PolicyFlag},
    {14, "Disable Print Sharing", "Network", "NoPrintSharingControl", Stored::PolicyFlag},
    {15, "Disable Addition Permission", "Explorer", "NoAddPrinter", Stored::PolicyFlag},
    {16, "Disable Deletion Permition", "Explorer", "NoDeletePrinter", Stored::PolicyFlag},
    {17, "Access Page", "Network", "NoNetSetupSecurityPage", Stored::PolicyFlag},
    {18, "Identification Page             ", "Network", "NoNetSetupIDPage", Stored::PolicyFlag},
    {19, "Disable Network Panel", "Network", "NoNetSetup", Stored::PolicyFlag},
    {21, "Disable File Sharing", "Network", "NoFileSharingControl", Stored::PolicyFlag},
    {22, "Hide HD Drives (exept A and B)", "Explorer", "NoDrives", Stored::DriveMask},
    {23, "Hide Workgroup Content", "Network", "NoWorkgroupContents", Stored::PolicyFlag},
    {24, "Hide Entire Network Selection", "Network", "NoEntireNetwork", Stored::PolicyFlag},
    {25, "Hide All Items on Desktop", "Explorer", "NoDesktop", Stored::PolicyFlag},
    {26, "Disable Shut Down Command", "Explorer", "NoClose", Stored::PolicyFlag},
    // "Disable MS-DOS Prompt" drives NoRealMode and "Disables Single-Mode
    // MS-DOS" drives Disabled: this pairing is the program's.
    {27, "Disable MS-DOS Prompt", "WinOldApp", "NoRealMode", Stored::PolicyFlag},
    {28, "Disables Single-Mode MS-DOS", "WinOldApp", "Disabled", Stored::PolicyFlag},
    {29, "Hide Common Program Groups", "Explorer", "NoCommonGroups", Stored::PolicyFlag},
}};

constexpr std::array<int, 28> kReadingOrder{0,  1,  2,  3,  4,  9,  8,  7,  6,  17, 18, 19, 15, 16,
                                            10, 11, 12, 13, 21, 14, 22, 23, 24, 25, 26, 27, 28, 29};

const std::string kPolicyFlag("\0\0\0\x20", 4);
constexpr const char* kPolicyFlagText = "00000020";
constexpr const char* kDriveMask = "67108860";
constexpr const char* kDriveMaskText = "671";

const Restriction& rowOf(int index) {
  for (const Restriction& row : kRestrictions)
    if (row.index == index) return row;
  raiseError(kSubscriptOutOfRange);
}

// The page's layout: group labels in two columns, the boxes under them.
struct Group {
  const char* label;
  int labelIndex; // Label25 ...
  const char* caption;
  int column;
  std::array<int, 8> boxes; // -1 ends the list
};
constexpr Group kGroups[] = {
    {"Label", 25, "Display Configuration Panel", 0, {0, 1, 3, 2, 4, -1}},
    {"Label", 28, "Net Configuration Panel", 0, {19, 18, 17, -1}},
    {"Label", 27, "System Configuration Panel", 0, {11, 10, 12, 13, -1}},
    {"Label", 30, "Network Sharing", 0, {21, 14, -1}},
    {"Label", 26, "Password Configuration Panel", 1, {9, 8, 7, 6, -1}},
    {"Label", 29, "Printers Panel ", 1, {15, 16, -1}},
    {"Label", 31, "Miscellaneous", 1, {22, 25, 24, 23, 26, 27, 28, 29}},
};
constexpr int kColumnLeft[2] = {120, 3180};
constexpr int kColumnWidth[2] = {2940, 3300};
constexpr int kFirstRow = 480, kRowHeight = 255, kGroupGap = 45;

} // namespace

AccessRestriction::AccessRestriction(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame& page = host.pageFrame(7);
  const Font heading{"MS Sans Serif", 8, true};
  for (int column = 0; column < 2; ++column) {
    int top = kFirstRow;
    for (const Group& group : kGroups) {
      if (group.column != column) continue;
      auto& label = form.add<Label>("Label" + std::to_string(group.labelIndex), -1, &page,
                                    {kColumnLeft[column], top, kColumnWidth[column], 255});
      label.setCaption(group.caption);
      label.setFont(heading);
      top += kRowHeight;
      for (const int index : group.boxes) {
        if (index < 0) break;
        net_check
            .add(form, index, &page,
                 {kColumnLeft[column] + 120, top, kColumnWidth[column] - 120, 255})
            .setCaption(rowOf(index).caption);
        top += kRowHeight;
      }
      top += kGroupGap;
    }
  }
  form.add<Line>("Line1", 4, &page, {3090, kFirstRow, 0, 4740});
  form.add<Line>("Line1", 5, &page, {3120, kFirstRow, 0, 4740});

  net_check.onClick = [&host](int) { host.buttons().app_b->setEnabled(true); };
  host.buttons().ref_b->onClick = [this] { ref_access(); };
  host.buttons().app_b->onClick = [this] { app_b_Click(); };
}

void AccessRestriction::ref_access() {
  for (const int index : kReadingOrder) {
    const Restriction& row = rowOf(index);
    const std::string text = host_.throughHidden(
        sysaccess::GetRegValue(HKU, std::string(kPolicies) + row.key, row.value));
    const char* ticked = row.stored == Stored::DriveMask ? kDriveMaskText : kPolicyFlagText;
    if (text == ticked) net_check(index).setValue(1);
    if (text != ticked) net_check(index).setValue(0);
  }
  host_.buttons().app_b->setEnabled(false);
}

void AccessRestriction::app_b_Click() {
  for (const Restriction& row : kRestrictions) {
    const std::string key = std::string(kPolicies) + row.key;
    const int value = net_check(row.index).value();
    if (value == 1) {
      if (row.stored == Stored::DriveMask)
        sysaccess::SetRegValue(HKU, key, row.value, sysaccess::kRegDword, std::string(kDriveMask));
      else
        sysaccess::SetRegValueEx(HKU, key, "", row.value, kPolicyFlag, sysaccess::kRegBinary);
    }
    if (value == 0) sysaccess::DelRegValue(HKU, key, row.value);
  }
  ref_access();
  host_.buttons().app_b->setEnabled(false);
}

} // namespace pages
