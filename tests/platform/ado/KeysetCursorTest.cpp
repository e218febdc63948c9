#include "platform/ado/KeysetCursor.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/RawDatabase.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

/// Whatever way a row is written, the file holds what UPDATE would have left.
TEST(KeysetCursor, WritesWhatUpdateWrites) {
  const std::vector<Variant> values{"9876", "wxyz", "ÑANDÚ", "", "12", "otro texto, más largo que todos"};
  for (const std::string table : {
           "(\"C\" TEXT COLLATE JET)",
           "(\"C\" COLLATE JET)",
           "(C INTEGER COLLATE JET)",
           "(A TEXT, C TEXT COLLATE JET UNIQUE)",
           "(C TEXT COLLATE JET NOT NULL)",
           "(C TEXT COLLATE JET CHECK (length(C) < 9))",
           "(C TEXT COLLATE JET, G TEXT GENERATED ALWAYS AS (C || '!') STORED)",
       }) {
    for (const Variant& value : values) {
      SCOPED_TRACE(table + " " + value.AsText());
      const TestFolder folder;
      folder.Create("W.mdb", kWorkFile);
      RawDatabase raw(folder.File("W.mdb"));
      for (const std::string name : {"T", "U"}) {
        raw.Run("CREATE TABLE \"" + name + "\" " + table);
        raw.Run("INSERT OR IGNORE INTO " + name +
                " (C) VALUES ('0123'), (x'30313233'), ('abcd'), ('ñandú'), " +
                "(''), ('a much longer text'), (NULL), (1234)");
      }
      const auto work = folder.Open("W.mdb");
      Recordset rows;
      rows.Open("SELECT C FROM T", work, kOpenKeyset, kLockOptimistic);
      for (; !rows.Eof(); rows.MoveNext()) {
        const Variant old = rows.Fields(0).Value();
        const long failure = FailureOf([&] { rows.Update("C", value); });
        EXPECT_EQ(rows.Fields(0).Value() == old, failure != 0 || value == old);
      }
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
    BulkInsert writer(*work_, "T", {"Cuenta", "N"});
    for (int n = 1; n <= 200; ++n) writer.Row({std::to_string(1000 + n), n});
    rows_.Open("SELECT Cuenta, N FROM T WHERE N <> 189", work_, kOpenKeyset, kLockOptimistic);
  }

  /// Reads and writes the rows up to this one, so that those behind it have been read ahead.
  void WriteUpTo(int last) {
    for (int n = 1; n <= last; ++n, rows_.MoveNext()) rows_.Update("Cuenta", "9" + Account().substr(1));
  }

  std::string Account() { return rows_.Fields("Cuenta").Value().AsText(); }

  TestFolder folder_;
  std::shared_ptr<Connection> work_ = folder_.OpenNew("W.mdb", kWorkFile);
  Recordset rows_;
};

TEST_F(Rows, AreReadAsTheyAreThoughTheyWereReadAhead) {
  WriteUpTo(3);
  rows_.Update("Cuenta", "abcd");
  EXPECT_EQ(Account(), "abcd");
  rows_.Update("Cuenta", "un texto más largo");
  EXPECT_EQ(Account(), "un texto más largo");
  rows_.Update("Cuenta", Variant());
  EXPECT_TRUE(rows_.Fields("Cuenta").Value().IsNull());
  EXPECT_EQ(FailureOf([&] { rows_.Update("Importe", 1); }), velmar::kItemNotInCollection);
  rows_.MoveNext();
  work_->Execute("UPDATE T SET Cuenta = 'nueva' WHERE N = 5");
  EXPECT_EQ(Account(), "nueva");
  rows_.Update("N", 50);
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 50);
  rows_.MoveFirst();
  EXPECT_EQ(Account(), "9001");
}

TEST_F(Rows, ThatAreDeletedBeneathAreAFailureAndTheOthersGoOn) {
  WriteUpTo(3);
  work_->Execute("DELETE FROM T WHERE N = 5 OR N = 190");
  WriteUpTo(1);
  EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kRecordDeleted);
  EXPECT_EQ(FailureOf([&] { rows_.Update("Cuenta", "9005"); }), velmar::kRecordDeleted);
  rows_.MoveNext();
  WriteUpTo(183);
  EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kRecordDeleted);
  rows_.Close();
  EXPECT_EQ(RowsOf(*work_, "SELECT Count(*) FROM T WHERE Cuenta LIKE '9%'"), "187");
}

/// What was read ahead is only as good as the lock that kept others out.
TEST_F(Rows, ThatOthersHaveWrittenSinceAreReadAgain) {
  const std::function<void()> ends[] = {
      [&] { work_->Execute("SELECT 1"); },
      [&] { work_->CommitTrans(); },
      [&] { work_->RollbackTrans(); },
  };
  const auto change = [&](const std::string& sql) { folder_.Open("W.mdb")->Execute(sql); };
  for (int turn = 0; turn < 3; ++turn) {
    SCOPED_TRACE(turn);
    if (turn > 0) work_->BeginTrans();
    WriteUpTo(3);
    Account();
    ends[turn]();
    change("UPDATE T SET Cuenta = 'otro' WHERE N = " + std::to_string(4 * turn + 5));
    rows_.MoveNext();
    EXPECT_EQ(Account(), "otro");
  }
  rows_.MoveFirst();
  Account();
  change("UPDATE T SET Cuenta = 'otro' WHERE N = 1");
  rows_.MoveFirst();
  EXPECT_EQ(Account(), "otro");
}

/// Nothing is written rather than another row.
TEST_F(Rows, OfATableWhoseKeyIsHiddenAreReadOnly) {
  RawDatabase(folder_.File("W.mdb"))
      .Run("CREATE TABLE K (A TEXT COLLATE JET, _RowId_ INTEGER); INSERT INTO K VALUES ('x', 7), ('y', 7)");
  rows_.Close();
  rows_.Open("SELECT * FROM K", work_, kOpenKeyset, kLockOptimistic);
  EXPECT_EQ(FailureOf([&] { rows_.Update("A", "z"); }), velmar::kReadOnly);
  EXPECT_EQ(RowsOf(rows_), "x|7 / y|7");
}

TEST_F(Rows, ThatATriggerWritesOrThatAreGoneWithTheirTableAreNotTakenFromMemory) {
  RawDatabase(folder_.File("W.mdb"))
      .Run(
          "CREATE TRIGGER D AFTER UPDATE ON T WHEN new.N = 2 BEGIN "
          "UPDATE T SET Cuenta = 'trigger', N = 1003 WHERE N = 3; END");
  WriteUpTo(2);
  EXPECT_EQ(Account(), "trigger");
  work_->BeginTrans();
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 1003);
  work_->Execute("DROP TABLE T");
  EXPECT_NE(FailureOf([&] { rows_.Fields("N").Value(); }), 0);
  work_->RollbackTrans();
  EXPECT_EQ(rows_.Fields("N").Value().AsLong(), 1003);
}

TEST_F(Rows, OfAFileInAnotherEncodingAreWrittenWhole) {
  // "VELS", the mark of a work file.
  RawDatabase(folder_.File("U.mdb"))
      .Run(
          "PRAGMA encoding = 'UTF-16le'; PRAGMA application_id = 0x56454C53;"
          "CREATE TABLE \"T\" (\"C\" TEXT COLLATE JET); INSERT INTO T VALUES ('ab'), ('cd')");
  const auto work = folder_.Open("U.mdb");
  rows_.Close();
  rows_.Open("SELECT C FROM T", work, kOpenKeyset, kLockOptimistic);
  for (; !rows_.Eof(); rows_.MoveNext()) {
    EXPECT_EQ(rows_.Fields(0).Value().AsText().size(), 2U);
    rows_.Update("C", "wxyz");
  }
  EXPECT_EQ(RowsOf(*work, "SELECT C FROM T"), "wxyz / wxyz");
}

}  // namespace
}  // namespace ADODB
