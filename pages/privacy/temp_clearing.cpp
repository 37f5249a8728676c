#include "pages/privacy/temp_clearing.h"

namespace pages {

void EmptyTempFolder() {}

} // namespace pages
