#include "host/cPrincipal.h"

#include <vector>

#include "host/HostedApi.h"
#include "host/interfaces/cIFunciones.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/Toolkit.h"
#include "wizard/ExcelExport.h"
#include "wizard/frmExportacion.h"

namespace velmar {

namespace {

constexpr const char* kSource = "cPrincipal.PasarDatos";

ComponentSite* componentSite = nullptr;
std::vector<com::Guid> importedClasses;

/// The window's default instance, for the length of a call. Form_Terminate runs when it goes.
std::shared_ptr<wizard::frmExportacion> frmExportacion;

class DefaultInstance {
 public:
  explicit DefaultInstance(toolkit::Toolkit& toolkit) {
    frmExportacion = toolkit::MakeForm<wizard::frmExportacion>(toolkit, wizard::ExcelExport::Make);
  }
  ~DefaultInstance() { frmExportacion.reset(); }
  DefaultInstance(const DefaultInstance&) = delete;
  DefaultInstance& operator=(const DefaultInstance&) = delete;
};

}  // namespace

void cPrincipal::SetSite(ComponentSite* site) {
  for (const com::Guid& classId : importedClasses) com::ClassRegistry::Instance().Unregister(classId);
  importedClasses.clear();
  componentSite = site;
  if (site != nullptr) importedClasses = ImportClasses(*site);
}

void cPrincipal::PasarDatos(const std::shared_ptr<HostApplication>& obj, std::int32_t* /*lngIDRecibo*/) {
  if (frmExportacion != nullptr) {
    throw RuntimeError(kInvalidProcedureCall,
                       "El asistente de exportación ya está abierto. Ciérrelo antes de abrirlo de nuevo.",
                       kSource);
  }
  if (componentSite == nullptr) {
    throw RuntimeError(
        kObjectNotSet,
        "El asistente de exportación no sabe dónde mostrarse: la aplicación debe llamar antes a SetSite.",
        kSource);
  }
  if (obj == nullptr) {
    throw RuntimeError(kObjectNotSet, "El asistente de exportación no ha recibido la aplicación (obj).",
                       kSource);
  }
  toolkit::Toolkit& toolkit = componentSite->Surroundings();

  objHost = obj;
  toolkit.HelpFile(objHost->RutaApp() + "\\Quinvera.chm");
  const cIFunciones connections;
  connections.AbrirConexion(objHost->conGestion());
  connections.AbrirConexion(objHost->coninformes());
  const DefaultInstance instance(toolkit);
  frmExportacion->Show();
}

}  // namespace velmar
