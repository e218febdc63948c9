#include "platform/ado/PutOffCopy.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"
#include "platform/text/Case.h"

namespace ADODB {
namespace {

constexpr const char* kCopy = "SELECT DISTINCT * INTO Copia FROM T";
constexpr const char* kAll = "eva|1 / ana|1 / EVA|1 / leo|1";
constexpr const char* kDistinct = "eva|1 / ana|1 / leo|1";

/// A work file with a table that repeats a row, its recordset, and another table.
struct WorkFile {
  WorkFile() {
    work->Execute("CREATE TABLE T (Nombre TEXT(20), N LONG)");
    work->Execute("CREATE TABLE U (N LONG)");
    BulkInsert writer(*work, "T", {"Nombre", "N"});
    for (const char* name : {"x", "eva", "ana", "EVA", "leo"}) writer.Row({name, 1});
    work->Execute("DELETE FROM T WHERE Nombre = 'x'");  // so that keys are no places
    rows.Open("SELECT * FROM T", work, kOpenKeyset, kLockOptimistic);
  }

  /// What another connection sees in the table; "-" if there is none.
  std::string Outside(const std::string& table) const {
    const auto other = folder.Open("W.mdb");
    const std::string select = "SELECT * FROM " + table;
    return FailureOf(*other, select) == velmar::kUnknownTable ? "-" : RowsOf(*other, select);
  }

  TestFolder folder;
  std::shared_ptr<Connection> work = folder.OpenNew("W.mdb", kWorkFile);
  Recordset rows;
};

TEST(PutOffCopy, IsTheTableItselfIfThatIsDroppedNext) {
  WorkFile file;
  long rows = 0;
  for (const auto& [from, to] : {std::pair("T", "Copia"), {"Copia", "T"}, {"T", "Copia"}}) {
    const std::string copied = std::string("SELECT DISTINCT * INTO ") + to + " FROM " + from;
    const std::string before = file.Outside(from);
    file.work->Execute(copied, &rows);
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(file.Outside(from), before);
    EXPECT_EQ(file.Outside(to), "-") << "nothing has been written yet";
    file.work->Execute(std::string("DROP TABLE [") + velmar::text::LCase(from) + "]");
    EXPECT_EQ(file.Outside(from), "-");
    EXPECT_EQ(file.Outside(to), kDistinct);
  }
  const auto definition = [&] {
    return RawDatabase(file.folder.File("W.mdb")).Rows("SELECT sql FROM sqlite_master WHERE name = 'Copia'");
  };
  const std::string taken = definition();
  for (const char* next : {"SELECT DISTINCT * INTO V FROM Copia", "SELECT 1", "DROP TABLE Copia",
                           "SELECT DISTINCT * INTO Copia FROM V", "SELECT 1"})
    file.work->Execute(next);
  EXPECT_EQ(definition(), taken) << "as one that was copied";
}

void ExpectAfter(const std::function<void(WorkFile&)>& next, const char* source, const char* copy) {
  SCOPED_TRACE(source);
  WorkFile file;
  file.work->Execute(kCopy);
  next(file);
  EXPECT_EQ(file.Outside("T"), source);
  EXPECT_EQ(file.Outside("Copia"), copy);
}

TEST(PutOffCopy, IsMadeBeforeAnythingElseHappens) {
  const std::function<void(WorkFile&)> keeping[] = {
      [](WorkFile& file) { EXPECT_NE(FailureOf(*file.work, "DROP TABLE V"), 0); },
      [](WorkFile& file) {
        file.work->BeginTrans();
        file.work->Execute("DROP TABLE T");
        file.work->RollbackTrans();
      },
      [](WorkFile& file) {
        file.rows.Close();
        file.work.reset();
      },
  };
  for (const auto& next : keeping) ExpectAfter(next, kAll, kDistinct);
  ExpectAfter(
      [](WorkFile& file) {
        file.rows.Update("N", 3);
        file.rows.Close();
      },
      "eva|3 / ana|1 / EVA|1 / leo|1", kDistinct);
  struct Case {
    std::vector<const char*> statements;
    const char* source;
    const char* copy = kDistinct;
  };
  for (const Case& each : {Case{{"INSERT INTO T VALUES ('x', 2)"}, "eva|1 / ana|1 / EVA|1 / leo|1 / x|2"},
                           {{"UPDATE T SET N = 2", "SELECT 1"}, "eva|2 / ana|2 / EVA|2 / leo|2"},
                           {{"DROP TABLE U", "DROP TABLE T"}, "-"},
                           {{"DROP TABLE Copia"}, kAll, "-"}}) {
    const auto run = [&each](WorkFile& file) {
      for (const char* statement : each.statements) file.work->Execute(statement);
    };
    ExpectAfter(run, each.source, each.copy);
  }
}

TEST(PutOffCopy, IsNoneWhereTheTableIsMoreThanItsRowsOrTheCopyCannotBe) {
  for (const char* more : {"CREATE UNIQUE INDEX I ON T (Nombre, N)", "CREATE INDEX I ON T (N)"}) {
    WorkFile file;
    file.work->Execute("DELETE FROM T WHERE N = 1");
    file.work->Execute(more);
    file.work->Execute("INSERT INTO T (Nombre, N) VALUES ('luis', 5)");
    file.work->Execute(kCopy);
    EXPECT_EQ(file.Outside("Copia"), "luis|5");
    file.work->Execute("DROP TABLE T");
    file.work->Execute("INSERT INTO Copia SELECT * FROM Copia");
    EXPECT_EQ(file.Outside("Copia"), "luis|5 / luis|5");
  }
  WorkFile file;
  EXPECT_EQ(FailureOf(*file.work, "SELECT DISTINCT * INTO U FROM T"), velmar::kTableExists);
  file.work->Execute("DROP TABLE T");
  EXPECT_EQ(file.Outside("U"), "");
}

TEST(PutOffCopy, IsNoneInAHostFile) {
  const TestFolder folder;
  const auto work = folder.OpenNew("A.mdb");
  work->Execute("CREATE TABLE T (N LONG)");
  work->Execute(kCopy);
  EXPECT_EQ(RowsOf(*folder.Open("A.mdb"), "SELECT Count(*) FROM Copia"), "0");
}

}  // namespace
}  // namespace ADODB
