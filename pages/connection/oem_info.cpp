#include "pages/connection/oem_info.h"

namespace pages {

OemInfo::OemInfo(PageHost& host) : host_(host) {}

void OemInfo::ref_oem_page() {}

} // namespace pages
