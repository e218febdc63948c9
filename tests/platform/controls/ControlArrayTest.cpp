#include "platform/controls/ControlArray.h"

#include <gtest/gtest.h>

#include "platform/controls/CommandButton.h"
#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(ControlArray, OneHandlerServesAllAndLaterElements) {
  ControlArray<CommandButton> buttons("cmdOrden");
  EXPECT_EQ(buttons.UBound(), -1);
  buttons.Load(0, "quitar");
  std::string pressed;
  buttons.Wire([&](CommandButton& button, int index) {
    button.Click = [&pressed, index] { pressed += std::to_string(index); };
  });
  buttons.Load(2);
  buttons(2).UserClick();
  buttons(0).UserClick();
  EXPECT_EQ(pressed, "20");
  EXPECT_EQ(buttons.UBound(), 2);
  EXPECT_EQ(FailureOf([&] { buttons(1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { buttons.Load(0); }), kKeyAlreadyInUse);
  buttons.Unload(0);
  EXPECT_EQ(FailureOf([&] { buttons.Unload(0); }), kSubscriptOutOfRange);
}

}  // namespace
}  // namespace velmar::controls
