// FMain, the program's one working window: the tab strip with the ten page
// frames, the title band, the status band, the four corner buttons, the image
// stores for hover feedback and the form-level fields the pages share.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"
#include "runtime/form.h"
#include "runtime/value.h"

#include <memory>
#include <string>

namespace frame {

struct PageRow;
class WinExit;
class FrmShape;
struct PageSet;

struct FMain : pages::PageHost, pages::FormFields {
  FMain();
  ~FMain() override;
  FMain(const FMain&) = delete;
  FMain& operator=(const FMain&) = delete;

  runtime::Form form{"FMain"};

  // ---- Controls of the frame ----
  runtime::TabStrip* MainTab = nullptr;
  runtime::PictureBox* Picture1 = nullptr; // title image
  runtime::ControlArray<runtime::PictureBox> Picture0{
      "Picture0"}; // Help: (0) button, (1) lit, (2) normal
  runtime::ControlArray<runtime::PictureBox> Picture2{"Picture2"}; // Minimise
  runtime::ControlArray<runtime::PictureBox> Picture3{"Picture3"}; // Exit
  runtime::ControlArray<runtime::PictureBox> Picture4{"Picture4"}; // About
  runtime::PictureBox* Picture6 = nullptr;                         // Refresh, lit face
  runtime::PictureBox* Picture7 = nullptr;                         // Apply, lit face
  runtime::PictureBox* Picture8 = nullptr;                         // Refresh, normal face
  runtime::PictureBox* Picture9 = nullptr;                         // Apply, normal face
  runtime::PictureBox* Picture11 = nullptr;                        // title band
  runtime::Label* PLabel0 = nullptr;
  runtime::Label* PLabel1 = nullptr;        // the shadow, 20 twips lower
  runtime::PictureBox* Picture10 = nullptr; // status band
  runtime::Label* lblWininfO = nullptr;
  runtime::Label* tip_text = nullptr;
  runtime::Timer* Timer1 = nullptr;
  runtime::TextBox* Hidden_ = nullptr;                    // the design's Hidden
  runtime::ControlArray<runtime::Image> Image2{"Image2"}; // tab icons
  runtime::ControlArray<runtime::Frame> Frame4{"Frame4"}; // the page frames
  // The Refresh and Apply picture buttons of the ten pages.
  pages::PageButtons pageButtons;

  // Memory Status group of the Boot Options page.
  runtime::Frame* Frame6 = nullptr;
  runtime::TextBox* txtPhysicalMemory = nullptr;
  runtime::TextBox* txtFreePhysical = nullptr;
  runtime::TextBox* txtVirtualMemory = nullptr;
  runtime::TextBox* txtSwapSize = nullptr;

  // ---- Form-level fields ----
  // Those the pages share are in pages::FormFields.
  std::int16_t is_win98 = 0;
  runtime::Value user_name;
  runtime::Value uptime_seconds, uptime_minutes, uptime_hours;
  runtime::Value hour_pad, minute_pad, second_pad, status_line;

  // ---- Pages ----
  // The array of check boxes shared by the Desktop and Troubleshooting pages.
  runtime::ControlArray<runtime::CheckBox> Check2_{"Check2"};
  // The ten pages, made once the frame's controls exist.
  std::unique_ptr<PageSet> pages;

  runtime::Form& mainForm() override { return form; }
  runtime::Frame& pageFrame(int frameIndex) override { return Frame4(frameIndex); }
  pages::PageButtons& buttons() override { return pageButtons; }
  pages::FormFields& fields() override { return *this; }
  runtime::TextBox& Hidden() override { return *Hidden_; }
  std::string throughHidden(const runtime::Value& value) override;
  const std::string& windowsDirectory() const override { return windir; }
  runtime::ControlArray<runtime::CheckBox>& Check2() override { return Check2_; }

  // ---- Routines ----
  void Form_Load();
  void Form_Paint();
  void ShapeMainForm();
  std::int16_t reflab(); // 1 on Windows 98 build 1998, else 0
  void Upd();
  void Timer1_Timer();
  void MainTab_Click();
  void restoreImages(); // the mouse-elsewhere routine

  // The other two forms, for the corner buttons and the system gate.
  WinExit* winExit = nullptr;
  FrmShape* frmShape = nullptr;

private:
  void buildFrame();
  void buildPages();
  void connectHandlers();
  void setKeyboardOrder();
  void pageButtonHover(const PageRow& page, bool overRefresh);
};

} // namespace frame
