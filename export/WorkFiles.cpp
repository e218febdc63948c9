#include "export/WorkFiles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include "platform/ado/Catalog.h"
#include "platform/ado/ConnectionText.h"
#include "platform/files/Files.h"
#include "platform/files/Paths.h"
#include "platform/text/Search.h"

namespace velmar::exporting {
namespace {

constexpr const char* kAuxiliaryFile = "ExportacionAux.mdb";
constexpr const char* kAllWorkFiles = "Exportacion*.mdb";

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
