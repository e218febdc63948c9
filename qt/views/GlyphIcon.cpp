#include "qt/views/GlyphIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QTransform>

namespace velmar::qt {

namespace {

// All drawings stand in a square of 16 units.
constexpr qreal kUnits = 16;

QPainterPath UpArrow() {
  QPainterPath path;
  path.moveTo(8, 13);
  path.lineTo(8, 3.5);
  path.moveTo(3.5, 8);
  path.lineTo(8, 3.5);
  path.lineTo(12.5, 8);
  return path;
}

QPainterPath Outline(Glyph glyph) {
  QPainterPath path;
  if (glyph == Glyph::kUp) path = UpArrow();
  if (glyph == Glyph::kDown) path = QTransform(1, 0, 0, -1, 0, kUnits).map(UpArrow());
  if (glyph == Glyph::kCross) {
    path.moveTo(4, 4);
    path.lineTo(12, 12);
    path.moveTo(12, 4);
    path.lineTo(4, 12);
  }
  return path;
}

}  // namespace

void GlyphIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) {
  const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
  const QColor colour = QGuiApplication::palette().color(group, QPalette::ButtonText);
  const qreal side = qMin(rect.width(), rect.height());
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
  painter->scale(side / kUnits, side / kUnits);
  painter->setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPath(Outline(glyph_));
  painter->restore();
}

QPixmap GlyphIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(&painter, QRect(QPoint(0, 0), size), mode, state);
  return pixmap;
}

}  // namespace velmar::qt
