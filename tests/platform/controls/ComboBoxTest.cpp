#include "platform/controls/ComboBox.h"

#include <gtest/gtest.h>

#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(ComboBox, HoldsItsItemsOnly) {
  ComboBox combo("cboExportar");
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  combo.AddItem("(COL) Colaboradores");
  combo.AddItem("(REC) Recibos");
  EXPECT_TRUE(combo.UserChoose(0) && combo.UserChoose(0));
  EXPECT_EQ(clicks, 2) << "the user's choice counts even if it is the same";
  combo.Text("(rec) recibos");
  EXPECT_EQ(FailureOf([&] { combo.Text("(REM) Remesas"); }), kInvalidPropertyValue);
  EXPECT_EQ(combo.ListIndex(), 1);
  combo.Text("");
  EXPECT_EQ(combo.ListIndex(), -1);
}

}  // namespace
}  // namespace velmar::controls
