#include "export/WorkFiles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/ado/Catalog.h"
#include "platform/ado/ConnectionText.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/Files.h"
#include "platform/files/NamePattern.h"
#include "platform/files/Paths.h"
#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::exporting {
namespace {

constexpr const char* kAllWorkFiles = "Exportacion*.mdb";
// No work file's name, or the sweep would delete it.
constexpr const char* kLockFile = "VelmarExportacion.lock";

}  // namespace

std::string WorkFiles::ConnectionText(const std::string& archivo) const {
  ADODB::ConnectionText text(host_->coninformes()->ConnectionString());
  text.Set(ADODB::kDataSourceKey, FilePath(archivo));
  text.Set(ADODB::kPasswordKey, "");
  text.Set(ADODB::kScratchKey, "True");
  return text.Text();
}

std::string WorkFiles::FilePath(const std::string& archivo) const {
  const std::string reports = host_->coninformes()->Properties(ADODB::kDataSourceNameKey).Value();
  return reports.substr(0, reports.find_last_of("/\\") + 1) + archivo;
}

std::string WorkFiles::QuotedPath(const std::string& archivo) const {
  return text::Replace(FilePath(archivo), "'", "''");
}

files::FileLock WorkFiles::Reserve() const {
  const std::string folder = FilePath("");
  if (text::Contains(folder, "]") || text::Contains(text::LCase(folder), ";pwd=")) {
    throw RuntimeError(kInvalidProcedureCall,
                       "No se puede exportar con las bases de datos en la carpeta " + folder +
                           ": su nombre no puede contener ] ni ;pwd=. Cambie el nombre de la carpeta.",
                       "VelmarExportacion");
  }
  auto lock = files::FileLock::TryTake(FilePath(kLockFile));
  if (lock) return std::move(*lock);
  throw RuntimeError(kPermissionDenied,
                     "Ya hay una exportación en curso con los archivos de trabajo de la carpeta " + folder +
                         ". Espere a que termine en el otro asistente y vuelva a exportar.",
                     "VelmarExportacion");
}

std::shared_ptr<ADODB::Connection> WorkFiles::CrearBaseAuxiliar() const {
  const std::string text = ConnectionText(kAuxiliaryFile);
  auto connection = std::make_shared<ADODB::Connection>();
  connection->ConnectionString(text);
  RemoveAll();
  ADOX::Catalog().Create(text);
  connection->Open("", "", "", -1);
  return connection;
}

void WorkFiles::CrearBaseParte(const std::string& strTabla, const std::string& strIndice, int intBloque,
                               ADODB::Connection& conAuxiliar) const {
  const std::string archivo = strTabla + strIndice + ".mdb";
  const std::string text = ConnectionText(archivo);
  Remove(archivo);
  ADOX::Catalog().Create(text);
  conAuxiliar.Execute("SELECT TOP " + std::to_string(intBloque) + " * INTO " + strTabla + strIndice +
                      " IN '" + QuotedPath(archivo) + "' FROM " + strTabla);
}

void WorkFiles::Remove(const std::string& pattern) const {
  const std::string path = FilePath(pattern);
  if (files::Dir(path, 32).empty()) return;
  const std::vector<std::string> found = files::Matches(path);
  const auto isHosts = [this](const std::string& file) { return IsHostDatabase(file); };
  if (std::none_of(found.begin(), found.end(), isHosts)) {
    files::Kill(path);
    return;
  }
  for (const std::string& file : found) {
    if (!isHosts(file)) files::Kill(file);
  }
}

void WorkFiles::RemoveAll() const {
  Remove(kAllWorkFiles);
}

bool WorkFiles::IsWorkFile(const std::string& path) const {
  std::error_code failure;
  const std::filesystem::path file = std::filesystem::absolute(path, failure);
  if (!std::filesystem::equivalent(file.parent_path(), FilePath(""), failure)) return false;
  const std::string name = file.filename().string();
  return files::NamePattern(kAllWorkFiles).Matches(name) || files::NamePattern(kLockFile).Matches(name);
}

bool WorkFiles::IsHostDatabase(const std::string& path) const {
  const auto real = files::Resolve(path);
  if (!real) return false;
  for (const auto& connection : {host_->conGestion(), host_->coninformes()}) {
    std::error_code failure;
    const std::string own = connection->Properties(ADODB::kDataSourceNameKey).Value();
    if (std::filesystem::equivalent(*real, own, failure)) return true;
  }
  return false;
}

}  // namespace velmar::exporting
