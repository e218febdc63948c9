#include "qt/windows/Arrangement.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QPalette>
#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace velmar::qt {

void EqualWidths(std::initializer_list<QWidget*> widgets) {
  int width = 0;
  for (const QWidget* widget : widgets) {
    const int margin = widget->fontMetrics().averageCharWidth();
    width = std::max(width, widget->sizeHint().width() + margin);
  }
  for (QWidget* widget : widgets) widget->setMinimumWidth(width);
}

void KeepPlace(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

QGridLayout* Titled(QWidget& title, QWidget& frame) {
  const int height = title.sizeHint().height();
  QMargins inside = frame.layout()->contentsMargins();
  inside.setTop(
      std::max(inside.top(), height / 2 + frame.style()->pixelMetric(QStyle::PM_LayoutTopMargin) / 2));
  frame.layout()->setContentsMargins(inside);
  // The edge does not run through the text.
  title.setAutoFillBackground(true);
  title.setBackgroundRole(QPalette::Window);
  title.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

  auto* layout = new QGridLayout;
  layout->setSpacing(0);
  layout->setRowMinimumHeight(0, height / 2);
  layout->setRowStretch(2, 1);
  layout->setColumnMinimumWidth(0, frame.style()->pixelMetric(QStyle::PM_LayoutLeftMargin));
  layout->setColumnStretch(1, 1);
  layout->addWidget(&frame, 1, 0, 2, 2);
  layout->addWidget(&title, 0, 1, 2, 1, Qt::AlignLeft | Qt::AlignTop);
  title.raise();
  return layout;
}

}  // namespace velmar::qt
