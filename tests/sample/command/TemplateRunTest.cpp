#include "sample/command/TemplateRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/ado/Catalog.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"
#include "templates/TemplateStore.h"

namespace velmar::sample {
namespace {

using templates::TemplateStore;
using testing::HasSubstr;

constexpr const char* kNode = "(COL) Colaboradores";

class TemplateRunTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    database_ = std::make_unique<SampleDatabase>(300);
    Save("Nadie", {{kNode, "Población", "{Población} = `Oz´", 10}});
    Save("Otra \"época\"", {{kNode, "Población", "", 10}});
    Save("Campo ido", {{kNode, "Talla", "", 999}});
    Save("Filtro roto", {{kNode, "Población", "{Población} [Empieza] `A´", 10}});
    Save("Pie de línea", {{kNode, "Población", "{Población} = `Madrid´\r\n OR 1 = 1", 10}});
    Save("Sin relación",
         {{"(REM) Remesas", "Emisor", "", 37}, {"(MOD) Modelo182", "NIF del declarado", "", 42}});
    TemplateStore(database_->main, 2).Save("De otra", {{{kNode, "País", "", 12}}, {}}, kNew);
  }
  static void TearDownTestSuite() { database_.reset(); }

  static void Save(const std::string& name, const std::vector<templates::TemplateContent::Field>& fields) {
    TemplateStore(database_->main, 1).Save(name, {fields, {}}, kNew);
  }
  static std::vector<std::string> Order(const std::string& order, const std::string& name,
                                        const std::vector<std::string>& more = {}) {
    std::vector<std::string> words = {order, "--carpeta", database_->folder.Path(), "--plantilla", name};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  std::vector<std::string> Exporting(const std::string& name,
                                     const std::vector<std::string>& more = {}) const {
    std::vector<std::string> words = Order("exportar", name, {"--fichero", file_});
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  void ExpectNothingLeft() const {
    EXPECT_TRUE(NamesIn(target_.Path()).empty());
    for (const std::string& name : NamesIn(database_->folder.Path())) {
      EXPECT_TRUE(!name.starts_with("Exportacion") || name == "ExportacionAux.mdb") << name;
      EXPECT_THAT(name, testing::Not(HasSubstr("trabajo")));
    }
  }

  static constexpr auto kNew = TemplateStore::Existing::kNone;
  static inline std::unique_ptr<SampleDatabase> database_;
  TestFolder target_;
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
    SCOPED_TRACE(each.name);
    const Ended ended = RunWords(Exporting(each.name));
    EXPECT_EQ(ended.code, each.code);
    EXPECT_THAT(ended.err, HasSubstr(each.reason));
    EXPECT_EQ(ended.out, "");
    ExpectNothingLeft();
    if (each.code == 3) continue;
    const Ended shown = RunWords(Order("sentencia", each.name));
    EXPECT_EQ(shown.code, each.code);
    EXPECT_EQ(shown.out, "");
    EXPECT_THAT(shown.err, HasSubstr(each.reason));
  }
  EXPECT_EQ(RunWords(Exporting("De otra", {"--usuario", "2"})).code, 0);
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
  EXPECT_EQ(RunWords(Exporting("Nadie", {"--sobrescribir"})).code, 3);
  EXPECT_EQ(content(), first);
  const Ended replaced = RunWords(Exporting("Felicitaciones", {"--sobrescribir"}));
  EXPECT_EQ(replaced.code, 0) << replaced.err;
  EXPECT_NE(content(), first);
  const auto rows = ReadWorkbook(file_).at(0).size() - 1;
  EXPECT_EQ(replaced.out, "Libro exportado: " + file_ + " (" + std::to_string(rows) + " filas en 1 hoja)\n");

  for (const std::string letter : {"Estimado socio:", ""}) {
    std::ofstream(file_) << letter;
    const Ended refused = RunWords(Exporting("Felicitaciones", {"--sobrescribir"}));
    EXPECT_EQ(refused.code, 5);
    EXPECT_THAT(refused.err, HasSubstr("no es un libro de Excel"));
    EXPECT_EQ(content(), letter);
  }
  const std::string pipe = target_ / "Tubo.xls";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(RunWords(Order("exportar", "Felicitaciones", {"--fichero", pipe, "--sobrescribir"})).code, 5);
  std::filesystem::remove(pipe);
  // What the wizard's button refuses, and a file that someone has open.
  std::ofstream(target_ / ".~lock.Abierto.xls#") << "Ana";
  std::ofstream(target_ / "Abierto.xls") << first;
  for (const std::string& file :
       {target_ / "no/hay.xls", target_ / "a*.xls", target_ / "LIBRO.xls", target_ / "Abierto.xls",
        database_->folder / "Gestion.mdb", database_->folder / "ExportacionX.mdb"}) {
    const Ended refused =
        RunWords(Order("exportar", "Felicitaciones", {"--fichero", file, "--sobrescribir"}));
    EXPECT_EQ(refused.code, 1) << file;
    EXPECT_THAT(refused.err, testing::ContainsRegex("No (se puede exportar al archivo|existe la carpeta)"));
  }
  EXPECT_EQ(NamesIn(target_.Path()).size(), 3U);
}

TEST_F(TemplateRunTest, ProgressIsDrawnInPlaceOnATerminalOnly) {
  const Ended plain = RunWords(Exporting("Recibos del año pasado"));
  EXPECT_EQ(plain.code, 0);
  EXPECT_THAT(plain.err, HasSubstr("Leyendo las filas seleccionadas...\n"));
  EXPECT_THAT(plain.err, HasSubstr("Escribiendo las hojas...\n"));
  EXPECT_THAT(plain.err, testing::Not(HasSubstr("\r")));
  const Ended drawn = RunWords(Exporting("Recibos del año pasado", {"--sobrescribir"}), true);
  EXPECT_EQ(drawn.code, 0);
  EXPECT_THAT(drawn.err, HasSubstr("\r\x1b[K[#############"));
  EXPECT_THAT(drawn.err, HasSubstr(" %  Preparando fechas y cuentas"));
  EXPECT_THAT(drawn.err, testing::Not(HasSubstr("\n")));
  EXPECT_TRUE(drawn.err.ends_with("\r\x1b[K"));
}

/// Sends the process a signal when a text is written.
class Alarm : public std::stringbuf {
 public:
  Alarm(std::string text, int signal) : text_(std::move(text)), signal_(signal) {}

 protected:
  std::streamsize xsputn(const char* text, std::streamsize count) override {
    const std::streamsize written = std::stringbuf::xsputn(text, count);
    if (!sent_ && str().find(text_) != std::string::npos) {
      sent_ = true;
      std::raise(signal_);
    }
    return written;
  }

 private:
  std::string text_;
  int signal_;
  bool sent_ = false;
};

TEST_F(TemplateRunTest, SignalCancelsAtEachStageAndLeavesNoTrace) {
  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const auto before = ReadWorkbook(file_);
  const std::pair<const char*, int> cases[] = {{"Leyendo las filas", SIGINT}, {"Añadiendo", SIGTERM},
                                               {"Repartiendo", SIGINT},       {"Preparando", SIGTERM},
                                               {"Escribiendo", SIGINT},       {"Retirando", SIGTERM}};
  for (const auto& [stage, signal] : cases) {
    SCOPED_TRACE(stage);
    Alarm alarm(stage, signal);
    std::ostream err(&alarm);
    std::ostringstream out;
    EXPECT_EQ(CommandLine({out, err}).Run(Exporting("Recibos del año pasado", {"--sobrescribir"})), 130);
    EXPECT_THAT(alarm.str(), HasSubstr("cancelada"));
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(ReadWorkbook(file_), before);
    EXPECT_THAT(NamesIn(target_.Path()), testing::ElementsAre("Libro.xls"));
    for (const std::string& name : NamesIn(database_->folder.Path())) {
      EXPECT_FALSE(name.starts_with("Exportacion")) << name;
    }
  }
  // A signal that came before is none of the next command's.
  EXPECT_EQ(RunWords(Exporting("Recibos del año pasado", {"--sobrescribir"})).code, 0);
}

TEST_F(TemplateRunTest, StatementIsTheOneThatStagesTheRows) {
  const Ended shown = RunWords(Order("sentencia", "Socios de Madrid"));
  ASSERT_EQ(shown.code, 0) << shown.err;
  EXPECT_EQ(std::count(shown.out.begin(), shown.out.end(), '\n'), 1);
  ExpectNothingLeft();
  EXPECT_FALSE(std::filesystem::exists(database_->folder / "ExportacionAux.mdb"));

  ASSERT_EQ(RunWords(Exporting("Socios de Madrid")).code, 0);
  const std::string work = "[" + (database_->folder / "ExportacionAux.mdb") + "].ExportacionExcel";
  ASSERT_THAT(shown.out, HasSubstr(" INTO " + work + " "));
  ADOX::Catalog().Create(ScratchConnectionTextOf(database_->folder / "ExportacionAux.mdb"));
  database_->main->Execute(shown.out);
  const auto open = OpenDatabase(database_->folder / "ExportacionAux.mdb");
  const auto staged = open->Execute("SELECT * FROM ExportacionExcel");
  const auto rows = ReadWorkbook(file_).at(0);
  ASSERT_EQ(rows.size(), static_cast<std::size_t>(staged->RecordCount()) + 1);
  for (std::size_t i = 1; i < rows.size(); ++i, staged->MoveNext()) {
    for (long column = 0; column < staged->Fields().Count(); ++column) {
      EXPECT_EQ(rows[i][static_cast<std::size_t>(column)], staged->Fields(column).Value().TextOrEmpty());
    }
  }
  std::filesystem::remove(database_->folder / "ExportacionAux.mdb");

  const std::string partial =
      RunWords(Order("sentencia", "Donativos periódicos", {"--relacion-parcial"})).out;
  EXPECT_THAT(partial, HasSubstr("LEFT JOIN"));
  EXPECT_THAT(partial, testing::Not(HasSubstr("INNER JOIN")));
  EXPECT_THAT(RunWords(Order("sentencia", "Pie de línea")).out, HasSubstr("'Madrid'   OR 1 = 1"));
}

TEST(TemplateRunPasswordTest, PasswordsOpenTheDatabasesAndAreNeverShown) {
  const TestFolder folder;
  ASSERT_EQ(RunWords({"crear", "--carpeta", folder.Path(), "--colaboradores", "60", "--clave-gestion",
                      "abre1gestion", "--clave-informes", "abre2informes"})
                .code,
            0);
  const std::vector<std::string> common = {"--carpeta", folder.Path(), "--plantilla", "Socios de Madrid"};
  const std::vector<std::string> keys = {"--clave-gestion", "abre1gestion", "--clave-informes",
                                         "abre2informes"};
  const auto run = [&](std::vector<std::string> words, bool withKeys) {
    words.insert(words.end(), common.begin(), common.end());
    if (withKeys) words.insert(words.end(), keys.begin(), keys.end());
    const Ended ended = RunWords(words);
    EXPECT_THAT(ended.out + ended.err, testing::Not(HasSubstr("abre")));
    return ended.code;
  };
  for (const bool withKeys : {false, true}) {
    EXPECT_EQ(run({"sentencia"}, withKeys), withKeys ? 0 : 1);
    EXPECT_EQ(run({"exportar", "--fichero", folder / "Libro.xls"}, withKeys), withKeys ? 0 : 1);
    EXPECT_EQ(std::filesystem::exists(folder / "Libro.xls"), withKeys);
  }
}

}  // namespace
}  // namespace velmar::sample
