#include "pages/privacy/boot_options.h"

namespace pages {

BootOptions::BootOptions(PageHost& host)
    : host_(host), sl(host.mainForm(), "sl", &host.pageFrame(1), {}, {.display_status = 1}) {}

void BootOptions::ref_boot() {}

} // namespace pages
