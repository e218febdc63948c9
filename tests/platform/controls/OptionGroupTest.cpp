#include "platform/controls/OptionGroup.h"

#include <gtest/gtest.h>

#include "platform/controls/OptionButton.h"

namespace velmar::controls {
namespace {

TEST(OptionGroup, OneChoiceTakesTheOthersAway) {
  OptionGroup group;
  {
    OptionButton passing("opt");
    group.Add(passing);
  }
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
  EXPECT_EQ(group.Buttons().size(), 2U) << "a button that ends leaves it";
  OptionButton late("opt");
  late.Value(true);
  group.Add(late);
  EXPECT_FALSE(full.Value());
}

}  // namespace
}  // namespace velmar::controls
