// Every picture of the program, drawn from scratch.
#pragma once

#include "canvas.h"
#include "codec.h"

#include <string>
#include <vector>

namespace artgen {

struct OutputFile {
  std::string name;
  Bytes bytes;
};

// The files of the resources/images directory, in a fixed order.
std::vector<OutputFile> allFiles();

} // namespace artgen
