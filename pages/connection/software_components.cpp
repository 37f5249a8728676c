#include "pages/connection/software_components.h"

namespace pages {

SoftwareComponents::SoftwareComponents(PageHost& host) : host_(host) {}

void SoftwareComponents::ref_uninstall_list() {}
void SoftwareComponents::ref_run_list() {}

} // namespace pages
