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
    void Changed(Control& /*control*/, Property /*what*/) override { heard += "c"; }
    void RefreshRequested(Control& /*control*/) override { heard += "r"; }
    void Destroyed(Control& control) override {
      control.Unobserve(*this);  // in the middle of the notice
      heard += "d";
    }
    std::string heard;
  };
  Observer leaving;
  Observer first;
  Observer second;
  {
    Label label("lbl");
    for (Observer* observer : {&leaving, &first, &second}) label.Observe(*observer);
    label.Enabled(false);
    label.Enabled(false);
    label.Caption("Nodo:");
    label.Unobserve(leaving);
    label.ToolTipText("x");
    label.Refresh();
  }
  EXPECT_EQ(leaving.heard, "cc");
  EXPECT_EQ(first.heard, "cccrd");
  EXPECT_EQ(second.heard, "cccrd");
}

}  // namespace
}  // namespace velmar::controls
