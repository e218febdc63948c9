#include "platform/ado/RepeatedRows.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

/// Values of which many are equal to another one though they are written in another way, and some look equal
/// and are not.
constexpr const char* kValues =
    "(NULL), (''), ('ana'), ('ANA'), ('Ana García'), ('ANA GARCÍA'), ('Ana Garcia'), ('Ana Garci\u0301a'), "
    "('ana '), ('Ñu'), ('ñu'), ('N\u0303u'), ('nu'), ('\u212A'), ('k'), ('straße'), ('strasse'), ('\u1E9E'), "
    "('I\u0307'), ('i\u0307'), ('\u0130'), ('Ωmega'), ('ωmega'), (1), (1.0), ('1'), (0), (-0.0), (0.1), "
    "(9007199254740992), (9007199254740993), (9007199254740992.0), (x'616E61')";

/// The rows of a table as the engine's own DISTINCT gives them.
std::string Distinct(RawDatabase& raw, const std::string& table) {
  return raw.Rows("SELECT DISTINCT * FROM " + table);
}

/// Writes rows one by one: each name with the numbers 1 and 2.
void Fill(Connection& work, const char* table, const std::vector<const char*>& names) {
  BulkInsert writer(work, table, {"Nombre", "N"});
  for (const char* name : names) {
    for (const int number : {1, 2}) writer.Row({name, number});
  }
}

TEST(RepeatedRows, ACopyHoldsWhatTheEnginesDistinctGivesInItsOrder) {
  const TestFolder folder;
  std::mt19937 random(7);
  const auto value = [&] {
    return "(SELECT column1 FROM V WHERE rowid = " + std::to_string(random() % 33 + 1) + ")";
  };
  for (const char* collation : {"JET", "BINARY", "NOCASE"}) {
    for (const int columns : {1, 3, 130}) {
      SCOPED_TRACE(std::string(collation) + " " + std::to_string(columns));
      const std::string file = collation + std::to_string(columns) + ".mdb";
      folder.Create(file, kWorkFile);
      RawDatabase raw(folder.File(file));
      std::string definition;
      for (int column = 0; column < columns; ++column) {
        definition +=
            (column == 0 ? "c" : ", c") + std::to_string(column) + " DEFAULT 5 COLLATE " + collation;
      }
      raw.Run(std::string("CREATE TEMP TABLE V AS SELECT * FROM (VALUES ") + kValues + ")");
      raw.Run("CREATE TABLE T (" + definition + "); BEGIN");
      for (int row = 0; row < 400; ++row) {
        const std::string key = std::to_string(row * 3 - 500);
        raw.Run("INSERT INTO T (_rowid_, c0) VALUES (" + key + ", " + value() + ")");
        // Rows differ in few columns, also behind the first hundred.
        for (const int column : {2, 120}) {
          if (column >= columns) continue;
          raw.Run("UPDATE T SET c" + std::to_string(column) + " = " + value() + " WHERE _rowid_ = " + key);
        }
      }
      raw.Run("COMMIT");
      const auto work = folder.Open(file);
      long written = 0;
      work->Execute("SELECT DISTINCT * INTO Copia FROM T", &written);
      work->Execute("SELECT 1");  // has the copy made that was put off
      EXPECT_EQ(raw.Rows("SELECT * FROM Copia"), Distinct(raw, "T"));
      EXPECT_EQ(raw.Rows("SELECT count(*) FROM Copia"), " 1:" + std::to_string(written) + "\n");
      // The copy compares by JET, whatever its source did.
      work->Execute("SELECT DISTINCT * INTO Otra FROM Copia");
      work->Execute("SELECT 1");  // has the copy made that was put off
      EXPECT_EQ(raw.Rows("SELECT * FROM Otra"), Distinct(raw, "Copia"));
    }
  }
}

using Change = std::function<void(const std::shared_ptr<Connection>& work, const TestFolder& folder)>;

/// change: between a copy that is known to hold no row twice and the copy of that. The table of a work file
/// becomes the copy when it is dropped, that of another file has been copied by then.
void ExpectDistinctAfter(const char* what, const Change& change) {
  for (const char* more : {"", kWorkFile}) {
    SCOPED_TRACE(std::string(what) + " " + more);
    const TestFolder folder;
    const auto work = folder.OpenNew("W.mdb", more);
    work->Execute("CREATE TABLE T (Nombre TEXT(20), N LONG)");
    work->BeginTrans();
    Fill(*work, "T", {"ana", "eva", "ANA", "leo", "Eva", "ana"});
    work->CommitTrans();
    work->Execute("SELECT * INTO U FROM T");
    long written = 0;
    work->Execute("SELECT DISTINCT * INTO Copia FROM T", &written);
    EXPECT_EQ(written, 6);
    work->Execute("DROP TABLE T");
    change(work, folder);
    work->Execute("SELECT DISTINCT * INTO Otra FROM Copia");
    work->Execute("SELECT 1");  // has the copy made that was put off
    RawDatabase raw(folder.File("W.mdb"));
    EXPECT_EQ(raw.Rows("SELECT * FROM Otra"), Distinct(raw, "Copia"));
  }
}

TEST(RepeatedRows, ACopyOfACopySeesWhatHasHappenedInBetween) {
  const std::pair<const char*, const char*> cases[] = {
      {"SELECT 1", "SELECT 1"},
      {"DROP TABLE U", "INSERT INTO Copia SELECT * FROM Copia"},
      {"UPDATE Copia SET Nombre = 'x', N = 1", "SELECT 1"},
      {"ALTER TABLE Copia DROP COLUMN N", "SELECT 1"},
      {"SELECT 1", "INSERT INTO Copia SELECT * FROM U"},
  };
  for (const auto& each : cases) {
    ExpectDistinctAfter(each.first, [&each](auto& work, auto& folder) {
      work->Execute(each.first);
      folder.Open("W.mdb")->Execute(each.second);
    });
  }
  ExpectDistinctAfter("rows added, then another table dropped", [](auto& work, auto&) {
    work->Execute("INSERT INTO Copia SELECT * FROM U");
    work->Execute("DROP TABLE U");
  });
  ExpectDistinctAfter("the table made anew by another connection", [](auto&, auto& folder) {
    folder.Open("W.mdb")->Execute("DROP TABLE Copia");
    folder.Open("W.mdb")->Execute("SELECT * INTO Copia FROM U");
  });
  ExpectDistinctAfter("rows written one by one", [](auto& work, auto&) {
    Fill(*work, "Copia", {"repe", "repe", "repe"});
  });
  ExpectDistinctAfter("rows changed through a recordset", [](auto& work, auto&) {
    Recordset rows;
    rows.Open("SELECT * FROM Copia", work, kOpenKeyset, kLockOptimistic);
    for (; !rows.Eof(); rows.MoveNext()) {
      EXPECT_FALSE(rows.Fields(0).Value().IsNull());
      rows.Update("Nombre", "aaa");
      rows.Update("N", 1);
    }
  });
  ExpectDistinctAfter("a change taken back", [](auto& work, auto&) {
    work->Execute("INSERT INTO Copia SELECT * FROM U");
    work->BeginTrans();
    work->Execute("DROP TABLE Copia");
    work->Execute("SELECT DISTINCT * INTO Copia FROM U");
    work->RollbackTrans();
  });
}

TEST(RepeatedRows, AreFoundWhereTheFirstAndLastRowsSayNothingOfTheOthers) {
  const TestFolder folder;
  folder.Create("W.mdb", kWorkFile);
  RawDatabase raw(folder.File("W.mdb"));
  // A tells the rows of both ends apart; those between them have it in common, and two in three are repeated.
  raw.Run(
      "CREATE TABLE T (A INTEGER COLLATE JET, B TEXT COLLATE JET);"
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000) "
      "INSERT INTO T SELECT CASE WHEN i BETWEEN 200 AND 29800 THEN 0 ELSE i END, 'b' || (i / 3) FROM n");
  long written = 0;
  folder.Open("W.mdb")->Execute("SELECT DISTINCT * INTO Copia FROM T", &written);
  EXPECT_EQ(raw.Rows("SELECT * FROM Copia"), Distinct(raw, "T"));
  EXPECT_LT(written, 15000);
}

TEST(RepeatedRows, ColumnsThatTheEngineComputesCountToo) {
  const TestFolder folder;
  folder.Create("W.mdb", kWorkFile);
  RawDatabase raw(folder.File("W.mdb"));
  raw.Run(
      "CREATE TABLE T (A TEXT COLLATE JET, G TEXT COLLATE JET GENERATED ALWAYS AS (hex(A)));"
      "INSERT INTO T (A) VALUES ('a'), ('A'), ('a')");
  folder.Open("W.mdb")->Execute("SELECT DISTINCT * INTO Copia FROM T");
  EXPECT_EQ(raw.Rows("SELECT * FROM Copia"), Distinct(raw, "T"));
}

TEST(RepeatedRows, OnlyAWholeTableIsTakenForOne) {
  const TestFolder folder;
  const auto work = folder.OpenNew("W.mdb", kWorkFile);
  work->Execute("CREATE TABLE T (Nombre TEXT(20), N LONG)");
  BulkInsert writer(*work, "T", {"Nombre", "N"});
  for (const int number : {3, 1, 2, 1, 3, 2}) writer.Row({number == 1 ? "uno" : "otro", number});
  const std::vector<std::pair<const char*, const char*>> cases{
      {"SELECT DISTINCT * INTO C FROM T", "otro|3 / uno|1 / otro|2"},
      {"SELECT DISTINCT * INTO C FROM T WHERE N > 1", "otro|3 / otro|2"},
      {"SELECT DISTINCT * INTO C FROM T ORDER BY N", "uno|1 / otro|2 / otro|3"},
      {"SELECT DISTINCT TOP 2 * INTO C FROM T ORDER BY N", "uno|1 / otro|2"},
      {"SELECT DISTINCT Nombre INTO C FROM T", "otro / uno"},
      {"SELECT * INTO C FROM T", "otro|3 / uno|1 / otro|2 / uno|1 / otro|3 / otro|2"},
      {"SELECT DISTINCT * INTO C FROM (SELECT N FROM T) AS X", "3 / 1 / 2"},
  };
  for (const auto& [statement, rows] : cases) {
    SCOPED_TRACE(statement);
    work->Execute(statement);
    EXPECT_EQ(RowsOf(*work, "SELECT * FROM C"), rows);
    work->Execute("DROP TABLE C");
  }
}

}  // namespace
}  // namespace ADODB
