#include "platform/ado/KeysetCursor.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

constexpr const char* kScratch = "Jet OLEDB:Scratch=True";

/// Whatever way a row is written, the file holds what UPDATE would have left.
TEST(KeysetCursor, WritesWhatUpdateWrites) {
  const std::vector<const char*> tables{
      "(C TEXT COLLATE JET)",
      "(C COLLATE JET)",
      "(C INTEGER COLLATE JET)",
      "(A TEXT, C TEXT COLLATE JET UNIQUE)",
      "(C TEXT COLLATE JET NOT NULL)",
      "(C TEXT COLLATE JET CHECK (length(C) < 9))",
      "(C TEXT COLLATE JET, G TEXT GENERATED ALWAYS AS (C || '!') STORED)",
  };
  const std::vector<const char*> before{"'0123'", "'abcd'", "'ñandú'", "''", "'a much longer text'"};
  const std::vector<Variant> after{"9876", "wxyz", "ÑANDÚ",
                                   "",     "12",   "otro texto, más largo que el anterior"};
  for (const char* table : tables) {
    for (const Variant& value : after) {
      SCOPED_TRACE(std::string(table) + " " + value.AsText());
      const TestFolder folder;
      folder.Create("W.mdb", kScratch);
      RawDatabase raw(folder.File("W.mdb"));
      for (const std::string name : {"T", "U"}) {
        raw.Run("CREATE TABLE \"" + name + "\" " + table);
        for (const char* text : before)
          raw.Run("INSERT OR IGNORE INTO " + name + " (C) VALUES (" + text + ")");
        raw.Run("INSERT OR IGNORE INTO " + name + " (C) VALUES (x'30313233'), (NULL), (1234)");
      }
      const auto work = folder.Open("W.mdb");
      Recordset rows;
      rows.Open("SELECT C FROM T", work, kOpenKeyset, kLockOptimistic);
      for (; !rows.Eof(); rows.MoveNext()) {
        const Variant old = rows.Fields(0).Value();
        const bool written = FailureOf([&] { rows.Update("C", value); }) == 0;
        if (!written) {
          EXPECT_EQ(rows.Fields(0).Value(), old);
        }
      }
      rows.Close();
      work->Close();
      raw.Run("UPDATE OR IGNORE U SET C = '" + value.AsText() + "'");
      EXPECT_EQ(raw.Rows("SELECT * FROM T"), raw.Rows("SELECT * FROM U"));
    }
  }
}

class Rows : public testing::Test {
 protected:
  Rows() {
    work_->Execute("CREATE TABLE T (Cuenta TEXT(20), N LONG)");
    for (int n = 1; n <= 200; ++n) {
      work_->Execute("INSERT INTO T (Cuenta, N) VALUES ('" + std::to_string(1000 + n) + "', " +
                     std::to_string(n) + ")");
    }
    rows_.Open("SELECT Cuenta, N FROM T", work_, kOpenKeyset, kLockOptimistic);
  }

  /// Reads and writes the rows up to this one, so that those behind it have been read ahead.
  void WriteUpTo(int last) {
    for (int n = 1; n <= last; ++n, rows_.MoveNext()) {
      rows_.Update("Cuenta", "9" + rows_.Fields(0).Value().AsText().substr(1));
    }
  }

  TestFolder folder_;
  std::shared_ptr<Connection> work_ = folder_.OpenNew("W.mdb", kScratch);
  Recordset rows_;
};

TEST_F(Rows, AreReadAsTheyAreThoughTheyWereReadAhead) {
  WriteUpTo(3);
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "1004");
  rows_.Update("Cuenta", "abcd");
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "abcd");
  rows_.Update("Cuenta", "un texto más largo");
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "un texto más largo");
  rows_.Update("Cuenta", Variant());
  EXPECT_TRUE(rows_.Fields("Cuenta").Value().IsNull());
  rows_.MoveNext();
  work_->Execute("UPDATE T SET Cuenta = 'nueva' WHERE N IN (5, 6)");
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "nueva");
  rows_.Update("N", 50);
  rows_.MoveNext();
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "nueva");
  rows_.MoveNext();
  rows_.Update("N", 70);
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 70);
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "1007");
  rows_.MoveFirst();
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "9001");
}

TEST_F(Rows, ThatAreDeletedBeneathAreAFailureAndTheOthersGoOn) {
  WriteUpTo(3);
  work_->Execute("DELETE FROM T WHERE N = 5 OR N = 190");
  WriteUpTo(1);
  EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kRecordDeleted);
  EXPECT_EQ(FailureOf([&] { rows_.Update("Cuenta", "9005"); }), velmar::kRecordDeleted);
  rows_.MoveNext();
  WriteUpTo(184);
  EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kRecordDeleted);
  rows_.Close();
  EXPECT_EQ(RowsOf(*work_, "SELECT Count(*) FROM T WHERE Cuenta LIKE '9%'"), "188");
}

TEST_F(Rows, OfATransactionThatIsTakenBackAreAsBefore) {
  work_->BeginTrans();
  WriteUpTo(100);
  work_->Execute("DELETE FROM T WHERE N = 102");
  rows_.Update("Cuenta", "nueva");
  EXPECT_EQ(rows_.Fields(0).Value().AsText(), "nueva");
  work_->RollbackTrans();
  EXPECT_EQ(rows_.Fields(0).Value().AsText(), "1101");
  rows_.MoveNext();
  EXPECT_EQ(rows_.Fields(0).Value().AsText(), "1102");
  EXPECT_EQ(RowsOf(*work_, "SELECT Count(*) FROM T WHERE Cuenta LIKE '9%'"), "0");
  rows_.MoveFirst();
  EXPECT_EQ(rows_.Fields(0).Value().AsText(), "1001");
}

/// What was read ahead is only as good as the lock that kept others out.
TEST_F(Rows, ThatOthersHaveWrittenSinceAreReadAgain) {
  struct Case {
    const char* what;
    std::function<void()> begin;
    std::function<void()> end;
  };
  const std::vector<Case> cases{
      {"rows gathered", [] {}, [&] { RowsOf(*work_, "SELECT Count(*) FROM T"); }},
      {"transaction kept", [&] { work_->BeginTrans(); }, [&] { work_->CommitTrans(); }},
      {"transaction taken back", [&] { work_->BeginTrans(); }, [&] { work_->RollbackTrans(); }},
  };
  const auto other = folder_.Open("W.mdb");
  int next = 1;
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    each.begin();
    WriteUpTo(3);
    rows_.Fields("Cuenta").Value();
    each.end();
    other->Execute("UPDATE T SET Cuenta = 'otro' WHERE N = " + std::to_string(next + 4));
    rows_.MoveNext();
    EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "otro");
    next += 4;
  }
  rows_.MoveFirst();
  rows_.Fields("Cuenta").Value();
  other->Execute("UPDATE T SET Cuenta = 'otro' WHERE N = 1");
  rows_.MoveFirst();
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "otro");
}

/// Where rows cannot be told apart by the engine's key, nothing is written rather than another row.
TEST(KeysetCursor, OfATableWhoseKeyIsHiddenIsReadOnly) {
  const TestFolder folder;
  folder.Create("W.mdb", kScratch);
  RawDatabase(folder.File("W.mdb"))
      .Run("CREATE TABLE T (A TEXT COLLATE JET, _RowId_ INTEGER); INSERT INTO T VALUES ('x', 7), ('y', 7)");
  const auto work = folder.Open("W.mdb");
  Recordset rows;
  rows.Open("SELECT * FROM T", work, kOpenKeyset, kLockOptimistic);
  EXPECT_EQ(FailureOf([&] { rows.Update("A", "z"); }), velmar::kReadOnly);
  EXPECT_EQ(RowsOf(rows), "x|7 / y|7");
}

TEST_F(Rows, ThatATriggerWritesOrThatAreGoneWithTheirTableAreNotTakenFromMemory) {
  RawDatabase(folder_.File("W.mdb"))
      .Run(
          "CREATE TRIGGER D AFTER UPDATE ON T WHEN new.N = 2 BEGIN "
          "UPDATE T SET Cuenta = 'trigger', N = 1003 WHERE N = 3; END");
  WriteUpTo(2);
  EXPECT_EQ(rows_.Fields("Cuenta").Value().AsText(), "trigger");
  work_->BeginTrans();
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 1003);
  work_->Execute("DROP TABLE T");
  EXPECT_NE(FailureOf([&] { rows_.Fields("N").Value(); }), 0);
  work_->RollbackTrans();
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 1003);
}

TEST(KeysetCursor, WritesTextsOfAFileInAnotherEncodingWhole) {
  const TestFolder folder;
  folder.Create("W.mdb", kScratch);
  RawDatabase raw(folder.File("U.mdb"));
  // "VELS", the mark of a work file.
  raw.Run(
      "PRAGMA encoding = 'UTF-16le'; PRAGMA application_id = 0x56454C53;"
      "CREATE TABLE \"T\" (\"C\" TEXT COLLATE JET); INSERT INTO T VALUES ('ab'), ('cd')");
  const auto work = folder.Open("U.mdb");
  Recordset rows;
  rows.Open("SELECT C FROM T", work, kOpenKeyset, kLockOptimistic);
  for (; !rows.Eof(); rows.MoveNext()) {
    EXPECT_EQ(rows.Fields(0).Value().AsText().size(), 2U);
    rows.Update("C", "wxyz");
  }
  rows.Close();
  EXPECT_EQ(RowsOf(*work, "SELECT C FROM T"), "wxyz / wxyz");
}

TEST_F(Rows, ThatWereWrittenAreSeenByEveryOtherReaderAfterwards) {
  WriteUpTo(70);
  // Any other use of the connection ends what is being gathered.
  EXPECT_EQ(RowsOf(*work_, "SELECT Count(*) FROM T WHERE Cuenta LIKE '9%'"), "70");
  WriteUpTo(70);
  rows_.Close();
  EXPECT_EQ(RowsOf(*folder_.Open("W.mdb"), "SELECT Count(*) FROM T WHERE Cuenta LIKE '9%'"), "140");
}

}  // namespace
}  // namespace ADODB
