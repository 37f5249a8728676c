// Emptying the temporary folder below the Windows directory.
#pragma once

namespace pages {

void EmptyTempFolder();

} // namespace pages
