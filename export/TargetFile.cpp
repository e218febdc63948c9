#include "export/TargetFile.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/Files.h"
#include "platform/files/Paths.h"

namespace velmar::exporting {
namespace {

[[noreturn]] void Refuse(long number, const std::string& strFichero, const std::string& reason) {
  throw RuntimeError(number, "No se puede exportar al archivo " + strFichero + ": " + reason,
                     "VelmarExportacion");
}

std::string NameOf(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace

std::string PrepareTarget(const std::string& strFichero, const WorkFiles& workFiles) {
  if (strFichero.find_first_of("[]*?") != std::string::npos) {
    Refuse(kInvalidProcedureCall, strFichero,
           "ni el nombre ni la carpeta pueden contener los caracteres [ ] * ?. Elija otro nombre.");
  }
  std::string path = files::ResolveForCreation(strFichero);
  const auto existing = files::Resolve(path);
  if (existing && workFiles.IsHostDatabase(*existing)) {
    Refuse(kPermissionDenied, strFichero, "es una base de datos de la aplicación. Elija otro nombre.");
  }
  if (existing && NameOf(*existing) != NameOf(path)) {
    Refuse(kFileAlreadyExists, strFichero,
           "ya existe " + NameOf(*existing) +
               ", que sólo se distingue por las mayúsculas. Elija otro nombre, o "
               "ese mismo para sustituirlo.");
  }
  if (!files::Dir(path, 32).empty()) files::Kill(path);
  return path;
}

}  // namespace velmar::exporting
