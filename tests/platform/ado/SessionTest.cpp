#include "platform/ado/Session.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(Session, TransactionsHoldTogetherWhatTheyHold) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  const auto other = folder.Open("A.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(FailureOf([&] { connection->CommitTrans(); }), velmar::kNoTransaction);
  EXPECT_EQ(FailureOf([&] { connection->RollbackTrans(); }), velmar::kNoTransaction);
  connection->BeginTrans();
  EXPECT_EQ(FailureOf([&] { connection->BeginTrans(); }), velmar::kTransactionOpen);
  other->Execute("INSERT INTO T (N) VALUES (1)");  // BeginTrans alone has locked nothing
  connection->Execute("INSERT INTO T (N) VALUES (2)");
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1");
  EXPECT_EQ(FailureOf([&] { connection->Execute("INSERT INTO T (M) VALUES (3)"); }), velmar::kUnknownName);
  connection->CommitTrans();
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
  connection->BeginTrans();
  connection->Execute("DELETE FROM T");
  EXPECT_EQ(FailureOf([&] { connection->Close(); }), velmar::kTransactionOpen);
  connection->RollbackTrans();
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
  {
    const auto dropped = folder.Open("A.mdb");
    dropped->BeginTrans();
    dropped->Execute("DELETE FROM T");
  }
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
}

TEST(Session, AFailingStatementChangesNothing) {
  for (const char* more : {"", "Jet OLEDB:Scratch=True"}) {
    SCOPED_TRACE(more);
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", more);
    connection->Execute("CREATE TABLE T (N LONG NOT NULL, Clave LONG)");
    connection->Execute("CREATE UNIQUE INDEX I ON T (Clave)");
    for (int row = 1; row <= 100; ++row) {
      connection->Execute("INSERT INTO T VALUES (" + std::to_string(row) + ", " + std::to_string(row * 2) +
                          ")");
    }
    const char* failing[] = {
        "UPDATE T SET Clave = Clave + 1 - N + 50",
        "UPDATE T SET N = IIf(N < 90, 0, NULL)",
        "INSERT INTO T SELECT N + 100 AS N, 300 - N AS Clave FROM T",
        "SELECT N, 1 / (N - 90) AS X INTO Nueva FROM T",
        "DELETE FROM T WHERE 1 / (N - 90) > 0",
    };
    for (const bool inTransaction : {false, true}) {
      if (inTransaction) connection->BeginTrans();
      for (const char* text : failing) {
        SCOPED_TRACE(text);
        EXPECT_NE(FailureOf([&] { connection->Execute(text); }), 0);
        EXPECT_EQ(RowsOf(*connection, "SELECT Count(*), Sum(N), Sum(Clave) FROM T"), "100|5050|10100");
      }
      if (inTransaction) connection->CommitTrans();
    }
    EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT Count(*), Sum(N), Sum(Clave) FROM T"), "100|5050|10100");
    EXPECT_EQ(FailureOf([&] { connection->Execute("SELECT * FROM Nueva"); }), velmar::kUnknownTable);
  }
}

TEST(Session, GathersUpdatesOfAScratchFileAndLosesNone) {
  struct Case {
    const char* name;
    void (*end)(Connection&, Recordset&);
  };
  const Case cases[] = {
      {"recordset closed", [](Connection&, Recordset& rows) { rows.Close(); }},
      {"connection closed", [](Connection& connection, Recordset&) { connection.Close(); }},
      {"statement", [](Connection& connection, Recordset&) { connection.Execute("SELECT 1"); }},
      {"failed statement", [](Connection& connection,
                              Recordset&) { EXPECT_NE(FailureOf([&] { connection.Execute("SELEC"); }), 0); }},
      {"transaction begun",
       [](Connection& connection, Recordset&) {
         connection.BeginTrans();
         connection.RollbackTrans();
       }},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", "Jet OLEDB:Scratch=True");
    connection->Execute("CREATE TABLE T (N LONG)");
    connection->Execute("INSERT INTO T (N) VALUES (1)");
    Recordset rows;
    rows.Open("SELECT * FROM T", connection, kOpenKeyset, kLockOptimistic, 512);
    rows.Update("n", 5);
    rows.AddNew({"N"}, {6});
    each.end(*connection, rows);
    EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "5 / 6");
  }
  const TestFolder folder;
  auto connection = folder.OpenNew("A.mdb", "Jet OLEDB:Scratch=True");
  connection->Execute("CREATE TABLE T (N LONG)");
  {
    Recordset rows;
    rows.Open("T", connection, kOpenKeyset, kLockOptimistic);
    rows.AddNew({"N"}, {7});
  }
  connection.reset();
  EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "7")
      << "objects that just go away keep their updates";
}

TEST(Session, AHostFileHasEachUpdateAtOnce) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("INSERT INTO T (N) VALUES (1)");
  Recordset rows;
  rows.Open("SELECT * FROM T", connection, kOpenKeyset, kLockOptimistic);
  rows.Update("N", 2);
  EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT N FROM T"), "2");
}

}  // namespace
}  // namespace ADODB
