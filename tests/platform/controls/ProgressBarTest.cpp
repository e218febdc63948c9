#include "platform/controls/ProgressBar.h"

#include <gtest/gtest.h>

#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(ProgressBar, KeepsTheValueInItsRange) {
  ProgressBar bar("prg");
  bar.Max(3);
  bar.Value(3);
  EXPECT_EQ(FailureOf([&] { bar.Value(4); }), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { bar.Max(-1); }), kInvalidPropertyValue);
  bar.Max(2);
  EXPECT_EQ(bar.Value(), 2);
  bar.Min(2);
  EXPECT_EQ(FailureOf([&] { bar.Value(1); }), kInvalidPropertyValue);
  bar.Min(0);
  bar.Max(0);  // a task of no steps is no failure
  EXPECT_EQ(bar.Value(), 0);
}

}  // namespace
}  // namespace velmar::controls
