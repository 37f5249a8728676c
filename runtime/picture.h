// A picture as the controls hold it: the identity of an image of the
// program's resources ("tab0.bmp"). Assigning one control's picture to
// another copies the identity; the presentation draws it.
#pragma once

#include <string>

namespace runtime {

struct Picture {
  std::string resource; // empty: no picture
  bool empty() const { return resource.empty(); }
  bool operator==(const Picture&) const = default;
};

} // namespace runtime
