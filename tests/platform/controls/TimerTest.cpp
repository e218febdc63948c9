#include "platform/controls/Timer.h"

#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/controls/TimerService.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

struct Service : TimerService {
  void Arm(Timer& timer) override { log += "arm" + std::to_string(timer.Interval()) + " "; }
  void Disarm(Timer& /*timer*/) noexcept override { log += "off "; }
  void Forget(Timer& /*timer*/) noexcept override { log += "gone"; }
  std::string log;
};

TEST(Timer, RunsWithAnIntervalWhileEnabled) {
  Service service;
  {
    Timer timer("tmrExportacion");
    EXPECT_FALSE(timer.Enabled());
    timer.Service(&service);
    service.log.clear();
    timer.Enabled(true);
    EXPECT_EQ(service.log, "off ") << "no interval yet";
    timer.Interval(1);
    timer.Interval(2000);
    timer.Enabled(false);
    timer.Interval(0);
    EXPECT_EQ(service.log, "off off arm1 off arm2000 off off ");
    EXPECT_EQ(FailureOf([&] { timer.Interval(65536); }), kInvalidPropertyValue);
    EXPECT_EQ(FailureOf([&] { timer.Interval(-1); }), kInvalidPropertyValue);
    service.log.clear();
  }
  EXPECT_EQ(service.log, "gone");
}

}  // namespace
}  // namespace velmar::controls
