#include "platform/toolkit/MessageLoop.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/controls/Timer.h"
#include "platform/error/ErrorNumber.h"
#include "platform/toolkit/NativeQueue.h"

namespace velmar::toolkit {
namespace {

constexpr std::chrono::milliseconds kNativePeriod{8};

}  // namespace

MessageLoop::MessageLoop(const Clock& clock) : clock_(clock), lastLook_(clock.Now() - kNativePeriod) {}

void MessageLoop::DoEvents() {
  bool busy = false;
  if (native_ != nullptr) {
    const auto now = clock_.Now();
    if (now - lastLook_ >= kNativePeriod) busy = LookAtNative(now);
  }
  if (posted_.empty() && armed_.empty()) return;
  busy |= RunDue();
  if (busy || !skips_ || !inProgress_.empty() || Earliest() == nullptr) return;
  if (native_ != nullptr && LookAtNative(clock_.Now())) return;
  // The look may have changed everything.
  if (!posted_.empty() || Earliest() == nullptr) return;
  MoveClockToNext();
  FireDue();
}

void MessageLoop::Post(std::function<void()> event) {
  posted_.push_back(std::move(event));
  if (sooner_) sooner_();
}

void MessageLoop::Dispatch(const std::function<void()>& event) {
  if (!failed_) {
    event();
    return;
  }
  std::optional<RuntimeError> failure;
  try {
    event();
  } catch (const RuntimeError& error) {
    failure = error;
  } catch (const std::exception& error) {
    failure = RuntimeError(kInternalError, error.what());
  }
  if (failure) {
    const auto handler = failed_;
    handler(*failure);
  }
}

bool MessageLoop::RunDue() {
  const bool ranPosted = RunPosted();
  return FireDue() || ranPosted;
}

bool MessageLoop::RunNext() {
  if (RunDue()) return true;
  if (Earliest() == nullptr) return false;
  MoveClockToNext();
  return FireDue();
}

std::optional<std::chrono::nanoseconds> MessageLoop::UntilNext() const {
  if (!posted_.empty()) return std::chrono::nanoseconds{0};
  const Armed* next = Earliest();
  if (next == nullptr) return std::nullopt;
  return std::max(next->due - Now(), std::chrono::nanoseconds{0});
}

void MessageLoop::Arm(controls::Timer& timer) {
  Disarm(timer);
  armed_.push_back({&timer, Now() + std::chrono::milliseconds(timer.Interval()), ++sequence_});
  if (sooner_) sooner_();
}

void MessageLoop::Disarm(controls::Timer& timer) noexcept {
  armed_.erase(
      std::remove_if(armed_.begin(), armed_.end(), [&](const Armed& armed) { return armed.timer == &timer; }),
      armed_.end());
}

void MessageLoop::Forget(controls::Timer& timer) noexcept {
  Disarm(timer);
  std::replace(inProgress_.begin(), inProgress_.end(), static_cast<const controls::Timer*>(&timer),
               static_cast<const controls::Timer*>(nullptr));
}

bool MessageLoop::RunPosted() {
  // Those that an event posts are left for the next turn.
  const std::size_t count = posted_.size();
  for (std::size_t i = 0; i < count && !posted_.empty(); ++i) {
    const std::function<void()> event = std::move(posted_.front());
    posted_.pop_front();
    Dispatch(event);
  }
  return count > 0;
}

bool MessageLoop::FireDue() {
  const auto turn = Now();
  // A timer that is armed from here on, or again, waits for the next turn.
  const std::uint64_t last = sequence_;
  bool fired = false;
  while (true) {
    const Armed* next = Earliest(last);
    if (next == nullptr || next->due > turn) return fired;
    controls::Timer* timer = next->timer;
    Armed& again = armed_[static_cast<std::size_t>(next - armed_.data())];
    again.due = std::max(again.due + std::chrono::milliseconds(timer->Interval()), turn);
    again.sequence = ++sequence_;
    fired = true;

    struct Progress {
      explicit Progress(std::vector<const controls::Timer*>& timers, const controls::Timer* timer)
          : timers_(timers) {
        timers_.push_back(timer);
      }
      Progress(const Progress&) = delete;
      Progress& operator=(const Progress&) = delete;
      ~Progress() { timers_.pop_back(); }
      std::vector<const controls::Timer*>& timers_;
    };
    const Progress progress(inProgress_, timer);
    Dispatch([timer] { timer->Fire(); });
  }
}

bool MessageLoop::LookAtNative(std::chrono::nanoseconds now) {
  // Set first, so that a turn of the loop inside an event does not look again.
  lastLook_ = now;
  const bool busy = native_->Process();
  lastLook_ = clock_.Now();
  return busy;
}

bool MessageLoop::InProgress(const controls::Timer* timer) const noexcept {
  return std::find(inProgress_.begin(), inProgress_.end(), timer) != inProgress_.end();
}

const MessageLoop::Armed* MessageLoop::Earliest(std::uint64_t last) const noexcept {
  const Armed* earliest = nullptr;
  for (const Armed& armed : armed_) {
    if (armed.sequence > last || InProgress(armed.timer)) continue;
    if (earliest == nullptr ||
        std::pair(armed.due, armed.sequence) < std::pair(earliest->due, earliest->sequence)) {
      earliest = &armed;
    }
  }
  return earliest;
}

void MessageLoop::MoveClockToNext() {
  const Armed* next = Earliest();
  const auto ahead = next->due - Now();
  if (ahead <= std::chrono::nanoseconds{0}) return;
  skipped_ += ahead;
  if (sooner_) sooner_();
}

}  // namespace velmar::toolkit
