#include "sample/command/TemplateRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <sstream>

#include "platform/ado/Catalog.h"
#include "platform/error/OperationObserver.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"
#include "templates/TemplateStore.h"

namespace velmar::sample {
namespace {

using templates::TemplateStore;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Strings = std::vector<std::string>;

class TemplateRunTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    database_ = std::make_unique<SampleDatabase>(300);
    const std::string node = "(COL) Colaboradores";
    Save(1, "Nadie", {{node, "Población", "{Población} = `Oz´", 10}});
    Save(1, "Campo ido", {{node, "Talla", "", 999}});
    Save(1, "Filtro roto", {{node, "Población", "{Población} [Empieza] `A´", 10}});
    Save(1, "Cuenta", {{node, "Cuenta bancaria", "{Cuenta bancaria} = `21000418450200051332´\r\n", 17}});
    Save(1, "Sin relación",
         {{"(REM) Remesas", "Emisor", "", 37}, {"(MOD) Modelo182", "NIF del declarado", "", 42}});
    Save(2, "De otra", {{node, "País", "", 12}});
  }
  static void TearDownTestSuite() { database_.reset(); }

  static void Save(int user, const std::string& name,
                   const std::vector<templates::TemplateContent::Field>& fields) {
    TemplateStore(database_->main, user).Save(name, {fields, {}}, TemplateStore::Existing::kNone);
  }
  static Strings Order(const std::string& order, const std::string& name, const Strings& more = {}) {
    Strings words = {order, "--carpeta", database_->folder.Path(), "--plantilla", name};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  Strings Exporting(const std::string& name, const std::string& option = "--usuario=1") const {
    return Order("exportar", name, {"--fichero", file_, option});
  }
  /// No workbook in the folder but those of this name, and no work file beside the databases.
  void ExpectOnly(const std::set<std::string>& workbooks) const {
    EXPECT_EQ(target_.Names(), workbooks);
    EXPECT_THAT(database_->folder.Names(),
                testing::IsSubsetOf({"ExportacionAux.mdb", "Gestion.mdb", "Informes.mdb"}));
  }

  static inline std::unique_ptr<SampleDatabase> database_;
  files::TemporaryFolder target_;
  std::string file_ = target_ / "Libro.xls";
};

TEST_F(TemplateRunTest, ExitCodeTellsWhyThereIsNoWorkbook) {
  constexpr std::tuple<const char*, int, const char*> kCases[] = {
      {"De otra", 4, "El usuario 1 no tiene ninguna plantilla 'De otra'"},
      {"Campo ido", 1, "999"},
      {"Filtro roto", 1, "«[Empieza]» no es una palabra de los filtros"},
      {"Sin relación", 1, "no pueden ser relacionadas"},
  };
  for (const auto& [name, code, reason] : kCases) {
    for (const Strings& words : {Exporting(name), Order("sentencia", name)}) {
      SCOPED_TRACE(words[0] + " " + name);
      const Ended ended = RunWords(words);
      EXPECT_EQ(ended.code, code);
      EXPECT_THAT(ended.err, HasSubstr(reason));
      EXPECT_EQ(ended.out, "");
      ExpectOnly({});
    }
  }
  EXPECT_EQ(RunWords(Exporting("De otra", "--usuario=2")).code, 0);
}

TEST_F(TemplateRunTest, ReplacesOnlyAWorkbookAndOnlyIfItMay) {
  ASSERT_EQ(RunWords(Exporting("socios de MADRID")).code, 0);
  const auto first = ReadWorkbook(file_);
  EXPECT_EQ(RunWords(Exporting("Felicitaciones")).code, 5);
  // An export that fails leaves the workbook that it was to replace.
  EXPECT_EQ(RunWords(Exporting("Nadie", "--sobrescribir")).code, 3);
  EXPECT_EQ(ReadWorkbook(file_), first);
  const Ended replaced = RunWords(Exporting("Felicitaciones", "--sobrescribir"));
  const auto rows = ReadWorkbook(file_).at(0).size() - 1;
  EXPECT_EQ(replaced.out, "Libro exportado: " + file_ + " (" + std::to_string(rows) + " filas en 1 hoja)\n");

  for (const std::string letter : {"Estimado socio:", ""}) {
    std::ofstream(file_) << letter;
    EXPECT_EQ(RunWords(Exporting("Felicitaciones", "--sobrescribir")).code, 5);
    EXPECT_EQ(std::filesystem::file_size(file_), letter.size());
  }
  // What the wizard's button refuses too.
  for (const std::string& file :
       {target_ / "no/hay.xls", target_ / "LIBRO.xls", database_->folder / "Gestion.mdb"}) {
    EXPECT_EQ(RunWords(Order("exportar", "Felicitaciones", {"--fichero", file, "--sobrescribir"})).code, 1);
  }
  ExpectOnly({"Libro.xls"});
}

/// No workbook gets its cells.
struct FullDisk : OperationObserver {
  void Begins(Operation operation, std::string_view subject) override {
    if (operation != Operation::kWriteFile || !subject.ends_with(".xls")) return;
    throw RuntimeError(kDiskFull, "No cabe " + std::string(subject) + ".");
  }
};

TEST_F(TemplateRunTest, FailureNamesTheFileThatWasAskedFor) {
  FullDisk disk;
  const OperationObserver::Scope scope(disk);
  const Ended ended = RunWords(Exporting("Felicitaciones"));
  EXPECT_EQ(ended.code, 1);
  EXPECT_THAT(ended.err,
              AllOf(HasSubstr("No se ha escrito el archivo " + file_ + "."),
                    HasSubstr("Motivo: No cabe " + file_ + "."), Not(HasSubstr("velmar-trabajo"))));
  ExpectOnly({});
}

TEST_F(TemplateRunTest, ProgressIsDrawnInPlaceOnATerminalOnly) {
  const Ended plain = RunWords(Exporting("Recibos del año pasado"));
  EXPECT_THAT(plain.err, AllOf(HasSubstr("Leyendo las filas seleccionadas...\n"), Not(HasSubstr("\r"))));
  const Ended drawn = RunWords(Exporting("Recibos del año pasado", "--sobrescribir"), true);
  EXPECT_THAT(drawn.err,
              testing::MatchesRegex("[^\n]*\r\x1b\\[K\\[#+\\.+\\] [0-9]+ %  Preparando[^\n]*\r\x1b\\[K"));
}

/// Sends the process a signal when a text has been written.
struct Alarm : std::stringbuf {
  Alarm(std::string awaited, int raised) : text(std::move(awaited)), signal(raised) {}
  int sync() override {
    if (signal != 0 && str().find(text) != std::string::npos) std::raise(std::exchange(signal, 0));
    return 0;
  }

  std::string text;
  int signal;
};

TEST_F(TemplateRunTest, SignalCancelsAtEachStageAndLeavesNoTrace) {
  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const auto before = ReadWorkbook(file_);
  for (const auto& [stage, signal] :
       {std::pair{"Leyendo", SIGINT}, {"Escribiendo", SIGTERM}, {"Retirando", SIGINT}}) {
    SCOPED_TRACE(stage);
    Alarm alarm(stage, signal);
    std::ostream err(&alarm);
    std::ostringstream out;
    EXPECT_EQ(CommandLine({out, err}).Run(Exporting("Recibos del año pasado", "--sobrescribir")), 130);
    EXPECT_THAT(alarm.str(), HasSubstr("cancelada"));
    EXPECT_EQ(alarm.str().find("Escribiendo") == std::string::npos, alarm.text == "Leyendo");
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(ReadWorkbook(file_), before);
    ExpectOnly({"Libro.xls"});
  }
  // A signal that came before is none of the next command's.
  EXPECT_EQ(RunWords(Exporting("Recibos del año pasado", "--sobrescribir")).code, 0);
}

TEST_F(TemplateRunTest, StatementIsTheOneThatStagesTheRows) {
  const Ended shown = RunWords(Order("sentencia", "Socios de Madrid"));
  EXPECT_THAT(shown.out, HasSubstr(" ORDER BY Colaboradores.Apellido1"));
  ExpectOnly({});
  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const auto rows = ReadWorkbook(file_).at(0);
  const std::string work = database_->folder / "ExportacionAux.mdb";
  ADOX::Catalog().Create(ScratchConnectionTextOf(work));
  database_->main->Execute(shown.out);
  const auto open = OpenDatabase(work);
  const auto staged = open->Execute("SELECT * FROM ExportacionExcel");
  std::filesystem::remove(work);
  ASSERT_EQ(rows.size(), static_cast<std::size_t>(staged->RecordCount()) + 1);
  for (std::size_t i = 1; i < rows.size(); ++i, staged->MoveNext()) {
    EXPECT_EQ(rows[i][1], staged->Fields(1).Value().AsText());
  }
  const Ended partial = RunWords(Order("sentencia", "Donativos periódicos", {"--relacion-parcial"}));
  EXPECT_THAT(partial.out, AllOf(HasSubstr("LEFT JOIN"), Not(HasSubstr("INNER JOIN"))));
  // An account is looked for in its stored form, and a line break is a blank.
  EXPECT_THAT(RunWords(Order("sentencia", "Cuenta")).out,
              HasSubstr("'2100041845" + AccountCodec::Encode("0200051332") + "'   \n"));
}

TEST_F(TemplateRunTest, PasswordsOpenTheDatabasesAndAreNeverShown) {
  const Strings keys = {"--clave-gestion", "abre ñ1", "--clave-informes", "abre;2"};
  Strings create = {"crear", "--colaboradores", "60", "--carpeta", target_ / "nueva"};
  create.insert(create.end(), keys.begin(), keys.end());
  ASSERT_EQ(RunWords(create).code, 0);
  const std::string folder = "--carpeta=" + target_ / "nueva";
  for (Strings words : {Strings{"sentencia", "--plantilla", "Socios de Madrid", folder},
                        Strings{"exportar", "--plantilla", "Socios de Madrid", folder, "--fichero", file_}}) {
    EXPECT_EQ(RunWords(words).code, 1);
    words.insert(words.end(), keys.begin(), keys.end());
    const Ended ended = RunWords(words);
    EXPECT_EQ(ended.code, 0) << ended.err;
    EXPECT_THAT(ended.out + ended.err, Not(HasSubstr("abre")));
  }
}

}  // namespace
}  // namespace velmar::sample
