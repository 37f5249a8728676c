#include "pages/connection/troubleshooting.h"

namespace pages {

Troubleshooting::Troubleshooting(PageHost& host) : host_(host) {}

void Troubleshooting::ref_trouble() {}
void Troubleshooting::defgragFollowsCheck2() {}

} // namespace pages
