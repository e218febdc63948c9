#include "host/HostedApi.h"

#include <utility>

#include "platform/ado/Field.h"

namespace velmar {

HostedApi::HostedApi(std::shared_ptr<HostApi> api, ComponentSite& site) : api_(std::move(api)), site_(site) {}

void HostedApi::VerError(const std::string& rutina, const std::string& formulario,
                         const std::string& componente) {
  const ErrObject& error = CurrentError();
  site_.Report(RuntimeError(error.Number(), error.Description(), error.Source()),
               [&] { api_->VerError(rutina, formulario, componente); });
}

void HostedApi::SeleccionarTexto(controls::TextBox& caja) {
  api_->SeleccionarTexto(caja);
}

long HostedApi::validar_nif(const ADODB::Field& nif) {
  return api_->validar_nif(nif);
}

std::vector<com::Guid> ImportClasses(ComponentSite& site) {
  std::vector<com::Guid> imported;
  const com::ClassRegistry& classes = site.Classes();
  com::ClassRegistry& own = com::ClassRegistry::Instance();
  if (&classes == &own) return imported;
  for (const com::ClassRegistry::Entry& entry : classes.Classes()) {
    own.Register({entry.progId, entry.classId, [make = entry.make, &site]() -> std::shared_ptr<com::Object> {
                    auto object = make();
                    if (auto api = std::dynamic_pointer_cast<HostApi>(object)) {
                      return std::make_shared<HostedApi>(std::move(api), site);
                    }
                    return object;
                  }});
    imported.push_back(entry.classId);
  }
  return imported;
}

}  // namespace velmar
