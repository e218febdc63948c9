#include "sample/window/ProgramIcon.h"

#include <QPainter>
#include <QPixmap>

namespace velmar::sample {
namespace {

/// A sheet with a head row, and an arrow that leaves it.
QPixmap Draw(int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 64.0, size / 64.0);
  const QColor green(0x1F, 0x7A, 0x4D);
  painter.setPen(QPen(green, 4));
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(6, 6, 44, 52), 5, 5);
  painter.fillRect(QRectF(8, 8, 40, 10), green);
  painter.setPen(QPen(green, 2));
  for (const int y : {28, 38, 48}) painter.drawLine(8, y, 48, y);
  painter.drawLine(24, 18, 24, 56);
  painter.setPen(QPen(Qt::white, 3));
  painter.setBrush(QColor(0xE0, 0x7B, 0x1A));
  painter.drawPolygon(QPolygonF({{30, 34}, {44, 34}, {44, 27}, {61, 40}, {44, 53}, {44, 46}, {30, 46}}));
  return picture;
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon = QIcon::fromTheme("velmar-muestra");
  if (icon.isNull()) {
    for (const int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(Draw(size));
  }
  return icon;
}

}  // namespace velmar::sample
