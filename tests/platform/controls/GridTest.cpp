#include "platform/controls/Grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid.Cols(3);
    grid.Rows(2);
    grid.FixedRows(1);
    grid.TextMatrix(0, 0, "Tabla");
    grid.Rows(1);
  }

  void Fill(int rows) {
    for (int i = 1; i <= rows; ++i) {
      grid.AddItem("n\tcampo" + std::to_string(i) + "\t");
      grid.RowData(grid.Rows() - 1, i);
    }
  }

  void ExpectSelection(long row, long rowSel) const {
    EXPECT_EQ(grid.Row(), row);
    EXPECT_EQ(grid.RowSel(), rowSel);
  }

  Grid grid{"msgSeleccionados"};
};

TEST_F(GridTest, TabsSeparateTheColumnsOfANewRow) {
  grid.AddItem("sólo uno");
  grid.AddItem("a\tb\tc\td", 1);
  EXPECT_EQ(grid.TextMatrix(2, 1), "");
  EXPECT_EQ(grid.TextMatrix(1, 2), "c");
  EXPECT_EQ(grid.RowData(1), 0);
}

TEST_F(GridTest, ASelectionIsKeptInOrderUntilTheRowIsSet) {
  ExpectSelection(0, 0);
  Fill(5);
  ExpectSelection(1, 1);
  grid.Col(2);
  grid.ColSel(1);
  grid.RowSel(5);
  ExpectSelection(1, 5);
  EXPECT_EQ(grid.Col(), 1);
  EXPECT_EQ(grid.ColSel(), 2);
  grid.Row(4);
  ExpectSelection(4, 4);
  EXPECT_EQ(grid.ColSel(), 1);
  grid.RowSel(3);
  ExpectSelection(3, 4);
}

TEST_F(GridTest, TheSelectionStaysOnItsRowsWhileOthersComeAndGo) {
  Fill(6);
  ASSERT_TRUE(grid.UserSelect(3, 4));
  grid.RemoveItem(1);
  ExpectSelection(2, 3);
  grid.AddItem("x", 1);
  ExpectSelection(3, 4);
  grid.AddItem("y", 4);
  grid.RemoveItem(6);
  ExpectSelection(3, 5);
  grid.RemoveItem(4);
  ExpectSelection(3, 3);
  grid.Rows(3);
  ExpectSelection(2, 2);
  EXPECT_EQ(grid.RowData(2), 2);
  grid.Rows(1);
  ExpectSelection(0, 0);
  EXPECT_EQ(grid.TextMatrix(0, 0), "Tabla");
}

TEST_F(GridTest, RefusesWhatWouldBreakIt) {
  Fill(1);
  const std::pair<std::function<void()>, long> cases[] = {
      {[&] { grid.RemoveItem(1); }, kInvalidProcedureCall},
      {[&] { grid.RemoveItem(0); }, kSubscriptOutOfRange},
      {[&] { grid.AddItem("x", 0); }, kSubscriptOutOfRange},
      {[&] { grid.TextMatrix(2, 0); }, kSubscriptOutOfRange},
      {[&] { grid.TextMatrix(1, 3); }, kSubscriptOutOfRange},
      {[&] { grid.Rows(0); }, kInvalidPropertyValue},
      {[&] { grid.FixedRows(2); }, kInvalidPropertyValue},
      {[&] { grid.Row(0); }, kInvalidPropertyValue},
      {[&] { grid.RowSel(2); }, kInvalidPropertyValue}};
  for (const auto& [action, failure] : cases) EXPECT_EQ(FailureOf(action), failure);
  EXPECT_EQ(grid.Rows(), 2);
}

}  // namespace
}  // namespace velmar::controls
