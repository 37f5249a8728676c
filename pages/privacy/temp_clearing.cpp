#include "pages/privacy/temp_clearing.h"

#include "runtime/basic_error.h"
#include "runtime/basic_files.h"

#include <optional>

namespace pages {

using namespace runtime;

namespace {

// The routine's error mode: statements run plainly, so that an error leaves
// the routine, until the first deletion switches on "resume next".
class ErrorMode {
public:
  void resumeFromHere() {
    if (!resume_) resume_.emplace();
  }
  template <class Statement> void operator()(Statement&& statement) {
    if (resume_)
      (*resume_)(statement);
    else
      statement();
  }

private:
  std::optional<ResumeNext> resume_;
};

} // namespace

void EmptyTempFolder(const std::string& windir) {
  const std::string folder = windir + "\\temp\\";
  ErrorMode run;

  // First pass: the subfolders, each emptied of its plain files and removed.
  // A folder that still holds anything (a folder, a hidden, read-only or open
  // file) stays.
  DirSearch subfolders(folder, vbDirectory);
  for (std::string name = subfolders.name(); !name.empty(); name = subfolders.next()) {
    if (name == "." || name == "..") continue;
    // An attribute read that fails once errors are skipped leaves the test
    // passed, as a failing condition does under "resume next".
    bool isFolder = true;
    run([&] { isFolder = (GetAttr(folder + name) & vbDirectory) != 0; });
    if (!isFolder) continue;
    run.resumeFromHere();
    run([&] { Kill(folder + name + "\\*.*"); });
    run([&] { RmDir(folder + name); });
  }

  // Second pass: the plain files. The attribute read decides nothing, and the
  // folder removal of each file's name always fails; both stay as they are.
  DirSearch files(folder, vbNormal);
  for (std::string name = files.name(); !name.empty(); name = files.next()) {
    run([&] { GetAttr(folder + name); });
    run.resumeFromHere();
    run([&] { Kill(folder + name); });
    run([&] { RmDir(folder + name); });
  }
}

} // namespace pages
