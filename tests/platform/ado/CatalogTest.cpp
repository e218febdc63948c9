#include "platform/ado/Catalog.h"

#include <gtest/gtest.h>

#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(Catalog, CreatesAnEmptyDatabaseThatOtherProgramsReadAndThatSaysHowItIsKept) {
  const TestFolder folder;
  for (const auto& [more, mark] : std::vector<std::pair<const char*, const char*>>{
           {"", "VELM"},
           {kWorkFile, "VELS"},
           {"Jet OLEDB:Database Password=Ñ;Jet OLEDB:Scratch=Sí", "VELS"}}) {
    SCOPED_TRACE(more);
    folder.Create("Nueva.mdb", more);
    EXPECT_EQ(folder.Read("Nueva.mdb").substr(68, 4), mark);
    EXPECT_EQ(RawDatabase(folder.File("Nueva.mdb")).Rows("PRAGMA integrity_check"), " 3:ok\n");
    std::filesystem::remove(folder.File("Nueva.mdb"));
  }
}

TEST(Catalog, RefusesAndLeavesEverythingAsItWas) {
  const TestFolder folder;
  folder.Write("Ya.mdb", "something else");
  for (const auto& [text, number] : std::vector<std::pair<std::string, long>>{
           {folder.Text("yA.MDB"), velmar::kFileAlreadyExists},
           {folder.Text("no/such/folder.mdb"), velmar::kPathNotFound},
           {folder.Text("Ya.mdb/x.mdb"), velmar::kPathNotFound},
           {folder.Text(std::string(300, 'x')), velmar::kPathNotFound},
       }) {
    EXPECT_EQ(FailureOf([&] { ADOX::Catalog().Create(text); }), number) << text;
  }
  EXPECT_EQ(folder.Names(), std::set<std::string>{"Ya.mdb"});
  EXPECT_EQ(folder.Read("Ya.mdb"), "something else");
}

}  // namespace
}  // namespace ADODB
