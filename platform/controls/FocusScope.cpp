#include "platform/controls/FocusScope.h"

#include <algorithm>
#include <cstddef>

#include "platform/controls/CommandButton.h"
#include "platform/controls/Control.h"
#include "platform/controls/TextBox.h"

namespace velmar::controls {

FocusScope::~FocusScope() {
  for (Control* control : controls_) control->scope_ = nullptr;
}

void FocusScope::Add(Control& control) {
  if (control.scope_ == this) return;
  if (control.scope_ != nullptr) control.scope_->Remove(control);
  control.scope_ = this;
  controls_.push_back(&control);
}

void FocusScope::Remove(Control& control) noexcept {
  controls_.erase(std::remove(controls_.begin(), controls_.end(), &control), controls_.end());
  if (active_ == &control) active_ = nullptr;
  control.scope_ = nullptr;
}

void FocusScope::Focus(Control& control) {
  if (active_ == &control) return;
  Control* previous = active_;
  active_ = &control;
  if (previous != nullptr) Control::Raise(previous->LostFocus);
  // The handler may have moved the focus on.
  if (active_ == &control) Control::Raise(control.GotFocus);
}

std::vector<Control*> FocusScope::TabOrder() const {
  std::vector<Control*> order;
  for (Control* control : controls_) {
    if (control->TakesFocus() && control->TabStop() && control->CanAct()) order.push_back(control);
  }
  std::stable_sort(order.begin(), order.end(),
                   [](const Control* a, const Control* b) { return a->TabIndex() < b->TabIndex(); });
  return order;
}

bool FocusScope::UserTab(bool back) {
  const std::vector<Control*> order = TabOrder();
  if (order.empty()) return false;
  const auto at = std::find(order.begin(), order.end(), active_);
  std::size_t next = back ? order.size() - 1 : 0;
  if (at != order.end()) {
    const auto index = static_cast<std::size_t>(at - order.begin());
    next = (index + (back ? order.size() - 1 : 1)) % order.size();
  }
  return order[next]->UserFocus();
}

template <typename Test>
CommandButton* FocusScope::FindButton(Test test) const {
  for (Control* control : controls_) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && test(*button)) return button;
  }
  return nullptr;
}

bool FocusScope::UserEnter() {
  if (!CanAct()) return false;
  if (auto* focused = dynamic_cast<CommandButton*>(active_)) return focused->UserPress();
  if (auto* button = FindButton([](const CommandButton& b) { return b.Default(); }))
    return button->UserPress();
  if (auto* box = dynamic_cast<TextBox*>(active_)) return box->UserType("\r");
  return false;
}

bool FocusScope::UserEscape() {
  CommandButton* button = FindButton([](const CommandButton& b) { return b.Cancel(); });
  return button != nullptr && button->UserPress();
}

void FocusScope::BecameDefault(const CommandButton& button) {
  while (CommandButton* other =
             FindButton([&](const CommandButton& b) { return &b != &button && b.Default(); })) {
    other->Default(false);
  }
}

void FocusScope::BecameCancel(const CommandButton& button) {
  while (CommandButton* other =
             FindButton([&](const CommandButton& b) { return &b != &button && b.Cancel(); })) {
    other->Cancel(false);
  }
}

}  // namespace velmar::controls
