#include "qt/views/TextLineView.h"

#include <limits>
#include <utility>

namespace velmar::qt {

TextLineView::TextLineView(controls::TextBox& box, UserEvents events, QWidget* parent)
    : QLineEdit(parent), TextMirror(box, *this, std::move(events)) {
  // The control has the limit, in characters.
  setMaxLength(std::numeric_limits<int>::max());
  ShowBox();
  connect(this, &QLineEdit::textChanged, this, [this] { ReportText(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { ReportCaret(); });
  connect(this, &QLineEdit::selectionChanged, this, [this] { ReportCaret(); });
}

void TextLineView::keyPressEvent(QKeyEvent* event) {
  TakeKey(*event, [this](QKeyEvent& key) { QLineEdit::keyPressEvent(&key); });
}

void TextLineView::inputMethodEvent(QInputMethodEvent* event) {
  TakeInput(*event, [this](QInputMethodEvent& input) { QLineEdit::inputMethodEvent(&input); });
}

// The widget would select all; a box of ours has its caret and selection where they were left.
void TextLineView::focusInEvent(QFocusEvent* event) {
  QFocusEvent plain(event->type(), Qt::OtherFocusReason);
  QLineEdit::focusInEvent(&plain);
}

TextMirror::Span TextLineView::EditorSelection() const {
  if (!hasSelectedText()) return {cursorPosition(), cursorPosition()};
  return {selectionStart(), selectionEnd()};
}

void TextLineView::SelectInEditor(Span span) {
  if (span.start == span.end) {
    deselect();
    setCursorPosition(span.start);
  } else {
    setSelection(span.start, span.end - span.start);
  }
}

}  // namespace velmar::qt
