#include "sample/command/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"

namespace velmar::sample {
namespace {

using testing::HasSubstr;

TEST(CommandLineTest, RefusesWhatItDoesNotUnderstandWithTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"exporta"},
      {"exportar"},
      {"exportar", "--plantilla", "Socios de Madrid"},
      {"exportar", "--fichero", "/tmp/Libro.xls"},
      {"exportar", "--plantilla", "", "--fichero", "/tmp/Libro.xls"},
      {"plantillas", "--usuario", "ana"},
      {"plantillas", "--usuario", "2147483648"},
      {"sentencia"},
      {"crear"},
      {"crear", "--carpeta", "/tmp", "--colaborador", "3"},
      {"crear", "--carpeta", "/tmp", "--colaboradores", "0"},
      {"crear", "--carpeta", "/tmp", "--fecha", "31/12/2025"},
      {"crear", "--carpeta", "/tmp", "--fecha", "0005-01-01"},
      {"demo", "extra"},
  };
  for (const auto& words : wrong) {
    SCOPED_TRACE(testing::PrintToString(words));
    const Ended ended = RunWords(words);
    EXPECT_EQ(ended.code, 2);
    EXPECT_THAT(ended.err, HasSubstr("Uso: velmar_sample"));
    EXPECT_EQ(ended.out, "");
  }
  const Ended help = RunWords({"ayuda"});
  EXPECT_EQ(help.code, 0);
  EXPECT_THAT(help.out, testing::AllOf(HasSubstr("exportar --plantilla"), HasSubstr("Códigos de salida")));
}

TEST(CommandLineTest, CreatesOnceAndTellsWhereDatabasesAreMissing) {
  const TestFolder folder;
  for (const char* order : {"plantillas", "sentencia", "exportar"}) {
    std::vector<std::string> words = {order, "--carpeta", folder.Path()};
    if (order != std::string("plantillas")) words.insert(words.end(), {"--plantilla", "x"});
    if (order == std::string("exportar")) words.insert(words.end(), {"--fichero", folder / "Libro.xls"});
    const Ended ended = RunWords(words);
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.err, testing::AllOf(HasSubstr("Gestion.mdb"), HasSubstr("'crear'"))) << order;
  }
  EXPECT_TRUE(NamesIn(folder.Path()).empty());

  const std::vector<std::string> create = {"crear", "--carpeta", folder.Path(), "--colaboradores",
                                           "20",    "--fecha",   "2025-11-22"};
  const Ended created = RunWords(create);
  EXPECT_EQ(created.code, 0) << created.err;
  EXPECT_THAT(created.out, HasSubstr("Colaboradores: 20 filas"));
  EXPECT_THAT(NamesIn(folder.Path()), testing::ElementsAre("Gestion.mdb", "Informes.mdb"));
  const Ended again = RunWords(create);
  EXPECT_EQ(again.code, 1);
  EXPECT_THAT(again.err, HasSubstr("Gestion.mdb"));
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
  const Ended first = RunWords({"demo", "--colaboradores", "50"});
  ASSERT_EQ(first.code, 0) << first.err;

  const auto sheets = ReadWorkbook(folder / "out/Exportacion.xls");
  ASSERT_EQ(sheets.size(), 1U);
  const auto rows = sheets[0].size() - 1;
  EXPECT_GT(rows, 20U);
  EXPECT_THAT(first.out, HasSubstr("out/Exportacion.xls (" + std::to_string(rows) + " filas en 1 hoja)"));
  EXPECT_THAT(sheets[0][0], testing::ElementsAre("IDColaborador", "Apellido1", "Nombre", "NIF", "Sexo",
                                                 "Provincia", "FechaEmisión", "FechaCobro", "ImporteRecibo",
                                                 "Concepto", "CuentaRecibo"));

  for (const auto& words : {std::vector<std::string>{"demo"}, {"demo", "--colaboradores", "50"}}) {
    const Ended second = RunWords(words);
    EXPECT_EQ(second.code, 0) << second.err;
    EXPECT_THAT(second.out, HasSubstr("que ya están en la carpeta 'out', con 50 colaboradores"));
    EXPECT_EQ(ReadWorkbook(folder / "out/Exportacion.xls"), sheets);
  }
  // What cannot be done with the databases that are there is not passed over in silence.
  for (const auto& words :
       {std::vector<std::string>{"demo", "--colaboradores", "60"}, {"demo", "--semilla", "3"}}) {
    const Ended refused = RunWords(words);
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err,
                testing::AllOf(HasSubstr("con 50 colaboradores"), HasSubstr("borre la carpeta")));
  }
  for (const char* missing : {"Gestion.mdb", "Informes.mdb"}) {
    std::filesystem::rename(folder / "out" + "/" + missing, folder / "aparte");
    const Ended refused = RunWords({"demo"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, HasSubstr(std::string("falta ") + missing));
    std::filesystem::rename(folder / "aparte", folder / "out" + "/" + missing);
  }
  EXPECT_EQ(RunWords({"demo"}).code, 0);
}

}  // namespace
}  // namespace velmar::sample
