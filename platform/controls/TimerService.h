#pragma once

namespace velmar::controls {

class Timer;

/// What makes timers fire. A timer tells it of each change of its state, and that it ends.
class TimerService {
 public:
  virtual ~TimerService() = default;

  /// The interval begins now: the timer is to fire after each Interval() from here on.
  virtual void Arm(Timer& timer) = 0;
  /// The timer fires no more. Called for timers that are not armed, too.
  virtual void Disarm(Timer& timer) noexcept = 0;
  /// As Disarm, and the timer is gone.
  virtual void Forget(Timer& timer) noexcept = 0;
};

}  // namespace velmar::controls
