#pragma once

#include <QStyledItemDelegate>

namespace velmar::qt {

/// Rows of a comfortable height, and the whole text as a tool tip where it does not fit.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// The height of a row of text in this view, in pixels.
  static int RowHeight(const QWidget& view);

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

}  // namespace velmar::qt
