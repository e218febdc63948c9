#pragma once

#include <functional>
#include <string>

#include "platform/controls/CaptionedControl.h"

namespace velmar::controls {

/// A button. At most one of a window is its default and one its cancel button.
class CommandButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  /// True if the Enter key presses this button from other controls.
  bool Default() const noexcept { return default_; }
  void Default(bool isDefault);
  /// True if the Esc key presses this button.
  bool Cancel() const noexcept { return cancel_; }
  void Cancel(bool isCancel);

  /// A click with the mouse, the blank key or the access key: takes the focus first.
  bool UserClick();
  /// Pressed by the Enter or the Esc key: the focus stays where it is.
  bool UserPress();

  std::function<void()> Click;

 private:
  bool default_ = false;
  bool cancel_ = false;
};

}  // namespace velmar::controls
