#include "platform/controls/Control.h"

#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

TEST(Control, IsDisabledAndHiddenWithItsContainer) {
  Frame frame("fraDatos");
  ListBox list("lstDatos");
  list.Container(&frame);
  list.AddItem("a");
  EXPECT_TRUE(list.UserClick(0));
  frame.Enabled(false);
  EXPECT_FALSE(list.CanAct());
  EXPECT_TRUE(list.Enabled()) << "its own property is not touched";
  EXPECT_EQ(FailureOf([&] { list.SetFocus(); }), kInvalidProcedureCall);
  frame.Enabled(true);
  frame.Visible(false);
  EXPECT_FALSE(list.UserClick(0));
  EXPECT_EQ(FailureOf([] { Label("lbl").SetFocus(); }), kInvalidProcedureCall);
}

TEST(Control, TellsItsObserversUntilTheyLeave) {
  struct Observer : ControlObserver {
    void Changed(Control& /*control*/, Property /*what*/) override { ++changes; }
    void RefreshRequested(Control& /*control*/) override { ++refreshes; }
    void Destroyed(Control& /*control*/) override { gone = true; }
    int changes = 0;
    int refreshes = 0;
    bool gone = false;
  };
  Observer staying;
  Observer leaving;
  {
    Label label("lbl");
    label.Observe(staying);
    label.Observe(leaving);
    label.Enabled(false);
    label.Enabled(false);
    label.Caption("Nodo:");
    label.Unobserve(leaving);
    label.ToolTipText("x");
    label.Refresh();
  }
  EXPECT_EQ(leaving.changes, 2);
  EXPECT_EQ(staying.changes, 3);
  EXPECT_EQ(staying.refreshes, 1);
  EXPECT_TRUE(staying.gone);
  EXPECT_FALSE(leaving.gone);
}

TEST(Control, TellsEveryObserverThoughOneLeavesInItsNotice) {
  struct Leaver : ControlObserver {
    void Destroyed(Control& control) override {
      control.Unobserve(*this);
      gone = true;
    }
    bool gone = false;
  };
  Leaver first;
  Leaver second;
  {
    Label label("lbl");
    label.Observe(first);
    label.Observe(second);
  }
  EXPECT_TRUE(first.gone);
  EXPECT_TRUE(second.gone);
}

}  // namespace
}  // namespace velmar::controls
