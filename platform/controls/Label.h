#pragma once

#include "platform/controls/CaptionedControl.h"

namespace velmar::controls {

/// A text beside another control; its access key leads to the next control in the tab order.
class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  bool TakesFocus() const noexcept override { return false; }
};

}  // namespace velmar::controls
