#pragma once

#include <QTableView>
#include <optional>

#include "platform/controls/Grid.h"
#include "qt/views/ControlLink.h"
#include "qt/views/GridModel.h"

namespace velmar::qt {

/// Shows a grid, of which the user selects whole rows that stand together. The right button moves nothing:
/// its release goes to the control, that over the head row too. Columns have at least the control's
/// widths, and the user can draw them wider or narrower. The grid is borrowed. The selection goes to and fro
/// as in ListView.
class GridView : public QTableView, private ControlLink {
 public:
  GridView(controls::Grid& grid, UserEvents events, QWidget* parent);

  /// The height that the view would like, in data rows.
  void PreferredRows(int rows);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool eventFilter(QObject* receiver, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Show(controls::Property what) override;
  void Inserted(controls::Control& control) override;
  void Removed(controls::Control& control) override;
  void WasReset(controls::Control& control) override;
  void ScrollRequested(controls::Control& control, std::size_t row) override;

  void MarkStale();
  void TakeOver();
  void Report();
  /// The place is the screen's.
  void ReleaseButton(int button, Qt::KeyboardModifiers modifiers, QPointF at);
  void SizeRows();
  void SizeColumns();
  void SizeLastColumn();
  /// In pixels.
  int LeastWidth(int column) const;
  qreal PixelsPerTwip() const;
  /// Of all columns, in twips.
  qreal GivenWidth() const;
  int ModelRow(long gridRow) const { return static_cast<int>(gridRow - grid_.FixedRows()); }

  controls::Grid& grid_;
  GridModel model_;
  std::optional<int> top_;
  bool stale_ = false;
  bool sizing_ = false;
  bool drawn_ = false;  // the user has drawn a column
  int rows_ = 8;
};

}  // namespace velmar::qt
