#include "sample/command/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"

namespace velmar::sample {
namespace {

using testing::HasSubstr;

struct Outcome {
  int code;
  std::string out;
  std::string err;
};

Outcome RunWords(const std::vector<std::string>& words) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = CommandLine(out, err).Run(words);
  return {code, out.str(), err.str()};
}

TEST(CommandLineTest, RefusesWhatItDoesNotUnderstandWithTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"exportar"},
      {"crear"},
      {"crear", "--carpeta", "/tmp", "--colaborador", "3"},
      {"crear", "--carpeta", "/tmp", "--colaboradores", "0"},
      {"crear", "--carpeta", "/tmp", "--fecha", "31/12/2025"},
      {"crear", "--carpeta", "/tmp", "--fecha", "0005-01-01"},
      {"exportar-sql", "--carpeta", "/tmp"},
      {"demo", "extra"},
  };
  for (const auto& words : wrong) {
    const Outcome outcome = RunWords(words);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.err, HasSubstr("Uso: velmar_sample"));
    EXPECT_EQ(outcome.out, "");
  }
  EXPECT_EQ(RunWords({"ayuda"}).code, 0);
}

TEST(CommandLineTest, CreatesAndExportsWithPasswords) {
  const TestFolder folder;
  const std::string book = folder / "Libro.xls";
  const std::vector<std::string> create = {"crear",  "--carpeta", folder.Path(), "--colaboradores",
                                           "20",     "--fecha",   "2025-11-22",  "--clave-gestion",
                                           "secreta"};
  const Outcome created = RunWords(create);
  EXPECT_EQ(created.code, 0) << created.err;
  EXPECT_THAT(created.out, HasSubstr("Colaboradores: 20 filas"));
  const Outcome again = RunWords(create);
  EXPECT_EQ(again.code, 1);
  EXPECT_THAT(again.err, HasSubstr("Gestion.mdb"));

  std::vector<std::string> words = {"exportar-sql",
                                    "--carpeta",
                                    folder.Path(),
                                    "--fichero",
                                    book,
                                    "--sentencia",
                                    "SELECT Nombre FROM Provincias ORDER BY IDProvincia"};
  EXPECT_EQ(RunWords(words).code, 1);
  words.insert(words.end(), {"--clave-gestion", "secreta"});
  const Outcome exported = RunWords(words);
  EXPECT_EQ(exported.code, 0) << exported.err;
  EXPECT_THAT(exported.out, HasSubstr("52 filas en 1 hoja"));
  EXPECT_EQ(RunWords(words).code, 1);
  words.emplace_back("--sobrescribir");
  EXPECT_EQ(RunWords(words).code, 0);
  words[4] = folder / "Gestion.mdb";
  EXPECT_THAT(RunWords(words).err, HasSubstr("no es un libro de Excel"))
      << "also when it may replace a workbook";
  words[4] = book;
  words[6] = "SELECT Nombre FROM Provincias WHERE Nombre = 'Oz'";
  EXPECT_THAT(RunWords(words).err, HasSubstr("ninguna fila"));
}

/// Goes into a folder and comes back.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& path) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_;
};

TEST(CommandLineTest, DemoHasTheWizardExportLastYearsReceipts) {
  const TestFolder folder;
  const WorkingFolder inside(folder.Path());
  const Outcome first = RunWords({"demo", "--colaboradores", "50"});
  ASSERT_EQ(first.code, 0) << first.err;

  const auto sheets = ReadWorkbook(folder / "out/Exportacion.xls");
  ASSERT_EQ(sheets.size(), 1U);
  const auto rows = sheets[0].size() - 1;
  EXPECT_GT(rows, 20U);
  EXPECT_THAT(first.out, HasSubstr("out/Exportacion.xls (" + std::to_string(rows) + " filas en 1 hoja)"));
  EXPECT_THAT(sheets[0][0], testing::ElementsAre("IDColaborador", "Apellido1", "Nombre", "NIF", "Sexo",
                                                 "Provincia", "FechaEmisión", "FechaCobro", "ImporteRecibo",
                                                 "Concepto", "CuentaRecibo"));

  const Outcome second = RunWords({"demo"});
  EXPECT_EQ(second.code, 0) << second.err;
  EXPECT_THAT(second.out, HasSubstr("que ya están"));
  EXPECT_EQ(ReadWorkbook(folder / "out/Exportacion.xls"), sheets);
}

}  // namespace
}  // namespace velmar::sample
