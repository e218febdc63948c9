#pragma once

#include "platform/controls/Control.h"

namespace velmar::controls {

/// How far a long task has come: Min <= Value <= Max, at first 0, 0 and 100.
class ProgressBar : public Control {
 public:
  using Control::Control;

  long Min() const noexcept { return min_; }
  /// Raises kInvalidPropertyValue above Max. A Value below it moves up to it.
  void Min(long min);
  long Max() const noexcept { return max_; }
  /// Raises kInvalidPropertyValue below Min; equal to it is an empty task. A Value above it moves down to it.
  void Max(long max);
  long Value() const noexcept { return value_; }
  /// Raises kInvalidPropertyValue outside Min to Max.
  void Value(long value);

  bool TakesFocus() const noexcept override { return false; }

 private:
  void Refuse(const char* property, long value) const;

  long min_ = 0;
  long max_ = 100;
  long value_ = 0;
};

}  // namespace velmar::controls
