#include "platform/ado/Attachments.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

constexpr const char* kClause = "Jet OLEDB:Database Password=";

/// A management and a reports database as the start-up transfer finds them.
class Transfer : public testing::TestWithParam<std::pair<const char*, const char*>> {
 protected:
  Transfer() {
    management_ = folder_.OpenNew("Gestion.mdb", kClause + std::string(GetParam().first));
    reports_ = folder_.OpenNew("Informes.mdb", kClause + std::string(GetParam().second));
    reports_->Execute(
        "CREATE TABLE ExportacionCamposTEMP (IDTabla LONG, Literal TEXT(50), Orden BYTE, Visible BIT)");
    reports_->Execute("INSERT INTO ExportacionCamposTEMP VALUES (1, 'Año', 3, True)");
    reports_->Execute("INSERT INTO ExportacionCamposTEMP VALUES (2, NULL, 4, False)");
  }

  std::string Qualified(Connection& connection, const std::string& table) {
    return "[" + connection.Properties("Data Source").Value() +
           ";pwd=" + connection.Properties("Jet OLEDB:Database Password").Value() + "].[" + table + "]";
  }

  TestFolder folder_;
  std::shared_ptr<Connection> management_;
  std::shared_ptr<Connection> reports_;
};

TEST_P(Transfer, CopiesInsideATransactionOfTheOtherConnection) {
  EXPECT_EQ(FailureOf([&] { management_->Execute("SELECT IDTabla FROM ExportacionCampos"); }),
            velmar::kUnknownTable);
  management_->BeginTrans();
  long rows = 0;
  reports_->Execute("SELECT * INTO " + Qualified(*management_, "ExportacionCampos") + " FROM " +
                        Qualified(*reports_, "ExportacionCamposTEMP"),
                    &rows);
  EXPECT_EQ(rows, 2);
  management_->CommitTrans();
  EXPECT_EQ(RowsOf(*management_, "SELECT * FROM ExportacionCampos"), "1|Año|3|-1 / 2|Null|4|0");
  management_->Execute("DELETE FROM ExportacionCampos");
  EXPECT_EQ(RowsOf(*management_, "SELECT * FROM ExportacionCampos"), "");
}

TEST_P(Transfer, AFailedCopyLeavesNoTable) {
  EXPECT_NE(FailureOf([&] {
              reports_->Execute("SELECT Literal, IDTabla / 0 AS X INTO " + Qualified(*management_, "Rota") +
                                " FROM " + Qualified(*reports_, "ExportacionCamposTEMP"));
            }),
            0);
  EXPECT_EQ(FailureOf([&] { management_->Execute("SELECT * FROM Rota"); }), velmar::kUnknownTable);
  EXPECT_EQ(FailureOf([&] { management_->Execute("CREATE TABLE Rota (A LONG)"); }), 0)
      << "nothing stays locked";
}

INSTANTIATE_TEST_SUITE_P(Passwords, Transfer,
                         testing::Values(std::pair{"", ""}, std::pair{"Gest1", ""}, std::pair{"", "Inf'2"},
                                         std::pair{"uno", "dos"}));

TEST(Attachments, AFileHasOneAliasHoweverItIsSpelt) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Uno.mdb");
  folder.OpenNew("Dos.mdb")->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("INSERT INTO T (N) VALUES (1)");
  const std::string own = "[" + folder.File("UNO.mdb") + "].";
  const std::string dos = "[" + folder.File("Dos.mdb") + "].";
  const std::string other = "[" + folder.File("./dOs.MDB") + "].";
  connection->Execute("INSERT INTO " + dos + "[T] SELECT N FROM " + own + "[T]");
  connection->Execute("INSERT INTO " + other + "[T] SELECT N + 1 AS N FROM " + dos + "[T]");
  connection->Execute("INSERT INTO " + own + "[T] SELECT N FROM " + other + "[T] WHERE N > 1");
  EXPECT_EQ(RowsOf(*connection, "SELECT N FROM T"), "1 / 2");
  EXPECT_EQ(RowsOf(*connection, "SELECT N FROM " + dos + "T"), "1 / 2");
}

TEST(Attachments, RefusesAndWritesNothing) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Uno.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  folder.OpenNew("Clave.mdb", std::string(kClause) + "si")->Execute("CREATE TABLE T (N LONG)");
  folder.Write("Texto.mdb", "this is no database at all");
  const std::string before = folder.Read("Clave.mdb");
  struct Case {
    std::string qualifier;
    long number;
  };
  for (const Case& each :
       {Case{"Falta.mdb", velmar::kDatabaseNotFound}, Case{"Clave.mdb", velmar::kWrongPassword},
        Case{"Clave.mdb;pwd=no", velmar::kWrongPassword}, Case{"Texto.mdb", velmar::kNotADatabase}}) {
    SCOPED_TRACE(each.qualifier);
    const std::string target = "[" + folder.File(each.qualifier) + "].[Nueva]";
    EXPECT_EQ(FailureOf([&] { connection->Execute("SELECT * INTO " + target + " FROM T"); }), each.number);
    EXPECT_EQ(FailureOf([&] { connection->Execute("SELECT N FROM " + target); }), each.number);
  }
  EXPECT_EQ(folder.Read("Clave.mdb"), before);
  EXPECT_EQ(folder.Names(), "Clave.mdb Texto.mdb Uno.mdb");
}

TEST(Attachments, WorkInsideATransactionAndGoWithIt) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Uno.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("INSERT INTO T (N) VALUES (1)");
  for (const char* name : {"Dos.mdb", "Tres.mdb"}) folder.OpenNew(name)->Execute("CREATE TABLE T (N LONG)");
  const auto insert = [&](const std::string& name) {
    connection->Execute("INSERT INTO [" + folder.File(name) + "].[T] SELECT N FROM T");
  };
  connection->BeginTrans();
  insert("Dos.mdb");
  insert("Tres.mdb");
  connection->RollbackTrans();
  EXPECT_EQ(RowsOf(*folder.Open("Dos.mdb"), "SELECT N FROM T"), "");
  connection->BeginTrans();
  insert("Dos.mdb");
  insert("Tres.mdb");
  connection->CommitTrans();
  EXPECT_EQ(RowsOf(*folder.Open("Dos.mdb"), "SELECT N FROM T"), "1");
  EXPECT_EQ(RowsOf(*folder.Open("Tres.mdb"), "SELECT N FROM T"), "1");
}

TEST(Attachments, ThousandsOfStatementsLeaveNothingAttached) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Uno.mdb");
  for (int file = 0; file < 30; ++file) {
    const std::string name = "Parte" + std::to_string(file) + ".mdb";
    folder.Create(name);
    connection->Execute("SELECT 1 AS N INTO T IN '" + folder.File(name) + "' FROM (SELECT 1 AS X) AS Y");
    EXPECT_EQ(RowsOf(*folder.Open(name), "SELECT N FROM T"), "1");
    std::filesystem::remove(folder.File(name));
  }
  EXPECT_EQ(folder.Names(), "Uno.mdb");
}

TEST(Attachments, ARecordsetThatStreamsKeepsItsDatabase) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Uno.mdb");
  const auto other = folder.OpenNew("Dos.mdb");
  other->Execute("CREATE TABLE T (N LONG)");
  other->Execute("INSERT INTO T (N) VALUES (1)");
  other->Execute("INSERT INTO T (N) VALUES (2)");
  Recordset rows;
  rows.Open("SELECT N FROM [" + folder.File("Dos.mdb") + "].[T]", connection, kOpenForwardOnly);
  connection->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(RowsOf(rows), "1 / 2");
  rows.Close();
  other->Execute("DROP TABLE T");
}

}  // namespace
}  // namespace ADODB
