// What a page needs of the main form it lives on: the form and the page's
// frame, the picture buttons, the text normaliser, the Windows directory, and
// the places where a page leaves its reader and its button work.
#pragma once

#include "runtime/form.h"
#include "runtime/value.h"

#include <functional>
#include <string>

namespace pages {

class PageHost {
public:
  virtual ~PageHost() = default;
  virtual runtime::Form& mainForm() = 0;
  virtual runtime::Frame& pageFrame(int frameIndex) = 0;
  virtual runtime::PictureBox& pageButton(const std::string& name) = 0;
  // The value through the hidden text box: as text, cut at its first NUL.
  virtual std::string throughHidden(const runtime::Value& value) = 0;
  // The Windows directory, without a trailing backslash.
  virtual const std::string& windowsDirectory() const = 0;
  virtual void setReader(const std::string& name, std::function<void()> reader) = 0;
  // What a click of a page's picture button does.
  virtual void setButtonWork(const std::string& button, std::function<void()> work) = 0;
};

} // namespace pages
