#include "pages/privacy/registry_safety.h"

#include "platform/platform.h"
#include "runtime/text_functions.h"
#include "sysaccess/system_helpers.h"

namespace pages {

using namespace runtime;

namespace {

constexpr const char* kSection = "1";
constexpr const char* kNoteSection = "-=Note=-";
constexpr const char* kNoteKey = "Altered by Tweakloom 99";
constexpr const char* kNoteText = "Please do not edit manually";

// One of the three extra files of the backup, in the order they are listed.
struct BackupFile {
  runtime::CheckBox* RegistrySafety::*box;
  const char* name;
};
constexpr BackupFile kBackupFiles[] = {
    {&RegistrySafety::Check21, "autoexec.bat"},
    {&RegistrySafety::Check22, "config.sys"},
    {&RegistrySafety::Check23, "msdos.sys"},
};

void write(const char* section, const char* key, const std::string& value,
           const std::string& file) {
  // The result is not looked at: a failed write shows in the next read.
  platform::WritePrivateProfileStringA(section, key, value.c_str(), file.c_str());
}

} // namespace

RegistrySafety::RegistrySafety(PageHost& host) : host_(host) {
  Form& form = host.mainForm();
  Frame* page = &host.pageFrame(4);
  Check24 = &form.add<CheckBox>("Check24", -1, page, {240, 540, 3000, 255});
  Check25 = &form.add<CheckBox>("Check25", -1, page, {240, 840, 3000, 255});
  Check24->setCaption("Automatic Registry Optimization");
  Check25->setCaption("Automatic Registry Backup");
  form.add<Label>("Label7", -1, page, {240, 1230, 4620, 255})
      .setCaption("Maximum Number of Retained Backup Copies (0-99)");
  Text16 = &form.add<TextBox>("Text16", -1, page, {4920, 1185, 555, 315});
  Text16->setText("1");
  form.add<Label>("Label8", -1, page, {240, 1680, 1500, 255}).setCaption("Backup Directory");
  Text15 = &form.add<TextBox>("Text15", -1, page, {1800, 1635, 4335, 315});
  form.add<Label>("Label9", -1, page, {240, 2160, 5900, 255})
      .setCaption("Select Additional Files to be Included in the Registry Backup Files");
  Check23 = &form.add<CheckBox>("Check23", -1, page, {360, 2460, 1500, 255});
  Check22 = &form.add<CheckBox>("Check22", -1, page, {2040, 2460, 1500, 255});
  Check21 = &form.add<CheckBox>("Check21", -1, page, {3720, 2460, 1620, 255});
  Check23->setCaption("MSDOS.SYS");
  Check22->setCaption("CONFIG.SYS");
  Check21->setCaption("AUTOEXEC.BAT");
  form.add<Label>("Label33", -1, page, {240, 2940, 3900, 255})
      .setCaption("Retained Registry Backup Files");
  File1 = &form.add<FileListBox>("File1", -1, page, {240, 3240, 5895, 1980});
  File1->setPattern("*.cab");

  const auto arm = [&host] { host.buttons().refa->setEnabled(true); };
  for (CheckBox* box : {Check21, Check22, Check23, Check24, Check25})
    box->onClick = arm;
  Text15->onChange = arm;
  Text16->onChange = arm;
  // 0 to 99: Backspace passes; with two characters in the box nothing else
  // does; otherwise digits only.
  Text16->onKeyPress = [this](int& key) {
    if (key == 8) return;
    if (Text16->text().size() > 1 ||
        std::string("0123456789").find(static_cast<char>(key)) == std::string::npos)
      key = 0;
  };

  host.buttons().ref_scan->onClick = [this] { ref_scanreg(); };
  host.buttons().refa->onClick = [this] { refa_Click(); };
}

std::string RegistrySafety::scanregIni() const {
  return host_.windowsDirectory() + "\\scanreg.ini";
}

std::string RegistrySafety::filesEntry() const {
  std::string names;
  bool first = true;
  for (const BackupFile& file : kBackupFiles) {
    if ((this->*file.box)->value() == 1) {
      if (!first) names += ',';
      names += file.name;
    }
    first = false;
  }
  if (names.empty()) return names;
  std::string files = "30,";
  files += names;
  return files;
}

void RegistrySafety::ref_scanreg() {
  const std::string ini = scanregIni();
  // Files can only tick its boxes: a name that isn't there leaves its box.
  const std::string files = sysaccess::GetFromINI(kSection, "Files", ini);
  for (const BackupFile& file : kBackupFiles)
    if (files.find(file.name) != std::string::npos) (this->*file.box)->setValue(1);
  for (auto [key, box] : {std::pair{"Optimize", Check24}, std::pair{"Backup", Check25}}) {
    const std::string value = sysaccess::GetFromINI(kSection, key, ini);
    if (value == "1") box->setValue(1);
    if (value == "0") box->setValue(0);
  }
  const std::string directory = sysaccess::GetFromINI(kSection, "BackupDirectory", ini);
  if (directory.empty())
    Text15->setText(host_.windowsDirectory() + "\\sysbckup");
  else if (directory != "0")
    Text15->setText(directory);
  Text16->setText(sysaccess::GetFromINI(kSection, "MaxBackupCopies", ini));
  File1->setPath(Text15->text());
}

void RegistrySafety::refa_Click() {
  const std::string ini = scanregIni();
  const std::string files = host_.throughHidden(filesEntry());
  write(kSection, "Optimize", Check24->value() == 1 ? "1" : "0", ini);
  write(kSection, "Backup", Check25->value() == 1 ? "1" : "0", ini);
  write(kSection, "Files", files, ini);
  write(kNoteSection, kNoteKey, kNoteText, ini);
  write(kSection, "Files", files, ini);
  write(kSection, "BackupDirectory", Text15->text(), ini);
  write(kSection, "MaxBackupCopies", Text16->text(), ini);
  ref_scanreg();
  host_.buttons().refa->setEnabled(false);
}

} // namespace pages
