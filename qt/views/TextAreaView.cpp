#include "qt/views/TextAreaView.h"

#include <QFontMetrics>
#include <QMimeData>
#include <QTextCursor>
#include <utility>

namespace velmar::qt {

namespace {

constexpr int kLines = 6;
constexpr int kFewestLines = 3;
constexpr int kCharacters = 30;

// The editor's own plain text has blanks in place of no-break spaces.
QString AsTyped(QString raw) {
  return raw.replace(QChar::ParagraphSeparator, '\n');
}

}  // namespace

TextAreaView::TextAreaView(controls::TextBox& box, UserEvents events, QWidget* parent)
    : QPlainTextEdit(parent), TextMirror(box, *this, std::move(events)) {
  setTabChangesFocus(true);
  ShowBox();
  connect(this, &QPlainTextEdit::textChanged, this, [this] { ReportText(); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { ReportCaret(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { ReportCaret(); });
}

QSize TextAreaView::sizeHint() const {
  return SizeOf(kLines);
}

QSize TextAreaView::minimumSizeHint() const {
  return SizeOf(kFewestLines);
}

QSize TextAreaView::SizeOf(int lines) const {
  const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {kCharacters * fontMetrics().averageCharWidth() + around,
          lines * fontMetrics().lineSpacing() + around};
}

void TextAreaView::keyPressEvent(QKeyEvent* event) {
  TakeKey(*event, [this](QKeyEvent& key) { QPlainTextEdit::keyPressEvent(&key); });
}

void TextAreaView::inputMethodEvent(QInputMethodEvent* event) {
  TakeInput(*event, [this](QInputMethodEvent& input) { QPlainTextEdit::inputMethodEvent(&input); });
}

QMimeData* TextAreaView::createMimeDataFromSelection() const {
  auto* plain = new QMimeData;
  plain->setText(AsTyped(textCursor().selectedText()));
  return plain;
}

QString TextAreaView::EditorText() const {
  return AsTyped(document()->toRawText());
}

TextMirror::Span TextAreaView::EditorSelection() const {
  const QTextCursor cursor = textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd()};
}

void TextAreaView::SelectInEditor(Span span) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(span.start);
  cursor.setPosition(span.end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

}  // namespace velmar::qt
