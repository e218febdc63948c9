#include "platform/controls/FocusScope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/controls/CommandButton.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/TextBox.h"

namespace velmar::controls {
namespace {

class FocusScopeTest : public testing::Test {
 protected:
  FocusScopeTest() {
    int index = 0;
    for (Control* control : std::initializer_list<Control*>{&label, &box, &accept, &cancel}) {
      control->TabIndex(index++);
      control->GotFocus = [this, control] { events += "+" + control->Name() + " "; };
      control->LostFocus = [this, control] { events += "-" + control->Name() + " "; };
      scope.Add(*control);
    }
    accept.Default(true);
    cancel.Cancel(true);
    accept.Click = [this] { events += "accept "; };
    cancel.Click = [this] { events += "cancel "; };
  }

  FocusScope scope;
  Label label{"label"};
  TextBox box{"box"};
  CommandButton accept{"accept"};
  CommandButton cancel{"cancel"};
  std::string events;
};

TEST_F(FocusScopeTest, TheFocusLeavesOneControlBeforeItReachesTheNext) {
  box.SetFocus();
  box.SetFocus();
  accept.UserClick();
  EXPECT_EQ(events, "+box -box +accept accept ");
}

TEST_F(FocusScopeTest, EnterAndEscPressTheirButtonsOfWhichThereIsOneEach) {
  box.SetFocus();
  events.clear();
  EXPECT_TRUE(scope.UserEnter());
  EXPECT_TRUE(scope.UserEscape());
  EXPECT_EQ(events, "accept cancel ");
  cancel.SetFocus();
  events.clear();
  EXPECT_TRUE(scope.UserEnter());
  EXPECT_EQ(events, "cancel ") << "a button with the focus takes the key";
  cancel.Default(true);
  accept.Cancel(true);
  EXPECT_FALSE(accept.Default() || cancel.Cancel());
}

TEST_F(FocusScopeTest, TheTabKeyVisitsWhatCanHaveTheFocus) {
  accept.Enabled(false);
  std::vector<Control*> visited;
  for (const bool back : {false, false, false, true}) {
    scope.UserTab(back);
    visited.push_back(scope.ActiveControl());
  }
  EXPECT_THAT(visited, testing::ElementsAre(&box, &cancel, &box, &cancel));
  box.TabStop(false);
  EXPECT_THAT(scope.TabOrder(), testing::ElementsAre(&cancel));
}

TEST_F(FocusScopeTest, ADisabledOrBlockedWindowTakesNothing) {
  scope.Enabled(false);
  EXPECT_FALSE(accept.UserClick() || scope.UserEnter() || scope.UserEscape());
  scope.Enabled(true);
  scope.Blocked(true);
  EXPECT_FALSE(accept.UserClick());
  scope.Blocked(false);
  accept.Click = [this] { accept.Click = nullptr; };  // a handler may do without itself from now on
  EXPECT_TRUE(accept.UserClick());
}

TEST_F(FocusScopeTest, AControlThatEndsLeavesTheWindow) {
  {
    TextBox passing("passing");
    scope.Add(passing);
    passing.SetFocus();
  }
  EXPECT_EQ(scope.ActiveControl(), nullptr);
  EXPECT_THAT(scope.Controls(), testing::SizeIs(4));
}

}  // namespace
}  // namespace velmar::controls
