#include "platform/controls/CommandButton.h"

#include "platform/controls/FocusScope.h"

namespace velmar::controls {

void CommandButton::Default(bool isDefault) {
  if (default_ == isDefault) return;
  default_ = isDefault;
  if (isDefault && Scope() != nullptr) Scope()->BecameDefault(*this);
  NotifyChanged(Property::kDefault);
}

void CommandButton::Cancel(bool isCancel) {
  if (cancel_ == isCancel) return;
  cancel_ = isCancel;
  if (isCancel && Scope() != nullptr) Scope()->BecameCancel(*this);
  NotifyChanged(Property::kDefault);
}

bool CommandButton::UserClick() {
  if (!UserFocus()) return false;
  return UserPress();
}

bool CommandButton::UserPress() {
  if (!CanAct()) return false;
  Raise(Click);
  return true;
}

}  // namespace velmar::controls
