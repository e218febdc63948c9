#include "platform/toolkit/MessageLoop.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/controls/Timer.h"
#include "platform/error/ErrorNumber.h"
#include "platform/toolkit/FakeClock.h"
#include "platform/toolkit/NativeQueue.h"

namespace velmar::toolkit {
namespace {

using controls::Timer;
using std::chrono::milliseconds;

class MessageLoopTest : public testing::Test {
 protected:
  std::unique_ptr<Timer> MakeTimer(const std::string& name, long interval = 0) {
    auto timer = std::make_unique<Timer>(name);
    timer->Service(&loop);
    timer->Elapsed = [this, name] { log += name; };
    timer->Interval(interval);
    timer->Enabled(interval > 0);
    return timer;
  }

  FakeClock clock;
  MessageLoop loop{clock};
  std::string log;
};

TEST_F(MessageLoopTest, WithoutSkippingTimersFireWhenRealTimeSaysSo) {
  loop.SkipsIdleWaits(false);
  const auto a = MakeTimer("a", 20);
  const auto b = MakeTimer("b", 10);
  loop.DoEvents();
  EXPECT_EQ(log, "");
  clock.Advance(milliseconds(10));
  loop.DoEvents();
  loop.DoEvents();
  EXPECT_EQ(log, "b");
  clock.Advance(milliseconds(10));
  loop.DoEvents();
  EXPECT_EQ(log, "bab") << "both are due: the one armed first goes first";
  b->Enabled(false);
  a->Interval(50);
  clock.Advance(milliseconds(49));
  loop.DoEvents();
  EXPECT_EQ(log, "bab");
  clock.Advance(milliseconds(1));
  loop.DoEvents();
  EXPECT_EQ(log, "baba");
}

TEST_F(MessageLoopTest, ATimerEventInProgressIsNotEnteredAgainAndTheClockStaysReal) {
  const auto a = MakeTimer("a", 10);
  const auto b = MakeTimer("b", 1000);
  a->Elapsed = [&] {
    log += "(";
    const auto before = loop.Now();
    clock.Advance(milliseconds(30));
    loop.DoEvents();
    EXPECT_EQ(loop.Now(), before + milliseconds(30));
    log += ")";
  };
  loop.DoEvents();
  EXPECT_EQ(log, "()");
  loop.DoEvents();
  EXPECT_EQ(log, "()()") << "what came meanwhile comes once";
}

TEST_F(MessageLoopTest, ATimerMayEndItselfAndOthers) {
  auto a = MakeTimer("a", 10);
  auto b = MakeTimer("b", 10);
  a->Elapsed = [&] {
    log += "a";
    b.reset();
    a.reset();
    auto other = MakeTimer("c", 1);
    loop.DoEvents();
    EXPECT_EQ(log, "a") << "an event is still in progress";
    clock.Advance(milliseconds(1));
    loop.DoEvents();
  };
  loop.DoEvents();
  EXPECT_EQ(log, "ac");
  EXPECT_FALSE(loop.UntilNext());
}

TEST_F(MessageLoopTest, PostedEventsComeBeforeIdleTimersWhoseWaitsTakeNoTimeButKeepTheirOrder) {
  const auto a = MakeTimer("a", 2000);
  const auto b = MakeTimer("b", 500);
  loop.Post([&] {
    log += "1";
    loop.Post([&] { log += "3"; });
  });
  loop.Post([&] { log += "2"; });
  loop.DoEvents();
  EXPECT_EQ(log, "12");
  EXPECT_EQ(loop.Now(), milliseconds(0)) << "something was in progress";
  loop.DoEvents();
  loop.DoEvents();
  EXPECT_EQ(log, "123b");
  EXPECT_EQ(loop.Now(), milliseconds(500));
  b->Enabled(false);
  loop.DoEvents();
  EXPECT_EQ(log, "123ba");
  EXPECT_EQ(loop.Now(), milliseconds(2000));
}

TEST_F(MessageLoopTest, TheWindowSystemIsAskedNowAndThenAndBeforeTimeIsSkipped) {
  struct Queue : NativeQueue {
    bool Process() override {
      ++looks;
      return busy;
    }
    int looks = 0;
    bool busy = false;
  };
  Queue queue;
  loop.Native(&queue);
  for (int i = 0; i < 1000; ++i) loop.DoEvents();
  EXPECT_EQ(queue.looks, 1);
  clock.Advance(milliseconds(20));
  const auto a = MakeTimer("a", 100);
  queue.busy = true;
  loop.DoEvents();
  EXPECT_EQ(log, "") << "the user is doing something";
  queue.busy = false;
  loop.DoEvents();
  EXPECT_EQ(log, "a");
  EXPECT_EQ(queue.looks, 3);
}

TEST_F(MessageLoopTest, FailuresOfEventsGoToTheHandlerAndTheLoopGoesOn) {
  const auto a = MakeTimer("a", 10);
  a->Elapsed = [] { throw RuntimeError(kDiskFull, "El disco está lleno."); };
  EXPECT_THROW(loop.DoEvents(), RuntimeError) << "without one, to the caller";
  std::string failures;
  loop.OnFailure([&](const RuntimeError& error) { failures += std::to_string(error.Number()) + " "; });
  loop.Post([] { throw std::length_error("x"); });
  loop.DoEvents();
  loop.DoEvents();
  EXPECT_EQ(failures, "51 61 ");
  const auto b = MakeTimer("b", 1);
  loop.DoEvents();
  EXPECT_EQ(log, "b") << "no event is in progress any more";
}

}  // namespace
}  // namespace velmar::toolkit
