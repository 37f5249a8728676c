// The named-tweak catalogue and its reader ref_tweak: a word names one
// registry value and the control that shows it, with the rule that turns the
// value's text into the control's state.
#pragma once

#include "pages/page_host.h"

#include <string>

namespace pages {

// Reads the catalogue row of `word` into its control; an unknown word does
// nothing.
void ref_tweak(PageHost& host, const std::string& word);

} // namespace pages
