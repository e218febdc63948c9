#include "platform/files/Paths.h"

#include <filesystem>
#include <functional>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/WrittenPath.h"

namespace velmar::files {
namespace {

using FolderVisits = bool (WrittenPath::*)(const std::function<bool(const std::filesystem::path&)>&) const;

std::optional<std::string> Find(std::string_view path, FolderVisits visitFolders) {
  if (path.empty()) return std::nullopt;
  const WrittenPath written(path);
  std::optional<std::string> found;
  (written.*visitFolders)([&](const std::filesystem::path& folder) {
    if (written.Name().empty()) {
      found = ToText(folder);
      return true;
    }
    return VisitSpellings(folder, written.Name(), [&](const std::filesystem::path& real) {
      found = ToText(real);
      return true;
    });
  });
  return found;
}

}  // namespace

std::optional<std::string> Resolve(std::string_view path) {
  return Find(path, &WrittenPath::VisitFolders);
}

std::optional<std::string> ResolveForChange(std::string_view path) {
  return Find(path, &WrittenPath::VisitOwnFolder);
}

std::string ResolveForCreation(std::string_view path) {
  const WrittenPath written(path);
  if (written.Name().empty()) {
    throw RuntimeError(
        kInvalidProcedureCall,
        "\"" + std::string(path) + "\" no nombra un fichero: falta el nombre detrás de la carpeta.", "files");
  }
  std::string real;
  const bool found = written.VisitFolders([&](const std::filesystem::path& folder) {
    real = ToText(folder / FromText(written.Name()));
    return true;
  });
  if (!found) {
    throw RuntimeError(kPathNotFound,
                       "No existe la carpeta de \"" + std::string(path) + "\". Créela o elija otra.",
                       "files");
  }
  return real;
}

}  // namespace velmar::files
