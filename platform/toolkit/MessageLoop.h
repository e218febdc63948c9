#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "platform/controls/TimerService.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/Clock.h"

namespace velmar::toolkit {

class NativeQueue;

/// The one thread's loop: events that were posted, timers that are due, and now and then the window system's
/// events. All run inside DoEvents, on top of whatever called it.
///
/// The loop keeps its own clock. It goes with the real one but for idle waiting: when DoEvents finds nothing
/// to do and no timer event is in progress, only the next timer can go on, so the clock moves forward to it.
/// Timers fire in the order in which they are due, and the time between them is as they ask; while a timer
/// event is in progress, time is real, and the next timer overtakes it exactly when its interval is over.
class MessageLoop : public controls::TimerService {
 public:
  /// The clock is borrowed.
  explicit MessageLoop(const Clock& clock);
  MessageLoop(const MessageLoop&) = delete;
  MessageLoop& operator=(const MessageLoop&) = delete;

  /// Where the window system's events come from, nullptr for nowhere. Borrowed.
  void Native(NativeQueue* queue) noexcept { native_ = queue; }
  /// False: the loop's clock never moves forward by itself.
  bool SkipsIdleWaits() const noexcept { return skips_; }
  void SkipsIdleWaits(bool skips) noexcept { skips_ = skips; }

  /// One turn. Costs next to nothing when nothing waits; the window system is asked at most every few
  /// milliseconds. What an event throws goes to the failure handler or, without one, to the caller.
  void DoEvents();

  /// Queues an event for a later turn.
  void Post(std::function<void()> event);
  /// Runs an event now, with its failure handled as in DoEvents.
  void Dispatch(const std::function<void()>& event);
  /// Takes the failures of events; none: they pass to whoever gave the loop its turn.
  void OnFailure(std::function<void(const RuntimeError&)> handler) { failed_ = std::move(handler); }

  /// Runs what is due, without a look at the window system and without moving the clock: for a toolkit whose
  /// window system has a loop of its own. True if anything ran.
  bool RunDue();
  /// Runs what comes next, and moves the clock to it if it must. False if nothing is queued and no timer
  /// armed.
  bool RunNext();
  /// How long until the next timer, 0 if one is due or an event is queued; nothing if nothing will come.
  std::optional<std::chrono::nanoseconds> UntilNext() const;
  /// Called whenever UntilNext may have become shorter.
  void OnSooner(std::function<void()> handler) { sooner_ = std::move(handler); }

  /// Time by the loop's own clock.
  std::chrono::nanoseconds Now() const { return clock_.Now() + skipped_; }

  void Arm(controls::Timer& timer) override;
  void Disarm(controls::Timer& timer) noexcept override;
  void Forget(controls::Timer& timer) noexcept override;

 private:
  struct Armed {
    controls::Timer* timer;
    std::chrono::nanoseconds due;
    std::uint64_t sequence;
  };

  bool RunPosted();
  bool FireDue();
  bool LookAtNative(std::chrono::nanoseconds now);
  bool InProgress(const controls::Timer* timer) const noexcept;
  /// The next to be due of those armed up to `last`, without the timers whose events are in progress.
  const Armed* Earliest(std::uint64_t last = std::numeric_limits<std::uint64_t>::max()) const noexcept;
  void MoveClockToNext();

  const Clock& clock_;
  NativeQueue* native_ = nullptr;
  std::function<void(const RuntimeError&)> failed_;
  std::function<void()> sooner_;
  std::deque<std::function<void()>> posted_;
  std::vector<Armed> armed_;
  std::vector<const controls::Timer*> inProgress_;  // innermost last
  std::chrono::nanoseconds skipped_{0};
  std::chrono::nanoseconds lastLook_;
  std::uint64_t sequence_ = 0;
  bool skips_ = true;
};

}  // namespace velmar::toolkit
