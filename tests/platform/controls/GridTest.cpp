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
  Fill(1);
  ExpectSelection(1, 1);
  Fill(2);
  ExpectSelection(1, 1);
  grid.Rows(1);
  ExpectSelection(0, 0);
  EXPECT_EQ(grid.TextMatrix(0, 0), "Tabla");
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

TEST_F(GridTest, ASelectionIsKeptInOrderUntilTheRowIsSet) {
  Fill(5);
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
  EXPECT_TRUE(grid.UserSelect(5, 2));
  ExpectSelection(2, 5);
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

TEST_F(GridTest, HearsTheMouseAlsoBesideTheRowsWithoutMovingTheCurrentOne) {
  std::string events;
  grid.Click = [&] { events += "C"; };
  grid.DblClick = [&] { events += "D"; };
  grid.MouseUp = [&](int pressed, int, float, float) { events += std::to_string(pressed); };
  EXPECT_TRUE(grid.UserDoubleClick());
  EXPECT_FALSE(grid.UserClick(1));
  Fill(3);
  EXPECT_TRUE(grid.UserClick(2));
  EXPECT_TRUE(grid.UserMouseUp(2, 0, 10, 20));
  ExpectSelection(2, 2);
  grid.Enabled(false);
  EXPECT_FALSE(grid.UserDoubleClick() || grid.UserClick(1) || grid.UserMouseUp(1, 0, 0, 0));
  EXPECT_EQ(events, "DC2");
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
}

}  // namespace
}  // namespace velmar::controls
