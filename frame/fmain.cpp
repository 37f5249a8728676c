// The main form's start-up, page navigation and corner buttons.
#include "frame/fmain.h"

#include "frame/frm_shape.h"
#include "frame/page_table.h"
#include "frame/regions.h"
#include "frame/win_exit.h"
#include "platform/platform.h"
#include "runtime/application.h"
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "sysaccess/system_helpers.h"

namespace frame {

using namespace runtime;

namespace {

// Captions that only the running program gives, in the order they are set.
struct CaptionRow {
  const char* control;
  const char* caption;
};
constexpr CaptionRow kRunTimeCaptions[] = {
    {"Check1", "Beep on Errors"},
    {"Check2(0)", "More CPU Info"},
    {"CD2(3)", "Show Windows Version on Desktop"},
    {"Check2(2)", "Explore from Here"},
    {"Check2(3)", "Flexible Rycycle Bin"},
    {"Check2(4)", "Open With Always Enabled"},
    {"Check2(1)", "Find on the Internet Option"},
    {"Check2(12)", "Blinking Text Cursor"},
    {"Check2(13)", "Full Window Draging"},
    {"CD2(0)", "Use Shortcut Arrows"},
    {"CD2(1)", "Prefix 'Shortcut To' on New Shortcuts"},
    {"CD2(4)", "Use Hi-Color Icons"},
    {"Check2(5)", "Open Folder in MS-DOS"},
    {"CD2(6)", "Save Desktop Settings on Exit"},
    {"Check2(7)", "Use 24h Time Format HHMM"},
    {"Check2(8)", "Turn Off Window Animation"},
    {"Check2(9)", "Turn Off Start Banner"},
    {"Check2(10)", "Show Tips on Startup"},
    {"Check2(11)", "X Mouse Auto Raise"},
    {"Check14", "Clock Static Caption"},
    {"st_m(2)", "Run"},
    {"st_m(1)", "Documents"},
    {"st_m(3)", "User LogOff"},
    {"st_m(0)", "Favorites"},
    {"Check7", "System's Name"},
    {"Check8", "Registered User "},
    {"Check9", "Registered Organization"},
    {"Check10", "Small Icons on Start Menu"},
    {"Check11", "Smooth Fonts"},
    {"Check12", "Open Unknown File Types in Notepad"},
};

constexpr platform::Dword kShowMinimisedWithFocus = 2;

void setCaptionOf(Control* control, const std::string& caption) {
  if (!control) return; // its page isn't built yet
  if (control->kind() == ControlKind::CheckBox || control->kind() == ControlKind::OptionButton)
    static_cast<Captioned*>(control)->setCaption(caption);
}

} // namespace

void FMain::read(const std::string& reader) {
  const auto found = readers.find(reader);
  if (found != readers.end() && found->second) found->second();
}

std::string FMain::throughHidden(const Value& value) {
  Hidden->setText(toText(value));
  return Hidden->text();
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

  for (auto& [name, button] : pageButtons) {
    button->onClick = [this, name = name] { pageButtonClick(name); };
    button->onMouseMove = [this, name = name](int, int, float, float) { pageButtonHover(name); };
  }
}

void FMain::ShapeMainForm() {
  form.setRegion(frame::ShapeMainForm(form.width(), Application::instance().twipsPerPixelX));
}

void FMain::Form_Load() {
  // Until a foreign scanreg.ini has been replaced, errors end the load; from
  // then on the load resumes at the next statement.
  bool resuming = false;
  ResumeNext resume;
  const auto step = [&](const std::function<void()>& statement) {
    if (resuming)
      resume(statement);
    else
      statement();
  };

  boot_drive = "c:";
  clock_focus_armed = std::int16_t{0};
  net_sec_ready = 0;
  ShapeMainForm();
  form.centreOnScreen();
  windir = sysaccess::GetWinDir();
  windir = throughHidden(windir);

  // A scanreg.ini without this program's marker is replaced by the template
  // beside the program; a missing template leaves no scanreg.ini at all.
  const std::string scanreg = windir + "\\scanreg.ini";
  if (sysaccess::GetFromINI("-=Note=-", "Altered by Tweakloom 99", scanreg) !=
      "Please do not edit manually") {
    windir = Hidden->text();
    resuming = true;
    step([&] { Kill(scanreg); });
    step([&] { FileCopy("Tweakloom 99.sam", scanreg); });
  }

  step([&] { read("ref_oem_page"); });
  step([&] { is_win98 = reflab(); });
  for (const char* reader : {"ref_boot", "ref_connection", "ref_net_sec", "ref_scanreg", "mtu_opt",
                             "ref_uninstall_list", "ref_desk", "ref_access"}) {
    // The load goes on past a backup directory that doesn't exist, which
    // would otherwise end every start once it has been saved.
    if (std::string(reader) == "ref_scanreg")
      resume([&] { read(reader); });
    else
      step([&] { read(reader); });
  }
  for (const CaptionRow& row : kRunTimeCaptions)
    step([&] { setCaptionOf(form.find(row.control), row.caption); });
  step([&] {
    mtu_option = std::int16_t{1};
    button("ApplyM").setEnabled(false);
  });
  step([&] { read("ref_trouble"); });
  step([&] {
    frmShape->form.load();
    frmShape->form.hide();
  });
  step([&] {
    MainTab->setTab(0);
    MainTab->setVisible(true);
    Picture10->setVisible(true);
    Picture11->setVisible(true);
  });
  step([&] { read("other_in"); });
  for (int i = 0; i < MainTab->tabs(); ++i)
    step([&] { MainTab->setTabCaption(i, ""); });
  step([&] { button("refa").setEnabled(false); });
  step([&] { MainTab->setTabPicture(0, Image2(1).picture()); });
  step([&] {
    PLabel0->setCaption(kPages[0].title);
    PLabel1->setCaption(kPages[0].title);
  });
  step([&] { read("ref_tracking"); });
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

void FMain::pageButtonClick(const std::string& name) {
  const auto work = buttonWork.find(name);
  if (work != buttonWork.end() && work->second) {
    work->second();
    return;
  }
  // Refresh buttons of pages that have no work of their own: the page's
  // reader; Ref_st also disables the Apply button of the Troubleshooting page.
  if (name == "Ref_st") {
    read("ref_tracking");
    button("Clear").setEnabled(false);
    button("ondAp").setEnabled(false);
  }
}

} // namespace frame
