#include "platform/controls/Menu.h"

#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

Menu::Menu(std::string name) : name_(std::move(name)) {}

MenuItem& Menu::Add(MenuItem item) {
  return items_.emplace_back(std::move(item));
}

const MenuItem& Menu::Item(std::string_view name) const {
  for (const MenuItem& item : items_) {
    if (item.name == name) return item;
  }
  throw RuntimeError(kSubscriptOutOfRange,
                     "El menú \"" + name_ + "\" no tiene la entrada \"" + std::string(name) + "\".", name_);
}

bool Menu::UserChoose(std::size_t index) const {
  if (index >= items_.size() || items_[index].IsSeparator()) return false;
  const auto click = items_[index].Click;
  if (click) click();
  return true;
}

}  // namespace velmar::controls
