// The controls of the Internet Connection page (Frame4(6)) at their design
// positions: the modem line, the MTU group (Frame1), the TTL options, the two
// COM buffer lists, the RWIN group (Frame2) and the three check boxes. The
// slider Slider_rwin_ belongs to the page itself and goes into Frame2 after
// these exist.
#pragma once

#include "pages/page_host.h"
#include "runtime/control_array.h"
#include "runtime/form.h"

namespace pages {

struct InternetConnectionControls {
  explicit InternetConnectionControls(PageHost& host);
  InternetConnectionControls(const InternetConnectionControls&) = delete;
  InternetConnectionControls& operator=(const InternetConnectionControls&) = delete;

  // "Primary Modem:" and the detected modem's line.
  runtime::ControlArray<runtime::Label> modeminfo{"modeminfo"};

  // MTU group.
  runtime::Frame* Frame1 = nullptr;
  runtime::ControlArray<runtime::Label> cMTU{"cMTU"}; // (0), (1) here, (3) in Frame2
  runtime::Label* mtusetting = nullptr;
  runtime::Label* msssetting = nullptr;
  runtime::OptionButton* mtu552 = nullptr;
  runtime::OptionButton* mtu576 = nullptr;
  runtime::OptionButton* mtu1002 = nullptr;
  runtime::OptionButton* mtu1472 = nullptr;
  runtime::OptionButton* mtucustom = nullptr;
  runtime::TextBox* other_in = nullptr; // the custom MTU

  // Time to live: Option3(0) to (3) are "0", "32", "64", "128".
  runtime::Label* Label6 = nullptr;
  runtime::ControlArray<runtime::OptionButton> Option3{"Option3"};

  // COM port buffers.
  runtime::Label* Label12 = nullptr;
  runtime::ComboBox* com1 = nullptr;
  runtime::Label* Label13 = nullptr;
  runtime::ComboBox* com2 = nullptr;

  // RWIN group.
  runtime::Frame* Frame2 = nullptr;
  runtime::Label* Label2 = nullptr; // the window as read
  runtime::Label* Label3 = nullptr;
  runtime::OptionButton* Option2 = nullptr; // "Resulted RWIN"
  runtime::TextBox* Text8 = nullptr;        // the computed window, display only
  runtime::OptionButton* Option1 = nullptr; // "Custom Setting"
  runtime::TextBox* Text9 = nullptr;        // a typed window

  runtime::CheckBox* Check15 = nullptr; // black-hole detection
  runtime::CheckBox* Check16 = nullptr; // path MTU discovery
  runtime::CheckBox* Check6 = nullptr;  // modem logging
  runtime::TextBox* modemlogfile = nullptr;
};

// The entries of com1 and com2; the fifth stands for a missing value.
inline constexpr const char* kComBufferSizes[] = {"1024", "2048", "4096", "8192", "(not set)"};
inline constexpr const char* kComBufferNotSet = "(not set)";

} // namespace pages
