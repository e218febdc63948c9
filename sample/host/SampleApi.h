#pragma once

#include <string>

#include "host/interfaces/HostApi.h"

namespace velmar::toolkit {
class Toolkit;
}

namespace velmar::sample {

/// The sample application's API library, `VelmarApi.cPrincipal`. The toolkit is borrowed.
class SampleApi final : public HostApi {
 public:
  SampleApi(toolkit::Toolkit& toolkit, std::string title);

  /// A message box with number and text of the current error and the three labels.
  void VerError(const std::string& rutina, const std::string& formulario,
                const std::string& componente) override;
  void SeleccionarTexto(controls::TextBox& caja) override;
  /// 1 for a NIF, NIE or CIF of nine characters with the right control character, as the tax agency defines
  /// them; blanks around it do not count. 0 for anything else, Null included.
  long validar_nif(const ADODB::Field& nif) override;

 private:
  toolkit::Toolkit& toolkit_;
  std::string title_;
};

}  // namespace velmar::sample
