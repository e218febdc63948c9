#include "qt/views/RowDelegate.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QToolTip>

namespace velmar::qt {

namespace {

// A longer text would cover the screen, and the buttons that the user is on the way to.
constexpr qsizetype kLongestTip = 600;

QString Shortened(const QString& text) {
  return text.size() <= kLongestTip ? text : text.left(kLongestTip) + "…";
}

}  // namespace

int RowDelegate::RowHeight(const QWidget& view) {
  const int text = view.fontMetrics().height();
  return text + qMax(4, text / 3);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  if (option.widget != nullptr) size.setHeight(RowHeight(*option.widget));
  return size;
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
  const QRect cell = view->visualRect(index) & view->viewport()->rect();
  if (!index.isValid() || sizeHint(option, index).width() <= cell.width()) {
    QToolTip::hideText();
    return true;
  }
  // Escaped, since a filter is full of what would pass for tags.
  const QString text = Shortened(index.data(Qt::ToolTipRole).toString()).toHtmlEscaped();
  QToolTip::showText(event->globalPos(), "<span style='white-space: pre-wrap'>" + text + "</span>", view,
                     cell);
  return true;
}

}  // namespace velmar::qt
