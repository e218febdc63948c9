#include "qt/views/TextMirror.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <string>
#include <utility>

#include "qt/views/ShownText.h"

namespace velmar::qt {

namespace {

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// The text that the key types, a backspace as "\b"; empty for a key that types nothing.
QString TypedBy(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace && event.modifiers() == Qt::NoModifier) return "\b";
  // The right Alt key types characters, and may come as both of these.
  const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (modifiers != Qt::NoModifier && modifiers != (Qt::ControlModifier | Qt::AltModifier)) return {};
  const QString text = event.text();
  return !text.isEmpty() && (text[0].isPrint() || text[0].isSurrogate()) ? text : QString();
}

}  // namespace

TextMirror::TextMirror(controls::TextBox& box, QWidget& editor, UserEvents events)
    : ControlLink(box, editor, std::move(events)), box_(box) {}

void TextMirror::ReportText() {
  if (mirroring_ || !Alive()) return;
  const ShownText before(box_.Text(), box_.MultiLine());
  const QString edited = EditorText();
  if (edited != before.Text()) {
    const ShownText after(before.Edited(edited, box_.MaxLength()), box_.MultiLine());
    const Span span = EditorSelection();
    // What does not fit is cut from the end of what has been put in, which the caret stands behind.
    const auto cut = static_cast<int>(edited.size() - after.Text().size());
    const long start = after.Character(std::max(0, span.start - cut));
    Tell([&] { box_.UserEdit(after.Bytes(), start, after.Character(std::max(0, span.end - cut)) - start); });
  } else {
    ShowBox();
  }
}

void TextMirror::ReportCaret() {
  if (mirroring_ || !Alive() || !box_.HasFocus()) return;
  const ShownText text(box_.Text(), box_.MultiLine());
  // In the middle of an edit: its report tells the caret, too.
  if (EditorText() != text.Text()) return;
  const Span span = EditorSelection();
  if (span == Span{text.Position(box_.SelStart()), text.Position(box_.SelStart() + box_.SelLength())}) return;
  const long start = text.Character(span.start);
  Tell([&] { box_.UserSetCaret(start, text.Character(span.end) - start); });
}

void TextMirror::Tell(const std::function<void()>& action) {
  {
    // What the box passes through on its way, such as a caret without its selection, is not for the editor.
    const QScopedValueRollback mirroring(mirroring_, true);
    Act(action);
  }
  ShowBox();
}

void TextMirror::ShowBox() {
  if (!Alive()) return;
  const QScopedValueRollback mirroring(mirroring_, true);
  const ShownText text(box_.Text(), box_.MultiLine());
  if (EditorText() != text.Text()) SetEditorText(text.Text());
  const Span span{text.Position(box_.SelStart()), text.Position(box_.SelStart() + box_.SelLength())};
  if (EditorSelection() != span) SelectInEditor(span);
}

void TextMirror::TakeKey(QKeyEvent& event, const std::function<void(QKeyEvent&)>& native) {
  const QString typed = TypedBy(event);
  const QString left = typed.isEmpty() ? typed : LeftByBox(typed);
  if (IsEnter(event)) {
    event.ignore();
  } else if (left == typed) {
    native(event);
  } else if (!left.isEmpty()) {
    QKeyEvent other(event.type(), Qt::Key_unknown, Qt::NoModifier, left);
    native(other);
  }
}

void TextMirror::TakeInput(QInputMethodEvent& event, const std::function<void(QInputMethodEvent&)>& native) {
  QInputMethodEvent input(event.preeditString(), event.attributes());
  input.setCommitString(LeftByBox(event.commitString()), event.replacementStart(), event.replacementLength());
  native(input);
  event.setAccepted(input.isAccepted());
}

QString TextMirror::LeftByBox(const QString& typed) {
  std::u32string left;
  Act([&] {
    for (const char32_t character : typed.toStdU32String()) {
      const int key = box_.UserKey(static_cast<int>(character));
      if (key > 0) left.push_back(static_cast<char32_t>(key));
    }
  });
  return QString::fromStdU32String(left);
}

void TextMirror::Show(controls::Property what) {
  const bool concerns = what == controls::Property::kText || what == controls::Property::kCaret;
  if (concerns && !mirroring_) ShowBox();
}

}  // namespace velmar::qt
