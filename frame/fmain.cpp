// The main form's start-up, page navigation and corner buttons.
#include "frame/fmain.h"

#include "frame/frm_shape.h"
#include "frame/page_set.h"
#include "frame/page_table.h"
#include "frame/regions.h"
#include "frame/win_exit.h"
#include "pages/shell/named_tweaks.h"
#include "platform/platform.h"
#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "runtime/basic_math.h"
#include "sysaccess/system_helpers.h"

namespace frame {

using namespace runtime;
namespace tweak = pages::tweak;

namespace {

// Captions that only the running program gives, in the order they are set;
// each is the word of its named tweak.
struct CaptionRow {
  const char* control;
  const char* caption;
};
constexpr CaptionRow kRunTimeCaptions[] = {
    {"Check1", tweak::kBeepOnErrors},
    {"Check2(0)", tweak::kMoreCpuInfo},
    {"CD2(3)", tweak::kShowWindowsVersion},
    {"Check2(2)", tweak::kExploreFromHere},
    {"Check2(3)", tweak::kFlexibleRycycleBin},
    {"Check2(4)", tweak::kOpenWithAlwaysEnabled},
    {"Check2(1)", tweak::kFindOnTheInternet},
    {"Check2(12)", tweak::kBlinkingTextCursor},
    {"Check2(13)", tweak::kFullWindowDraging},
    {"CD2(0)", tweak::kUseShortcutArrows},
    {"CD2(1)", tweak::kPrefixShortcutTo},
    {"CD2(4)", tweak::kUseHiColorIcons},
    {"Check2(5)", tweak::kOpenFolderInMsDos},
    {"CD2(6)", tweak::kSaveDesktopSettings},
    {"Check2(7)", tweak::kUse24hTimeFormat},
    {"Check2(8)", tweak::kTurnOffWindowAnimation},
    {"Check2(9)", tweak::kTurnOffStartBanner},
    {"Check2(10)", tweak::kShowTipsOnStartup},
    {"Check2(11)", tweak::kXMouseAutoRaise},
    {"Check14", tweak::kClockStaticCaption},
    {"st_m(2)", tweak::kRun},
    {"st_m(1)", tweak::kDocuments},
    {"st_m(3)", tweak::kUserLogOff},
    {"st_m(0)", tweak::kFavorites},
    {"Check7", tweak::kSystemsName},
    {"Check8", tweak::kRegisteredUser},
    {"Check9", tweak::kRegisteredOrganization},
    {"Check10", tweak::kSmallIconsOnStartMenu},
    {"Check11", tweak::kSmoothFonts},
    {"Check12", tweak::kOpenUnknownInNotepad},
};

constexpr platform::Dword kShowMinimisedWithFocus = 2;

void setCaptionOf(Control* control, const std::string& caption) {
  if (!control) return; // its page isn't built yet
  if (control->kind() == ControlKind::CheckBox || control->kind() == ControlKind::OptionButton)
    static_cast<Captioned*>(control)->setCaption(caption);
}

} // namespace

std::string FMain::throughHidden(const Value& value) {
  Hidden_->setText(toText(value));
  return Hidden_->text();
}

void FMain::connectHandlers() {
  form.onLoad = [this] { Form_Load(); };
  form.onPaint = [this] { Form_Paint(); };
  MainTab->onClick = [this] { MainTab_Click(); };
  Timer1->onTimer = [this] { Timer1_Timer(); };

  Picture0.onClick = [](int) {
    platform::WinExec("hh.exe Tweakloom 99.chm", kShowMinimisedWithFocus);
  };
  Picture4.onClick = [this](int) {
    form.hide();
    frmShape->form.show();
  };
  Picture2.onClick = [this](int) { form.setWindowState(1); };
  Picture3.onClick = [this](int) {
    form.hide();
    winExit->form.load();
    winExit->form.show();
  };

  // All four corner buttons light up together, whichever the mouse is on.
  for (auto* corner : {&Picture0, &Picture2, &Picture3, &Picture4}) {
    corner->onMouseMove = [this](int, int, int, float, float) {
      Picture0(0).setPicture(Picture0(1).picture());
      Picture3(0).setPicture(Picture3(1).picture());
      Picture2(0).setPicture(Picture2(1).picture());
      Picture4(0).setPicture(Picture4(1).picture());
    };
  }
  const auto elsewhere = [this](int, int, float, float) { restoreImages(); };
  form.onMouseMove = elsewhere;
  lblWininfO->onMouseMove = elsewhere;
  MainTab->onMouseMove = elsewhere;
  Frame4.onMouseMove = [this](int, int, int, float, float) { restoreImages(); };

  for (const PageRow& page : kPages) {
    (pageButtons.*page.refresh)->onMouseMove = [this, &page](int, int, float, float) {
      pageButtonHover(page, true);
    };
    (pageButtons.*page.apply)->onMouseMove = [this, &page](int, int, float, float) {
      pageButtonHover(page, false);
    };
  }

  // Check2 spans two pages: 0 to 14 arm the Desktop page, 15 to 20 the
  // Troubleshooting page, where 20 also governs the defragmenter options.
  Check2_.onClick = [this](int index) {
    if (index < 15) pageButtons.applyb->setEnabled(true);
    if (index >= 15 && index <= 20) pageButtons.ondAp->setEnabled(true);
    if (index == 20) pages->trouble.defgragFollowsCheck2();
  };
}

void FMain::ShapeMainForm() {
  form.setRegion(frame::ShapeMainForm(form.width(), Application::instance().twipsPerPixelX));
}

namespace {

// One statement of the load sequence that runs under "resume next" once a
// foreign scanreg.ini has been replaced. A statement marked alwaysResumes is
// never allowed to end the load: reading a backup directory that doesn't
// exist would otherwise end every start once it has been saved.
struct LoadStatement {
  void (*run)(FMain&);
  bool alwaysResumes = false;
};

// The page readers of step 10, in their order.
constexpr LoadStatement kPageReaders[] = {
    {[](FMain& f) { f.pages->boot.ref_boot(); }},
    {[](FMain& f) { f.pages->internet.ref_connection(); }},
    {[](FMain& f) { f.pages->netSec.ref_net_sec(); }},
    {[](FMain& f) { f.pages->safety.ref_scanreg(); }, true},
    {[](FMain& f) { f.pages->internet.mtu_opt(); }},
    {[](FMain& f) { f.pages->software.ref_uninstall_list(); }},
    {[](FMain& f) { f.pages->desktop.ref_desk(); }},
    {[](FMain& f) { f.pages->access.ref_access(); }},
};

// The statements after the run-time captions, in their order.
constexpr LoadStatement kAfterCaptions[] = {
    {[](FMain& f) { f.mtu_option = std::int16_t{1}; }},
    {[](FMain& f) {
      if (toInteger(f.mtu_option) == 1) f.pageButtons.ApplyM->setEnabled(false);
    }},
    {[](FMain& f) { f.pages->trouble.ref_trouble(); }},
    {[](FMain& f) { f.frmShape->form.load(); }},
    {[](FMain& f) { f.frmShape->form.hide(); }},
    {[](FMain& f) { f.MainTab->setTab(0); }},
    {[](FMain& f) { f.MainTab->setVisible(true); }},
    {[](FMain& f) { f.Picture10->setVisible(true); }},
    {[](FMain& f) { f.Picture11->setVisible(true); }},
    {[](FMain& f) { f.pages->internet.other_in_at_load(); }},
};

constexpr LoadStatement kLastStatements[] = {
    {[](FMain& f) { f.pageButtons.refa->setEnabled(false); }},
    {[](FMain& f) { f.MainTab->setTabPicture(0, f.Image2(1).picture()); }},
    {[](FMain& f) { f.PLabel0->setCaption(kPages[0].title); }},
    {[](FMain& f) { f.PLabel1->setCaption(kPages[0].title); }},
    {[](FMain& f) { f.pages->tracking.ref_tracking(); }},
};

} // namespace

void FMain::Form_Load() {
  boot_drive = "c:";
  clock_focus_armed = std::int16_t{0};
  net_sec_ready = 0;
  ShapeMainForm();
  pages->boot.sl.setEnabled(false);
  pages->tracking.menu_delay_slider.setEnabled(false);
  pages->boot.sl.set_caption_string(" Bytes");
  form.centreOnScreen();
  Randomize();
  windir = sysaccess::GetWinDir();
  windir = throughHidden(windir);

  // Until a foreign scanreg.ini has been replaced, an error ends the load;
  // from then on every statement resumes at the next one.
  bool resuming = false;
  ResumeNext resume;
  const auto attempt = [&](const auto& statement, bool alwaysResumes = false) {
    if (resuming || alwaysResumes)
      resume(statement);
    else
      statement();
  };
  const auto run = [&](const LoadStatement& statement) {
    attempt([&] { statement.run(*this); }, statement.alwaysResumes);
  };
  const auto step = [&](void (*statement)(FMain&)) { run({statement}); };

  // A scanreg.ini without this program's marker is replaced by the template
  // beside the program; a missing template leaves no scanreg.ini at all.
  if (sysaccess::GetFromINI("-=Note=-", "Altered by Tweakloom 99", windir + "\\scanreg.ini") !=
      "Please do not edit manually") {
    windir = Hidden_->text();
    resuming = true;
    step([](FMain& f) { Kill(f.windir + "\\scanreg.ini"); });
    step([](FMain& f) { FileCopy("Tweakloom 99.sam", f.windir + "\\scanreg.ini"); });
  }

  step([](FMain& f) { f.pages->oem.ref_oem_page(); });
  step([](FMain& f) { f.is_win98 = f.reflab(); });
  for (const LoadStatement& statement : kPageReaders)
    run(statement);
  for (const CaptionRow& row : kRunTimeCaptions)
    attempt([&] { setCaptionOf(form.find(row.control), row.caption); });
  for (const LoadStatement& statement : kAfterCaptions)
    run(statement);
  for (int i = 0; i < MainTab->tabs(); ++i)
    attempt([&] { MainTab->setTabCaption(i, ""); });
  for (const LoadStatement& statement : kLastStatements)
    run(statement);
}

void FMain::Form_Paint() {
  if (is_win98 != 0) return;
  // The system gate: any build but 1998 gets the exit dialog with OK only.
  winExit->form.load();
  winExit->Areyousurelabel->setCaption("Tweakloom supports only MS Windows 98");
  winExit->No->setVisible(false);
  form.hide();
  winExit->form.show();
}

void FMain::MainTab_Click() {
  for (int i = 0; i < 10; ++i)
    MainTab->setTabPicture(i, Image2(2 * i).picture());
  const int t = MainTab->tab();
  MainTab->setTabPicture(t, Image2(2 * t + 1).picture());
  PLabel0->setCaption(kPages[static_cast<std::size_t>(t)].title);
  PLabel1->setCaption(kPages[static_cast<std::size_t>(t)].title);
}

} // namespace frame
