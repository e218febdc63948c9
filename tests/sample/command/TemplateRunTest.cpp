#include "sample/command/TemplateRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sstream>

#include "platform/ado/Catalog.h"
#include "platform/text/Collation.h"
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
    Save(1, "Otra \"época\"", {{node, "Población", "", 10}});
    Save(1, "Campo ido", {{node, "Talla", "", 999}});
    Save(1, "Filtro roto", {{node, "Población", "{Población} [Empieza] `A´", 10}});
    Save(1, "Pie de línea", {{node, "Población", "{Población} = `Madrid´\r\n OR 1 = 1", 10}});
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
  struct Case {
    const char* name;
    int code;
    const char* reason;
  };
  constexpr Case kCases[] = {
      {"Nadie", 3, "No se han seleccionado datos"},
      {"Inexistente", 4, "no tiene ninguna plantilla 'Inexistente'"},
      {"De otra", 4, "El usuario 1"},
      {"Otra 'época'", 1, "apóstrofo"},
      {"x' OR 'a' = 'a", 1, "apóstrofo"},
      {"Campo ido", 1, "999"},
      {"Filtro roto", 1, "«[Empieza]» no es una palabra de los filtros"},
      {"Sin relación", 1, "no pueden ser relacionadas"},
  };
  for (const Case& each : kCases) {
    for (const Strings& words : {Exporting(each.name), Order("sentencia", each.name)}) {
      if (each.code == 3 && words[0] == "sentencia") continue;
      SCOPED_TRACE(words[0] + " " + each.name);
      const Ended ended = RunWords(words);
      EXPECT_EQ(ended.code, each.code);
      EXPECT_THAT(ended.err, HasSubstr(each.reason));
      EXPECT_EQ(ended.out, "");
      ExpectOnly({});
    }
  }
  EXPECT_EQ(RunWords(Exporting("De otra", "--usuario=2")).code, 0);
}

TEST_F(TemplateRunTest, ReplacesOnlyAWorkbookAndOnlyIfItMay) {
  const auto content = [this] {
    std::ostringstream text;
    text << std::ifstream(file_, std::ios::binary).rdbuf();
    return text.str();
  };
  ASSERT_EQ(RunWords(Exporting("socios de MADRID")).code, 0);
  const std::string first = content();
  EXPECT_EQ(RunWords(Exporting("Felicitaciones")).code, 5);
  // An export that fails leaves the workbook that it was to replace.
  EXPECT_EQ(RunWords(Exporting("Nadie", "--sobrescribir")).code, 3);
  EXPECT_EQ(content(), first);
  const Ended replaced = RunWords(Exporting("Felicitaciones", "--sobrescribir"));
  EXPECT_EQ(replaced.code, 0) << replaced.err;
  const auto rows = ReadWorkbook(file_).at(0).size() - 1;
  EXPECT_EQ(replaced.out, "Libro exportado: " + file_ + " (" + std::to_string(rows) + " filas en 1 hoja)\n");

  for (const std::string letter : {"Estimado socio:", ""}) {
    std::ofstream(file_) << letter;
    const Ended refused = RunWords(Exporting("Felicitaciones", "--sobrescribir"));
    EXPECT_EQ(refused.code, 5);
    EXPECT_THAT(refused.err, HasSubstr("no es un libro de Excel"));
    EXPECT_EQ(content(), letter);
  }
  // What the wizard's button refuses too.
  for (const std::string& file :
       {target_ / "no/hay.xls", target_ / "LIBRO.xls", database_->folder / "Gestion.mdb"}) {
    EXPECT_EQ(RunWords(Order("exportar", "Felicitaciones", {"--fichero", file, "--sobrescribir"})).code, 1);
  }
  ExpectOnly({"Libro.xls"});
}

TEST_F(TemplateRunTest, ProgressIsDrawnInPlaceOnATerminalOnly) {
  const Ended plain = RunWords(Exporting("Recibos del año pasado"));
  EXPECT_THAT(plain.err, AllOf(HasSubstr("Leyendo las filas seleccionadas...\n"), Not(HasSubstr("\r"))));
  const Ended drawn = RunWords(Exporting("Recibos del año pasado", "--sobrescribir"), true);
  EXPECT_THAT(drawn.err, HasSubstr("\r\x1b[K[#############"));
  EXPECT_THAT(drawn.err, HasSubstr(" %  Preparando fechas y cuentas"));
  EXPECT_THAT(drawn.err, AllOf(testing::EndsWith("\r\x1b[K"), Not(HasSubstr("\n"))));
}

/// Sends the process a signal when a text is written.
class Alarm : public std::stringbuf {
 public:
  Alarm(std::string text, int signal) : text_(std::move(text)), signal_(signal) {}

 protected:
  std::streamsize xsputn(const char* text, std::streamsize count) override {
    const std::streamsize written = std::stringbuf::xsputn(text, count);
    if (!text_.empty() && str().find(text_) != std::string::npos) {
      text_.clear();
      std::raise(signal_);
    }
    return written;
  }

 private:
  std::string text_;
  int signal_;
};

TEST_F(TemplateRunTest, SignalCancelsAtEachStageAndLeavesNoTrace) {
  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const auto before = ReadWorkbook(file_);
  for (const auto& [stage, signal, early] : {std::tuple{"Leyendo", SIGINT, true},
                                             {"Preparando", SIGTERM, true},
                                             {"Escribiendo", SIGINT, false},
                                             {"Retirando", SIGTERM, false}}) {
    SCOPED_TRACE(stage);
    Alarm alarm(stage, signal);
    std::ostream err(&alarm);
    std::ostringstream out;
    EXPECT_EQ(CommandLine({out, err}).Run(Exporting("Recibos del año pasado", "--sobrescribir")), 130);
    EXPECT_THAT(alarm.str(), HasSubstr("cancelada"));
    EXPECT_EQ(alarm.str().find("Escribiendo las hojas") == std::string::npos, early);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(ReadWorkbook(file_), before);
    ExpectOnly({"Libro.xls"});
  }
  // A signal that came before is none of the next command's.
  EXPECT_EQ(RunWords(Exporting("Recibos del año pasado", "--sobrescribir")).code, 0);
}

TEST_F(TemplateRunTest, StatementIsTheOneThatStagesTheRows) {
  const Ended shown = RunWords(Order("sentencia", "Socios de Madrid"));
  ExpectOnly({});
  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const auto rows = ReadWorkbook(file_).at(0);
  EXPECT_TRUE(std::is_sorted(rows.begin() + 1, rows.end(),
                             [](const auto& a, const auto& b) { return text::CompareText(a[0], b[0]) < 0; }));
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
  EXPECT_THAT(RunWords(Order("sentencia", "Pie de línea")).out, HasSubstr("'Madrid'   OR 1 = 1"));
}

TEST(TemplateRunPasswordTest, PasswordsOpenTheDatabasesAndAreNeverShown) {
  const files::TemporaryFolder folder;
  const Strings keys = {"--clave-gestion", "abre1gestion", "--clave-informes", "abre2informes"};
  const Strings statement = {"sentencia", "--plantilla", "Socios de Madrid"};
  const Strings exporting = {"exportar", "--plantilla", "Socios de Madrid", "--fichero",
                             folder / "Libro.xls"};
  const auto run = [&](Strings words, const Strings& more) {
    words.push_back("--carpeta=" + folder.Path());
    words.insert(words.end(), more.begin(), more.end());
    const Ended ended = RunWords(words);
    EXPECT_THAT(ended.out + ended.err, Not(HasSubstr("abre")));
    return ended.code;
  };
  ASSERT_EQ(run({"crear", "--colaboradores", "60"}, keys), 0);
  EXPECT_EQ(run(statement, {}), 1);
  EXPECT_EQ(run(exporting, {}), 1);
  EXPECT_EQ(run(statement, keys), 0);
  EXPECT_EQ(run(exporting, keys), 0);
}

}  // namespace
}  // namespace velmar::sample
