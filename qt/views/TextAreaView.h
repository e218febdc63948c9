#pragma once

#include <QPlainTextEdit>

#include "qt/views/TextMirror.h"

namespace velmar::qt {

/// Shows a text box of several lines, plain text only. The box is borrowed.
class TextAreaView : public QPlainTextEdit, private TextMirror {
 public:
  TextAreaView(controls::TextBox& box, UserEvents events, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  QString EditorText() const override;
  void SetEditorText(const QString& text) override { setPlainText(text); }
  Span EditorSelection() const override;
  void SelectInEditor(Span span) override;
  QSize SizeOf(int lines) const;
};

}  // namespace velmar::qt
