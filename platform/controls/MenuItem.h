#pragma once

#include <functional>
#include <string>

namespace velmar::controls {

/// One entry of a menu. The caption "-" makes a line.
struct MenuItem {
  std::string name;
  std::string caption;
  std::function<void()> Click;

  bool IsSeparator() const { return caption == "-"; }
};

}  // namespace velmar::controls
