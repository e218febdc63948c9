#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/controls/MenuItem.h"

namespace velmar::controls {

/// The entries of a popup menu, in order.
class Menu {
 public:
  explicit Menu(std::string name);

  const std::string& Name() const noexcept { return name_; }
  const std::vector<MenuItem>& Items() const noexcept { return items_; }
  MenuItem& Add(MenuItem item);

  /// The user chooses an entry: its Click is raised. False for a line or a place with no entry.
  bool UserChoose(std::size_t index) const;

 private:
  std::string name_;
  std::vector<MenuItem> items_;
};

}  // namespace velmar::controls
