#include "host/interfaces/UserMessages.h"

#include "host/interfaces/modVelmarExportacion.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar {

void UserMessages::Warn(const std::string& text) const {
  Tell(text, toolkit::kExclamation);
}

void UserMessages::Inform(const std::string& text) const {
  Tell(text, toolkit::kInformation);
}

bool UserMessages::Confirm(const std::string& text) const {
  toolkit_.Beep();
  return Ask(text);
}

bool UserMessages::Ask(const std::string& text) const {
  return toolkit_.MsgBox(text, toolkit::kQuestion + toolkit::kYesNo, objHost->TituloAplicacion()) ==
         toolkit::kYes;
}

void UserMessages::Tell(const std::string& text, long style) const {
  toolkit_.Beep();
  toolkit_.MsgBox(text, style, objHost->TituloAplicacion());
}

}  // namespace velmar
