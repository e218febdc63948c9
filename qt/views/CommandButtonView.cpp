#include "qt/views/CommandButtonView.h"

#include <QFontMetrics>
#include <QIcon>
#include <QKeyEvent>
#include <utility>

namespace velmar::qt {

CommandButtonView::CommandButtonView(controls::CommandButton& button, UserEvents events, QWidget* parent,
                                     Glyph glyph)
    : QPushButton(parent), ControlLink(button, *this, std::move(events)), button_(button) {
  setAutoDefault(false);
  if (glyph != Glyph::kNone) {
    const int side = fontMetrics().height();
    setIcon(QIcon(new GlyphIcon(glyph)));
    setIconSize({side, side});
  }
  CommandButtonView::Show(controls::Property::kCaption);
  CommandButtonView::Show(controls::Property::kDefault);
  connect(this, &QPushButton::clicked, this, [this] {
    // An access key presses the button wherever the focus is.
    setFocus(Qt::ShortcutFocusReason);
    Act([this] { button_.UserClick(); });
  });
}

void CommandButtonView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->ignore();
    return;
  }
  QPushButton::keyPressEvent(event);
}

void CommandButtonView::Show(controls::Property what) {
  if (what == controls::Property::kCaption) setText(QString::fromStdString(button_.Caption()));
  if (what == controls::Property::kDefault) setDefault(button_.Default());
}

}  // namespace velmar::qt
