#include "platform/ado/Catalog.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(Catalog, CreatesAnEmptyDatabaseThatOtherProgramsRead) {
  const TestFolder folder;
  for (const char* more :
       {"", "Jet OLEDB:Scratch=True", "Jet OLEDB:Database Password=Ñandú;Jet OLEDB:Scratch=Sí"}) {
    SCOPED_TRACE(more);
    const std::string path =
        folder.Create(std::string("Nueva") + std::to_string(std::string_view(more).size()), more);
    sqlite3* handle = nullptr;
    ASSERT_EQ(sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle, "PRAGMA integrity_check", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(handle);
  }
}

TEST(Catalog, RefusesAndLeavesEverythingAsItWas) {
  const TestFolder folder;
  folder.Write("Ya.mdb", "something else");
  struct Case {
    std::string text;
    long number;
  };
  const Case cases[] = {
      {folder.Text("Ya.mdb"), velmar::kFileAlreadyExists},
      {folder.Text("yA.MDB"), velmar::kFileAlreadyExists},
      {folder.Text("no/such/folder.mdb"), velmar::kPathNotFound},
      {folder.Text("Ya.mdb/x.mdb"), velmar::kPathNotFound},
      {"Data Source=/proc/nueva.mdb", velmar::kPathNotFound},
      {"Provider=X", velmar::kInvalidProcedureCall},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    EXPECT_EQ(FailureOf([&] { ADOX::Catalog().Create(each.text); }), each.number);
  }
  EXPECT_EQ(folder.Names(), "Ya.mdb");
  EXPECT_EQ(folder.Read("Ya.mdb"), "something else");
}

TEST(Catalog, TakesNoJournalOfAFileThatIsGone) {
  const TestFolder folder;
  {
    const auto connection = folder.OpenNew("Parte.mdb");
    connection->Execute("CREATE TABLE T (N LONG)");
  }
  std::filesystem::rename(folder.File("Parte.mdb"), folder.File("Parte.mdb-journal"));
  folder.Create("parte.mdb");
  folder.Create("Parte.mdb2");
  EXPECT_EQ(RowsOf(*folder.Open("PARTE.MDB2"), "SELECT 1"), "1");
  EXPECT_EQ(FailureOf([&] { folder.Open("parte.mdb")->Execute("SELECT * FROM T"); }), velmar::kUnknownTable);
}

TEST(Catalog, ScratchStaysWithTheFile) {
  const TestFolder folder;
  folder.Create("A.mdb", "Jet OLEDB:Scratch=True");
  folder.Create("B.mdb");
  const auto applicationId = [&](const char* name) { return folder.Read(name).substr(68, 4); };
  EXPECT_EQ(applicationId("A.mdb"), "VELS");
  EXPECT_EQ(applicationId("B.mdb"), "VELM");
}

}  // namespace
}  // namespace ADODB
