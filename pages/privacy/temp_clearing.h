// Emptying the temporary folder below the Windows directory.
#pragma once

#include <string>

namespace pages {

// Empties `windir` + "\temp\" in two passes: first every folder that a search
// for folders finds there is emptied of its plain files and removed, then
// every plain file is deleted. Folders are cleared one level deep only, and
// hidden, system, read-only and open files stay, as does any folder that
// still holds something. Nothing outside that folder is touched.
//
// Reports nothing. Until its first deletion a run-time error (an entry whose
// attributes can't be read) ends the routine and passes to the caller, which
// ignores it; from the first deletion on each failing statement is skipped.
// `windir` is the form's Windows directory, without a trailing backslash.
void EmptyTempFolder(const std::string& windir);

} // namespace pages
