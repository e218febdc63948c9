#include "SampleDatabases.h"

#include <unistd.h>

#include "platform/ado/Catalog.h"
#include "platform/ado/Recordset.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"

namespace {

std::string Shown(const ADODB::Variant& value) {
  return value.IsNull() ? "NULL" : value.TextOrEmpty();
}

std::string Shown(const velmar::RuntimeError& failure) {
  return "error " + std::to_string(failure.Number()) + ": " + failure.Description();
}

std::string RowsOf(ADODB::Recordset& rows) {
  std::string result;
  for (; !rows.Eof(); rows.MoveNext()) {
    for (long i = 0; i < rows.Fields().Count(); ++i) {
      result += (i == 0 ? "" : " | ") + Shown(rows.Fields(i).Value());
    }
    result += '\n';
  }
  return result;
}

}  // namespace

SampleDatabases::SampleDatabases()
    : folder_(std::filesystem::temp_directory_path() / ("sql_page-" + std::to_string(getpid()))) {
  std::filesystem::create_directories(folder_);
  connection_ = Create("Gestion.mdb");
  const auto reports = Create("Informes.mdb");
  reports->Execute("CREATE TABLE Excedente (Nombre TEXT(50), Importe CURRENCY)");
  reports->SetDatabasePassword("secreta");
  Create("Salida.mdb");
}

SampleDatabases::~SampleDatabases() {
  connection_.reset();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::shared_ptr<ADODB::Connection> SampleDatabases::Create(const std::string& file) const {
  const std::string text = "Data Source=\"" + (folder_ / file).string() + "\"";
  ADOX::Catalog().Create(text);
  auto connection = std::make_shared<ADODB::Connection>();
  connection->Open(text);
  return connection;
}

std::string SampleDatabases::Run(const std::string& statement) {
  try {
    long written = 0;
    const auto rows = connection_->Execute(WithRealFolder(statement), &written);
    if (rows->State() == ADODB::kStateOpen) return RowsOf(*rows);
    return std::to_string(written) + (written == 1 ? " row\n" : " rows\n");
  } catch (const velmar::RuntimeError& failure) {
    return WithShownFolder(Shown(failure)) + "\n";
  }
}

std::string SampleDatabases::Value(const std::string& expression) {
  try {
    const ADODB::Variant value = connection_->Execute("SELECT " + expression)->Fields(0L).Value();
    return value.IsText() ? "'" + value.TextOrEmpty() + "'" : Shown(value);
  } catch (const velmar::RuntimeError& failure) {
    return Shown(failure);
  }
}

std::string SampleDatabases::WithRealFolder(std::string text) const {
  return velmar::text::Replace(text, "/datos/", folder_.string() + "/");
}

std::string SampleDatabases::WithShownFolder(std::string text) const {
  return velmar::text::Replace(text, folder_.string() + "/", "/datos/");
}
