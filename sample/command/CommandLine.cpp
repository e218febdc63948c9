#include "sample/command/CommandLine.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <utility>

#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/Workbook.h"
#include "sample/CalendarDate.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"
#include "sample/TemplateExamples.h"
#include "sample/command/CommandError.h"
#include "sample/command/TemplateList.h"
#include "sample/command/TemplateRun.h"
#include "sample/command/UsageError.h"
#include "sample/command/WizardRun.h"

namespace velmar::sample {
namespace {

using Option = Arguments::Option;

constexpr std::array<Option, 6> kCreateOptions = {{{"--carpeta"},
                                                   {"--colaboradores"},
                                                   {"--semilla"},
                                                   {"--fecha"},
                                                   {"--clave-gestion"},
                                                   {"--clave-informes"}}};
constexpr std::array<Option, 8> kExportOptions = {{{"--plantilla"},
                                                   {"--fichero"},
                                                   {"--usuario"},
                                                   {"--carpeta"},
                                                   {"--relacion-parcial", true},
                                                   {"--clave-gestion"},
                                                   {"--clave-informes"},
                                                   {"--sobrescribir", true}}};
constexpr std::array<Option, 4> kListOptions = {
    {{"--usuario"}, {"--carpeta"}, {"--clave-gestion"}, {"--clave-informes"}}};
constexpr std::array<Option, 6> kStatementOptions = {{{"--plantilla"},
                                                      {"--usuario"},
                                                      {"--carpeta"},
                                                      {"--relacion-parcial", true},
                                                      {"--clave-gestion"},
                                                      {"--clave-informes"}}};
constexpr std::array<Option, 3> kDemoOptions = {{{"--colaboradores"}, {"--semilla"}, {"--fecha"}}};

constexpr long long kMaximumUser = std::numeric_limits<std::int32_t>::max();

constexpr const char* kDemoFolder = "out";
constexpr const char* kDemoWorkbook = "Exportacion.xls";

/// The receipts that were issued in the year before the date's, collected, pending or not, with whom and what
/// they are for.
std::vector<WizardRun::Field> DemoSelection(const CalendarDate& date) {
  const std::string collaborators = "(COL) Colaboradores";
  const std::string receipts = "(REC) Recibos";
  const std::string year = std::to_string(static_cast<int>(date.year()) - 1);
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

/// The host of a command over existing databases: a file that is missing is not made.
SampleHost::Settings HostOf(const Arguments& arguments) {
  SampleHost::Settings settings;
  settings.folder = arguments.Find("--carpeta").value_or(".");
  settings.user =
      static_cast<std::int32_t>(arguments.Number("--usuario", kExampleUser, -kMaximumUser - 1, kMaximumUser));
  settings.mainPassword = arguments.Find("--clave-gestion").value_or("");
  settings.reportsPassword = arguments.Find("--clave-informes").value_or("");
  for (const std::string_view file : {kMainFile, kReportsFile}) {
    const std::string path = PathIn(settings.folder, file);
    if (std::filesystem::exists(path)) continue;
    throw RuntimeError(kDatabaseNotFound,
                       "No existe '" + path +
                           "'. Indique con --carpeta dónde están las bases de datos, o créelas con la orden "
                           "'crear'.",
                       "CommandLine");
  }
  return settings;
}

TemplateRun RunOf(const Arguments& arguments) {
  std::string name = arguments.Require("--plantilla");
  return {
      HostOf(arguments), std::move(name),
      arguments.Has("--relacion-parcial") ? Selection::Relation::kPartial : Selection::Relation::kComplete};
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
  if (const auto date = arguments.Find("--fecha")) {
    const auto parsed = ParseDate(*date);
    if (!parsed || parsed->year() < std::chrono::year{1950} || parsed->year() > std::chrono::year{2100}) {
      throw UsageError("La opción '--fecha' pide una fecha AAAA-MM-DD de 1950 a 2100; se ha escrito '" +
                       *date + "'.");
    }
    options.date = *parsed;
  }
  return options;
}

}  // namespace

std::span<const CommandLine::Command> CommandLine::Commands() {
  static const std::array<Command, 5> commands = {{
      {"crear",
       "crear --carpeta CARPETA [--colaboradores N] [--semilla S] [--fecha AAAA-MM-DD]\n"
       "        [--clave-gestion CLAVE] [--clave-informes CLAVE]\n"
       "      Crea Gestion.mdb e Informes.mdb con los datos de una entidad de ejemplo.",
       kCreateOptions, &CommandLine::Create},
      {"exportar",
       "exportar --plantilla NOMBRE --fichero LIBRO.xls [--usuario N] [--carpeta CARPETA]\n"
       "        [--relacion-parcial] [--sobrescribir] [--clave-gestion CLAVE]\n"
       "        [--clave-informes CLAVE]\n"
       "      Exporta una plantilla guardada, como el botón 'Exportar' del asistente. No pregunta\n"
       "      nada y sólo sustituye un libro con --sobrescribir. Ctrl-C cancela: no queda nada.",
       kExportOptions, &CommandLine::Export},
      {"plantillas",
       "plantillas [--usuario N] [--carpeta CARPETA] [--clave-gestion CLAVE]\n"
       "        [--clave-informes CLAVE]\n"
       "      Muestra las plantillas de un usuario: nombre, campos, filtros y campos del orden.",
       kListOptions, &CommandLine::ListTemplates},
      {"sentencia",
       "sentencia --plantilla NOMBRE [--usuario N] [--carpeta CARPETA] [--relacion-parcial]\n"
       "        [--clave-gestion CLAVE] [--clave-informes CLAVE]\n"
       "      Muestra la sentencia SQL que ejecutaría la exportación, sin exportar.",
       kStatementOptions, &CommandLine::PrintStatement},
      {"demo",
       "demo [--colaboradores N] [--semilla S] [--fecha AAAA-MM-DD]\n"
       "      Crea las bases de datos en la carpeta 'out', si faltan, y exporta con el\n"
       "      asistente, sin ventana, los recibos emitidos el año pasado.",
       kDemoOptions, &CommandLine::Demo},
  }};
  return commands;
}

int CommandLine::Run(const std::vector<std::string>& words) {
  std::ostream& err = terminal_.err;
  if (!words.empty() && (words[0] == "ayuda" || words[0] == "--ayuda" || words[0] == "--help")) {
    PrintUsage(terminal_.out);
    return kDone;
  }
  try {
    if (words.empty()) throw UsageError("Falta la orden.");
    const std::span<const Command> commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&](const Command& candidate) { return candidate.name == words[0]; });
    if (command == commands.end()) throw UsageError("La orden '" + words[0] + "' no existe.");
    (this->*command->run)(Arguments(std::span(words).subspan(1), command->options));
    return kDone;
  } catch (const UsageError& error) {
    err << error.what() << "\n\n";
    PrintUsage(err);
    return kNotUnderstood;
  } catch (const CommandError& error) {
    err << error.what() << '\n';
    return error.Code();
  } catch (const RuntimeError& error) {
    err << "Error " << error.Number() << ": " << error.Description() << '\n';
  } catch (const std::exception& error) {
    err << "Error: " << error.what() << '\n';
  }
  return kFailed;
}

void CommandLine::PrintUsage(std::ostream& stream) {
  stream << "Uso: velmar_sample ORDEN [OPCIONES]\n\nÓrdenes:\n";
  for (const Command& command : Commands()) stream << "  " << command.usage << '\n';
  stream << "\nSin --carpeta se usa la carpeta actual; sin --usuario, el usuario " << kExampleUser
         << ".\n\nCódigos de salida:\n"
         << "  " << kDone << "    hecho; con 'exportar', el libro está completo\n"
         << "  " << kFailed << "    ha fallado, y el motivo está en la salida de errores\n"
         << "  " << kNotUnderstood << "    no se entiende la orden\n"
         << "  " << kNothingToExport << "    no hay filas que exportar\n"
         << "  " << kTemplateNotFound << "    el usuario no tiene esa plantilla\n"
         << "  " << kTargetTaken << "    ya existe el archivo y no se puede sustituir\n"
         << "  " << kCancelledByUser << "  cancelado con Ctrl-C o por el sistema\n";
}

void CommandLine::Create(const Arguments& arguments) {
  GeneratorOptions options = OptionsOf(arguments, arguments.Require("--carpeta"));
  options.mainPassword = arguments.Find("--clave-gestion").value_or("");
  options.reportsPassword = arguments.Find("--clave-informes").value_or("");
  Generate(options);
}

void CommandLine::Export(const Arguments& arguments) {
  const std::string file = arguments.Require("--fichero");
  PrintWorkbook(RunOf(arguments).Export(file, arguments.Has("--sobrescribir"), terminal_));
}

void CommandLine::ListTemplates(const Arguments& arguments) {
  PrintTemplates(HostOf(arguments), terminal_);
}

void CommandLine::PrintStatement(const Arguments& arguments) {
  terminal_.out << RunOf(arguments).Statement() << '\n';
}

void CommandLine::Demo(const Arguments& arguments) {
  const GeneratorOptions options = OptionsOf(arguments, kDemoFolder);
  const auto stands = [](std::string_view name) {
    return std::filesystem::exists(PathIn(kDemoFolder, name));
  };
  if (stands(kMainFile) != stands(kReportsFile)) {
    const std::string_view there = stands(kMainFile) ? kMainFile : kReportsFile;
    const std::string_view missing = stands(kMainFile) ? kReportsFile : kMainFile;
    throw CommandError(kFailed, "En la carpeta '" + std::string(kDemoFolder) + "' está " +
                                    std::string(there) + " pero falta " + std::string(missing) +
                                    ". Devuelva el archivo que falta, o borre el otro para crear los dos de "
                                    "nuevo.");
  }
  if (stands(kMainFile)) {
    UseExisting(arguments, options);
  } else {
    Generate(options);
  }
  const std::string file = PathIn(kDemoFolder, kDemoWorkbook);
  SampleHost::Settings settings;
  settings.folder = kDemoFolder;
  WizardRun(settings).Export(DemoSelection(options.date), file);
  PrintWorkbook(file);
}

void CommandLine::UseExisting(const Arguments& arguments, const GeneratorOptions& options) {
  const long long there = CountRows(*OpenDatabase(PathIn(kDemoFolder, kMainFile)), "Colaboradores");
  const bool otherSize = arguments.Has("--colaboradores") && there != options.collaborators;
  if (otherSize || arguments.Has("--semilla")) {
    throw CommandError(kFailed, "En la carpeta '" + std::string(kDemoFolder) +
                                    "' ya hay bases de datos, con " + std::to_string(there) +
                                    " colaboradores, y no se sustituyen. Repita la orden sin --colaboradores "
                                    "ni --semilla para usarlas, o borre la carpeta para crear otras.");
  }
  terminal_.out << "Se usan las bases de datos que ya están en la carpeta '" << kDemoFolder << "', con "
                << there << " colaboradores.\n";
}

void CommandLine::Generate(const GeneratorOptions& options) {
  terminal_.out << "Creando las bases de datos en '" << options.folder << "' con " << options.collaborators
                << " colaboradores...\n"
                << std::flush;
  DatabaseGenerator(options).Run();
  const auto main = OpenDatabase(PathIn(options.folder, kMainFile), options.mainPassword);
  for (const std::string_view table :
       {"Colaboradores", "Donativos", "Recibos", "Cobros", "Remesas", "RecibosPendientes"}) {
    terminal_.out << "  " << table << ": " << CountRows(*main, table) << " filas\n";
  }
  terminal_.out << "Bases de datos creadas: " << PathIn(options.folder, kMainFile) << " y "
                << PathIn(options.folder, kReportsFile) << '\n';
}

void CommandLine::PrintWorkbook(const std::string& file) {
  const excel::Workbook workbook(file);
  std::size_t rows = 0;
  const std::vector<std::string> sheets = workbook.SheetNames();
  for (const std::string& sheet : sheets) rows += workbook.RowCount(sheet);
  terminal_.out << "Libro exportado: " << file << " (" << rows << (rows == 1 ? " fila en " : " filas en ")
                << sheets.size() << (sheets.size() == 1 ? " hoja)\n" : " hojas)\n");
}

}  // namespace velmar::sample
