#include "sample/DatabaseGenerator.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/ado/Catalog.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/BankDirectory.h"
#include "sample/Catalogue.h"
#include "sample/DonationKinds.h"
#include "sample/Issuers.h"
#include "sample/MoneyGenerator.h"
#include "sample/PeopleGenerator.h"
#include "sample/RowWriter.h"
#include "sample/SampleFiles.h"
#include "sample/Schema.h"
#include "sample/SpanishPlaces.h"
#include "sample/TemplateExamples.h"
#include "sample/WorkFolder.h"

namespace velmar::sample {
namespace {

constexpr const char* kSource = "DatabaseGenerator";

void MakeFolder(const std::string& folder) {
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) {
    throw RuntimeError(kPathNotFound,
                       "No se puede crear la carpeta '" + folder + "'. Compruebe la ruta y los permisos.",
                       kSource);
  }
}

[[noreturn]] void RefuseTaken(const std::string& path) {
  throw RuntimeError(
      kFileAlreadyExists,
      "Ya existe la base de datos '" + path + "'. Elija otra carpeta o borre antes el archivo.", kSource);
}

void RequireAbsent(const std::string& path) {
  if (std::filesystem::exists(path)) RefuseTaken(path);
}

/// Another program may have made a database here meanwhile.
void PutInPlace(const std::string& built, const std::string& path) {
  const std::error_code failure = MoveWithoutReplacing(built, path);
  if (failure == std::errc::file_exists) RefuseTaken(path);
  if (failure) {
    throw RuntimeError(kPermissionDenied,
                       "No se puede escribir el archivo '" + path + "': " + failure.message() +
                           ". Compruebe la carpeta y los permisos.",
                       kSource);
  }
}

void ExecuteAll(ADODB::Connection& connection, std::span<const std::string_view> statements) {
  for (const std::string_view statement : statements) connection.Execute(statement);
}

void WritePlaces(ADODB::Connection& main) {
  ADODB::BulkInsert provinces(main, "Provincias", {"IDProvincia", "Codigo", "Nombre", "Eliminado"});
  for (std::size_t i = 0; i < kProvinceCount; ++i) {
    WriteRow(provinces, i + 1, Provinces()[i].code, Provinces()[i].name, false);
  }
  ADODB::BulkInsert countries(main, "Paises", {"IDPais", "Codigo", "Nombre", "Eliminado"});
  for (std::size_t i = 0; i < kCountryCount; ++i) {
    WriteRow(countries, i + 1, Countries()[i].code, Countries()[i].name, false);
  }
}

}  // namespace

DatabaseGenerator::DatabaseGenerator(GeneratorOptions options) : options_(std::move(options)) {}

void DatabaseGenerator::Run() {
  if (options_.collaborators < 1 || options_.collaborators > kMaximumCollaborators) {
    throw RuntimeError(kInvalidProcedureCall,
                       "El número de colaboradores debe estar entre 1 y " +
                           std::to_string(kMaximumCollaborators) + "; se ha pedido " +
                           std::to_string(options_.collaborators) + ".",
                       kSource);
  }
  const std::string main = PathIn(options_.folder, kMainFile);
  const std::string reports = PathIn(options_.folder, kReportsFile);
  MakeFolder(options_.folder);
  RequireAbsent(main);
  RequireAbsent(reports);
  // Made elsewhere and moved at the end: what stands under the names is always complete.
  const WorkFolder building(options_.folder);
  const std::string builtMain = PathIn(building.Path(), kMainFile);
  const std::string builtReports = PathIn(building.Path(), kReportsFile);
  CreateReports(builtReports);
  CreateMain(builtMain);
  PutInPlace(builtReports, reports);
  try {
    PutInPlace(builtMain, main);
  } catch (...) {
    std::error_code ignored;
    std::filesystem::remove(reports, ignored);
    throw;
  }
}

void DatabaseGenerator::CreateReports(const std::string& path) {
  ADOX::Catalog().Create(ConnectionTextOf(path, options_.reportsPassword));
  const auto reports = OpenDatabase(path, options_.reportsPassword);
  reports->BeginTrans();
  ExecuteAll(*reports, ReportTables());
  WriteCatalogue(*reports);
  WriteTemplateExamples(*reports, "ExportacionPlantillasTEMP", options_.date);
  reports->CommitTrans();
  reports->Close();
}

void DatabaseGenerator::CreateMain(const std::string& path) {
  ADOX::Catalog().Create(ConnectionTextOf(path, options_.mainPassword));
  const auto main = OpenDatabase(path, options_.mainPassword);
  main->BeginTrans();
  ExecuteAll(*main, MainTables());
  FillMain(*main);
  ExecuteAll(*main, MainIndexes());
  WriteTemplateExamples(*main, "ExportacionPlantillas", options_.date);
  main->CommitTrans();
  main->Close();
}

void DatabaseGenerator::FillMain(ADODB::Connection& main) {
  WritePlaces(main);
  WriteDonationKinds(main);
  Random random = Random::ForRow(options_.seed, 0);
  BankDirectory banks(main);
  const Issuers issuers(main, banks, random);
  PeopleGenerator people(main, options_);
  MoneyGenerator money(main, banks, options_);
  for (long id = 1; id <= options_.collaborators; ++id) {
    const Collaborator person = people.Make(id);
    people.Write(person);
    money.Write(person);
  }
  money.WriteRemittances(main);
}

}  // namespace velmar::sample
