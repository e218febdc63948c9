#pragma once

#include <QListView>
#include <optional>
#include <vector>

#include "platform/controls/ListBox.h"
#include "qt/views/ControlLink.h"
#include "qt/views/ListModel.h"

namespace velmar::qt {

/// Shows a list box. The list is borrowed.
///
/// After each of the user's gestures the view tells the control what it has selected; what the control has
/// selected is taken over once for many changes, before the next gesture or painting.
class ListView : public QListView, private ControlLink {
 public:
  ListView(controls::ListBox& list, UserEvents events, QWidget* parent);

  /// The size that the view would like: so many rows and, across, characters of average width; the width of a
  /// list of several columns is that of its items.
  void PreferredSize(int rows, int characters);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Show(controls::Property what) override;
  void Inserted(controls::Control& control) override;
  void Removed(controls::Control& control) override;
  void WasReset(controls::Control& control) override;
  void ScrollRequested(controls::Control& control, std::size_t row) override;

  /// The control's selection is to be taken over when there is time.
  void MarkStale();
  void TakeOver();
  /// Tells the control what the user has selected; `clicked` also if it is the same.
  void Report(bool clicked);
  bool Many() const { return list_.MultiSelect() != 0; }
  std::vector<long> SelectedRows() const;
  int Columns() const;
  void LayOutColumns();
  /// In pixels, so that no item of a list of several columns is cut.
  int WidthOfColumns() const;

  controls::ListBox& list_;
  ListModel model_;
  std::optional<int> top_;
  bool stale_ = false;
  int rows_ = 6;
  int characters_ = 30;
};

}  // namespace velmar::qt
