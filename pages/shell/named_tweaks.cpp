#include "pages/shell/named_tweaks.h"

namespace pages {

void ref_tweak(PageHost&, const std::string&) {}

} // namespace pages
