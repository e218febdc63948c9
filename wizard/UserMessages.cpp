#include "wizard/UserMessages.h"

#include "host/interfaces/modVelmarExportacion.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar::wizard {

void UserMessages::Warn(const std::string& text) const {
  Show(text, toolkit::kExclamation);
}

bool UserMessages::Confirm(const std::string& text) const {
  return Show(text, toolkit::kQuestion + toolkit::kYesNo) == toolkit::kYes;
}

long UserMessages::Show(const std::string& text, long style) const {
  toolkit_.Beep();
  return toolkit_.MsgBox(text, style, objHost->TituloAplicacion());
}

}  // namespace velmar::wizard
