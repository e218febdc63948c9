#include "platform/controls/Control.h"

#include <gtest/gtest.h>

#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(Control, IsDisabledAndHiddenWithItsContainer) {
  Frame frame("fraDatos");
  ListBox list("lstDatos");
  list.Container(&frame);
  list.AddItem("a");
  EXPECT_TRUE(list.UserClick(0));
  frame.Enabled(false);
  EXPECT_FALSE(list.UserClick(0));
  EXPECT_EQ(FailureOf([&] { list.SetFocus(); }), kInvalidProcedureCall);
  frame.Enabled(true);
  frame.Visible(false);
  EXPECT_FALSE(list.UserClick(0));
  EXPECT_EQ(FailureOf([] { Label("lbl").SetFocus(); }), kInvalidProcedureCall);
}

TEST(Control, TellsItsObserversUntilTheyLeave) {
  struct Observer : ControlObserver {
    void Changed(Control& /*control*/, Property /*what*/) override { heard += "c"; }
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
    for (int i = 0; i < 2; ++i) label.Enabled(false);
    label.Unobserve(leaving);
    label.Caption("Nodo:");
  }
  EXPECT_EQ(leaving.heard, "c");
  EXPECT_EQ(first.heard, "ccd");
  EXPECT_EQ(second.heard, "ccd") << "told although the one before it has left";
}

}  // namespace
}  // namespace velmar::controls
