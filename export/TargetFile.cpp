#include "export/TargetFile.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/FileLock.h"
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

/// The file by which an office program shows others that it has this one open: LibreOffice or Excel.
std::optional<std::string> OwnersFile(const std::string& path) {
  const std::string folder = path.substr(0, path.size() - NameOf(path).size());
  for (const std::string& name : {".~lock." + NameOf(path) + "#", "~$" + NameOf(path)}) {
    if (auto found = files::ResolveForChange(folder + name)) return found;
  }
  return std::nullopt;
}

void RequireUnused(const std::string& strFichero, const std::string& path) {
  if (const auto owners = OwnersFile(path)) {
    Refuse(
        kPermissionDenied, strFichero,
        "está abierto en otro programa. Ciérrelo allí y vuelva a exportar, o elija otro nombre. Si ya no lo "
        "está en ninguno, borre el archivo " +
            *owners + ".");
  }
  if (files::FileLock::IsHeld(path)) {
    Refuse(kPermissionDenied, strFichero,
           "otro programa lo está usando. Espere a que termine y vuelva a exportar, o elija otro nombre.");
  }
}

/// What is no file cannot make way, and what is written to a link goes where the link leads.
void RequireFileOrNothing(const std::string& strFichero, const std::string& path) {
  using std::filesystem::file_type;
  std::error_code failure;
  if (!std::filesystem::exists(std::filesystem::symlink_status(path, failure))) return;
  switch (std::filesystem::status(path, failure).type()) {
    case file_type::regular:
      return;
    case file_type::directory:
      Refuse(kPermissionDenied, strFichero, "ese nombre es el de una carpeta. Elija otro nombre.");
    case file_type::not_found:
      Refuse(kPermissionDenied, strFichero,
             "ese nombre es el de un enlace que no lleva a ningún archivo. Borre el enlace o elija otro "
             "nombre.");
    default:
      Refuse(kPermissionDenied, strFichero,
             "lo que hay con ese nombre no es un archivo en el que se pueda escribir. Elija otro nombre.");
  }
}

}  // namespace

std::string CheckTarget(const std::string& strFichero, const WorkFiles& workFiles) {
  if (strFichero.find_first_of("[];*?") != std::string::npos) {
    Refuse(kInvalidProcedureCall, strFichero,
           "ni el nombre ni la carpeta pueden contener los caracteres [ ] ; * ?. Elija otro nombre.");
  }
  std::string path = files::ResolveForCreation(strFichero);
  const auto existing = files::ResolveForChange(path);
  if (existing && workFiles.IsHostDatabase(*existing)) {
    Refuse(kPermissionDenied, strFichero, "es una base de datos de la aplicación. Elija otro nombre.");
  }
  if (workFiles.IsWorkFile(path)) {
    Refuse(kPermissionDenied, strFichero,
           "los archivos de trabajo de la exportación se llaman así en esa carpeta. Elija otro nombre.");
  }
  if (existing && NameOf(*existing) != NameOf(path)) {
    Refuse(kFileAlreadyExists, strFichero,
           "ya existe " + NameOf(*existing) +
               ", que sólo se distingue por las mayúsculas. Elija otro nombre, o "
               "ese mismo para sustituirlo.");
  }
  if (!files::Dir(path, 32).empty()) RequireUnused(strFichero, path);
  return path;
}

std::string PrepareTarget(const std::string& strFichero, const WorkFiles& workFiles) {
  std::string path = CheckTarget(strFichero, workFiles);
  RequireFileOrNothing(strFichero, path);
  if (!files::Dir(path, 32).empty()) files::Kill(path);
  return path;
}

}  // namespace velmar::exporting
