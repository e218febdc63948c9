#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/ComponentSite.h"
#include "host/interfaces/HostApi.h"
#include "platform/com/Guid.h"

namespace velmar {

/// The host's API object on the component's side of a site: hands each failure over to the host, where
/// CurrentError is another variable, before it calls VerError. The site is borrowed.
class HostedApi final : public HostApi {
 public:
  HostedApi(std::shared_ptr<HostApi> api, ComponentSite& site);

  void VerError(const std::string& rutina, const std::string& formulario,
                const std::string& componente) override;
  void SeleccionarTexto(controls::TextBox& caja) override;
  long validar_nif(const ADODB::Field& nif) override;

 private:
  std::shared_ptr<HostApi> api_;
  ComponentSite& site_;
};

/// Makes the classes of the site known to this module's `CreateObject` and gives their identifiers. None if
/// the site and this module share one registry.
std::vector<com::Guid> ImportClasses(ComponentSite& site);

}  // namespace velmar
