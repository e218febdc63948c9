#include "qt/views/GridView.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QSignalSpy>

#include "qt/views/ShownRows.h"

namespace velmar::qt {
namespace {

class GridViewTest : public ShownRows {
 protected:
  void SetUp() override {
    grid.Cols(3);
    grid.Rows(2);
    grid.FixedRows(1);
    grid.Rows(1);
    grid.ColWidth(0, 1440);
    Watch(table);
    for (int i = 0; i < 8; ++i) grid.AddItem("(COL)\tCampo " + std::to_string(i));
    shown.Open();
  }
  Rows Selected() const override {
    Rows selected;
    for (long row = qMax(grid.Row(), 1L); row <= grid.RowSel(); ++row) selected.push_back(row - 1);
    return selected;
  }

  controls::Grid grid{"msg"};
  GridView& table = shown.Add<GridView>(grid);
};

TEST_F(GridViewTest, SelectsRowsInOrderWhicheverWayTheyAreDrawn) {
  EXPECT_EQ(Shown(), (Rows{0}));
  EXPECT_EQ(Click(2), (Rows{2}));
  EXPECT_EQ(Drag(1, 4), (Rows{1, 2, 3, 4}));
  EXPECT_EQ(Drag(5, 2), (Rows{2, 3, 4, 5}));
  EXPECT_EQ(Click(7, Qt::ShiftModifier), (Rows{5, 6, 7})) << "from where the drawing began";
  EXPECT_EQ(Press(Qt::Key_Up), (Rows{6}));
  EXPECT_EQ(Press(Qt::Key_Up, Qt::ShiftModifier), (Rows{5, 6}));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, BesideRows());
  EXPECT_EQ(Shown(), (Rows{5, 6}));
}

TEST_F(GridViewTest, TheRightButtonMovesNothing) {
  Drag(1, 2);
  std::vector<int> buttons;
  grid.MouseUp = [&](int button, int, float, float) { buttons.push_back(button); };
  EXPECT_EQ(Click(5, {}, Qt::RightButton), (Rows{1, 2}));
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
  QApplication::sendEvent(view->viewport(), &menuKey);
  // The release has told this one already.
  QContextMenuEvent menuByMouse(QContextMenuEvent::Mouse, At(6), At(6));
  QApplication::sendEvent(view->viewport(), &menuByMouse);
  EXPECT_EQ(buttons, (std::vector<int>{2, 2}));
  QTest::mouseClick(table.horizontalHeader()->viewport(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_EQ(buttons, (std::vector<int>{2, 2, 2})) << "the head row is the grid's too";
  EXPECT_EQ(Shown(), (Rows{1, 2}));
}

TEST_F(GridViewTest, DoubleClickCountsAnywhere) {
  std::vector<long> doubleClicked;
  grid.DblClick = [&] {
    doubleClicked.push_back(grid.Row());
    if (grid.Row() > 0) grid.RemoveItem(grid.Row());
  };
  Click(3);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, At(3));
  EXPECT_EQ(Shown(), (Rows{3}));
  grid.Rows(1);
  EXPECT_EQ(Shown(), (Rows{}));
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, BesideRows());
  EXPECT_EQ(doubleClicked, (std::vector<long>{4, 0}));
}

TEST_F(GridViewTest, StaysInStepWithTheProgramThroughAnyChanges) {
  for (int step = 0; step < 600; ++step) {
    const std::string text = "a\tb\t" + std::to_string(Below(100));
    if (step % 100 == 1) grid.Cols(2 + step % 3);
    if (step % 60 == 6) grid.Rows(step % 40 == 6 ? 1 : grid.Rows() + 3);
    grid.AddItem(text, 1 + Below(grid.Rows()));
    const long row = 1 + Below(grid.Rows() - 1);
    if (step % 4 == 0 && grid.Rows() > 2) grid.RemoveItem(row);
    if (step % 4 == 1) grid.TextMatrix(row, 1, text);
    if (step % 4 == 2) grid.Row(row);
    if (step % 4 == 2) grid.RowSel(row + Below(grid.Rows() - row));
    if (step % 4 == 3) grid.AddItem(text);
    if (step % 5 == 0) Shown();
    ASSERT_EQ(view->model()->rowCount(), grid.Rows() - 1);
    ASSERT_EQ(view->model()->columnCount(), grid.Cols());
  }
  grid.TopRow(20);
  ShownView::Settle();
  EXPECT_EQ(table.rowAt(3), 19);
}

TEST_F(GridViewTest, ShowsOneLineACellAlignedAsTheColumn) {
  const QAbstractItemModel& model = *view->model();
  QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  grid.TextMatrix(1, 2, "uno\r\ndos\ntres");
  EXPECT_EQ(changes.value(0).value(0).toModelIndex().row(), 0);
  grid.ColAlignment(0, 3);
  EXPECT_EQ(model.index(0, 2).data(), "uno dos tres");
  EXPECT_EQ(model.index(0, 2).data(Qt::ToolTipRole), "uno\r\ndos\ntres");
  EXPECT_EQ(model.index(0, 0).data(Qt::TextAlignmentRole),
            QVariant::fromValue<Qt::Alignment>(Qt::AlignHCenter | Qt::AlignTop));
}

TEST_F(GridViewTest, ColumnsHaveTheirWidthsAndTheUserCanDrawThem) {
  grid.ColWidth(1, 2880);
  grid.ColWidth(2, 1440);
  const auto widen = [&](int width) {
    view->parentWidget()->resize(width, 300);
    ShownView::Settle();
  };
  const int inch = qRound(view->logicalDpiX() * qMax(1.0, QFontInfo(view->font()).pointSizeF() / 9));
  widen(inch * 2);
  EXPECT_NEAR(table.columnWidth(0), inch, 1);
  widen(inch * 10);
  EXPECT_NEAR(table.columnWidth(1), view->viewport()->width() / 2, 1) << "what is left is shared";
  const int half = table.columnWidth(1);
  grid.AddItem(std::string(200, 'W'), 2);
  ShownView::Settle();
  EXPECT_NEAR(table.columnWidth(2), inch, 1) << "down to its own width";
  EXPECT_NEAR(table.columnWidth(0), view->viewport()->width() - half - inch, 2) << "a long text has the rest";
  grid.RemoveItem(2);
  QWidget* head = table.horizontalHeader()->viewport();
  const QPoint edge(table.columnWidth(0) - 1, 5);
  const int further = table.columnWidth(2) - inch / 2;
  const int drawn = table.columnWidth(0) + further;
  QTest::mousePress(head, Qt::LeftButton, {}, edge);
  QTest::mouseMove(head, edge + QPoint(further, 0));
  QTest::mouseRelease(head, Qt::LeftButton, {}, edge + QPoint(further, 0));
  EXPECT_NEAR(table.columnWidth(0), drawn, 2);
  EXPECT_LT(table.columnWidth(2), inch);
  EXPECT_EQ(table.horizontalHeader()->length(), view->viewport()->width()) << "out of the last column";
  widen(inch * 12);
  EXPECT_NEAR(table.columnWidth(0), drawn, 2) << "the user's width stays";
}

}  // namespace
}  // namespace velmar::qt
