#include "pages/connection/internet_connection_layout.h"

#include <variant>

namespace pages {

using namespace runtime;

namespace {

using Controls = InternetConnectionControls;

// Where a control stands: on the page itself or in one of its two frames.
enum class In { Page, Frame1, Frame2 };

// One control of the design: the member it goes into (a single control, or an
// element of a control array), its container, its place in twips and its
// caption (the text, for a text box).
struct Placement {
  std::variant<Label * Controls::*, Frame * Controls::*, OptionButton * Controls::*,
               TextBox * Controls::*, CheckBox * Controls::*, ComboBox * Controls::*,
               ControlArray<Label> Controls::*, ControlArray<OptionButton> Controls::*>
      member;
  const char* name; // the design name of a single control; arrays name themselves
  int index;        // the element of a control array, -1 for a single control
  In in;
  Bounds at;
  const char* caption;
};

// In creation order, which is also the order of the Tab key.
constexpr Placement kLayout[] = {
    {&Controls::modeminfo, nullptr, 0, In::Page, {270, 510, 1365, 225}, "Primary Modem:"},
    {&Controls::modeminfo, nullptr, 1, In::Page, {1620, 510, 4635, 405}, "Detected Primary Modem:"},

    {&Controls::Frame1,
     "Frame1",
     -1,
     In::Page,
     {120, 990, 3255, 2205},
     "MTU (Maximum Transmition Unit)"},
    {&Controls::cMTU, nullptr, 0, In::Frame1, {120, 330, 2295, 195}, "Current MTU Setting"},
    {&Controls::mtusetting, "mtusetting", -1, In::Frame1, {2490, 330, 645, 195}, ""},
    {&Controls::cMTU,
     nullptr,
     1,
     In::Frame1,
     {120, 600, 2295, 195},
     "Current MSS Setting (MTU-40)"},
    {&Controls::msssetting, "msssetting", -1, In::Frame1, {2490, 600, 645, 195}, ""},
    {&Controls::mtu552, "mtu552", -1, In::Frame1, {180, 900, 1935, 195}, " 552   (Lowest Normal)"},
    {&Controls::mtu576, "mtu576", -1, In::Frame1, {180, 1140, 1575, 195}, " 576   (Optimal)"},
    {&Controls::mtu1002, "mtu1002", -1, In::Frame1, {180, 1380, 2175, 195}, "1002  (Server)"},
    {&Controls::mtu1472,
     "mtu1472",
     -1,
     In::Frame1,
     {180, 1620, 2205, 195},
     "1472  (Highest Normal)"},
    {&Controls::mtucustom, "mtucustom", -1, In::Frame1, {180, 1830, 2055, 315}, "Custom Setting"},
    {&Controls::other_in, "other_in", -1, In::Frame1, {1590, 1830, 705, 285}, ""},

    {&Controls::Label6,
     "Label6",
     -1,
     In::Page,
     {3570, 990, 2565, 255},
     "IP packet TTL (Time to Live)"},
    {&Controls::Option3, nullptr, 0, In::Page, {3540, 1260, 1215, 195}, "0"},
    {&Controls::Option3, nullptr, 1, In::Page, {3540, 1470, 1215, 195}, "32"},
    {&Controls::Option3, nullptr, 2, In::Page, {3540, 1680, 1215, 195}, "64"},
    {&Controls::Option3, nullptr, 3, In::Page, {3540, 1890, 1215, 195}, "128"},

    // Each list with its label just above it.
    {&Controls::Label12, "Label12", -1, In::Page, {3540, 2100, 1485, 225}, "COM1 Buffer Size"},
    {&Controls::com1, "com1", -1, In::Page, {3540, 2340, 1485, 315}, ""},
    {&Controls::Label13, "Label13", -1, In::Page, {3540, 2670, 1485, 225}, "COM2 Buffer Size"},
    {&Controls::com2, "com2", -1, In::Page, {3540, 2910, 1485, 315}, ""},

    {&Controls::Frame2,
     "Frame2",
     -1,
     In::Page,
     {120, 3270, 6165, 1335},
     "RWIN (TCP Recieve Window)"},
    {&Controls::cMTU, nullptr, 3, In::Frame2, {120, 300, 2295, 195}, "Current RWIN Setting"},
    {&Controls::Label2, "Label2", -1, In::Frame2, {2490, 300, 1335, 195}, ""},
    {&Controls::Label3,
     "Label3",
     -1,
     In::Frame2,
     {3900, 300, 2175, 195},
     "RWIN = mulpiplier * MSS"},
    {&Controls::Option2, "Option2", -1, In::Frame2, {3870, 630, 1395, 195}, "Resulted RWIN"},
    {&Controls::Text8, "Text8", -1, In::Frame2, {5310, 570, 735, 285}, "3216"},
    {&Controls::Option1, "Option1", -1, In::Frame2, {3870, 960, 1395, 195}, "Custom Setting"},
    {&Controls::Text9, "Text9", -1, In::Frame2, {5310, 930, 735, 285}, ""},

    {&Controls::Check15, "Check15", -1, In::Page, {120, 4680, 2445, 195}, "MTU Black Hole Detect"},
    {&Controls::Check16, "Check16", -1, In::Page, {120, 4920, 1635, 195}, "MTU Discovery"},
    {&Controls::Check6, "Check6", -1, In::Page, {120, 5160, 1635, 195}, "Modem Logging"},
    {&Controls::modemlogfile, "modemlogfile", -1, In::Page, {1860, 5130, 4425, 285}, ""},
};

// The navy of the detected modem's line (0x00BBGGRR).
constexpr std::uint32_t kDarkBlue = 0x800000;

template <class T> void giveCaption(T& control, const char* caption) {
  if constexpr (std::is_base_of_v<Captioned, T>)
    control.setCaption(caption);
  else if constexpr (std::is_same_v<T, TextBox>)
    control.setText(caption);
}

} // namespace

InternetConnectionControls::InternetConnectionControls(PageHost& host) {
  Form& form = host.mainForm();
  Frame& page = host.pageFrame(6);
  const auto containerOf = [&](In in) -> Control* {
    if (in == In::Frame1) return Frame1;
    if (in == In::Frame2) return Frame2;
    return &page;
  };
  for (const Placement& row : kLayout) {
    Control* container = containerOf(row.in);
    std::visit(
        [&](auto member) {
          auto& target = this->*member;
          if constexpr (requires { target.add(form, 0, container, row.at); }) {
            giveCaption(target.add(form, row.index, container, row.at), row.caption);
          } else {
            using T = std::remove_pointer_t<std::remove_reference_t<decltype(target)>>;
            target = &form.add<T>(row.name, -1, container, row.at);
            giveCaption(*target, row.caption);
          }
        },
        row.member);
  }

  modeminfo(1).setForeColor(kDarkBlue);
  for (ComboBox* list : {com1, com2})
    for (const char* size : kComBufferSizes)
      list->addItem(size);
  mtu552->setValue(true);
  other_in->setEnabled(false);
  Option2->setValue(true);
  Text8->setEnabled(false);
  Text9->setEnabled(false);
  modemlogfile->setEnabled(false);
}

} // namespace pages
