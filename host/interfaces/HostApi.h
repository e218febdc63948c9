#pragma once

#include <string>

#include "platform/com/Object.h"

namespace ADODB {
class Field;
}

namespace velmar {

namespace controls {
class TextBox;
}

/// The object of the host's API library, `VelmarApi.cPrincipal`. Each window makes one when it loads.
class HostApi : public com::Object {
 public:
  /// Reports the failure that the caller has just caught, and returns. The failure itself is not handed over;
  /// its number and description stand in CurrentError during the call.
  virtual void VerError(const std::string& rutina, const std::string& formulario,
                        const std::string& componente) = 0;
  /// Selects the text of a text box that has just got the focus.
  virtual void SeleccionarTexto(controls::TextBox& caja) = 0;
  /// 1 for a valid NIF in the field's current row; anything else means invalid.
  virtual long validar_nif(const ADODB::Field& nif) = 0;
};

}  // namespace velmar
