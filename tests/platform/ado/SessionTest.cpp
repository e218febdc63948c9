#include "platform/ado/Session.h"

#include <gtest/gtest.h>

#include <tuple>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/Cursor.h"
#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

using SessionTest = OneDatabase;

TEST_F(SessionTest, TransactionsHoldTogetherWhatTheyHold) {
  const auto other = folder_.Open("A.mdb");
  connection_->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(FailureOf([&] { connection_->CommitTrans(); }), velmar::kNoTransaction);
  EXPECT_EQ(FailureOf([&] { connection_->RollbackTrans(); }), velmar::kNoTransaction);
  connection_->BeginTrans();
  EXPECT_EQ(FailureOf([&] { connection_->BeginTrans(); }), velmar::kTransactionOpen);
  other->Execute("INSERT INTO T (N) VALUES (1)");  // BeginTrans alone has locked nothing
  connection_->Execute("INSERT INTO T (N) VALUES (2)");
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1");
  EXPECT_EQ(FailureOf(*connection_, "INSERT INTO T (M) VALUES (3)"), velmar::kUnknownName);
  connection_->CommitTrans();
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
  connection_->BeginTrans();
  connection_->Execute("DELETE FROM T");
  EXPECT_EQ(FailureOf([&] { connection_->Close(); }), velmar::kTransactionOpen);
  connection_->RollbackTrans();
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
  connection_->BeginTrans();
  connection_->Execute("DELETE FROM T");
  connection_.reset();
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2") << "a connection that goes away keeps nothing";
}

TEST(Session, AFailingStatementChangesNothing) {
  for (const char* more : {"", kWorkFile}) {
    SCOPED_TRACE(more);
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", more);
    connection->Execute("CREATE TABLE T (N LONG NOT NULL, Clave LONG)");
    connection->Execute("CREATE UNIQUE INDEX I ON T (Clave)");
    BulkInsert writer(*connection, "T", {"N", "Clave"});
    for (int row = 1; row <= 100; ++row) writer.Row({row, row * 2});
    for (const bool inTransaction : {false, true}) {
      if (inTransaction) connection->BeginTrans();
      for (const char* text : {
               "UPDATE T SET Clave = Clave + 1 - N + 50",
               "UPDATE T SET N = IIf(N < 90, 0, NULL)",
               "INSERT INTO T SELECT N + 100 AS N, 300 - N AS Clave FROM T",
               "SELECT N, 1 / (N - 90) AS X INTO Nueva FROM T",
               "DELETE FROM T WHERE 1 / (N - 90) > 0",
           }) {
        SCOPED_TRACE(text);
        EXPECT_NE(FailureOf(*connection, text), 0);
        EXPECT_EQ(RowsOf(*connection, "SELECT Count(*), Sum(N), Sum(Clave) FROM T"), "100|5050|10100");
      }
      if (inTransaction) connection->CommitTrans();
    }
    EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT Count(*), Sum(N), Sum(Clave) FROM T"), "100|5050|10100");
    EXPECT_EQ(FailureOf(*connection, "SELECT * FROM Nueva"), velmar::kUnknownTable);
  }
}

TEST(Session, ACommitThatMeetsAReaderLeavesNoTransaction) {
  const TestFolder folder;
  folder.OpenNew("A.mdb")->Execute("CREATE TABLE T (N LONG)");
  const auto session = Session::Open(folder.File("A.mdb"), "");
  sqlite3_busy_timeout(session->Engine().Handle(), 0);
  RawDatabase reader(folder.File("A.mdb"));
  reader.Run("BEGIN; SELECT * FROM T");
  EXPECT_EQ(FailureOf([&] { session->Execute("SELECT 1 AS N INTO Copia", nullptr); }),
            velmar::kDatabaseLocked);
  reader.Run("COMMIT; INSERT INTO T VALUES (1)");
  session->Execute("INSERT INTO T VALUES (2)", nullptr);
  EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "1 / 2");
  session->Execute("SELECT 1 AS N INTO Copia", nullptr);
  session->Close();
}

TEST(Session, GathersUpdatesOfAWorkFileAndLosesNone) {
  using Rows = std::unique_ptr<Recordset>;
  using End = void (*)(const TestFolder& folder, std::shared_ptr<Connection>& connection, Rows& rows);
  const End ends[] = {
      [](auto&, auto&, Rows& rows) { rows->Close(); },
      [](auto&, auto& connection, Rows&) { connection->Close(); },
      [](auto&, auto& connection, Rows&) { connection->Execute("SELECT 1"); },
      [](auto&, auto& connection, Rows&) { EXPECT_NE(FailureOf(*connection, "SELECT * FROM Nada"), 0); },
      [](const TestFolder& folder, auto& connection, Rows&) {
        connection->Execute("UPDATE " + folder.In("B.mdb") + "T SET N = 0");
      },
      [](auto&, auto& connection, Rows&) { connection->BeginTrans(); },
      [](auto&, auto& connection, Rows& rows) {
        rows.reset();
        connection.reset();
      },
  };
  for (const End& end : ends) {
    SCOPED_TRACE(&end - ends);
    const TestFolder folder;
    folder.OpenNew("B.mdb")->Execute("CREATE TABLE T (N LONG)");
    auto connection = folder.OpenNew("A.mdb", kWorkFile);
    connection->Execute("SELECT 1 AS N INTO T FROM (SELECT 1 AS X) AS Y");
    auto rows = std::make_unique<Recordset>();
    rows->Open("SELECT * FROM T", connection, kOpenKeyset, kLockOptimistic, 512);
    rows->Update("n", 5);
    connection->Execute("UPDATE T SET N = N + 2");
    EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "1");
    rows->AddNew({"N"}, {6});
    EXPECT_EQ(FailureOf(*connection, "UPDATE T SET Nada = 1"), velmar::kUnknownName);
    end(folder, connection, rows);
    EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "7 / 6");
  }
}

TEST(Session, KeepsTheJournalOfASmallWorkFileInMemoryAndOthersBesideTheFile) {
  for (const auto& [more, rows, beside] :
       {std::tuple(kWorkFile, 10, false), {kWorkFile, 20'000, true}, {"", 10, true}}) {
    SCOPED_TRACE(std::string(more) + " " + std::to_string(rows));
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", more);
    connection->Execute("CREATE TABLE T (N LONG, Nombre TEXT)");
    BulkInsert writer(*connection, "T", {"N", "Nombre"});
    for (int row = 0; row < rows; ++row) writer.Row({row, std::string(1000, 'x')});
    // Grown by this connection: it has to notice by itself.
    connection->Execute("SELECT 1");
    connection->BeginTrans();
    connection->Execute("UPDATE T SET N = 1");
    EXPECT_EQ(std::filesystem::exists(folder.File("A.mdb-journal")), beside);
    connection->RollbackTrans();
    EXPECT_EQ(RowsOf(*connection, "SELECT Max(N) FROM T"), std::to_string(rows - 1));
  }
}

TEST_F(SessionTest, AHostFileHasEachUpdateAtOnce) {
  connection_->Execute("SELECT 1 AS N INTO T FROM (SELECT 1 AS X) AS Y");
  rows_.Open("SELECT * FROM T", connection_, kOpenKeyset, kLockOptimistic);
  rows_.Update("N", 2);
  EXPECT_EQ(RowsOf(*folder_.Open("A.mdb"), "SELECT N FROM T"), "2");
}

}  // namespace
}  // namespace ADODB
