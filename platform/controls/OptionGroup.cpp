#include "platform/controls/OptionGroup.h"

#include <algorithm>

#include "platform/controls/OptionButton.h"

namespace velmar::controls {

OptionGroup::~OptionGroup() {
  for (OptionButton* button : buttons_) button->group_ = nullptr;
}

void OptionGroup::Add(OptionButton& button) {
  if (button.group_ == this) return;
  if (button.group_ != nullptr) button.group_->Remove(button);
  button.group_ = this;
  buttons_.push_back(&button);
  if (button.Value()) Chosen(button);
}

void OptionGroup::Remove(OptionButton& button) noexcept {
  buttons_.erase(std::remove(buttons_.begin(), buttons_.end(), &button), buttons_.end());
  button.group_ = nullptr;
}

void OptionGroup::Chosen(const OptionButton& button) {
  for (OptionButton* other : buttons_) {
    if (other != &button) other->Value(false);
  }
}

}  // namespace velmar::controls
