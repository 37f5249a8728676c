#include "pages/connection/software_components.h"

#include "runtime/basic_error.h"
#include "sysaccess/ellreg.h"

#include <array>
#include <cstdint>
#include <string>

namespace pages {

using namespace runtime;
using sysaccess::HKCU;
using sysaccess::HKLM;
using sysaccess::kNotFound;

namespace {

// The Uninstall key is walked under one spelling and deleted under another;
// the registry ignores case, so both name the same key.
constexpr const char* kUninstallWalk = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr const char* kUninstallDelete =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// A free slot of the startup tables. A Run value that is itself called "@"
// is therefore collected and never deleted.
constexpr const char* kFreeSlot = "@";
constexpr int kSlots = 21; // indexes 0 to 20; slot 0 is never filled

constexpr int kUnremovablePosition = 99;

// List(j) as the list box answers it: past the last entry the text is empty.
std::string entryOrEmpty(const ListBox& list, int index) {
  return index >= list.listCount() ? std::string() : list.list(index);
}

// The next index of a walk, in the 16-bit counter the listing keeps.
std::int16_t nextIndex(std::int16_t index) {
  if (index == INT16_MAX) raiseError(kOverflow);
  return static_cast<std::int16_t>(index + 1);
}

using SlotTable = std::array<std::string, kSlots>;

std::string& slot(SlotTable& table, int index) {
  if (index < 0 || index >= kSlots) raiseError(kSubscriptOutOfRange);
  return table[static_cast<std::size_t>(index)];
}

} // namespace

SoftwareComponents::SoftwareComponents(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(8);
  Label21 = &form.add<Label>("Label21", -1, page, {150, 540, 2205, 225});
  Label21->setCaption("Entries Currently Present");
  prg_list = &form.add<ListBox>("prg_list", -1, page, {150, 780, 2970, 4560}, true);
  prg_list->addItem("List1"); // the design's item, replaced at start-up
  Label19 = &form.add<Label>("Label19", -1, page, {3300, 540, 2235, 195});
  Label19->setCaption("Entries to be Removed");
  prg_to_remove_list = &form.add<ListBox>("prg_to_remove_list", -1, page, {3300, 780, 2940, 3960});
  Check4 = &form.add<CheckBox>("Check4", -1, page, {3300, 4770, 2985, 315});
  Check4->setCaption("Installed Software Compontents ");
  Check4->setValue(1);
  Check5 = &form.add<CheckBox>("Check5", -1, page, {3300, 5070, 2715, 315});
  Check5->setCaption("StartUp Software Componetns");

  Check4->onClick = [this] { Check4_Click(); };
  Check5->onClick = [this] { Check5_Click(); };
  prg_list->onItemCheck = [this](int item) { prg_list_ItemCheck(item); };
  // A click on prg_list itself only repaints it, which the list does alone.
  host.buttons().RefUL->onClick = [this] { RefUL_Click(); };
  host.buttons().ApplyUL->onClick = [this] { ApplyUL_Click(); };
}

void SoftwareComponents::ref_uninstall_list() {
  prg_list->clear();
  prg_to_remove_list->clear();
  std::int16_t i = 0;
  while (true) {
    const std::string name = sysaccess::EnumRegKey(HKLM, kUninstallWalk, i);
    if (name == kNotFound) break;
    // A key without a display name is walked and counted, not listed.
    const std::string display =
        sysaccess::GetRegValue(HKLM, std::string(kUninstallWalk) + name, "DisplayName");
    if (display != kNotFound) prg_list->addItem(display);
    i = nextIndex(i);
  }
  uninst_count = i;
}

void SoftwareComponents::ref_run_list() {
  prg_list->clear();
  prg_to_remove_list->clear();
  // The list shows value names only and doesn't tell the hives apart.
  for (auto [hive, count] : {std::pair{HKLM, &host_.fields().run_count_machine},
                             std::pair{HKCU, &host_.fields().run_count_user}}) {
    std::int32_t i = 0;
    while (true) {
      const sysaccess::EnumeratedValue value = sysaccess::EnumRegValue(hive, kRun, i);
      if (value.data == kNotFound) break;
      prg_list->addItem(value.name);
      ++i;
    }
    *count = i;
  }
}

void SoftwareComponents::RefUL_Click() {
  if (Check4->value() == 1) ref_uninstall_list();
  if (Check5->value() == 1) ref_run_list();
  host_.buttons().ApplyUL->setEnabled(false);
}

void SoftwareComponents::prg_list_ItemCheck(int item) {
  // A tick adds the entry's text, an untick of the same text takes it out
  // again; taking out doesn't arm Apply.
  const std::string text = prg_list->list(item);
  std::string state = " NO";
  const int last = prg_to_remove_list->listCount(); // one past the last entry
  for (int j = 0; j <= last; ++j) {
    if (text == entryOrEmpty(*prg_to_remove_list, j)) {
      state = "YES";
      // The line at position 99 can't be taken out. An empty text also
      // matches the empty read one past the end, where there is nothing to
      // take out.
      if (j != kUnremovablePosition && j < prg_to_remove_list->listCount())
        prg_to_remove_list->removeItem(j);
    }
    if (text != entryOrEmpty(*prg_to_remove_list, j) && state != "YES") state = " NO";
  }
  if (state == " NO") {
    prg_to_remove_list->addItem(text);
    host_.buttons().ApplyUL->setEnabled(true);
  }
}

void SoftwareComponents::ApplyUL_Click() {
  if (Check4->value() == 1)
    removeUninstallEntries();
  else if (Check5->value() == 1)
    removeRunEntries();
}

void SoftwareComponents::removeUninstallEntries() {
  // Keys are walked by index while they vanish: after a deletion the next key
  // slides down to k and meets only the remaining entries of this pass, so
  // one Apply may leave a ticked key for the next. Both loops run one step
  // past their end; an empty entry read there matches a key whose display
  // name is empty.
  for (int k = 0; k <= uninst_count; ++k) {
    const int last = prg_to_remove_list->listCount();
    for (int j = 0; j <= last; ++j) {
      const std::string name = sysaccess::EnumRegKey(HKLM, kUninstallWalk, k);
      const std::string display =
          sysaccess::GetRegValue(HKLM, std::string(kUninstallWalk) + name, "DisplayName");
      if (display == entryOrEmpty(*prg_to_remove_list, j))
        sysaccess::DelRegSubKey(HKLM, std::string(kUninstallDelete) + name);
    }
  }
  ref_uninstall_list();
}

void SoftwareComponents::removeRunEntries() {
  // Matches are collected first and deleted afterwards, so the indexes stay
  // put during the walk. Both hives are walked to the machine's count, with
  // one counter: a 21st match is past the tables (subscript out of range),
  // before anything was deleted.
  SlotTable machine, user, spare;
  machine.fill(kFreeSlot);
  user.fill(kFreeSlot);
  spare.fill(kFreeSlot);
  std::int16_t counter = 1;
  const std::int32_t walked = host_.fields().run_count_machine;
  const int entries = prg_to_remove_list->listCount();
  for (auto [hive, table] : {std::pair{HKLM, &machine}, std::pair{HKCU, &user}}) {
    for (std::int32_t k = 0; k <= walked - 1; ++k) {
      for (int j = 0; j <= entries - 1; ++j) {
        const std::string& entry = prg_to_remove_list->list(j);
        if (sysaccess::EnumRegValue(hive, kRun, k).name == entry) {
          slot(*table, counter) = entry;
          counter = nextIndex(counter);
        }
      }
    }
  }
  for (int i = 0; i < kSlots; ++i) {
    if (slot(machine, i) != kFreeSlot) sysaccess::DelRegValue(HKLM, kRun, slot(machine, i));
    if (slot(user, i) != kFreeSlot) sysaccess::DelRegValue(HKCU, kRun, slot(user, i));
  }
  ref_run_list();
}

void SoftwareComponents::Check4_Click() {
  // Each box sets the other, whose handler then lists too: a click lists
  // twice, and the ticks and the removal list go with every switch.
  if (Check4->value() == 1) {
    Check5->setValue(0);
    ref_uninstall_list();
  }
  if (Check4->value() == 0) {
    Check5->setValue(1);
    ref_run_list();
  }
}

void SoftwareComponents::Check5_Click() {
  if (Check5->value() == 1) {
    Check4->setValue(0);
    ref_run_list();
  }
  if (Check5->value() == 0) {
    Check4->setValue(1);
    ref_uninstall_list();
  }
}

} // namespace pages
