#include "platform/controls/Menu.h"

#include <utility>

namespace velmar::controls {

Menu::Menu(std::string name) : name_(std::move(name)) {}

MenuItem& Menu::Add(MenuItem item) {
  return items_.emplace_back(std::move(item));
}

bool Menu::UserChoose(std::size_t index) const {
  if (index >= items_.size() || items_[index].IsSeparator()) return false;
  const auto click = items_[index].Click;
  if (click) click();
  return true;
}

}  // namespace velmar::controls
