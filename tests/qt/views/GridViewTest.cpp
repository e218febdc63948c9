#include "qt/views/GridView.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QTest>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "qt/views/ShownView.h"

namespace velmar::qt {
namespace {

using Span = std::pair<long, long>;

class GridViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    grid.Cols(3);
    grid.Rows(2);
    grid.FixedRows(1);
    grid.Rows(1);
    grid.ColWidth(0, 1440);
    view = &shown.Add<GridView>(grid);
    for (int i = 1; i <= 8; ++i) grid.AddItem("(COL)\tCampo " + std::to_string(i));
    shown.Open();
  }
  QPoint At(long row) const {
    return view->visualRect(view->model()->index(static_cast<int>(row) - 1, 1)).center();
  }
  void Click(long row, Qt::KeyboardModifiers keys = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view->viewport(), button, keys, At(row));
  }
  void Drag(long from, long to) {
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, At(from));
    for (long row = from; row != to; row += from < to ? 1 : -1) QTest::mouseMove(view->viewport(), At(row));
    QTest::mouseMove(view->viewport(), At(to));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, At(to));
  }
  // What the control has, which is what the screen shows.
  Span Selected() {
    ShownView::Settle();
    QList<int> rows;
    for (const QModelIndex& index : view->selectionModel()->selectedRows()) rows.append(index.row() + 1);
    std::sort(rows.begin(), rows.end());
    if (grid.Rows() == 1) {
      EXPECT_TRUE(rows.isEmpty());
    } else if (rows.isEmpty() || rows.front() != grid.Row() || rows.back() != grid.RowSel()) {
      ADD_FAILURE() << "the screen shows other rows";
    }
    return {grid.Row(), grid.RowSel()};
  }

  controls::Grid grid{"msg"};
  ShownView shown;
  GridView* view = nullptr;
};

TEST_F(GridViewTest, SelectsRowsInOrderWhicheverWayTheyAreDrawn) {
  EXPECT_EQ(Selected(), Span(1, 1));
  Click(3);
  EXPECT_EQ(Selected(), Span(3, 3));
  EXPECT_EQ(grid.ColSel(), 2);
  Drag(2, 5);
  EXPECT_EQ(Selected(), Span(2, 5));
  Drag(6, 3);
  EXPECT_EQ(Selected(), Span(3, 6));
  Click(8, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), Span(6, 8)) << "from where the drawing began";
  QTest::keyClick(view, Qt::Key_Up);
  EXPECT_EQ(Selected(), Span(7, 7));
  QTest::keyClick(view, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(view, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), Span(5, 7));
}

TEST_F(GridViewTest, TheRightButtonMovesNothing) {
  std::vector<int> buttons;
  float x = 0;
  grid.MouseUp = [&](int button, int, float at, float) {
    buttons.push_back(button);
    x = at;
  };
  Drag(2, 3);
  buttons.clear();
  Click(6, {}, Qt::RightButton);
  EXPECT_EQ(buttons, std::vector<int>{2});
  EXPECT_NEAR(x, static_cast<float>(At(6).x() * 1440.0 / view->logicalDpiX()), 0.5F);
  EXPECT_EQ(Selected(), Span(2, 3));
  EXPECT_TRUE(grid.HasFocus());

  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
  QApplication::sendEvent(view->viewport(), &menuKey);
  EXPECT_EQ(buttons, (std::vector<int>{2, 2}));
  QContextMenuEvent menuByMouse(QContextMenuEvent::Mouse, At(7), At(7));
  QApplication::sendEvent(view->viewport(), &menuByMouse);
  EXPECT_EQ(buttons.size(), 2U) << "the release has told it already";
}

TEST_F(GridViewTest, DoubleClickCountsAnywhere) {
  std::vector<long> rows;
  grid.DblClick = [&] { rows.push_back(grid.Row()); };
  Click(4);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, At(4));
  EXPECT_EQ(rows, std::vector<long>{4});
  grid.Rows(1);
  ShownView::Settle();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(10, 40));
  EXPECT_EQ(rows, (std::vector<long>{4, 0}));
}

TEST_F(GridViewTest, FollowsTheProgram) {
  grid.Row(2);
  grid.RowSel(4);
  EXPECT_EQ(Selected(), Span(2, 4));
  grid.RemoveItem(3);
  EXPECT_EQ(Selected(), Span(2, 2));
  grid.AddItem("(DON)\tantes", 1);
  EXPECT_EQ(Selected(), Span(3, 3));
  grid.Rows(1);
  EXPECT_EQ(Selected(), Span(0, 0));
  grid.AddItem("(DON)\tuno");
  EXPECT_EQ(Selected(), Span(1, 1));
}

TEST_F(GridViewTest, RemovingWhileDrawnLeavesTheControlsRow) {
  grid.DblClick = [&] { grid.RemoveItem(grid.Row()); };
  Click(3);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, At(3));
  EXPECT_EQ(grid.Rows(), 8);
  EXPECT_EQ(Selected(), Span(3, 3));
}

TEST_F(GridViewTest, TopRowScrollsAndClicksBesideTheRowsChangeNothing) {
  for (int i = 0; i < 250; ++i) grid.AddItem("(REC)\tmás");
  grid.TopRow(200);
  ShownView::Settle();
  EXPECT_EQ(view->rowAt(3), 199);
  grid.Rows(4);
  Drag(2, 3);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(10, view->viewport()->height() - 3));
  EXPECT_EQ(Selected(), Span(2, 3));
}

TEST_F(GridViewTest, ColumnsHaveTheirWidthsAndTheUserCanDrawThem) {
  grid.ColWidth(1, 2880);
  grid.ColWidth(2, 1440);
  const int inch = qRound(view->logicalDpiX() * qMax(1.0, QFontInfo(view->font()).pointSizeF() / 9));
  view->parentWidget()->resize(inch * 2, 300);
  ShownView::Settle();
  EXPECT_NEAR(view->columnWidth(0), inch, 1);
  EXPECT_NEAR(view->columnWidth(1), 2 * inch, 1);
  view->parentWidget()->resize(inch * 10, 300);
  ShownView::Settle();
  EXPECT_NEAR(view->columnWidth(1), view->viewport()->width() / 2, 1) << "what is left is shared";
  EXPECT_EQ(view->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
  const int edge = view->horizontalHeader()->sectionViewportPosition(1);
  const int drawn = view->columnWidth(0) + 30;
  QWidget* head = view->horizontalHeader()->viewport();
  QTest::mousePress(head, Qt::LeftButton, {}, QPoint(edge - 1, 5));
  QTest::mouseMove(head, QPoint(edge + 29, 5));
  QTest::mouseRelease(head, Qt::LeftButton, {}, QPoint(edge + 29, 5));
  EXPECT_NEAR(view->columnWidth(0), drawn, 2);
  view->parentWidget()->resize(inch * 12, 300);
  ShownView::Settle();
  EXPECT_NEAR(view->columnWidth(0), drawn, 2) << "the user's width stays";
}

TEST_F(GridViewTest, ManyRowsAreShownWithoutAWidgetForEach) {
  const auto before = view->findChildren<QWidget*>().size();
  for (int i = 0; i < 250; ++i) grid.AddItem("(REC)\tmás", 1);
  EXPECT_EQ(Selected(), Span(251, 251));
  EXPECT_EQ(view->findChildren<QWidget*>().size(), before);
}

}  // namespace
}  // namespace velmar::qt
