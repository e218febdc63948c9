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
  EXPECT_EQ(scope.ActiveControl(), &accept);
}

TEST_F(FocusScopeTest, EnterPressesTheDefaultButtonWithoutTheFocus) {
  box.SetFocus();
  events.clear();
  EXPECT_TRUE(scope.UserEnter());
  EXPECT_EQ(events, "accept ");
  cancel.SetFocus();
  events.clear();
  EXPECT_TRUE(scope.UserEnter());
  EXPECT_EQ(events, "cancel ") << "a button with the focus takes the key";
  events.clear();
  EXPECT_TRUE(scope.UserEscape());
  EXPECT_EQ(events, "cancel ");
  cancel.Default(true);
  accept.Cancel(true);
  EXPECT_FALSE(accept.Default() || cancel.Cancel()) << "there is one of each";
}

TEST_F(FocusScopeTest, ABoxCanKeepTheEnterKeyToItself) {
  int key = 0;
  box.GotFocus = [this] { accept.Default(false); };
  box.LostFocus = [this] { accept.Default(true); };
  box.KeyPress = [&](int& keyAscii) { std::swap(key, keyAscii); };
  box.MultiLine(true);
  box.SetFocus();
  EXPECT_TRUE(scope.UserEnter());
  EXPECT_EQ(key, 13);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(events, "");
  cancel.SetFocus();
  EXPECT_TRUE(accept.Default());
}

TEST_F(FocusScopeTest, TheTabKeyVisitsWhatCanHaveTheFocus) {
  EXPECT_THAT(scope.TabOrder(), testing::ElementsAre(&box, &accept, &cancel));
  accept.Enabled(false);
  scope.UserTab();
  EXPECT_EQ(scope.ActiveControl(), &box);
  scope.UserTab();
  EXPECT_EQ(scope.ActiveControl(), &cancel);
  scope.UserTab();
  EXPECT_EQ(scope.ActiveControl(), &box);
  scope.UserTab(true);
  EXPECT_EQ(scope.ActiveControl(), &cancel);
  box.TabStop(false);
  EXPECT_THAT(scope.TabOrder(), testing::ElementsAre(&cancel));
}

TEST_F(FocusScopeTest, ADisabledOrBlockedWindowTakesNothing) {
  scope.Enabled(false);
  EXPECT_FALSE(accept.UserClick());
  EXPECT_FALSE(scope.UserEnter());
  EXPECT_FALSE(scope.UserEscape());
  scope.Enabled(true);
  scope.Blocked(true);
  EXPECT_FALSE(accept.UserClick());
  scope.Blocked(false);
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
