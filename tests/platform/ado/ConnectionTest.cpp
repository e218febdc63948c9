#include "platform/ado/Connection.h"

#include <gtest/gtest.h>

#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

using ConnectionTest = OneDatabase;

TEST_F(ConnectionTest, OpensClosesAndOpensAgainWithWhatItHolds) {
  EXPECT_EQ(FailureOf([&] { connection_->Open(); }), velmar::kObjectOpen);
  connection_->Execute("CREATE TABLE T (Nombre TEXT(50), Importe CURRENCY, Baja BIT)");
  long affected = 0;
  connection_->Execute("INSERT INTO T VALUES ('Núñez', 10.25, True)", &affected);
  EXPECT_EQ(affected, 1);
  connection_->Close();
  EXPECT_EQ(FailureOf([&] { connection_->Close(); }), velmar::kObjectClosed);
  EXPECT_EQ(FailureOf(*connection_, "SELECT 1"), velmar::kObjectClosed);
  connection_->Open();
  EXPECT_EQ(RowsOf(*connection_, "SELECT * FROM T"), "Núñez|10.25|-1");
}

TEST(Connection, OpensThePathInAnyCaseAndTellsItsProperties) {
  const TestFolder folder;
  std::filesystem::create_directory(folder.File("Carpeta Año"));
  folder.Create("Carpeta Año/Informes.mdb", Password("Secreta"));
  const std::string lower = folder.Text("carpeta año/informes.mdb", Password("Secreta") + ";Extra=7");
  Connection connection(lower);
  connection.Open();
  const auto property = [&](const char* name) { return connection.Properties(name).Value(); };
  EXPECT_EQ(property("DATA SOURCE"), folder.File("carpeta año/informes.mdb"));
  EXPECT_EQ(property("data source name"), folder.File("Carpeta Año/Informes.mdb"));
  EXPECT_EQ(property("Jet OLEDB:Database Password"), "Secreta");
  EXPECT_EQ(property("extra"), "7");
  EXPECT_EQ(FailureOf([&] { property("Other"); }), velmar::kItemNotInCollection);
  EXPECT_EQ(FailureOf([&] { connection.Properties("Extra").Value(""); }), velmar::kObjectOpen);
  connection.Close();
  std::filesystem::remove(folder.File("Carpeta Año/Informes.mdb"));
  EXPECT_EQ(property("Data Source Name"), folder.File("Carpeta Año/Informes.mdb"));
}

TEST_F(ConnectionTest, RefusesFilesThatAreNoDatabase) {
  connection_->Execute("CREATE TABLE T (A TEXT)");
  const std::string whole = folder_.Read("A.mdb");
  folder_.Write("Cortada.mdb", whole.substr(0, whole.size() / 2));
  folder_.Write("Cabecera.mdb", whole.substr(0, 40));
  folder_.Write("Texto.mdb", std::string(5000, 'x'));
  folder_.Write("Vacio.mdb", "");
  std::filesystem::create_directory(folder_.File("Carpeta.mdb"));
  for (const char* name : {"Texto.mdb", "Vacio.mdb", "Cortada.mdb", "Cabecera.mdb", "Carpeta.mdb"})
    EXPECT_EQ(FailureOf([&] { folder_.Open(name); }), velmar::kNotADatabase) << name;
  EXPECT_EQ(FailureOf([&] { folder_.Open("Falta.mdb"); }), velmar::kDatabaseNotFound);
  EXPECT_FALSE(folder_.Has("Falta.mdb"));
  EXPECT_EQ(FailureOf([] { Connection().Open(); }), velmar::kInvalidProcedureCall);
}

TEST_F(ConnectionTest, KnowsNoUserAccounts) {
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder_.Text("A.mdb"), "admin", ""); }), 0);
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder_.Text("A.mdb"), "Pepe", ""); }), velmar::kWrongPassword);
  EXPECT_EQ(FailureOf([&] { Connection().Open(folder_.Text("A.mdb"), "", "x"); }), velmar::kWrongPassword);
}

TEST_F(ConnectionTest, TakesAnEngineFileOfAnotherProgramAsHostDatabase) {
  RawDatabase(folder_.File("Ajena.db")).Run("CREATE TABLE t(a TEXT, b); INSERT INTO t VALUES('x', 1.5)");
  const auto connection = folder_.Open("Ajena.db");
  connection->Execute("UPDATE t SET b = 2 WHERE A = 'X'");
  EXPECT_EQ(RowsOf(*connection, "SELECT a, b FROM T"), "x|1.5")
      << "an engine table without our collation keeps its own";
}

TEST_F(ConnectionTest, ClosingClosesItsRecordsets) {
  connection_->Execute("SELECT 1 AS N INTO T FROM (SELECT 1 AS X) AS Y");
  const auto executed = connection_->Execute("SELECT N FROM T");
  rows_.Open("SELECT N FROM T", connection_, kOpenForwardOnly);
  connection_->Close();
  EXPECT_EQ(executed->State(), kStateClosed);
  EXPECT_EQ(FailureOf([&] { rows_.MoveNext(); }), velmar::kObjectClosed);
  connection_->Open();
  const auto orphan = connection_->Execute("SELECT N FROM T");
  rows_.ActiveConnection(nullptr);
  connection_.reset();
  EXPECT_EQ(orphan->State(), kStateClosed);
}

}  // namespace
}  // namespace ADODB
