#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QString>
#include <functional>

#include "platform/controls/TextBox.h"
#include "qt/views/ControlLink.h"

namespace velmar::qt {

/// Keeps a text box and the editor that shows it in step: text, caret and selection go both ways. The editor
/// does the editing; each key passes the box's key event first, and the new text the box's rules afterwards,
/// which may cut it. The Enter key is left to the window. The box is borrowed.
class TextMirror : public ControlLink {
 protected:
  struct Span {
    int start = 0;
    int end = 0;
    bool operator==(const Span&) const = default;
  };

  TextMirror(controls::TextBox& box, QWidget& editor, UserEvents events);

  // The editor; positions are in units of UTF-16.
  virtual QString EditorText() const = 0;
  virtual void SetEditorText(const QString& text) = 0;
  virtual Span EditorSelection() const = 0;
  virtual void SelectInEditor(Span span) = 0;

  /// To be called when the editor has changed its text, its caret or selection.
  void ReportText();
  void ReportCaret();
  /// Shows the box's text and caret.
  void ShowBox();

  /// `native` is the editor's own handling of the event.
  void TakeKey(QKeyEvent& event, const std::function<void(QKeyEvent&)>& native);
  void TakeInput(QInputMethodEvent& event, const std::function<void(QInputMethodEvent&)>& native);

  void Show(controls::Property what) override;

 private:
  void Tell(const std::function<void()>& action);
  QString LeftByBox(const QString& typed);

  controls::TextBox& box_;
  bool mirroring_ = false;
};

}  // namespace velmar::qt
