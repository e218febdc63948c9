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

  long Millis() const {
    return static_cast<long>(std::chrono::duration_cast<milliseconds>(loop.Now()).count());
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

TEST_F(MessageLoopTest, IdleWaitingTakesNoTimeButKeepsOrderAndIntervals) {
  const auto a = MakeTimer("a", 2000);
  const auto b = MakeTimer("b", 500);
  loop.DoEvents();
  EXPECT_EQ(log, "b");
  EXPECT_EQ(Millis(), 500);
  b->Enabled(false);
  loop.DoEvents();
  EXPECT_EQ(log, "ba");
  EXPECT_EQ(Millis(), 2000);
}

// The shape of an export: each timer arms its successor and works on with DoEvents.
TEST_F(MessageLoopTest, ATimerOvertakesTheWorkInProgressExactlyWhenItsTimeComes) {
  for (const bool skips : {true, false}) {
    SCOPED_TRACE(skips);
    log.clear();
    loop.SkipsIdleWaits(skips);
    const auto second = MakeTimer("2");
    const auto first = MakeTimer("1", 1);
    first->Elapsed = [&] {
      first->Enabled(false);
      second->Enabled(true);
      second->Interval(2000);
      for (int step = 1; step <= 5; ++step) {
        clock.Advance(milliseconds(500));
        loop.DoEvents();
        log += "s";
      }
      second->Enabled(false);
    };
    clock.Advance(milliseconds(1));
    loop.DoEvents();
    EXPECT_EQ(log, "sss2ss");
  }
}

TEST_F(MessageLoopTest, ATimerEventInProgressIsNotEnteredAgainAndTheClockStaysReal) {
  const auto a = MakeTimer("a", 10);
  const auto b = MakeTimer("b", 1000);
  a->Elapsed = [&] {
    log += "(";
    const long before = Millis();
    clock.Advance(milliseconds(30));
    loop.DoEvents();
    EXPECT_EQ(Millis(), before + 30);
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

TEST_F(MessageLoopTest, PostedEventsComeBeforeIdleTimersAndInTheirOrder) {
  const auto a = MakeTimer("a", 100);
  loop.Post([&] {
    log += "1";
    loop.Post([&] { log += "3"; });
  });
  loop.Post([&] { log += "2"; });
  EXPECT_EQ(loop.UntilNext(), milliseconds(0));
  loop.DoEvents();
  EXPECT_EQ(log, "12");
  EXPECT_EQ(Millis(), 0) << "something was in progress";
  loop.DoEvents();
  loop.DoEvents();
  EXPECT_EQ(log, "123a");
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
  loop.DoEvents();
  EXPECT_EQ(queue.looks, 2);

  const auto a = MakeTimer("a", 100);
  queue.busy = true;
  loop.DoEvents();
  EXPECT_EQ(log, "") << "the user is doing something";
  queue.busy = false;
  loop.DoEvents();
  EXPECT_EQ(log, "a");
  EXPECT_EQ(queue.looks, 4);
}

TEST_F(MessageLoopTest, FailuresOfEventsGoToTheHandlerAndTheLoopGoesOn) {
  const auto a = MakeTimer("a", 10);
  a->Elapsed = [] { throw RuntimeError(kDiskFull, "El disco está lleno."); };
  EXPECT_THROW(loop.DoEvents(), RuntimeError);
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

TEST_F(MessageLoopTest, ALoopFromOutsideIsToldWhenToCome) {
  int sooner = 0;
  loop.OnSooner([&] { ++sooner; });
  const auto a = MakeTimer("a", 30);
  EXPECT_EQ(sooner, 1);
  EXPECT_EQ(loop.UntilNext(), milliseconds(30));
  EXPECT_FALSE(loop.RunDue());
  clock.Advance(milliseconds(40));
  EXPECT_EQ(loop.UntilNext(), milliseconds(0));
  EXPECT_TRUE(loop.RunDue());
  EXPECT_TRUE(loop.RunNext());
  EXPECT_EQ(log, "aa");
  a->Enabled(false);
  EXPECT_FALSE(loop.RunNext());
}

}  // namespace
}  // namespace velmar::toolkit
