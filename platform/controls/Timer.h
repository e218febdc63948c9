#pragma once

#include <functional>

#include "platform/controls/Control.h"

namespace velmar::controls {

class TimerService;

/// Raises its event again and again while it is enabled and has an interval, which begins anew when the timer
/// is enabled. Starts disabled.
class Timer : public Control {
 public:
  explicit Timer(std::string name);
  ~Timer() override;

  /// Who makes it fire; borrowed, and to outlive the timer. Without one it never fires.
  void Service(TimerService* service);

  /// In milliseconds, 0 for none.
  long Interval() const noexcept { return interval_; }
  /// The interval begins anew. Raises kInvalidPropertyValue outside 0 to 65535.
  void Interval(long milliseconds);

  bool TakesFocus() const noexcept override { return false; }
  /// For TimerService: raises the event.
  void Fire() const { Raise(Elapsed); }

  /// The event `Timer` of the platform, which in C++ cannot bear its class's name.
  std::function<void()> Elapsed;

 protected:
  void EnabledChanged() override { Restart(); }

 private:
  void Restart();

  TimerService* service_ = nullptr;
  long interval_ = 0;
};

}  // namespace velmar::controls
