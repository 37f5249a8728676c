#include "pages/shell/desktop_explorer.h"

namespace pages {

DesktopExplorer::DesktopExplorer(PageHost& host) : host_(host) {}

void DesktopExplorer::ref_desk() {}

} // namespace pages
