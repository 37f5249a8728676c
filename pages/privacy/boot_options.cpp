#include "pages/privacy/boot_options.h"

#include "platform/platform.h"
#include "runtime/basic_error.h"
#include "runtime/value.h"
#include "sysaccess/ellreg.h"
#include "sysaccess/system_helpers.h"

#include <array>
#include <functional>
#include <string_view>

namespace pages {

using namespace runtime;

namespace {

constexpr const char* kWinlogon = "Software\\Microsoft\\Windows\\CurrentVersion\\Winlogon";
constexpr const char* kDontDisplayLastUserName = "DontDisplayLastUserName";
constexpr const char* kOptions = "Options";
constexpr const char* kVcache = "vcache";
constexpr const char* kSystemReg = "SystemReg";

// One row of the page, in the order Apply writes them. The first row is the
// registry value, whose tick hides the last user's name at logon although
// its caption says the opposite; reader and writer agree with each other.
struct DosRow {
  int index;
  const char* caption;
  const char* key; // in [Options] of msdos.sys; null for the registry row
};
constexpr std::array<DosRow, 16> kDosRows{{
    {16, "Display Last Username", nullptr},
    {13, "Load Registry Modules", kSystemReg},
    {0, "Load DoubleSpace Driver", "DblSpace"},
    {5, "Load DriveSpacem Driver", "DrvSpace"},
    {7, "Boot into GUI", "BootGUI"},
    {8, "Multi-Booting", "BootMulti"},
    {2, "Boot Keys", "BootKeys"},
    {1, "Boot Delay Enabled", "BootDelay"},
    {10, "Display Boot Menu", "BootMenu"},
    {14, "Display Boot Logo", "Logo"},
    {12, "Double Buffering", "DoubleBuffer"},
    {11, "Autoscan", "AutoScan"},
    {9, "Use High RAM", "LoadTop"},
    {4, "Boot into Windows", "BootWin"},
    {6, "Auto Safe Mode", "BootSafe"},
    {3, "Safe Mode Warning", "BootWarn"},
}};
// dos_opt(15) has no key: reading and writing pass it by, and its only
// effect is to arm Dos_apply.
constexpr int kNoStacks = 15;
constexpr const char* kNoStacksCaption = "Do not Use Stacks";
constexpr int kDosOptCount = 17;

// The cache schemes: what a click puts into the slider, and whether the
// slider stays unlocked.
struct CacheScheme {
  const char* caption;
  bool setsSizes;
  std::int16_t min, max;
  bool unlocks;
};
constexpr std::array<CacheScheme, 6> kCacheSchemes{{
    {"Custom Settings", false, 0, 0, true},
    {"Low", true, 1024, 2048, false},
    {"Normal", true, 2048, 4096, false},
    {"High", true, 4096, 4096, false},
    {"CD-Writer System", true, 2048, 2048, false},
    {"Game Machine", true, 0, 2048, false},
}};

// The drives searched after the start value, in their fixed order; "c:" is
// only ever the start value.
constexpr std::array<const char*, 5> kLaterDrives{{"d:", "e:", "f:", "g:", "h:"}};
constexpr const char* kNoDrive = "none";

constexpr const char* kNotice =
    "Certain System Information Cannot be Found. This Page will Remain Dissabled.";

// Layout in twips inside the page frame. The check boxes stand in two
// columns above the slider; the cache schemes lie left of the memory group
// Frame6 (3360, 3720), which the slider ends just above.
constexpr int kFirstRow = 450, kRowHeight = 225, kRowsInFirstColumn = 9;
constexpr runtime::Bounds kColumn[2] = {{120, 0, 2520, 225}, {3240, 0, 3000, 225}};
constexpr runtime::Bounds kSlider = {2700, 2445, controls::kSliderWidth, controls::kTwoStripHeight};
constexpr runtime::Bounds kLegend[2] = {{120, 2610, 2460, 285}, {120, 3270, 2460, 285}};
constexpr const char* kLegendText[2] = {"Minimum Cache Size", "Maximum Cache Size"};
constexpr runtime::Bounds kLabel37 = {120, 3780, 3120, 255};
constexpr int kSchemeTop = 4050, kSchemeRow = 270;
constexpr int kSchemeLeft[2] = {240, 1800};
constexpr int kSchemeWidth = 1500;
constexpr runtime::Bounds kLabel36 = {120, 4920, 3120, 255};
constexpr runtime::Bounds kNoticeBounds = {240, 1080, 5940, 735};
constexpr int kShadowOffset = 10;
constexpr std::uint32_t kNoticeRed = 255;
constexpr std::uint32_t kNoticeShadow = 0x80000001u;

const char* captionOf(int index) {
  if (index == kNoStacks) return kNoStacksCaption;
  for (const DosRow& row : kDosRows)
    if (row.index == index) return row.caption;
  return "";
}

// An If statement under "resume next": a condition that raises an error
// resumes at the next statement, which is the If's own body.
void ifResumingNext(ResumeNext& resume, const std::function<bool()>& condition,
                    const std::function<void()>& body) {
  bool holds = true;
  resume([&] { holds = condition(); });
  if (holds) resume(body);
}

void write(const char* section, const char* key, const std::string& value,
           const std::string& file) {
  // The result is not looked at: a refused write (a read-only msdos.sys)
  // shows only in the next read.
  platform::WritePrivateProfileStringA(section, key, value.c_str(), file.c_str());
}

} // namespace

BootOptions::BootOptions(PageHost& host)
    : host_(host), sl(host.mainForm(), "sl", &host.pageFrame(1), kSlider, {.display_status = 1}) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(1);

  // The notice first, the red copy over its shadow; both start invisible.
  for (int i : {1, 0}) {
    Label& notice = Label39.add(form, i, page, kNoticeBounds);
    notice.setCaption(kNotice);
    notice.setTransparent(true);
    notice.setFont({"MS Sans Serif", 10, true});
    notice.setForeColor(i == 0 ? kNoticeRed : kNoticeShadow);
    notice.setVisible(false);
  }
  for (int index = 0; index < kDosOptCount; ++index) {
    const int column = index < kRowsInFirstColumn ? 0 : 1;
    const int row = column == 0 ? index : index - kRowsInFirstColumn;
    runtime::Bounds bounds = kColumn[column];
    bounds.top = kFirstRow + row * kRowHeight;
    dos_opt.add(form, index, page, bounds).setCaption(captionOf(index));
  }
  for (int i : {0, 1})
    Text1.add(form, i, page, kLegend[i]).setText(kLegendText[i]);
  Label37 = &form.add<Label>("Label37", -1, page, kLabel37);
  Label37->setCaption("Cache Schemes");
  for (int i = 0; i < static_cast<int>(kCacheSchemes.size()); ++i) {
    cache_op
        .add(form, i, page,
             {kSchemeLeft[i / 3], kSchemeTop + (i % 3) * kSchemeRow, kSchemeWidth, 255})
        .setCaption(kCacheSchemes[static_cast<std::size_t>(i)].caption);
  }
  Label36 = &form.add<Label>("Label36", -1, page, kLabel36);

  dos_opt.onClick = [this](int index) { dos_opt_Click(index); };
  cache_op.onClick = [this](int index) { cache_op_Click(index); };
  host.buttons().Dos_ref->onClick = [this] { Dos_ref_Click(); };
  host.buttons().Dos_apply->onClick = [this] { Dos_apply_Click(); };
}

void BootOptions::dos_opt_Click(int) { host_.buttons().Dos_apply->setEnabled(true); }

void BootOptions::cache_op_Click(int index) {
  const CacheScheme& scheme = kCacheSchemes.at(static_cast<std::size_t>(index));
  if (scheme.setsSizes) {
    sl.setMin(scheme.min);
    sl.setMax(scheme.max);
  }
  sl.setEnabled(scheme.unlocks);
  host_.buttons().Dos_apply->setEnabled(true);
}

void BootOptions::Dos_ref_Click() {
  sl.setEnabled(false);
  for (int i = 0; i < static_cast<int>(kCacheSchemes.size()); ++i)
    cache_op(i).setValue(false);
  ref_boot();
}

void BootOptions::ref_boot() {
  std::string& boot_drive = host_.fields().boot_drive;
  const std::string systemIni = host_.windowsDirectory() + "\\system.ini";

  // A cache size of 32768 or more overflows here, before errors are ignored.
  std::string text = sysaccess::GetFromINI(kVcache, "MinFileCache", systemIni);
  sl.setMin(toInteger(Val(text)));
  text = sysaccess::GetFromINI(kVcache, "MaxFileCache", systemIni);
  sl.setMax(toInteger(Val(text)));

  bool found = sysaccess::FileExists(boot_drive + "\\msdos.sys");
  for (const char* drive : kLaterDrives) {
    if (found) break;
    boot_drive = drive;
    found = sysaccess::FileExists(boot_drive + "\\msdos.sys");
  }
  if (!found) {
    // Nothing brings these back during the run, not even a later read that
    // finds the file.
    boot_drive = kNoDrive;
    for (int i = 0; i < kDosOptCount; ++i)
      dos_opt(i).setVisible(false);
    Label39(0).setVisible(true);
    Label39(1).setVisible(true);
    Label39(0).move(Label39(1).left() - kShadowOffset, Label39(1).top() - kShadowOffset,
                    Label39(0).width(), Label39(0).height());
    sl.setEnabled(false);
    Label36->setEnabled(false);
    for (int i = 0; i < static_cast<int>(kCacheSchemes.size()); ++i)
      cache_op(i).setEnabled(false);
  }
  const std::string msdosSys = boot_drive + "\\msdos.sys";
  // Without the file the working text still holds MaxFileCache.
  if (found) text = sysaccess::GetFromINI(kOptions, kSystemReg, msdosSys);

  ResumeNext resume;
  for (const DosRow& row : kDosRows) {
    if (!row.key) continue; // the registry row is read last
    // SystemReg's text is the one read above; every other key is read afresh,
    // from "none\msdos.sys" too.
    if (std::string_view(row.key) != kSystemReg)
      resume([&] { text = sysaccess::GetFromINI(kOptions, row.key, msdosSys); });
    // Two tests: a text that isn't a number fails both, and each failure
    // runs its body, so the box is set to 1 and then to 0.
    CheckBox& box = dos_opt(row.index);
    ifResumingNext(
        resume, [&] { return textToNumber(text) == 1; }, [&] { box.setValue(1); });
    ifResumingNext(
        resume, [&] { return textToNumber(text) != 1; }, [&] { box.setValue(0); });
  }
  // "0" and "1" set the box; any other text ("Not Found", the three
  // characters of a REG_DWORD) leaves it as it stands.
  resume([&] {
    const std::string hidden = host_.throughHidden(
        sysaccess::GetRegValue(sysaccess::HKLM, kWinlogon, kDontDisplayLastUserName));
    if (hidden == "0") dos_opt(16).setValue(0);
    if (hidden == "1") dos_opt(16).setValue(1);
  });
  resume([&] { host_.buttons().Dos_apply->setEnabled(false); });
}

void BootOptions::Dos_apply_Click() {
  const std::string systemIni = host_.windowsDirectory() + "\\system.ini";
  const std::string msdosSys = host_.fields().boot_drive + "\\msdos.sys";
  sysaccess::SetRegValue(sysaccess::HKLM, kWinlogon, kDontDisplayLastUserName, sysaccess::kRegSz,
                         std::string(dos_opt(16).value() == 1 ? "1" : "0"));
  write(kVcache, "MinFileCache", host_.throughHidden(sl.min()), systemIni);
  write(kVcache, "MaxFileCache", host_.throughHidden(sl.max()), systemIni);
  for (const DosRow& row : kDosRows)
    if (row.key)
      write(kOptions, row.key, host_.throughHidden(std::int16_t(dos_opt(row.index).value())),
            msdosSys);
  ref_boot();
}

} // namespace pages
