#include "platform/ado/Attachments.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

using AttachmentsTest = OneDatabase;

TEST_F(AttachmentsTest, ACopyGoesIntoATransactionOfAnotherConnectionOrLeavesNoTable) {
  connection_->Execute("CREATE TABLE T (ID LONG, Literal TEXT(50), Visible BIT)");
  connection_->Execute("INSERT INTO T VALUES (1, 'Año', True)");
  connection_->Execute("INSERT INTO T VALUES (2, NULL, False)");
  const auto target = folder_.OpenNew("B.mdb", Password("Gest'1"));
  const std::string external = folder_.In("B.mdb;pwd=Gest'1");
  target->BeginTrans();
  long rows = 0;
  connection_->Execute("SELECT * INTO " + external + "Copia FROM T", &rows);
  EXPECT_EQ(rows, 2);
  target->CommitTrans();
  EXPECT_EQ(RowsOf(*target, "SELECT * FROM Copia"), "1|Año|-1 / 2|Null|0");
  EXPECT_NE(FailureOf(*connection_, "SELECT ID, 1 / (ID - 2) AS X INTO " + external + "Rota FROM T"), 0);
  EXPECT_EQ(FailureOf(*target, "SELECT * FROM Rota"), velmar::kUnknownTable);
  EXPECT_EQ(FailureOf(*target, "CREATE TABLE Rota (A LONG)"), 0) << "nothing stays locked";
}

TEST_F(AttachmentsTest, AFileHasOneAliasHoweverItIsSpelt) {
  folder_.OpenNew("Dos.mdb")->Execute("CREATE TABLE T (N LONG)");
  connection_->Execute("CREATE TABLE T (N LONG)");
  connection_->BeginTrans();
  connection_->Execute("INSERT INTO T (N) VALUES (1)");
  std::filesystem::create_symlink(folder_.File("A.mdb"), folder_.File("Enlace.mdb"));
  const std::string own = folder_.In("enlace.MDB");
  const std::string dos = folder_.In("Dos.mdb");
  const std::string other = folder_.In("./dOs.MDB");
  connection_->Execute("INSERT INTO " + dos + "[T] SELECT N FROM " + own + "[T]");
  connection_->Execute("INSERT INTO " + other + "[T] SELECT N + 1 AS N FROM " + dos + "[T]");
  connection_->Execute("INSERT INTO " + own + "[T] SELECT N FROM " + other + "[T] WHERE N > 1");
  connection_->CommitTrans();
  EXPECT_EQ(RowsOf(*connection_, "SELECT N FROM T"), "1 / 2");
  EXPECT_EQ(RowsOf(*connection_, "SELECT N FROM " + dos + "T"), "1 / 2");
}

TEST_F(AttachmentsTest, RefusesAndWritesNothing) {
  connection_->Execute("CREATE TABLE T (N LONG)");
  folder_.OpenNew("Clave.mdb", Password("si"))->Execute("CREATE TABLE T (N LONG)");
  folder_.Write("Texto.mdb", "this is no database at all");
  const std::string before = folder_.Read("Clave.mdb");
  for (const auto& [file, number] : std::vector<std::pair<const char*, long>>{
           {"Falta.mdb", velmar::kDatabaseNotFound},
           {"Clave.mdb", velmar::kWrongPassword},
           {"Clave.mdb;pwd=no", velmar::kWrongPassword},
           {"Texto.mdb", velmar::kNotADatabase},
       }) {
    SCOPED_TRACE(file);
    EXPECT_EQ(FailureOf(*connection_, "SELECT * INTO " + folder_.In(file) + "Nueva FROM T"), number);
    EXPECT_EQ(FailureOf(*connection_, "SELECT N FROM " + folder_.In(file) + "T"), number);
  }
  // Whatever is refused is let go: the engine has room for ten.
  for (int i = 0; i < 11; ++i)
    EXPECT_EQ(FailureOf(*connection_, "SELECT N FROM " + folder_.In("Clave.mdb") + "T"),
              velmar::kWrongPassword);
  EXPECT_EQ(folder_.Read("Clave.mdb"), before);
  EXPECT_EQ(folder_.Names(), (std::set<std::string>{"A.mdb", "Clave.mdb", "Texto.mdb"}));
}

TEST_F(AttachmentsTest, WorkInsideATransactionAndGoWithIt) {
  connection_->Execute("SELECT 1 AS N INTO T FROM (SELECT 1 AS X) AS Y");
  for (const char* name : {"Dos.mdb", "Tres.mdb"}) folder_.OpenNew(name)->Execute("CREATE TABLE T (N LONG)");
  for (const bool kept : {false, true}) {
    connection_->BeginTrans();
    for (const char* name : {"Dos.mdb", "Tres.mdb"})
      connection_->Execute("INSERT INTO " + folder_.In(name) + "T SELECT N FROM T");
    kept ? connection_->CommitTrans() : connection_->RollbackTrans();
    EXPECT_EQ(RowsOf(*folder_.Open("Dos.mdb"), "SELECT N FROM T"), kept ? "1" : "");
    EXPECT_EQ(RowsOf(*folder_.Open("Tres.mdb"), "SELECT N FROM T"), kept ? "1" : "");
  }
}

TEST_F(AttachmentsTest, ManyStatementsLeaveNothingAttached) {
  for (int file = 0; file < 30; ++file) {
    folder_.Create("B.mdb");
    connection_->Execute("SELECT 1 AS N INTO " + folder_.In("B.mdb") + "T FROM (SELECT 1 AS X) AS Y");
    EXPECT_EQ(RowsOf(*folder_.Open("B.mdb"), "SELECT N FROM T"), "1");
    std::filesystem::remove(folder_.File("B.mdb"));
  }
  EXPECT_EQ(folder_.Names(), std::set<std::string>{"A.mdb"});
}

TEST_F(AttachmentsTest, ARecordsetThatStreamsKeepsItsDatabase) {
  const auto other = folder_.OpenNew("B.mdb");
  other->Execute("SELECT 1 AS N INTO T FROM (SELECT 1 AS X) AS Y");
  rows_.Open("SELECT N FROM " + folder_.In("B.mdb") + "T", connection_, kOpenForwardOnly);
  connection_->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(RowsOf(rows_), "1");
  rows_.Close();
  EXPECT_EQ(FailureOf(*other, "DROP TABLE T"), 0);
}

}  // namespace
}  // namespace ADODB
