#include "sample/command/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"

namespace velmar::sample {
namespace {

using testing::HasSubstr;

void ExpectFailure(const std::vector<std::string>& words, const std::string& reason) {
  const Ended ended = RunWords(words);
  EXPECT_EQ(ended.code, 1);
  EXPECT_THAT(ended.err, HasSubstr(reason));
}

TEST(CommandLineTest, RefusesWhatItDoesNotUnderstandWithTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"exporta"},
      {"exportar", "--plantilla", "Socios de Madrid"},
      {"exportar", "--fichero", "Libro.xls", "--plantilla"},
      {"exportar", "--fichero", "Libro.xls", "--plantilla", ""},
      {"exportar", "--fichero", "Libro.xls", "--plantilla", "x", "--sobrescribir=1"},
      {"plantillas", "--usuario", "2147483648"},
      {"plantillas", "--usuario", "99999999999999999999"},
      {"plantillas", "--usuario", "1", "--usuario", "2"},
      {"plantillas", "-u", "1"},
      {"crear"},
      {"crear", "--carpeta", "nueva", "--colaborador", "3"},
      {"crear", "--carpeta", "nueva", "--colaboradores", "0"},
      {"crear", "--carpeta", "nueva", "--colaboradores", "12x"},
      {"demo", "--fecha", "31/12/2025"},
      {"crear", "--carpeta", "nueva", "--fecha", "2025-02-29"},
      {"crear", "--carpeta", "nueva", "--fecha", "2025-01-0x"},
      {"crear", "--carpeta", "nueva", "--fecha", "0005-01-01"},
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
  const files::TemporaryFolder folder;
  const std::string here = "--carpeta=" + folder.Path();
  const std::string missing = "Gestion.mdb'. Indique con --carpeta";
  ExpectFailure({"plantillas", here}, missing);
  ExpectFailure({"sentencia", here, "--plantilla", "x"}, missing);
  ExpectFailure({"exportar", here, "--plantilla", "x", "--fichero", folder / "Libro.xls"}, missing);
  EXPECT_TRUE(folder.Empty());

  const std::vector<std::string> create = {"crear", here, "--colaboradores", "20", "--fecha", "2025-11-22"};
  const Ended created = RunWords(create);
  EXPECT_EQ(created.code, 0) << created.err;
  EXPECT_THAT(created.out, HasSubstr("Colaboradores: 20 filas"));
  EXPECT_THAT(folder.Names(), testing::ElementsAre("Gestion.mdb", "Informes.mdb"));
  ExpectFailure(create, "Gestion.mdb");
}

TEST(CommandLineTest, DemoHasTheWizardExportLastYearsReceipts) {
  const files::TemporaryFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const std::vector<std::string> demo = {"demo", "--colaboradores", "50", "--fecha", "2025-11-22"};
  const Ended first = RunWords(demo);
  EXPECT_EQ(first.code, 0) << first.err;
  const auto sheets = ReadWorkbook("out/Exportacion.xls");
  EXPECT_GT(sheets.at(0).size(), 20U);
  // Pending ones, which would be this year's, come last.
  EXPECT_TRUE(sheets[0].back()[6].ends_with("2024"));
  EXPECT_THAT(first.out, HasSubstr("Libro exportado: out/Exportacion.xls"));

  EXPECT_THAT(RunWords(demo).out, HasSubstr("que ya están en la carpeta 'out', con 50 colaboradores"));
  EXPECT_EQ(ReadWorkbook("out/Exportacion.xls"), sheets);
  // What cannot be done with the databases that are there is not passed over in silence.
  ExpectFailure({"demo", "--colaboradores", "60"}, "con 50 colaboradores");
  ExpectFailure({"demo", "--semilla", "3"}, "con 50 colaboradores");
  for (const std::string missing : {"Gestion.mdb", "Informes.mdb"}) {
    std::filesystem::rename("out/" + missing, "aparte");
    ExpectFailure({"demo"}, "falta " + missing);
    std::filesystem::rename("aparte", "out/" + missing);
  }
  std::ofstream("out/.~lock.Exportacion.xls#") << "Ana";
  ExpectFailure({"demo"}, "No se puede exportar al archivo");
  std::filesystem::remove("out/.~lock.Exportacion.xls#");
  const Ended nothing = RunWords({"demo", "--fecha", "1990-01-01"});
  EXPECT_EQ(nothing.code, 3);
  EXPECT_THAT(nothing.err, HasSubstr("No se han seleccionado datos"));
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace velmar::sample
