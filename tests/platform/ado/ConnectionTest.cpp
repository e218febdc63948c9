#include "platform/ado/Connection.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(Connection, OpensClosesAndOpensAgainWithWhatItHolds) {
  const TestFolder folder;
  folder.OpenNew("Gestion.mdb")->Execute("CREATE TABLE T (Nombre TEXT(50), Importe CURRENCY, Baja BIT)");
  Connection connection(folder.Text("gestion.MDB"));
  EXPECT_EQ(connection.State(), kStateClosed);
  connection.Open("", "", "", -1);
  EXPECT_EQ(connection.State(), kStateOpen);
  EXPECT_EQ(FailureOf([&] { connection.Open(); }), velmar::kObjectOpen);
  long affected = 0;
  connection.Execute("INSERT INTO T (Nombre, Importe, Baja) VALUES ('Núñez', 10.25, True)", &affected);
  EXPECT_EQ(affected, 1);
  connection.Close();
  EXPECT_EQ(connection.State(), kStateClosed);
  EXPECT_EQ(FailureOf([&] { connection.Close(); }), velmar::kObjectClosed);
  EXPECT_EQ(FailureOf([&] { connection.Execute("SELECT 1"); }), velmar::kObjectClosed);
  connection.Open();
  EXPECT_EQ(RowsOf(connection, "SELECT * FROM T"), "Núñez|10.25|-1");
}

TEST(Connection, OpensThePathInAnyCase) {
  const TestFolder folder;
  std::filesystem::create_directory(folder.File("Carpeta Año"));
  folder.Create("Carpeta Año/Informes.mdb");
  const std::string lower = folder.Text("carpeta año/informes.mdb");
  Connection connection;
  connection.Open(lower);
  EXPECT_EQ(connection.Properties("DATA SOURCE").Value(), folder.File("carpeta año/informes.mdb"));
  EXPECT_EQ(connection.Properties("data source name").Value(), folder.File("Carpeta Año/Informes.mdb"));
  EXPECT_EQ(connection.ConnectionString(), lower);
}

TEST(Connection, PropertiesAreThereWhileClosedToo) {
  const TestFolder folder;
  folder.Create("Informes.mdb", "Jet OLEDB:Database Password=Secreta");
  Connection connection(folder.Text("informes.mdb", "jet oledb:database password=Secreta;Extra=7"));
  EXPECT_EQ(connection.Properties("Data Source Name").Value(), folder.File("Informes.mdb"));
  EXPECT_EQ(connection.Properties("Jet OLEDB:Database Password").Value(), "Secreta");
  EXPECT_EQ(connection.Properties("extra").Value(), "7");
  EXPECT_EQ(FailureOf([&] { connection.Properties("Other"); }), velmar::kItemNotInCollection);
  EXPECT_EQ(Connection().Properties("Data Source").Value(), "");
  connection.Open();
  EXPECT_EQ(FailureOf([&] { connection.Properties("Jet OLEDB:Database Password").Value(""); }),
            velmar::kObjectOpen);
  connection.Close();
  std::filesystem::remove(folder.File("Informes.mdb"));
  EXPECT_EQ(connection.Properties("Data Source Name").Value(), folder.File("Informes.mdb"));
}

TEST(Connection, RefusesFilesThatAreNoDatabase) {
  const TestFolder folder;
  folder.Write("Texto.mdb", std::string(5000, 'x'));
  folder.Write("Vacio.mdb", "");
  {
    const auto connection = folder.OpenNew("Cortada.mdb");
    connection->Execute("CREATE TABLE T (A TEXT)");
    connection->Execute("INSERT INTO T (A) VALUES ('x')");
  }
  const std::string whole = folder.Read("Cortada.mdb");
  folder.Write("Cortada.mdb", whole.substr(0, whole.size() / 2));
  folder.Write("Cabecera.mdb", whole.substr(0, 40));
  std::filesystem::create_directory(folder.File("Carpeta.mdb"));
  struct Case {
    const char* name;
    long number;
  };
  for (const Case& each :
       {Case{"Falta.mdb", velmar::kDatabaseNotFound}, Case{"Texto.mdb", velmar::kNotADatabase},
        Case{"Vacio.mdb", velmar::kNotADatabase}, Case{"Cortada.mdb", velmar::kNotADatabase},
        Case{"Cabecera.mdb", velmar::kNotADatabase}, Case{"Carpeta.mdb", velmar::kNotADatabase}}) {
    SCOPED_TRACE(each.name);
    Connection connection(folder.Text(each.name));
    EXPECT_EQ(FailureOf([&] { connection.Open(); }), each.number);
    EXPECT_EQ(connection.State(), kStateClosed);
  }
  EXPECT_FALSE(std::filesystem::exists(folder.File("Falta.mdb")));
  EXPECT_EQ(FailureOf([&] { folder.Open("Texto.mdb", "\"x"); }), velmar::kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([] { Connection().Open(); }), velmar::kInvalidProcedureCall);
}

TEST(Connection, KnowsNoUserAccounts) {
  const TestFolder folder;
  folder.Create("A.mdb");
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder.Text("A.mdb"), "admin", ""); }), 0);
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder.Text("A.mdb"), "Pepe", ""); }), velmar::kWrongPassword);
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder.Text("A.mdb"), "", "x"); }), velmar::kWrongPassword);
}

TEST(Connection, TakesAnEngineFileOfAnotherProgramAsHostDatabase) {
  const TestFolder folder;
  sqlite3* handle = nullptr;
  ASSERT_EQ(sqlite3_open(folder.File("Ajena.db").c_str(), &handle), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(handle, "CREATE TABLE t(a TEXT, b); INSERT INTO t VALUES('x', 1.5)", nullptr,
                         nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(handle);
  const auto connection = folder.Open("Ajena.db");
  connection->Execute("UPDATE t SET b = 2 WHERE A = 'X'");
  EXPECT_EQ(RowsOf(*connection, "SELECT a, b FROM T"), "x|1.5")
      << "an engine table without our collation keeps its own";
}

TEST(Connection, ClosingClosesItsRecordsets) {
  const TestFolder folder;
  auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("INSERT INTO T (N) VALUES (1)");
  const auto executed = connection->Execute("SELECT N FROM T");
  Recordset streamed;
  streamed.Open("SELECT N FROM T", connection, kOpenForwardOnly);
  connection->Close();
  EXPECT_EQ(executed->State(), kStateClosed);
  EXPECT_EQ(streamed.State(), kStateClosed);
  EXPECT_EQ(FailureOf([&] { streamed.MoveNext(); }), velmar::kObjectClosed);
  connection->Open();
  const auto orphan = connection->Execute("SELECT N FROM T");
  streamed.ActiveConnection(nullptr);
  connection.reset();
  EXPECT_EQ(orphan->State(), kStateClosed);
}

}  // namespace
}  // namespace ADODB
