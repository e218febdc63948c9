#include "export/TestOffice.h"

#include <algorithm>
#include <filesystem>

#include "catalogue/FieldLookup.h"
#include "platform/ado/BulkInsert.h"
#include "platform/ado/Catalog.h"
#include "platform/toolkit/MakeForm.h"

namespace velmar::testing {
namespace {

constexpr const char* kTables[] = {
    "CREATE TABLE Colaboradores (IDColaborador LONG PRIMARY KEY, Nombre TEXT(60), Apellido1 TEXT(40), "
    "Apellido2 TEXT(40), NIF TEXT(20), Sexo SHORT, Juridico BIT, CodProvincia LONG, Modelo182 BIT, "
    "Eliminado BIT, Cuenta TEXT(24), FechaAlta TEXT(10))",
    "CREATE TABLE Recibos (IDRecibo LONG PRIMARY KEY, CodColaborador LONG, Importe CURRENCY, Eliminado BIT, "
    "FechaCobro TEXT(8))",
    "CREATE TABLE Cobros (IDCobro LONG PRIMARY KEY, CodRecibo LONG, CodDonativo LONG, Importe CURRENCY)",
    "CREATE TABLE recibospendientes (IDReciboPendiente LONG PRIMARY KEY, CodColaborador LONG, Importe "
    "CURRENCY, Eliminado BIT, FechaCobro TEXT(8))",
    "CREATE TABLE cobrospendientes (IDCobroPendiente LONG PRIMARY KEY, CodRecibo LONG, CodDonativo LONG, "
    "Importe CURRENCY)",
    "CREATE TABLE Donativos (IDDonativo LONG PRIMARY KEY, CodColaborador LONG, CodTipoDonativo LONG)",
    "CREATE TABLE TipoDonativos (IDTipoDonativo LONG PRIMARY KEY, Nombre TEXT(40), TipoA BIT, Modelo182 BIT, "
    "Eliminado BIT)",
    "CREATE TABLE Provincias (IDProvincia LONG PRIMARY KEY, Nombre TEXT(40))",
    "CREATE TABLE Modelo182Hacienda (codColaborador LONG, NombreColaborador TEXT(200), NIFColaborador "
    "TEXT(20), Importe CURRENCY, Provincia TEXT(40), TipoDonativo TEXT(1))",
};

void MakeDatabase(ADODB::Connection& connection, const std::string& path, const std::string& password) {
  ADODB::ConnectionText text("Provider=Microsoft.Jet.OLEDB.4.0");
  text.Set(ADODB::kDataSourceKey, path);
  if (!password.empty()) text.Set(ADODB::kPasswordKey, password);
  ADOX::Catalog().Create(text.Text());
  connection.Open(text.Text());
}

std::string NumberedName(long number) {
  return (number % 3 == 0 ? "Íñigo " : "Ana ") + std::to_string(number);
}

}  // namespace

long TestApi::validar_nif(const ADODB::Field& nif) {
  validated.push_back(nif.Value().AsText());
  return validated.back().rfind("MAL", 0) == 0 || validated.back().empty() ? 0 : 1;
}

void TestCodec::DecodificarTramo(std::string& tramo) {
  const long before = decoded++;
  if (onDecode) onDecode(before);
  std::reverse(tramo.begin(), tramo.end());
}

TestWindow::TestWindow(toolkit::Toolkit& toolkit) : Form(toolkit, "frmExportacion") {
  prgExportar.Visible(false);
  dlgExportar.DefaultExt("xls");
  dlgExportar.CancelError(true);
  Add(prgExportar);
  Add(dlgExportar);
  tmrExportacion.Wire([this](controls::Timer& timer, int index) {
    Add(timer);
    timer.Elapsed = [this, index] { timerFired(index); };
  });
  tmrExportacion.Load(0);
}

TestOffice::TestOffice(const std::string& place, const std::string& password, const std::string& reportsFile)
    : subfolder(place) {
  if (!subfolder.empty()) std::filesystem::create_directories(folder / subfolder);
  MakeDatabase(*host->main, Path("Gestion.mdb"), {});
  MakeDatabase(*host->reports, Path(reportsFile), password);
  for (const char* table : kTables) Run(table);
  window = toolkit::MakeForm<TestWindow>(toolkit);
  window->Load();
  run = std::make_unique<exporting::ExportRun>(Context());
  window->timerFired = [this](int index) { run->tmrExportacion_Timer(index); };
}

exporting::RunContext TestOffice::Context() {
  return {host,
          *window,
          window->conAuxiliar,
          window->prgExportar,
          window->dlgExportar,
          window->tmrExportacion,
          [this] { return api; },
          [this] { return codec; },
          [this](const RuntimeError& failure, const std::string& routine) {
            reported.push_back(routine + ": " + failure.Description());
          },
          [this] { return year; },
          [this](exporting::RunStage stage) {
            if (onStage) onStage(stage);
          }};
}

std::vector<std::vector<std::string>> TestOffice::Rows(const std::string& sql) const {
  std::vector<std::vector<std::string>> rows;
  const auto recordset = host->main->Execute(sql);
  const long count = recordset->Fields().Count();
  for (; !recordset->Eof(); recordset->MoveNext()) {
    std::vector<std::string> row;
    for (long i = 0; i < count; ++i) row.push_back(recordset->Fields(i).Value().TextOrEmpty());
    rows.push_back(std::move(row));
  }
  return rows;
}

long TestOffice::Count(const std::string& table) const {
  return std::stol(Rows("SELECT Count(*) AS n FROM " + table)[0][0]);
}

std::vector<std::string> TestOffice::Files() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder / subfolder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> TestOffice::WorkFiles() const {
  std::vector<std::string> names = Files();
  std::erase_if(names, [](const std::string& name) { return name.rfind("Exportacion", 0) != 0; });
  return names;
}

void TestOffice::Select(const std::string& node, const std::string& internalName, const std::string& select,
                        const std::string& filter, const std::string& where, const std::string& delimiter) {
  cCampos field;
  field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
  field.NombreInternoCampo(internalName);
  field.LiteralTabla(node);
  field.LiteralCampo(internalName);
  field.LiteralCampoSELECT(select);
  field.LiteralCampoORDERBY(select);
  field.LiteralCampoWHERE(where);
  field.CaracterValorCampo(delimiter);
  selection.rows.push_back({node, internalName, filter, field.IDCampo()});
  catalogue.Add(field, FieldKey(field.IDCampo()));
}

void TestOffice::OrderBy(const std::string& text) {
  cCampos field;
  field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
  field.LiteralCampoORDERBY(text);
  selection.order.push_back(field.IDCampo());
  catalogue.Add(field, FieldKey(field.IDCampo()));
}

void TestOffice::AddPeople(long count) {
  host->main->BeginTrans();
  {
    ADODB::BulkInsert rows(*host->main, "Colaboradores",
                           {"IDColaborador", "Nombre", "Cuenta", "FechaAlta", "Sexo", "Juridico"});
    for (long i = 0; i < count; ++i) {
      // A step that shares no factor with the count visits every number once.
      const long number = (i * 48611) % count + 1;
      const std::string name = NumberedName(number);
      const std::string account = std::to_string(1000000000L + number) + std::to_string(123456 + number);
      const std::string date = number % 5 == 0 ? "//" : "0" + std::to_string(number % 9 + 1) + "/03/2025";
      rows.AddLong(number);
      rows.AddText(name);
      if (number % 7 == 0) {
        rows.AddNull();
      } else {
        rows.AddText(number % 11 == 0 ? std::string_view("12345") : std::string_view(account));
      }
      rows.AddText(date);
      rows.AddLong(number % 3);
      rows.AddBoolean(false);
      rows.EndRow();
    }
  }
  host->main->CommitTrans();
}

void TestOffice::SelectPeople() {
  const std::string node = "(COL) Colaboradores";
  Select(node, "colaboradores.idcolaborador", "Colaboradores.IDColaborador AS Codigo");
  Select(node, "colaboradores.nombre", "Colaboradores.Nombre AS Nombre");
  Select(node, "colaboradores.numero", "Colaboradores.Cuenta AS CuentaBancaria");
  Select(node, "colaboradores.fechaalta", "Colaboradores.FechaAlta AS FechaAlta");
  OrderBy("Colaboradores.IDColaborador");
}

std::vector<std::vector<std::string>> TestOffice::ExpectedPeople() const {
  auto rows =
      Rows("SELECT IDColaborador, Nombre, Cuenta, FechaAlta FROM Colaboradores ORDER BY IDColaborador");
  for (auto& row : rows) {
    if (row[2].size() > 10) std::reverse(row[2].begin() + 10, row[2].end());
    if (row[3] == "//") row[3].clear();
  }
  return rows;
}

exporting::Outcome TestOffice::Export(const std::string& file) {
  toolkit.AnswerFile(file.find('/') == std::string::npos ? Path(file) : file);
  return run->ExportarDatos(selection, catalogue);
}

std::vector<std::string> TestOffice::Boxes() {
  std::vector<std::string> boxes;
  for (const toolkit::Record& record : toolkit.Records(toolkit::Record::Kind::kBox)) {
    EXPECT_EQ(record.title, "Quinvera");
    boxes.push_back(std::to_string(record.number) + " " + record.text);
  }
  toolkit.ClearRecords();
  return boxes;
}

}  // namespace velmar::testing
