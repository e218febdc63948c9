#pragma once

#include <functional>

#include "platform/controls/CaptionedControl.h"

namespace velmar::controls {

class OptionGroup;

/// One of several choices that exclude each other; those that do are in one OptionGroup.
class OptionButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ~OptionButton() override;

  bool Value() const noexcept { return value_; }
  /// Chosen, it takes the choice from the others of its group. Click is raised when it becomes chosen.
  void Value(bool value);
  /// The user chooses it; Click is raised only if it was not chosen before.
  bool UserClick();

  std::function<void()> Click;

 private:
  friend class OptionGroup;

  OptionGroup* group_ = nullptr;
  bool value_ = false;
};

}  // namespace velmar::controls
