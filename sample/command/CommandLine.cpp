#include "sample/command/CommandLine.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>

#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/Workbook.h"
#include "sample/CalendarDate.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"
#include "sample/command/UsageError.h"
#include "sample/command/WizardRun.h"
#include "sample/command/WorkbookExport.h"

namespace velmar::sample {
namespace {

using Option = Arguments::Option;

constexpr std::array<Option, 6> kCreateOptions = {{{"--carpeta"},
                                                   {"--colaboradores"},
                                                   {"--semilla"},
                                                   {"--fecha"},
                                                   {"--clave-gestion"},
                                                   {"--clave-informes"}}};
constexpr std::array<Option, 5> kExportOptions = {
    {{"--carpeta"}, {"--fichero"}, {"--sentencia"}, {"--clave-gestion"}, {"--sobrescribir", true}}};
constexpr std::array<Option, 2> kDemoOptions = {{{"--colaboradores"}, {"--semilla"}}};

constexpr const char* kDemoFolder = "out";
constexpr const char* kDemoWorkbook = "Exportacion.xls";

/// The receipts of live collaborators with what was paid for, those without a province included.
constexpr std::string_view kDefaultStatement =
    "SELECT Colaboradores.IDColaborador AS Colaborador, Colaboradores.Apellido1 AS Apellido1, "
    "Colaboradores.Apellido2 AS Apellido2, Colaboradores.Nombre AS Nombre, Colaboradores.NIF AS NIF, "
    "Provincias.Nombre AS Provincia, Recibos.IDRecibo AS Recibo, "
    "IIf(Recibos.FechaCobro = '', '', Right(Recibos.FechaCobro, 2) & '/' & Mid(Recibos.FechaCobro, 5, 2) & "
    "'/' & "
    "Left(Recibos.FechaCobro, 4)) AS FechaCobro, Cobros.TextoRecibo AS Concepto, Cobros.Importe AS Importe "
    "FROM ((Colaboradores LEFT JOIN Provincias ON Colaboradores.CodProvincia = Provincias.IDProvincia) "
    "INNER JOIN Recibos ON Colaboradores.IDColaborador = Recibos.CodColaborador) "
    "INNER JOIN Cobros ON Recibos.IDRecibo = Cobros.CodRecibo "
    "WHERE Colaboradores.Eliminado = 0 AND Recibos.Eliminado = 0 "
    "ORDER BY Colaboradores.Apellido1, Colaboradores.Apellido2, Colaboradores.Nombre, Recibos.IDRecibo, "
    "Cobros.IDCobro";

/// The receipts that were issued last year, collected, pending or not, with whom and what they are for.
std::vector<WizardRun::Field> DemoSelection() {
  const std::string collaborators = "(COL) Colaboradores";
  const std::string receipts = "(REC) Recibos";
  const std::string year = std::to_string(static_cast<int>(Today().year()) - 1);
  return {{collaborators, "Código de colaborador", "", false},
          {collaborators, "Primer apellido", "", true},
          {collaborators, "Nombre o razón social", "", true},
          {collaborators, "NIF o CIF", "", false},
          {collaborators, "Sexo", "", false},
          {collaborators, "Provincia de residencia", "", false},
          {receipts, "Fecha de emisión",
           "{Fecha de emisión} [Entre] `01/01/" + year + "´ [Y] `31/12/" + year + "´", true},
          {receipts, "Fecha de cobro", "", false},
          {receipts, "Importe del recibo", "", false},
          {receipts, "Concepto", "", false},
          {receipts, "Cuenta bancaria", "", false}};
}

/// The folder's main database must be there: a missing file is not made.
std::string MainDatabaseIn(const std::string& folder) {
  std::string path = PathIn(folder, kMainFile);
  if (!std::filesystem::exists(path)) {
    throw RuntimeError(kDatabaseNotFound,
                       "No existe '" + path + "'. Cree antes las bases de datos con la orden 'crear'.",
                       "CommandLine");
  }
  return path;
}

long long CountRows(ADODB::Connection& connection, std::string_view table) {
  return connection.Execute("SELECT Count(*) AS Filas FROM " + std::string(table))
      ->Fields("Filas")
      .Value()
      .AsLong();
}

GeneratorOptions OptionsOf(const Arguments& arguments, const std::string& folder) {
  GeneratorOptions options;
  options.folder = folder;
  options.collaborators =
      static_cast<long>(arguments.Number("--colaboradores", options.collaborators, 1, kMaximumCollaborators));
  options.seed = static_cast<std::uint64_t>(arguments.Number("--semilla", 1, 0, 9'000'000'000'000'000'000));
  return options;
}

}  // namespace

std::span<const CommandLine::Command> CommandLine::Commands() {
  static const std::array<Command, 3> commands = {{
      {"crear",
       "crear --carpeta CARPETA [--colaboradores N] [--semilla S] [--fecha AAAA-MM-DD]\n"
       "        [--clave-gestion CLAVE] [--clave-informes CLAVE]\n"
       "      Crea Gestion.mdb e Informes.mdb con los datos de una entidad de ejemplo.",
       kCreateOptions, &CommandLine::Create},
      {"exportar-sql",
       "exportar-sql --carpeta CARPETA --fichero LIBRO.xls [--sentencia \"SELECT ...\"]\n"
       "        [--clave-gestion CLAVE] [--sobrescribir]\n"
       "      Exporta una consulta de Gestion.mdb a un libro de Excel.",
       kExportOptions, &CommandLine::ExportSql},
      {"demo",
       "demo [--colaboradores N] [--semilla S]\n"
       "      Crea las bases de datos en la carpeta 'out', si faltan, y exporta con el\n"
       "      asistente, sin ventana, los recibos emitidos el año pasado.",
       kDemoOptions, &CommandLine::Demo},
  }};
  return commands;
}

int CommandLine::Run(const std::vector<std::string>& words) {
  if (!words.empty() && (words[0] == "ayuda" || words[0] == "--ayuda" || words[0] == "--help")) {
    PrintUsage(out_);
    return 0;
  }
  try {
    if (words.empty()) throw UsageError("Falta la orden.");
    const std::span<const Command> commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&](const Command& candidate) { return candidate.name == words[0]; });
    if (command == commands.end()) throw UsageError("La orden '" + words[0] + "' no existe.");
    (this->*command->run)(Arguments(std::span(words).subspan(1), command->options));
    return 0;
  } catch (const UsageError& error) {
    err_ << error.what() << "\n\n";
    PrintUsage(err_);
    return 2;
  } catch (const RuntimeError& error) {
    err_ << "Error " << error.Number() << ": " << error.Description() << '\n';
  } catch (const std::exception& error) {
    err_ << "Error: " << error.what() << '\n';
  }
  return 1;
}

void CommandLine::PrintUsage(std::ostream& stream) const {
  stream << "Uso: velmar_sample ORDEN [OPCIONES]\n\nÓrdenes:\n";
  for (const Command& command : Commands()) stream << "  " << command.usage << '\n';
}

void CommandLine::Create(const Arguments& arguments) {
  GeneratorOptions options = OptionsOf(arguments, arguments.Require("--carpeta"));
  if (const auto date = arguments.Find("--fecha")) {
    const auto parsed = ParseDate(*date);
    if (!parsed || parsed->year() < std::chrono::year{1950} || parsed->year() > std::chrono::year{2100}) {
      throw UsageError("La opción '--fecha' pide una fecha AAAA-MM-DD de 1950 a 2100; se ha escrito '" +
                       *date + "'.");
    }
    options.date = *parsed;
  }
  options.mainPassword = arguments.Find("--clave-gestion").value_or("");
  options.reportsPassword = arguments.Find("--clave-informes").value_or("");
  Generate(options);
}

void CommandLine::ExportSql(const Arguments& arguments) {
  const std::string folder = arguments.Require("--carpeta");
  const std::string file = arguments.Require("--fichero");
  const auto main = OpenDatabase(MainDatabaseIn(folder), arguments.Find("--clave-gestion").value_or(""));
  const WorkbookExport::Result result =
      WorkbookExport(main, folder)
          .Run(arguments.Find("--sentencia").value_or(std::string(kDefaultStatement)), file,
               arguments.Has("--sobrescribir"));
  if (result.rows == 0) {
    throw RuntimeError(kNoCurrentRow, "La consulta no da ninguna fila: no se ha creado ningún libro.",
                       "CommandLine");
  }
  PrintWorkbook(file, static_cast<std::size_t>(result.rows), static_cast<std::size_t>(result.sheets));
}

void CommandLine::Demo(const Arguments& arguments) {
  const GeneratorOptions options = OptionsOf(arguments, kDemoFolder);
  const std::string path = PathIn(kDemoFolder, kMainFile);
  if (std::filesystem::exists(path)) {
    out_ << "Se usan las bases de datos que ya están en la carpeta '" << kDemoFolder << "', con "
         << CountRows(*OpenDatabase(path), "Colaboradores") << " colaboradores.\n";
  } else {
    Generate(options);
  }
  const std::string file = PathIn(kDemoFolder, kDemoWorkbook);
  SampleHost::Settings settings;
  settings.folder = kDemoFolder;
  WizardRun(settings).Export(DemoSelection(), file);

  const excel::Workbook workbook(file);
  std::size_t rows = 0;
  const std::vector<std::string> sheets = workbook.SheetNames();
  for (const std::string& sheet : sheets) rows += workbook.RowCount(sheet);
  PrintWorkbook(file, rows, sheets.size());
}

void CommandLine::Generate(const GeneratorOptions& options) {
  out_ << "Creando las bases de datos en '" << options.folder << "' con " << options.collaborators
       << " colaboradores...\n"
       << std::flush;
  DatabaseGenerator(options).Run();
  const auto main = OpenDatabase(PathIn(options.folder, kMainFile), options.mainPassword);
  for (const std::string_view table :
       {"Colaboradores", "Donativos", "Recibos", "Cobros", "Remesas", "RecibosPendientes"}) {
    out_ << "  " << table << ": " << CountRows(*main, table) << " filas\n";
  }
  out_ << "Bases de datos creadas: " << PathIn(options.folder, kMainFile) << " y "
       << PathIn(options.folder, kReportsFile) << '\n';
}

void CommandLine::PrintWorkbook(const std::string& file, std::size_t rows, std::size_t sheets) {
  out_ << "Libro exportado: " << file << " (" << rows << (rows == 1 ? " fila en " : " filas en ") << sheets
       << (sheets == 1 ? " hoja)\n" : " hojas)\n");
}

}  // namespace velmar::sample
