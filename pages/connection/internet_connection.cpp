#include "pages/connection/internet_connection.h"

namespace pages {

InternetConnection::InternetConnection(PageHost& host)
    : host_(host),
      Slider_rwin_(host.mainForm(), "Slider_rwin_", &host.pageFrame(6), {}, {.display_status = 2}) {
}

void InternetConnection::ref_connection() {}
void InternetConnection::mtu_opt() {}
void InternetConnection::other_in_at_load() {}

} // namespace pages
