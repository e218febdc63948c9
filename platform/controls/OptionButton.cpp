#include "platform/controls/OptionButton.h"

#include "platform/controls/OptionGroup.h"

namespace velmar::controls {

OptionButton::~OptionButton() {
  if (group_ != nullptr) group_->Remove(*this);
}

void OptionButton::Value(bool value) {
  if (value_ == value) return;
  value_ = value;
  if (value && group_ != nullptr) group_->Chosen(*this);
  NotifyChanged(Property::kValue);
  if (value) Raise(Click);
}

bool OptionButton::UserClick() {
  if (!UserFocus()) return false;
  Value(true);
  return true;
}

}  // namespace velmar::controls
