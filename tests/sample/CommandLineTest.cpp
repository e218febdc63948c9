#include "sample/CommandLine.h"

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

TEST(CommandLineTest, DemoLeavesAWorkbookWithTheReceipts) {
  const TestFolder folder;
  const WorkingFolder inside(folder.Path());
  const Outcome first = RunWords({"demo", "--colaboradores", "50"});
  ASSERT_EQ(first.code, 0) << first.err;
  EXPECT_THAT(first.out, HasSubstr("out/Exportacion.xls"));

  const auto sheets = ReadWorkbook(folder / "out/Exportacion.xls");
  ASSERT_EQ(sheets.size(), 1U);
  const auto& rows = sheets[0];
  EXPECT_EQ(rows[0][0], "Colaborador");
  const auto main = OpenDatabase(folder / "out/Gestion.mdb");
  const auto receipts = main->Execute(
      "SELECT Colaboradores.IDColaborador, Recibos.FechaCobro, Cobros.Importe FROM (Colaboradores INNER JOIN "
      "Recibos "
      "ON Colaboradores.IDColaborador = Recibos.CodColaborador) INNER JOIN Cobros ON Recibos.IDRecibo = "
      "Cobros.CodRecibo WHERE Colaboradores.Eliminado = 0 AND Recibos.Eliminado = 0 ORDER BY "
      "Colaboradores.Apellido1, Colaboradores.Apellido2, Colaboradores.Nombre, Recibos.IDRecibo, "
      "Cobros.IDCobro");
  ASSERT_EQ(rows.size(), static_cast<std::size_t>(receipts->RecordCount()) + 1);
  for (std::size_t i = 1; i < rows.size(); ++i, receipts->MoveNext()) {
    EXPECT_EQ(rows[i][0], receipts->Fields(0).Value().AsText());
    const std::string date = receipts->Fields(1).Value().AsText();
    EXPECT_EQ(rows[i][7],
              date.empty() ? "" : date.substr(6) + '/' + date.substr(4, 2) + '/' + date.substr(0, 4));
    EXPECT_EQ(rows[i][9], receipts->Fields(2).Value().AsText());
  }

  const Outcome second = RunWords({"demo"});
  EXPECT_EQ(second.code, 0) << second.err;
  EXPECT_THAT(second.out, HasSubstr("que ya están"));
}

}  // namespace
}  // namespace velmar::sample
