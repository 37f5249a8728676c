// WinExit, the one way out: leave the program, or restart or shut down the
// computer. It also carries the system gate's message.
#pragma once

#include "runtime/form.h"

namespace frame {

struct FMain;
class FrmShape;

class WinExit {
public:
  WinExit();
  WinExit(const WinExit&) = delete;
  WinExit& operator=(const WinExit&) = delete;

  runtime::Form form{"WinExit"};
  runtime::Label* Areyousurelabel = nullptr;
  runtime::OptionButton* Shutdown = nullptr;
  runtime::OptionButton* Restart = nullptr;
  runtime::OptionButton* Logoff = nullptr;
  runtime::CommandButton* Yes = nullptr;
  runtime::CommandButton* No = nullptr;
  runtime::PictureBox* Picture1 = nullptr;

  FMain* fmain = nullptr;
  FrmShape* frmShape = nullptr;

  // The label's design caption: the 74 blanks make it wrap.
  static const std::string kDesignCaption;

private:
  void Form_Load();
  void Yes_Click();
  void No_Click();
};

} // namespace frame
