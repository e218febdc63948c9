#include "platform/ado/Recordset.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

class RecordsetTest : public testing::Test {
 protected:
  RecordsetTest() : connection_(folder_.OpenNew("A.mdb")) {
    connection_->Execute("CREATE TABLE T (N LONG, Año TEXT(20), Baja BIT, Importe CURRENCY)");
    Insert(1, "uno");
    Insert(2, "dos");
    Insert(3, "tres");
  }

  void Insert(int number, const std::string& text) {
    connection_->Execute("INSERT INTO T VALUES (" + std::to_string(number) + ", '" + text + "', " +
                         (number % 2 == 0 ? "True" : "False") + ", " + std::to_string(number) + ".5)");
  }

  TestFolder folder_;
  std::shared_ptr<Connection> connection_;
  Recordset rows_;
};

TEST_F(RecordsetTest, EveryCursorGivesTheSameRows) {
  for (const long type : {kOpenForwardOnly, kOpenKeyset, kOpenDynamic, kOpenStatic}) {
    SCOPED_TRACE(type);
    rows_.Open("SELECT * FROM T WHERE N > 1", connection_, type);
    EXPECT_FALSE(rows_.Eof());
    EXPECT_FALSE(rows_.Bof());
    EXPECT_EQ(rows_.RecordCount(), type == kOpenForwardOnly ? -1 : 2);
    EXPECT_EQ(rows_.Fields().Count(), 4);
    EXPECT_EQ(rows_.Fields(1).Name(), "Año");
    EXPECT_EQ(rows_.Fields("AÑO").Value(), Variant("dos"));
    EXPECT_EQ(rows_.Fields("baja").Value(), Variant(true));
    EXPECT_EQ(RowsOf(rows_), "2|dos|-1|2.5 / 3|tres|0|3.5");
    EXPECT_TRUE(rows_.Eof());
    EXPECT_FALSE(rows_.Bof());
    EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kNoCurrentRow);
    EXPECT_EQ(FailureOf([&] { rows_.MoveNext(); }), velmar::kNoCurrentRow);
    EXPECT_EQ(FailureOf([&] { rows_.Fields("Otro"); }), velmar::kItemNotInCollection);
    EXPECT_EQ(FailureOf([&] { rows_.Fields(4); }), velmar::kItemNotInCollection);
    EXPECT_EQ(FailureOf([&] { rows_.MoveFirst(); }),
              type == kOpenForwardOnly ? velmar::kInvalidProcedureCall : 0L);
    rows_.Close();
    rows_.Open("SELECT * FROM T WHERE N > 9", connection_, type);
    EXPECT_TRUE(rows_.Eof() && rows_.Bof());
    rows_.Close();
    EXPECT_EQ(FailureOf([&] { rows_.Close(); }), velmar::kObjectClosed);
  }
}

TEST_F(RecordsetTest, ExecuteKnowsTheCountAndHoldsNoLock) {
  const auto rows = connection_->Execute("SELECT DISTINCT Baja FROM T");
  EXPECT_EQ(rows->RecordCount(), 2);
  folder_.Open("A.mdb")->Execute("DROP TABLE T");
  EXPECT_EQ(RowsOf(*rows), "0 / -1");
  const auto statement = connection_->Execute("CREATE TABLE U (N LONG)");
  EXPECT_EQ(statement->State(), kStateClosed);
  EXPECT_EQ(FailureOf([&] { statement->RecordCount(); }), velmar::kObjectClosed);
}

TEST_F(RecordsetTest, StaticFiguresStayWhileRowsAreDeletedBeneath) {
  rows_.CursorLocation(kUseServer);
  rows_.CacheSize(500);
  rows_.PageSize(2);
  rows_.CursorType(kOpenStatic);
  rows_.Open("SELECT * FROM T", connection_, -1, -1, -1);
  connection_->Execute("DELETE FROM T");
  connection_->Execute("DROP TABLE T");
  EXPECT_EQ(rows_.RecordCount(), 3);
  EXPECT_EQ(rows_.PageCount(), 2);
  EXPECT_EQ(rows_.Fields(1).Value(), Variant("uno")) << "few rows are read at opening";
}

TEST_F(RecordsetTest, AGreatStaticSetIsReadWholeOrNotAtAll) {
  connection_->Execute("CREATE TABLE G (N LONG)");
  connection_->BeginTrans();
  Recordset table;
  table.Open("G", connection_, kOpenKeyset, kLockOptimistic);
  for (int row = 0; row < 12'000; ++row) table.AddNew({"N"}, {row});
  connection_->CommitTrans();
  rows_.Open("SELECT N FROM G", connection_, kOpenStatic);
  EXPECT_EQ(rows_.Fields(0).Value(), Variant(0));
  connection_->Execute("DELETE FROM G WHERE N < 11000");
  for (int row = 0; row < 11'999; ++row) rows_.MoveNext();
  EXPECT_EQ(rows_.Fields(0).Value(), Variant(11'999));

  Insert(4, "cuatro");
  for (const auto& writer : {connection_, folder_.Open("A.mdb")}) {
    Recordset unread;
    connection_->Execute("INSERT INTO G SELECT N FROM G AS H");
    connection_->Execute("INSERT INTO G SELECT TOP 12000 G.N FROM G, T AS U, T AS V");
    unread.Open("SELECT N FROM G", connection_, kOpenStatic);
    const long count = unread.RecordCount();
    writer->Execute("INSERT INTO T (N) VALUES (5)");
    EXPECT_EQ(unread.RecordCount(), count);
    EXPECT_EQ(FailureOf([&] { unread.Fields(0).Value(); }), velmar::kRecordDeleted);
  }
}

TEST_F(RecordsetTest, KeysetWritesOneFieldOfTheCurrentRow) {
  rows_.Open("SELECT Año, N FROM T ORDER BY N DESC", connection_, kOpenKeyset, kLockOptimistic, 512);
  for (; !rows_.Eof(); rows_.MoveNext()) {
    rows_.Update("año", rows_.Fields("Año").Value().AsText() + "!");
    EXPECT_EQ(rows_.Fields(0).Value().AsText().back(), '!') << "the row shows what was written";
  }
  rows_.MoveFirst();
  rows_.Update("N", nullptr);
  EXPECT_EQ(FailureOf([&] { rows_.Update("Importe", 1); }), velmar::kItemNotInCollection);
  rows_.Close();
  EXPECT_EQ(RowsOf(*connection_, "SELECT N, Año FROM T"), "1|uno! / 2|dos! / Null|tres!");
}

TEST_F(RecordsetTest, KeysetKeepsItsRows) {
  rows_.Open("SELECT * FROM T", connection_, kOpenKeyset, kLockOptimistic);
  connection_->Execute("UPDATE T SET Año = 'UNO' WHERE N = 1");
  Insert(4, "cuatro");
  connection_->Execute("DELETE FROM T WHERE N = 2");
  EXPECT_EQ(rows_.RecordCount(), 3);
  EXPECT_EQ(rows_.Fields("Año").Value(), Variant("UNO"));
  rows_.MoveNext();
  EXPECT_EQ(FailureOf([&] { rows_.Fields(0).Value(); }), velmar::kRecordDeleted);
  EXPECT_EQ(FailureOf([&] { rows_.Update("N", 9); }), velmar::kRecordDeleted);
  rows_.MoveNext();
  EXPECT_EQ(rows_.Fields("Año").Value(), Variant("tres"));
  rows_.MoveNext();
  EXPECT_TRUE(rows_.Eof());
}

TEST_F(RecordsetTest, WritesOnlyWhereARowIsARowOfOneTable) {
  struct Case {
    const char* source;
    long type;
    long lock;
    bool updates;
    bool adds;
  };
  const Case cases[] = {
      {"T", kOpenKeyset, kLockOptimistic, true, true},
      {"[T]", kOpenKeyset, kLockOptimistic, true, true},
      {"select top 2 N from T as X where N in (select N from T group by N);", kOpenKeyset, kLockOptimistic,
       true, true},
      {"SELECT * FROM T", kOpenKeyset, kLockReadOnly, false, false},
      {"SELECT * FROM T", kOpenStatic, kLockOptimistic, false, true},
      {"SELECT * FROM T", kOpenForwardOnly, kLockOptimistic, false, true},
      {"SELECT DISTINCT N FROM T", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT N FROM T GROUP BY N", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT N FROM T UNION SELECT N FROM T", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT N + 0 AS N FROM T", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT Max(N) AS N FROM T", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT T.N FROM T INNER JOIN T AS U ON T.N = U.N", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT T.N FROM T, T AS U", kOpenKeyset, kLockOptimistic, false, false},
      {"SELECT N FROM (SELECT N FROM T) AS X", kOpenKeyset, kLockOptimistic, false, false},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.source);
    connection_->BeginTrans();
    rows_.Open(each.source, connection_, each.type, each.lock);
    EXPECT_EQ(FailureOf([&] { rows_.Update("N", 1); }), each.updates ? 0L : velmar::kReadOnly);
    EXPECT_EQ(FailureOf([&] { rows_.AddNew({"N"}, {8}); }), each.adds ? 0L : velmar::kReadOnly);
    rows_.Close();
    connection_->RollbackTrans();
  }
}

TEST_F(RecordsetTest, AKeysetIsOrderedByOutputNumbersAndNames) {
  connection_->Execute("CREATE TABLE K (A TEXT(5), N LONG, M LONG)");
  for (const char* row : {"'z', 1, 30", "'a', 2, 10", "'m', 3, 20", "'a', 4, 40"})
    connection_->Execute("INSERT INTO K VALUES (" + std::string(row) + ")");
  struct Case {
    const char* source;
    bool updates;
  };
  const Case cases[] = {
      {"SELECT A, N FROM K ORDER BY 1, 2 DESC", true},
      {"SELECT TOP 2 A, N FROM K ORDER BY 2 DESC;", true},
      {"SELECT TOP 50 PERCENT A, N FROM K ORDER BY 1 DESC, N", true},
      {"SELECT * FROM K AS X WHERE N > 1 ORDER BY 3", true},
      {"SELECT N AS Orden, A FROM K ORDER BY orden DESC", true},
      {"SELECT M AS N, N AS M FROM K ORDER BY N", true},
      {"SELECT M AS N, A FROM K ORDER BY N + 0", true},
      {"SELECT M AS [El orden], A FROM K ORDER BY -[El orden], A", true},
      {"SELECT M AS X, A FROM K ORDER BY K.N DESC", true},
      {"SELECT M, A FROM K ORDER BY IIf(A = 'z', 1, 2), M", true},
      {"SELECT A, M FROM K ORDER BY Mid(A, 1, 2), M", true},
      {"SELECT A, N FROM K ORDER BY (1), N", false},
      {"SELECT M AS X, N FROM K WHERE X > 10 ORDER BY N", false},
      {"SELECT A AS X, N AS X FROM K ORDER BY X, N", false},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.source);
    rows_.Open(each.source, connection_, kOpenStatic);
    const std::string expected = RowsOf(rows_);
    rows_.Close();
    EXPECT_NE(expected, "");
    rows_.Open(each.source, connection_, kOpenKeyset, kLockOptimistic);
    EXPECT_EQ(RowsOf(rows_), expected);
    rows_.MoveFirst();
    EXPECT_EQ(FailureOf([&] { rows_.Update(rows_.Fields(0).Name(), rows_.Fields(0).Value()); }),
              each.updates ? 0L : velmar::kReadOnly);
    rows_.Close();
  }
}

TEST_F(RecordsetTest, RefusesWrongUse) {
  EXPECT_EQ(FailureOf([&] { rows_.Open("T"); }), velmar::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { rows_.PageSize(0); }), velmar::kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { rows_.CursorType(4); }), velmar::kInvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { rows_.Open("DELETE FROM T", connection_); }), velmar::kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([&] { rows_.Open("Falta", connection_); }), velmar::kUnknownTable);
  EXPECT_EQ(rows_.State(), kStateClosed);
  rows_.ActiveConnection(connection_);
  rows_.Open("SELECT * FROM T");
  EXPECT_EQ(FailureOf([&] { rows_.Open("T"); }), velmar::kObjectOpen);
  EXPECT_EQ(FailureOf([&] { rows_.CursorType(kOpenStatic); }), velmar::kObjectOpen);
  EXPECT_EQ(FailureOf([&] { rows_.Fields("Año").Value().AsLong(); }), velmar::kTypeMismatch);
  EXPECT_EQ(RowsOf(*connection_, "SELECT N FROM T"), "1 / 2 / 3");
}

}  // namespace
}  // namespace ADODB
