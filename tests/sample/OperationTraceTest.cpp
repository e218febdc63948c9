#include "sample/OperationTrace.h"

#include <gmock/gmock.h>
#include <stdlib.h>

#include <fstream>
#include <sstream>

#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"

namespace velmar::sample {
namespace {

using ::testing::HasSubstr;

TEST(OperationTrace, TellsWhatHappensButNoPasswords) {
  const SampleDatabase office(1);
  const auto& folder = office.folder;
  const std::string path = folder / "traza.txt";
  ASSERT_EQ(setenv("VELMAR_TRAZA", path.c_str(), 1), 0);
  {
    const auto trace = OperationTrace::FromEnvironment();
    const auto main = OpenDatabase(folder / "Gestion.mdb");
    for (int i = 0; i < 2; ++i) main->Execute("SELECT Nombre\nFROM Provincias");
    // Told before the engine refuses it.
    EXPECT_THROW(main->Execute("SELECT * INTO Copia FROM [a.mdb;pwd=muy secreta].T"), RuntimeError);
  }
  unsetenv("VELMAR_TRAZA");
  EXPECT_EQ(OperationTrace::FromEnvironment(), nullptr);
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  EXPECT_THAT(text.str(), HasSubstr("\tabrir base de datos\t" + folder / "Gestion.mdb\n"));
  EXPECT_THAT(text.str(), HasSubstr("\tsentencia\tSELECT Nombre FROM Provincias\n"));
  EXPECT_THAT(text.str(), HasSubstr("y 1 veces más\n"));
  EXPECT_THAT(text.str(), HasSubstr("[a.mdb;pwd=***].T\n"));
  EXPECT_THAT(text.str(), ::testing::Not(HasSubstr("secreta")));
  EXPECT_THROW(OperationTrace(folder / "no hay/traza.txt"), RuntimeError);
}

}  // namespace
}  // namespace velmar::sample
