#pragma once

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <algorithm>
#include <optional>
#include <random>
#include <vector>

#include "qt/views/ShownView.h"

namespace velmar::qt {

using Rows = std::vector<long>;

/// A list or grid on the screen and the user before its rows, which count from 0.
class ShownRows : public ::testing::Test {
 protected:
  /// What the control has selected.
  virtual Rows Selected() const = 0;

  void Watch(QAbstractItemView& made) {
    view = &made;
    tester.emplace(view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  }
  QPoint At(int row) const { return view->visualRect(view->model()->index(row, 0)).center(); }
  QPoint BesideRows() const { return {10, view->viewport()->height() - 3}; }
  Rows Click(int row, Qt::KeyboardModifiers keys = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view->viewport(), button, keys, At(row));
    return Shown();
  }
  Rows Press(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::keyClick(view, key, keys);
    return Shown();
  }
  Rows Drag(int from, int to) {
    std::vector<QPoint> way;
    for (int row = from; row != to; row += from < to ? 1 : -1) way.push_back(At(row));
    way.push_back(At(to));
    return Drag(way);
  }
  Rows Drag(const std::vector<QPoint>& way) {
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, way.front());
    for (const QPoint& place : way) QTest::mouseMove(view->viewport(), place);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, way.back());
    return Shown();
  }
  /// What the screen shows, which is what the control has.
  Rows Shown() {
    ShownView::Settle();
    Rows rows;
    for (const QModelIndex& index : view->selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, Selected());
    return rows;
  }
  long Below(long count) { return static_cast<long>(random() % static_cast<unsigned long>(count)); }

  ShownView shown;
  QAbstractItemView* view = nullptr;
  std::optional<QAbstractItemModelTester> tester;
  std::mt19937 random{7};
};

}  // namespace velmar::qt
