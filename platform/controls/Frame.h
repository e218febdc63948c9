#pragma once

#include "platform/controls/CaptionedControl.h"

namespace velmar::controls {

/// Holds other controls, which name it as their container: disabled or hidden, it disables or hides them.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  bool TakesFocus() const noexcept override { return false; }
};

}  // namespace velmar::controls
