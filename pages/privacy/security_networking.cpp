#include "pages/privacy/security_networking.h"

namespace pages {

SecurityNetworking::SecurityNetworking(PageHost& host) : host_(host) {}

void SecurityNetworking::ref_net_sec() {}

} // namespace pages
