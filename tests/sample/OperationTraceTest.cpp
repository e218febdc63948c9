#include "sample/OperationTrace.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>
#include <sstream>

#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"

namespace velmar::sample {
namespace {

std::string Content(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

TEST(OperationTrace, TellsWhatHappensButNoPasswords) {
  const TestFolder folder;
  GeneratorOptions options = OptionsFor(folder.Path(), 3);
  options.reportsPassword = "muy secreta";
  DatabaseGenerator(options).Run();
  const std::string path = folder / "traza.txt";
  ASSERT_EQ(setenv("VELMAR_TRAZA", path.c_str(), 1), 0);
  {
    const auto trace = OperationTrace::FromEnvironment();
    ASSERT_NE(trace, nullptr);
    const auto main = OpenDatabase(folder / "Gestion.mdb");
    main->Execute("SELECT Nombre\nFROM Provincias");
    main->Execute("SELECT Nombre\nFROM Provincias");
    main->Execute("SELECT * INTO Copia FROM [" +
                  folder / "Informes.mdb;pwd=muy secreta].ExportacionCamposTEMP");
  }
  unsetenv("VELMAR_TRAZA");
  EXPECT_EQ(OperationTrace::FromEnvironment(), nullptr);
  const std::string text = Content(path);
  for (const std::string& piece :
       {"\tabrir base de datos\t" + folder / "Gestion.mdb\n",
        std::string("\tsentencia\tSELECT Nombre FROM Provincias\n"), std::string("y 1 veces más\n"),
        "[" + folder / "Informes.mdb;pwd=***].ExportacionCamposTEMP\n"}) {
    EXPECT_NE(text.find(piece), std::string::npos) << piece << "\nin\n" << text;
  }
  EXPECT_EQ(text.find("secreta"), std::string::npos);
  EXPECT_THROW(OperationTrace(folder / "no hay/traza.txt"), RuntimeError);
}

}  // namespace
}  // namespace velmar::sample
