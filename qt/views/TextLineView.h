#pragma once

#include <QLineEdit>

#include "qt/views/TextMirror.h"

namespace velmar::qt {

/// Shows a text box of one line, which is borrowed.
class TextLineView : public QLineEdit, private TextMirror {
 public:
  TextLineView(controls::TextBox& box, UserEvents events, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  QString EditorText() const override { return text(); }
  void SetEditorText(const QString& text) override { setText(text); }
  Span EditorSelection() const override;
  void SelectInEditor(Span span) override;
};

}  // namespace velmar::qt
