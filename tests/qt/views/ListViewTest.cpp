#include "qt/views/ListView.h"

#include <gtest/gtest.h>

#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <vector>

#include "qt/views/ShownView.h"

namespace velmar::qt {
namespace {

using Rows = std::vector<long>;

class ListViewTest : public ::testing::Test {
 protected:
  ListView& Open(long multiSelect, int items = 8) {
    list.MultiSelect(multiSelect);
    static const char* const kNames[] = {"Alta",   "Baja",  "Ciudad", "Donativo",
                                         "Estado", "Fecha", "Grupo",  "Hogar"};
    for (int i = 0; i < items; ++i) list.AddItem(i < 8 ? kNames[i] : "Zona " + std::to_string(i));
    view = &shown.Add<ListView>(list);
    shown.Open();
    return *view;
  }
  QPoint At(int row) const { return view->visualRect(view->model()->index(row, 0)).center(); }
  void Click(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, keys, At(row));
  }
  Rows Selected() const {
    Rows rows;
    for (long i = 0; i < list.ListCount(); ++i) {
      if (list.Selected(i)) rows.push_back(i);
    }
    return rows;
  }
  // What the screen shows is what the control has.
  Rows Shown() {
    ShownView::Settle();
    Rows rows;
    for (const QModelIndex& index : view->selectionModel()->selectedIndexes()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, Selected());
    return rows;
  }

  controls::ListBox list{"lst"};
  ShownView shown;
  ListView* view = nullptr;
};

TEST_F(ListViewTest, SelectsManyByMouseAndKeys) {
  Open(2);
  Click(1);
  EXPECT_EQ(Shown(), (Rows{1}));
  EXPECT_TRUE(list.HasFocus());
  Click(3, Qt::ShiftModifier);
  EXPECT_EQ(Shown(), (Rows{1, 2, 3}));
  Click(2, Qt::ControlModifier);
  EXPECT_EQ(Shown(), (Rows{1, 3}));
  Click(6, Qt::ControlModifier);
  EXPECT_EQ(Shown(), (Rows{1, 3, 6}));
  EXPECT_EQ(list.ListIndex(), 6);
  QTest::keyClick(view, Qt::Key_Up);
  EXPECT_EQ(Shown(), (Rows{5}));
  QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Shown(), (Rows{5, 6}));
  QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Shown().size(), 8U);
}

TEST_F(ListViewTest, SelectsARangeByDragging) {
  Open(2);
  QTest::mousePress(view->viewport(), Qt::LeftButton, {}, At(5));
  for (int row = 4; row >= 2; --row) QTest::mouseMove(view->viewport(), At(row));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, At(2));
  EXPECT_EQ(Shown(), (Rows{2, 3, 4, 5}));
}

TEST_F(ListViewTest, ChoosesOneAndRaisesClickForEachClickOnIt) {
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  Open(0);
  Click(4);
  EXPECT_EQ(list.ListIndex(), 4);
  EXPECT_EQ(clicks, 1);
  Click(4);
  EXPECT_EQ(clicks, 2);
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(list.ListIndex(), 5);
  EXPECT_EQ(clicks, 3);
  // Nothing chosen is not for the user to choose.
  Click(5, Qt::ControlModifier);
  EXPECT_EQ(Shown(), (Rows{5}));
}

TEST_F(ListViewTest, AKeyReachesTheFirstItemOfAListWithoutAChoice) {
  const struct {
    long multiSelect;
    Qt::Key key;
    Rows chosen;
  } cases[] = {{0, Qt::Key_Down, {0}}, {0, Qt::Key_Home, {0}}, {2, Qt::Key_Down, {0}}, {2, Qt::Key_End, {7}}};
  Open(0);
  view->setFocus(Qt::TabFocusReason);
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.multiSelect << ' ' << c.key);
    list.MultiSelect(c.multiSelect);
    while (list.ListCount() > 0) list.RemoveItem(0);
    for (int i = 0; i < 8; ++i) list.AddItem("Campo " + std::to_string(i));
    EXPECT_EQ(Shown(), Rows{});
    QTest::keyClick(view, c.key);
    EXPECT_EQ(Shown(), c.chosen);
  }
  // What stands in the place of an item that has gone comes next.
  list.MultiSelect(0);
  list.ListIndex(3);
  ShownView::Settle();
  list.RemoveItem(3);
  EXPECT_EQ(Shown(), Rows{});
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(Shown(), Rows{3});
}

TEST_F(ListViewTest, TypingLettersGoesToTheItem) {
  Open(2);
  Click(0);
  QTest::keyClicks(view, "do");
  EXPECT_EQ(Shown(), (Rows{3}));
  EXPECT_EQ(list.Text(), "Donativo");
}

TEST_F(ListViewTest, DoubleClickTellsItsItemOrNone) {
  std::vector<long> chosen;
  list.DblClick = [&] { chosen.push_back(list.ListIndex()); };
  Open(0, 3);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, At(2));
  EXPECT_EQ(chosen, (Rows{2}));
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, view->viewport()->height() - 5));
  EXPECT_EQ(chosen, (Rows{2, 2}));
}

TEST_F(ListViewTest, FollowsTheProgram) {
  Open(0);
  list.ListIndex(2);
  EXPECT_EQ(Shown(), (Rows{2}));
  list.AddItem("Antes", 0);
  EXPECT_EQ(Shown(), (Rows{3}));
  // The item with the focus mark goes, and no other takes its place.
  list.RemoveItem(3);
  EXPECT_EQ(Shown(), (Rows{}));
  list.Clear();
  EXPECT_EQ(Shown(), (Rows{}));
  list.AddItem("uno");
  EXPECT_EQ(Shown(), (Rows{}));
}

TEST_F(ListViewTest, ManyChangesOfTheProgramShowTogether) {
  Open(2, 500);
  const QSignalSpy selections(view->selectionModel(), &QItemSelectionModel::selectionChanged);
  for (long i = 0; i < list.ListCount(); ++i) {
    list.Selected(i, true);
    list.TopIndex(0);
  }
  EXPECT_EQ(Shown().size(), 500U);
  EXPECT_EQ(selections.count(), 1);
  list.TopIndex(300);
  ShownView::Settle();
  EXPECT_EQ(view->indexAt(QPoint(5, 2)).row(), 300);
}

TEST_F(ListViewTest, ADisabledListTakesNothing) {
  Open(0);
  list.Enabled(false);
  Click(2);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_FALSE(view->isEnabled());
}

TEST_F(ListViewTest, LaysItemsOutInColumnsOfEqualWidth) {
  list.Columns(2);
  Open(0, 18);
  view->setFixedSize(view->sizeHint().width(), view->sizeHint().height() + 200);
  ShownView::Settle();
  // 18 items in a list of room for more: down first, then across.
  const QRect first = view->visualRect(view->model()->index(0, 0));
  EXPECT_EQ(first.width(), view->viewport()->width() / 2);
  EXPECT_GT(view->visualRect(view->model()->index(1, 0)).top(), first.top());
  view->PreferredSize(9, 30);
  view->setFixedSize(view->sizeHint());
  ShownView::Settle();
  const QRect last = view->visualRect(view->model()->index(17, 0));
  EXPECT_EQ(last.left(), view->viewport()->width() / 2);
  EXPECT_TRUE(view->viewport()->rect().contains(last)) << "all of the operators fit";
}

}  // namespace
}  // namespace velmar::qt
