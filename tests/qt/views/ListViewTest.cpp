#include "qt/views/ListView.h"

#include <QSignalSpy>

#include "qt/views/ShownRows.h"

namespace velmar::qt {
namespace {

class ListViewTest : public ShownRows {
 protected:
  ListView& Open(long multiSelect, int items = 8) {
    list.MultiSelect(multiSelect);
    Fill(items);
    auto& made = shown.Add<ListView>(list);
    Watch(made);
    shown.Open();
    return made;
  }
  // A0, B1, C2 and so on.
  void Fill(int items) {
    for (int i = 0; i < items; ++i) list.AddItem(static_cast<char>('A' + i % 26) + std::to_string(i));
  }
  Rows Selected() const override {
    Rows selected;
    for (long i = 0; i < list.ListCount(); ++i) {
      if (list.Selected(i)) selected.push_back(i);
    }
    return selected;
  }

  controls::ListBox list{"lst"};
};

TEST_F(ListViewTest, SelectsManyByMouseAndKeys) {
  Open(2).setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Press(Qt::Key_Down), (Rows{0}));
  EXPECT_EQ(Click(1), (Rows{1}));
  EXPECT_EQ(Click(3, Qt::ShiftModifier), (Rows{1, 2, 3}));
  EXPECT_EQ(Click(2, Qt::ControlModifier), (Rows{1, 3}));
  EXPECT_EQ(Click(6, Qt::ControlModifier), (Rows{1, 3, 6}));
  EXPECT_EQ(list.ListIndex(), 6);
  EXPECT_EQ(Press(Qt::Key_Up), (Rows{5}));
  EXPECT_EQ(Press(Qt::Key_Down, Qt::ShiftModifier), (Rows{5, 6}));
  EXPECT_EQ(Press(Qt::Key_A, Qt::ControlModifier).size(), 8U);
  EXPECT_EQ(Press(Qt::Key_D), (Rows{3}));
  EXPECT_EQ(Drag(5, 2), (Rows{2, 3, 4, 5}));
  EXPECT_EQ(Drag({At(6), BesideRows()}), (Rows{6, 7})) << "below the last one";
  EXPECT_EQ(Drag({At(1), QPoint(5, -40)}), (Rows{0, 1})) << "above the list";
}

TEST_F(ListViewTest, ChoosesOneAndRaisesItsEventsForEachClickOnIt) {
  std::string events;
  list.Click = [&] { events += "C" + std::to_string(list.ListIndex()); };
  list.DblClick = [&] { events += "D" + std::to_string(list.ListIndex()); };
  Open(0, 3);
  EXPECT_EQ(Click(1), (Rows{1}));
  EXPECT_EQ(Click(1), (Rows{1}));
  EXPECT_EQ(Press(Qt::Key_Down), (Rows{2}));
  EXPECT_EQ(Click(2, Qt::ControlModifier), (Rows{2})) << "nothing chosen is not for the user to choose";
  EXPECT_EQ(events, "C1C1C2C2");
  events.clear();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, At(0));
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, BesideRows());
  EXPECT_EQ(events, "C0D0D0") << "beside the items, it is about the one that is chosen";
}

TEST_F(ListViewTest, AKeyReachesTheFirstItemOfAListWithoutAChoice) {
  const std::pair<Qt::Key, long> kMoves[] = {{Qt::Key_Down, 0}, {Qt::Key_Home, 0}, {Qt::Key_End, 7}};
  Open(0, 0).setFocus(Qt::TabFocusReason);
  for (const auto& [key, chosen] : kMoves) {
    list.Clear();
    Fill(8);
    EXPECT_EQ(Press(key), Rows{chosen}) << key;
  }
  // What stands in the place of an item that has gone comes next.
  list.ListIndex(3);
  ShownView::Settle();
  list.RemoveItem(3);
  EXPECT_EQ(Press(Qt::Key_Down), Rows{3});
}

TEST_F(ListViewTest, StaysInStepWithTheProgramThroughAnyChanges) {
  Open(2, 0);
  for (int step = 0; step < 600; ++step) {
    if (step % 50 == 0) list.Clear();
    list.Sorted(step >= 300);
    const std::string text = "Campo " + std::to_string(Below(1000));
    list.AddItem(text, Below(list.ListCount() + 1));
    const long item = Below(list.ListCount());
    if (step % 4 == 0) list.RemoveItem(item);
    if (step % 4 == 1) list.List(item, text);
    if (step % 4 == 2) list.Selected(item, Below(3) > 0);
    if (step % 4 == 3) list.AddItem(text);
    if (step % 5 == 0) Shown();
    ASSERT_EQ(view->model()->rowCount(), list.ListCount());
  }
  EXPECT_EQ(view->model()->index(9, 0).data().toString().toStdString(), list.List(9));
}

TEST_F(ListViewTest, ManyChangesOfTheProgramShowTogether) {
  Open(2, 500);
  const QSignalSpy selections(view->selectionModel(), &QItemSelectionModel::selectionChanged);
  for (long i = 0; i < list.ListCount(); ++i) {
    list.Selected(i, true);
    list.TopIndex(300);
  }
  EXPECT_EQ(Shown().size(), 500U);
  EXPECT_EQ(selections.count(), 1);
  EXPECT_EQ(view->indexAt(QPoint(5, 2)).row(), 300);
}

}  // namespace
}  // namespace velmar::qt
