#pragma once

#include <string>
#include <utility>

#include "platform/controls/Control.h"

namespace velmar::controls {

/// A control with a caption, in which `&` marks the access key.
class CaptionedControl : public Control {
 public:
  explicit CaptionedControl(std::string name, std::string caption = {})
      : Control(std::move(name)), caption_(std::move(caption)) {}

  const std::string& Caption() const noexcept { return caption_; }
  void Caption(std::string caption) {
    caption_ = std::move(caption);
    NotifyChanged(Property::kCaption);
  }

 private:
  std::string caption_;
};

}  // namespace velmar::controls
