#include "platform/controls/ProgressBar.h"

#include <algorithm>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

void ProgressBar::Min(long min) {
  if (min > max_) Refuse("Min", min);
  min_ = min;
  value_ = std::max(value_, min_);
  NotifyChanged(Property::kRange);
}

void ProgressBar::Max(long max) {
  if (max < min_) Refuse("Max", max);
  max_ = max;
  value_ = std::min(value_, max_);
  NotifyChanged(Property::kRange);
}

void ProgressBar::Value(long value) {
  if (value < min_ || value > max_) Refuse("Value", value);
  if (value_ == value) return;
  value_ = value;
  NotifyChanged(Property::kValue);
}

void ProgressBar::Refuse(const char* property, long value) const {
  throw RuntimeError(kInvalidPropertyValue,
                     "El valor " + std::to_string(value) + " no vale para " + property + " de la barra \"" +
                         Name() + "\", que va de " + std::to_string(min_) + " a " + std::to_string(max_) +
                         ".",
                     Name());
}

}  // namespace velmar::controls
