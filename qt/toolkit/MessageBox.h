#pragma once

#include <QMessageBox>
#include <string>
#include <utility>
#include <vector>

#include "platform/toolkit/MsgBoxStyle.h"

namespace velmar::qt {

/// A message box with icon and buttons of its style; the first button is the default one. The text is plain
/// and can be selected and copied. Esc and the close box give the answer that changes nothing: Cancelar, else
/// No, else the one button; a box that has none of them stays.
class MessageBox : public QMessageBox {
 public:
  MessageBox(const std::string& text, long style, const std::string& title, QWidget* parent);

  /// Makes the answer that changes nothing the default one.
  void PreferHarmless();
  /// Shows the box until a button is pressed.
  toolkit::MsgBoxResult Ask();

 private:
  std::vector<std::pair<QPushButton*, toolkit::MsgBoxResult>> buttons_;  // from left to right
};

}  // namespace velmar::qt
