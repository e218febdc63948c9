#include "host/interfaces/FailureReport.h"

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/HostApi.h"

namespace velmar {

FailureReport ReportToHost(std::shared_ptr<HostApi> objApi, std::string form) {
  return [objApi = std::move(objApi), form = std::move(form)](const RuntimeError& failure,
                                                              const std::string& routine) {
    if (objApi == nullptr) {
      throw RuntimeError(
          kObjectNotSet,
          "No se puede informar del error porque no existe el objeto VelmarApi.cPrincipal. Error en " +
              routine + ": " + failure.Description(),
          "VelmarExportacion");
    }
    const CurrentErrorScope current(failure);
    objApi->VerError(routine, form, "VelmarExportacion");
  };
}

}  // namespace velmar
