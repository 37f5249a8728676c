// The controls of the main form, made from the design's tables.
#include "frame/fmain.h"
#include "frame/page_set.h"
#include "frame/page_table.h"

#include <string>

namespace frame {

using namespace runtime;

namespace {

constexpr int kClientWidth = 8265, kClientHeight = 7125;

// The corner buttons: element 0 is the visible button, 1 its lit face and 2
// its normal face, both kept outside the client area.
struct CornerRow {
  ControlArray<PictureBox> FMain::*array;
  int left;
  int height;
  const char* picture; // "help" gives help_n.bmp and help_h.bmp
};
constexpr CornerRow kCorners[] = {
    {&FMain::Picture0, 5940, 420, "help"},
    {&FMain::Picture4, 6390, 420, "about"},
    {&FMain::Picture2, 6840, 420, "min"},
    {&FMain::Picture3, 7290, 450, "exit"},
};
constexpr int kStoreLeft = 11070; // image stores start here, off the client area

// The memory figures of the Boot Options page.
struct MemoryRow {
  TextBox* FMain::*box;
  const char* name;
  const char* label;
};
constexpr MemoryRow kMemoryRows[] = {
    {&FMain::txtPhysicalMemory, "txtPhysicalMemory", "Physical memory"},
    {&FMain::txtFreePhysical, "txtFreePhysical", "Free physical memory"},
    {&FMain::txtVirtualMemory, "txtVirtualMemory", "Virtual memory"},
    {&FMain::txtSwapSize, "txtSwapSize", "Swap file size"},
};

Picture face(const std::string& name, bool lit) {
  return Picture{name + (lit ? "_h.bmp" : "_n.bmp")};
}

} // namespace

FMain::FMain() {
  buildFrame();
  buildPages();
  pages = std::make_unique<PageSet>(*this);
  connectHandlers();
  setKeyboardOrder();
}

void FMain::setKeyboardOrder() {
  // The tab strip first (it has the focus when the form shows), then the
  // controls of the page in front in their own order, then the page's
  // Refresh and Apply buttons, then the Help, About, Minimise and Exit
  // buttons. The picture buttons are tab stops: Enter and Space press them.
  MainTab->setTabIndex(0);
  const auto last = static_cast<int>(form.tabSequence().size()) - 1;
  const auto toEnd = [last](PictureBox& button) {
    button.setTabStop(true);
    button.setTabIndex(last);
  };
  for (const PageRow& page : kPages) {
    toEnd(*(pageButtons.*page.refresh));
    toEnd(*(pageButtons.*page.apply));
  }
  for (const CornerRow& row : kCorners)
    toEnd((this->*row.array)(0));
}

FMain::~FMain() = default;

void FMain::buildFrame() {
  form.setCaption("Tweakloom 99");
  form.setClientSize(kClientWidth, kClientHeight);

  Picture1 = &form.add<PictureBox>("Picture1", -1, nullptr, {480, 180, 7275, 540});
  Picture1->setPicture({"title.bmp"});
  Picture1->setEnabled(false);

  int store = 0;
  for (const CornerRow& row : kCorners) {
    auto& array = this->*row.array;
    array.add(form, 0, nullptr, {row.left, 210, 420, row.height})
        .setPicture(face(row.picture, false));
    for (int element : {1, 2}) {
      array.add(form, element, nullptr, {kStoreLeft + 450 * store++, 120, 420, row.height})
          .setPicture(face(row.picture, element == 1));
    }
  }
  const struct {
    PictureBox* FMain::*store;
    const char* name;
    const char* picture;
  } pageFaces[] = {{&FMain::Picture6, "Picture6", "refresh_h.bmp"},
                   {&FMain::Picture7, "Picture7", "apply_h.bmp"},
                   {&FMain::Picture8, "Picture8", "refresh_n.bmp"},
                   {&FMain::Picture9, "Picture9", "apply_n.bmp"}};
  for (const auto& row : pageFaces) {
    this->*row.store = &form.add<PictureBox>(
        row.name, -1, nullptr, {kStoreLeft + 450 * store, 720, kButtonWidth, kButtonHeight});
    (this->*row.store)->setPicture({row.picture});
    store += 3;
  }
  for (int i = 0; i < 20; ++i) {
    Image2.add(form, i, nullptr, {kStoreLeft + 510 * (i % 10), 1500 + 510 * (i / 10), 480, 480})
        .setPicture({"tab" + std::to_string(i / 2) + (i % 2 ? "_hi.bmp" : ".bmp")});
  }

  MainTab = &form.add<TabStrip>("MainTab", -1, nullptr, {420, 780, 7335, 6180});
  MainTab->setOrientation(TabStrip::Orientation::Right);
  MainTab->setTabs(10);
  MainTab->setTabsPerRow(3);
  MainTab->setTabHeight(1199);
  MainTab->setTab(3);
  MainTab->setVisible(false);

  Picture11 = &form.add<PictureBox>("Picture11", -1, nullptr, {585, 960, 6330, 330});
  Picture11->setVisible(false);
  const Font title{"MS Sans Serif", 10, true};
  PLabel0 = &form.add<Label>("PLabel0", -1, Picture11, {60, 0, 6270, 310});
  PLabel1 = &form.add<Label>("PLabel1", -1, Picture11, {60, 20, 6270, 310});
  for (Label* label : {PLabel1, PLabel0}) {
    label->setTransparent(true);
    label->setFont(title);
  }
  PLabel1->setForeColor(kWindowBackground);
  PLabel0->setForeColor(0x800000); // navy

  Picture10 = &form.add<PictureBox>("Picture10", -1, nullptr, {540, 6390, 4200, 450});
  Picture10->setVisible(false);
  lblWininfO = &form.add<Label>("lblWininfO", -1, Picture10, {0, 0, 4200, 225});
  tip_text = &form.add<Label>("tip_text", -1, Picture10, {0, 225, 4200, 225});

  Timer1 = &form.add<Timer>("Timer1", -1, nullptr, {});
  Timer1->setInterval(20);
  Hidden_ = &form.add<TextBox>("Hidden", -1, nullptr, {12990, 6060, 2145, 285});
}

void FMain::buildPages() {
  for (const PageRow& page : kPages) {
    Frame& frame =
        Frame4.add(form, page.frame, MainTab, {kFrameLeft, kFrameTop, kFrameWidth, kFrameHeight});
    frame.placeOnTab(page.tab);
    frame.setBordered(false);
    auto& refresh = form.add<PictureBox>(page.refreshName, -1, MainTab,
                                         {kRefreshLeft, kButtonTop, kButtonWidth, kButtonHeight});
    auto& apply = form.add<PictureBox>(page.applyName, -1, MainTab,
                                       {kApplyLeft, kButtonTop, kButtonWidth, kButtonHeight});
    refresh.placeOnTab(page.tab);
    apply.placeOnTab(page.tab);
    refresh.setPicture(Picture8->picture());
    apply.setPicture(Picture9->picture());
    apply.setEnabled(false); // every Apply button is disabled in the design
    pageButtons.*page.refresh = &refresh;
    pageButtons.*page.apply = &apply;
  }

  Frame6 = &form.add<Frame>("Frame6", -1, &Frame4(1), {3360, 3720, 2955, 1620});
  Frame6->setCaption("Memory Status");
  int top = 300;
  for (const MemoryRow& row : kMemoryRows) {
    form.add<Label>("MemoryLabel", static_cast<int>(&row - kMemoryRows), Frame6,
                    {120, top + 30, 1635, 255})
        .setCaption(row.label);
    this->*row.box = &form.add<TextBox>(row.name, -1, Frame6, {1800, top, 1035, 285});
    (this->*row.box)->setLocked(true);
    top += 315;
  }
}

} // namespace frame
