// The Internet Connection page (tab 6, Frame4(6)): the TCP/IP tuning of the
// dial-up connection. MTU and MSS of the network adapter in use, the receive
// window (RWIN), black-hole detection and path MTU discovery, the time to
// live, the COM1 and COM2 buffers of system.ini and the first modem's log.
//
// The receive window is always a whole multiple of the segment size: the
// multiple is chosen on Slider_rwin_, whose min counts 512ths of it, and the
// segment size (the form-level mss_value) follows from the MTU option.
//
// Failures: a reader or writer statement that meets a text that is no number,
// a number outside -32768..32767 or a zero segment size raises the Basic
// run-time error and abandons the routine there; whatever it wrote before
// stays written. From a button nothing catches it and the program ends.
#pragma once

#include "controls/veld_slider.h"
#include "pages/connection/internet_connection_layout.h"
#include "pages/page_host.h"

#include <cstdint>
#include <string>

namespace pages {

class InternetConnection : public InternetConnectionControls {
public:
  explicit InternetConnection(PageHost& host);
  InternetConnection(const InternetConnection&) = delete;
  InternetConnection& operator=(const InternetConnection&) = delete;

  // The page's reader: everything but the MTU options; ends with ApplyM
  // disabled.
  void ref_connection();
  // The MTU group and the slider, from the adapter's values and the window
  // that ref_connection put into Label2; selects the MTU option and ends with
  // ApplyM disabled. Always runs directly after ref_connection.
  void mtu_opt();
  // Start-up's late step: other_in shows the present MTU, and its change
  // handler derives mss_value and Text8 from it.
  void other_in_at_load();
  // Writes every setting in its fixed order, then reads the page back.
  void ApplyM_Click();
  void ref_mtu_Click();
  // Text8 = (Slider_rwin_.min / 512) * mss_value, in general form.
  void rwin_refresh();

  // Page state, kept for the run of the program.
  std::string net_adapter; // digit of the adapter in use, "" until one is found
  std::string mss_text;    // mss_value as text, made by Apply
  std::string mtu_value;   // mtusetting as mtu_opt took it
  std::int16_t rwin_value = 0;
  double rwin_ratio = 0;

  controls::VeldSlider Slider_rwin_;

  // The key of the adapter in use: ...\NetTrans\000 followed by its digit.
  std::string adapterKey() const;

private:
  void setMtuOption(int option); // and ApplyM with it: disabled at 1, enabled at 2
  void armApply();
  std::string systemIni() const;
  void fixedMtu_Click(runtime::OptionButton* clicked, std::int16_t mss, bool reselect);
  void mtucustom_Click();
  void other_in_Change();
  void other_in_KeyUp(int keyCode);
  void Slider_rwin__Change();
  void Option1_Click();
  void Check6_Click();

  PageHost& host_;
};

} // namespace pages
