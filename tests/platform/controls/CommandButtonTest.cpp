#include "platform/controls/CommandButton.h"

#include <gtest/gtest.h>

namespace velmar::controls {
namespace {

TEST(CommandButton, ClicksOnlyWhileItCanBePressed) {
  CommandButton button("cmd", "&Exportar");
  int clicks = 0;
  button.Click = [&] {
    ++clicks;
    button.Click = nullptr;  // a handler may do without itself from now on
  };
  button.Enabled(false);
  EXPECT_FALSE(button.UserClick());
  EXPECT_FALSE(button.UserPress());
  button.Enabled(true);
  EXPECT_TRUE(button.UserClick());
  EXPECT_TRUE(button.UserClick());
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace velmar::controls
