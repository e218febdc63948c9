#pragma once

#include <QIconEngine>

namespace velmar::qt {

/// The drawings on buttons without a caption.
enum class Glyph { kNone, kUp, kDown, kCross };

/// Draws a glyph in the palette's colour of button texts, at any size.
class GlyphIcon : public QIconEngine {
 public:
  explicit GlyphIcon(Glyph glyph) : glyph_(glyph) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override { return new GlyphIcon(glyph_); }

 private:
  Glyph glyph_;
};

}  // namespace velmar::qt
