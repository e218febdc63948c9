#include "platform/controls/OptionGroup.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/controls/OptionButton.h"

namespace velmar::controls {
namespace {

TEST(OptionGroup, OneChoiceTakesTheOthersAway) {
  OptionGroup group;
  OptionButton full("optExportar", "Relación completa entre tablas");
  OptionButton partial("optExportar", "Relación parcial entre tablas");
  std::string events;
  full.Click = [&] { events += "f"; };
  partial.Click = [&] { events += partial.Value() && !full.Value() ? "p" : "?"; };
  full.Value(true);
  group.Add(full);
  group.Add(partial);
  partial.UserClick();
  partial.UserClick();
  EXPECT_FALSE(full.Value());
  full.Value(true);
  EXPECT_FALSE(partial.Value());
  EXPECT_EQ(events, "fpf");
  partial.Enabled(false);
  EXPECT_FALSE(partial.UserClick());
  EXPECT_TRUE(full.Value());
}

TEST(OptionGroup, AButtonThatEndsLeavesIt) {
  OptionGroup group;
  OptionButton one("opt");
  auto two = std::make_unique<OptionButton>("opt");
  group.Add(one);
  group.Add(*two);
  two.reset();
  one.Value(true);
  EXPECT_EQ(group.Buttons().size(), 1U);
}

}  // namespace
}  // namespace velmar::controls
