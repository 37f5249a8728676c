// Splitting a command line of a driver script into its words.
#pragma once

#include "tests/e2e/driver/outcome.h"

#include <string>

namespace drive {

// Words are separated by blanks. A word in double quotes may hold blanks;
// inside quotes "" stands for one quote. Backslashes are ordinary characters,
// so Windows paths are written as they are. Returns false, with the reason in
// *error, for an unterminated quote.
bool splitWords(const std::string& line, Args* words, std::string* error);

// The words joined back, quoted where needed, for messages.
std::string joinWords(const Args& words);

} // namespace drive
