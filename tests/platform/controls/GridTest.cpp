#include "platform/controls/Grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/controls/ObserverLog.h"
#include "platform/error/ErrorNumber.h"

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

  std::vector<long> Data() const {
    std::vector<long> data;
    for (long row = 1; row < grid.Rows(); ++row) data.push_back(grid.RowData(row));
    return data;
  }

  void ExpectSelection(long row, long rowSel) const {
    EXPECT_EQ(grid.Row(), row);
    EXPECT_EQ(grid.RowSel(), rowSel);
  }

  Grid grid{"msgSeleccionados"};
};

TEST_F(GridTest, WithoutDataNothingIsSelected) {
  ExpectSelection(0, 0);
  EXPECT_EQ(grid.TextMatrix(0, 0), "Tabla");
  Fill(1);
  ExpectSelection(1, 1);
  Fill(2);
  ExpectSelection(1, 1);
  grid.Rows(1);
  ExpectSelection(0, 0);
  EXPECT_EQ(grid.RowData(0), 0);
}

TEST_F(GridTest, TabsSeparateTheColumnsOfANewRow) {
  grid.AddItem("(REC) Recibos\tImporte\t[Entre] `1´");
  grid.AddItem("sólo uno");
  grid.AddItem("a\tb\tc\td", 1);
  EXPECT_EQ(grid.TextMatrix(2, 2), "[Entre] `1´");
  EXPECT_EQ(grid.TextMatrix(3, 1), "");
  EXPECT_EQ(grid.TextMatrix(1, 2), "c");
  EXPECT_EQ(grid.RowData(1), 0);
}

TEST_F(GridTest, SettingTheRowCollapsesTheSelection) {
  Fill(5);
  grid.Col(0);
  grid.Row(1);
  grid.ColSel(2);
  grid.RowSel(grid.Rows() - 1);
  ExpectSelection(1, 5);
  EXPECT_EQ(grid.Col(), 0);
  EXPECT_EQ(grid.ColSel(), 2);
  grid.Row(3);
  ExpectSelection(3, 3);
  EXPECT_EQ(grid.ColSel(), 0);
}

TEST_F(GridTest, ASelectionDrawnUpwardsIsTheSameAsDownwards) {
  Fill(5);
  EXPECT_TRUE(grid.UserSelect(4, 2));
  ExpectSelection(2, 4);
  grid.Row(4);
  grid.RowSel(3);
  ExpectSelection(3, 4);
}

TEST_F(GridTest, RemovingTheSelectedRowsFromBelowEmptiesTheGrid) {
  Fill(3);
  ASSERT_TRUE(grid.UserSelect(1, 3));
  const long first = grid.Row();
  for (long i = grid.RowSel(); i >= first; --i) {
    if (grid.Rows() == 2) {
      grid.Rows(1);
      break;
    }
    grid.RemoveItem(i);
  }
  EXPECT_EQ(grid.Rows(), 1);
  ExpectSelection(0, 0);
}

TEST_F(GridTest, TheSelectionStaysOnItsRowsWhileOthersComeAndGo) {
  Fill(6);
  ASSERT_TRUE(grid.UserSelect(3, 4));
  grid.RemoveItem(1);
  ExpectSelection(2, 3);
  grid.AddItem("x", 1);
  ExpectSelection(3, 4);
  grid.RemoveItem(6);
  ExpectSelection(3, 4);
  grid.RemoveItem(4);
  ExpectSelection(3, 3);
  grid.Rows(3);
  ExpectSelection(2, 2);
  EXPECT_THAT(Data(), testing::ElementsAre(0, 2));
}

TEST_F(GridTest, ARowMovesUpWithItsNumber) {
  Fill(3);
  grid.Row(3);
  const std::string text =
      grid.TextMatrix(3, 0) + "\t" + grid.TextMatrix(3, 1) + "\t" + grid.TextMatrix(3, 2);
  const long data = grid.RowData(3);
  grid.RemoveItem(grid.Row());
  grid.AddItem(text, 2);
  grid.RowData(2, data);
  grid.Row(2);
  grid.TopRow(2);
  EXPECT_THAT(Data(), testing::ElementsAre(1, 3, 2));
  ExpectSelection(2, 2);
  EXPECT_EQ(grid.TopRow(), 2);
}

TEST_F(GridTest, RefusesWhatWouldBreakIt) {
  Fill(1);
  EXPECT_EQ(FailureOf([&] { grid.RemoveItem(1); }), kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([&] { grid.RemoveItem(0); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.AddItem("x", 0); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.TextMatrix(2, 0); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.TextMatrix(1, 3); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.RowData(-1, 1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.Rows(0); }), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { grid.FixedRows(2); }), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { grid.Row(0); }), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { grid.RowSel(2); }), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { grid.ColWidth(0, -2); }), kInvalidPropertyValue);
  EXPECT_THAT(Data(), testing::ElementsAre(1));
}

TEST_F(GridTest, TheRightButtonLeavesTheCurrentRow) {
  Fill(3);
  grid.Row(2);
  int button = 0;
  grid.MouseUp = [&](int pressed, int, float, float) { button = pressed; };
  EXPECT_TRUE(grid.UserMouseUp(2, 0, 10, 20));
  EXPECT_EQ(button, 2);
  ExpectSelection(2, 2);
}

TEST_F(GridTest, ADoubleClickOnAnEmptyGridIsHeard) {
  int doubles = 0;
  grid.DblClick = [&] { ++doubles; };
  EXPECT_TRUE(grid.UserDoubleClick());
  EXPECT_FALSE(grid.UserClick(1));
  grid.Enabled(false);
  EXPECT_FALSE(grid.UserDoubleClick());
  EXPECT_EQ(doubles, 1);
}

TEST_F(GridTest, TellsEachChangeInPairs) {
  ObserverLog log(grid, [&] { return static_cast<std::size_t>(grid.Rows()); });
  Fill(1);
  grid.Rows(4);
  grid.RemoveItem(2);
  grid.TopRow(2);
  grid.TextMatrix(1, 2, "x");
  grid.Rows(1);
  EXPECT_THAT(log.notices, testing::ElementsAre("insert 1+1", "insert 2+2", "selection", "remove 2+1",
                                                "selection", "scroll 2", "row 1", "remove 1+2", "selection"));
  grid.Cols(4);
  EXPECT_EQ(log.KnownRows(), 1U);
}

TEST_F(GridTest, HoldsManyRows) {
  constexpr long kCount = 20000;
  for (long i = 0; i < kCount; ++i) {
    grid.AddItem("a\tb\tc", 1 + i / 2);
    grid.RowData(1 + i / 2, i);
  }
  EXPECT_EQ(grid.Rows(), kCount + 1);
  while (grid.Rows() > 2) grid.RemoveItem(grid.Rows() / 2);
  EXPECT_EQ(grid.Rows(), 2);
}

}  // namespace
}  // namespace velmar::controls
