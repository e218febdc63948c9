#include "qt/toolkit/MessageBox.h"

#include <QPushButton>

#include "qt/toolkit/PlainText.h"

namespace velmar::qt {
namespace {

struct Face {
  const char* text;
  QMessageBox::ButtonRole role;
};

Face FaceOf(toolkit::MsgBoxResult result) {
  switch (result) {
    case toolkit::kCancel:
      return {"Cancelar", QMessageBox::RejectRole};
    case toolkit::kAbort:
      return {"&Anular", QMessageBox::DestructiveRole};
    case toolkit::kRetry:
      return {"&Reintentar", QMessageBox::AcceptRole};
    case toolkit::kIgnore:
      return {"&Omitir", QMessageBox::ActionRole};
    case toolkit::kYes:
      return {"&Sí", QMessageBox::YesRole};
    case toolkit::kNo:
      return {"&No", QMessageBox::NoRole};
    default:
      return {"Aceptar", QMessageBox::AcceptRole};
  }
}

QMessageBox::Icon IconOf(long style) {
  switch (style & toolkit::kIconMask) {
    case toolkit::kCritical:
      return QMessageBox::Critical;
    case toolkit::kQuestion:
      return QMessageBox::Question;
    case toolkit::kExclamation:
      return QMessageBox::Warning;
    case toolkit::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

}  // namespace

MessageBox::MessageBox(const std::string& text, long style, const std::string& title, QWidget* parent)
    : QMessageBox(IconOf(style), PlainText(title), {}, NoButton, parent,
                  Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setWindowModality(Qt::ApplicationModal);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setText(PlainText(text));
  for (const toolkit::MsgBoxResult result : toolkit::MsgBoxButtons(style)) {
    const Face face = FaceOf(result);
    buttons_.emplace_back(addButton(QString::fromUtf8(face.text), face.role), result);
  }
  setDefaultButton(buttons_.front().first);
  buttons_.front().first->setFocus();
  for (const toolkit::MsgBoxResult harmless : {toolkit::kOk, toolkit::kNo, toolkit::kCancel}) {
    for (const auto& [button, result] : buttons_) {
      if (result == harmless) setEscapeButton(button);
    }
  }
}

void MessageBox::PreferHarmless() {
  for (const auto& [button, result] : buttons_) {
    if (button != escapeButton()) continue;
    setDefaultButton(button);
    button->setFocus();
  }
}

toolkit::MsgBoxResult MessageBox::Ask() {
  exec();
  for (const auto& [button, result] : buttons_) {
    if (button == clickedButton()) return result;
  }
  // Closed by the end of the program.
  return buttons_.back().second;
}

}  // namespace velmar::qt
