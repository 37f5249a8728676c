// A control array: elements by index, with gaps (net_check has no 5 and 20),
// and one handler per event that gets the element's index.
#pragma once

#include "runtime/basic_error.h"
#include "runtime/form.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace runtime {

inline constexpr int kControlArrayElementMissing = 340;

template <class T> class ControlArray {
public:
  explicit ControlArray(std::string name) : name_(std::move(name)) {}
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray&) = delete;

  const std::string& name() const { return name_; }

  // Creates element `index` on `form`; its events reach this array's handlers.
  T& add(Form& form, int index, Control* container, Bounds bounds) {
    T& element = form.add<T>(name_, index, container, bounds);
    elements_[index] = &element;
    connect(element, index);
    return element;
  }

  // Control array element 'N' doesn't exist (340) for a gap.
  T& operator()(int index) const {
    const auto it = elements_.find(index);
    if (it == elements_.end()) raiseError(kControlArrayElementMissing);
    return *it->second;
  }
  bool exists(int index) const { return elements_.count(index) == 1; }
  int lbound() const { return elements_.empty() ? 0 : elements_.begin()->first; }
  int ubound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  int count() const { return static_cast<int>(elements_.size()); }
  std::vector<int> indexes() const {
    std::vector<int> all;
    for (const auto& [index, element] : elements_)
      all.push_back(index);
    return all;
  }

  std::function<void(int)> onClick;
  std::function<void(int)> onChange;
  std::function<void(int, int, int, float, float)> onMouseMove; // index, button, shift, x, y

private:
  void connect(T& element, int index) {
    element.onMouseMove = [this, index](int button, int shift, float x, float y) {
      if (onMouseMove) onMouseMove(index, button, shift, x, y);
    };
    if constexpr (requires { element.onChange; }) {
      element.onChange = [this, index] {
        if (onChange) onChange(index);
      };
    }
    element.onClick = [this, index] {
      if (onClick) onClick(index);
    };
  }

  std::string name_;
  std::map<int, T*> elements_;
};

} // namespace runtime
