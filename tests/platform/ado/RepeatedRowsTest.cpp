#include "platform/ado/RepeatedRows.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <random>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

constexpr const char* kScratch = "Jet OLEDB:Scratch=True";

/// Values of which many are equal to another one though they are written in another way, and some look equal
/// and are not.
constexpr std::array<const char*, 33> kValues{"NULL",
                                              "''",
                                              "'ana'",
                                              "'ANA'",
                                              "'Ana García'",
                                              "'ANA GARCÍA'",
                                              "'Ana Garcia'",
                                              "'Ana Garci' || char(0x301) || 'a'",
                                              "'ana '",
                                              "'Ñu'",
                                              "'ñu'",
                                              "'N' || char(0x303) || 'u'",
                                              "'nu'",
                                              "char(0x212A)",
                                              "'k'",
                                              "'straße'",
                                              "'strasse'",
                                              "char(0x1E9E)",
                                              "'I' || char(0x307)",
                                              "'i' || char(0x307)",
                                              "char(0x130)",
                                              "'Ωmega'",
                                              "'ωmega'",
                                              "1",
                                              "1.0",
                                              "'1'",
                                              "0",
                                              "-0.0",
                                              "9007199254740992",
                                              "9007199254740993",
                                              "9007199254740992.0",
                                              "x'616E61'",
                                              "0.1"};

/// Has a copy that was put off be made, for those who look at the file from outside.
void Settle(Connection& work) {
  work.Execute("SELECT 1");
}

/// The rows of a table as the engine's own DISTINCT gives them.
std::string Distinct(RawDatabase& raw, const std::string& table) {
  return raw.Rows("SELECT DISTINCT * FROM " + table);
}

TEST(RepeatedRows, ACopyHoldsWhatTheEnginesDistinctGivesInItsOrder) {
  const TestFolder folder;
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (const char* collation : {"JET", "BINARY", "NOCASE"}) {
    for (const int columns : {1, 3, 130}) {
      SCOPED_TRACE(std::string(collation) + " " + std::to_string(columns));
      const std::string file = collation + std::to_string(columns) + ".mdb";
      folder.Create(file, kScratch);
      RawDatabase raw(folder.File(file));
      std::string definition;
      for (int column = 0; column < columns; ++column) {
        definition += (column == 0 ? "c" : ", c") + std::to_string(column) + " COLLATE " + collation;
      }
      raw.Run("CREATE TABLE T (" + definition + "); BEGIN");
      for (int row = 0; row < 400; ++row) {
        // Rows differ in few columns, also behind the first hundred.
        std::string values;
        for (int column = 0; column < columns; ++column) {
          const bool varies = column == 0 || column == 2 || column == 120;
          values += (column == 0 ? "" : ", ") + std::string(varies ? kValues[below(kValues.size())] : "5");
        }
        raw.Run("INSERT INTO T (_rowid_, " +
                [&] {
                  std::string names;
                  for (int column = 0; column < columns; ++column)
                    names += (column == 0 ? "c" : ", c") + std::to_string(column);
                  return names;
                }() +
                ") VALUES (" + std::to_string(row * 3 - 500) + ", " + values + ")");
      }
      raw.Run("COMMIT");
      const auto work = folder.Open(file);
      long written = 0;
      work->Execute("SELECT DISTINCT * INTO Copia FROM T", &written);
      Settle(*work);
      EXPECT_EQ(raw.Rows("SELECT * FROM Copia"), Distinct(raw, "T"));
      EXPECT_EQ(raw.Rows("SELECT count(*) FROM Copia"), " 1:" + std::to_string(written) + "\n");
      // The copy compares by JET, whatever its source did.
      work->Execute("SELECT DISTINCT * INTO Otra FROM Copia");
      Settle(*work);
      EXPECT_EQ(raw.Rows("SELECT * FROM Otra"), Distinct(raw, "Copia"));
    }
  }
}

TEST(RepeatedRows, ACopyOfACopySeesWhatHasHappenedInBetween) {
  struct Case {
    const char* what;
    std::function<void(Connection&, const TestFolder&)> change;
  };
  const auto other = [](const TestFolder& folder, const std::string& sql) {
    folder.Open("W.mdb")->Execute(sql);
  };
  const std::vector<Case> cases{
      {"nothing", [](Connection&, const TestFolder&) {}},
      {"another table dropped", [](Connection& work, const TestFolder&) { work.Execute("DROP TABLE T"); }},
      {"another table dropped, rows added by another connection",
       [&](Connection& work, const TestFolder& folder) {
         work.Execute("DROP TABLE T");
         other(folder, "INSERT INTO Copia SELECT * FROM Copia");
       }},
      {"rows added",
       [](Connection& work, const TestFolder&) { work.Execute("INSERT INTO Copia SELECT * FROM T"); }},
      {"rows added and another table dropped",
       [](Connection& work, const TestFolder&) {
         work.Execute("INSERT INTO Copia SELECT * FROM T");
         work.Execute("DROP TABLE T");
       }},
      {"a row changed by a statement",
       [](Connection& work, const TestFolder&) { work.Execute("UPDATE Copia SET Nombre = 'x', N = 1"); }},
      {"rows written one by one",
       [](Connection& work, const TestFolder&) {
         BulkInsert writer(work, "Copia", {"Nombre", "N"});
         for (int i = 0; i < 3; ++i) writer.Row({"repe", 4});
       }},
      {"rows changed through a recordset",
       [](Connection& work, const TestFolder&) {
         auto rows = std::make_unique<Recordset>();
         rows->Open("SELECT * FROM Copia", std::shared_ptr<Connection>(&work, [](Connection*) {}),
                    kOpenKeyset, kLockOptimistic);
         for (; !rows->Eof(); rows->MoveNext()) {
           EXPECT_FALSE(rows->Fields(0).Value().IsNull());
           rows->Update("Nombre", "aaa");
           rows->Update("N", 1);
         }
       }},
      {"a column gone",
       [](Connection& work, const TestFolder&) { work.Execute("ALTER TABLE Copia DROP COLUMN N"); }},
      {"a change taken back",
       [](Connection& work, const TestFolder&) {
         work.BeginTrans();
         work.Execute("DROP TABLE Copia");
         work.Execute("SELECT DISTINCT * INTO Copia FROM T");
         work.RollbackTrans();
       }},
      {"rows added by another connection",
       [&](Connection&, const TestFolder& folder) { other(folder, "INSERT INTO Copia SELECT * FROM T"); }},
      {"the table made anew by another connection",
       [&](Connection&, const TestFolder& folder) {
         other(folder, "DROP TABLE Copia");
         other(folder, "SELECT * INTO Copia FROM T");
       }},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    const TestFolder folder;
    const auto work = folder.OpenNew("W.mdb", kScratch);
    work->Execute("CREATE TABLE T (Nombre TEXT(20), N LONG)");
    BulkInsert writer(*work, "T", {"Nombre", "N"});
    for (const char* name : {"ana", "eva", "ANA", "leo", "Eva", "ana"}) {
      for (const int number : {1, 2}) writer.Row({name, number});
    }
    long written = 0;
    work->Execute("SELECT DISTINCT * INTO Copia FROM T", &written);
    EXPECT_EQ(written, 6);
    Settle(*work);
    each.change(*work, folder);
    work->Execute("SELECT DISTINCT * INTO Otra FROM Copia");
    Settle(*work);
    RawDatabase raw(folder.File("W.mdb"));
    EXPECT_EQ(raw.Rows("SELECT * FROM Otra"), Distinct(raw, "Copia"));
  }
}

TEST(RepeatedRows, AreFoundWhereTheFirstAndLastRowsSayNothingOfTheOthers) {
  const TestFolder folder;
  folder.Create("W.mdb", kScratch);
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
  folder.Create("W.mdb", kScratch);
  RawDatabase raw(folder.File("W.mdb"));
  raw.Run(
      "CREATE TABLE T (A TEXT COLLATE JET, G TEXT COLLATE JET GENERATED ALWAYS AS (hex(A)));"
      "INSERT INTO T (A) VALUES ('a'), ('A'), ('a')");
  folder.Open("W.mdb")->Execute("SELECT DISTINCT * INTO Copia FROM T");
  EXPECT_EQ(raw.Rows("SELECT * FROM Copia"), Distinct(raw, "T"));
}

TEST(RepeatedRows, OnlyAWholeTableIsTakenForOne) {
  const TestFolder folder;
  const auto work = folder.OpenNew("W.mdb", kScratch);
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
