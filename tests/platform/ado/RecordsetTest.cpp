#include "platform/ado/Recordset.h"

#include <gtest/gtest.h>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

class RecordsetTest : public OneDatabase {
 protected:
  RecordsetTest() {
    connection_->Execute("CREATE TABLE T (N LONG, Año TEXT(20), Baja BIT, Importe CURRENCY)");
    BulkInsert writer(*connection_, "T", {"N", "Año", "Baja", "Importe"});
    writer.Row({1, "uno", false, 1.5});
    writer.Row({2, "dos", true, 2.5});
    writer.Row({3, "tres", false, 3.5});
  }
};

TEST_F(RecordsetTest, EveryCursorGivesTheSameRows) {
  for (const long type : {kOpenForwardOnly, kOpenKeyset, kOpenDynamic, kOpenStatic}) {
    SCOPED_TRACE(type);
    rows_.Open("SELECT * FROM T WHERE N > 1", connection_, type);
    EXPECT_FALSE(rows_.Bof());
    EXPECT_EQ(rows_.RecordCount(), type == kOpenForwardOnly ? -1 : 2);
    EXPECT_EQ(rows_.Fields("AÑO").Value(), Variant("dos"));
    EXPECT_EQ(rows_.Fields("baja").Value(), Variant(true));
    EXPECT_EQ(RowsOf(rows_), "2|dos|-1|2.5 / 3|tres|0|3.5");
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
  }
}

TEST_F(RecordsetTest, ExecuteKnowsTheCountAndHoldsNoLock) {
  const auto rows = connection_->Execute("SELECT DISTINCT Baja FROM T");
  EXPECT_EQ(rows->RecordCount(), 2);
  folder_.Open("A.mdb")->Execute("DROP TABLE T");
  EXPECT_EQ(RowsOf(*rows), "0 / -1");
}

TEST_F(RecordsetTest, RowsInMemoryHoldWhatTheyHeld) {
  for (const int length : {255, 256, 300'000}) {
    const std::string text(static_cast<std::size_t>(length), 'x');
    const std::string rows = RowsOf(*connection_, "SELECT -128, 128, '" + text + "', 0.5, NULL");
    EXPECT_TRUE(rows == "-128|128|" + text + "|0.5|Null") << length;
  }
}

TEST_F(RecordsetTest, StaticFiguresStayWhileRowsAreDeletedBeneath) {
  rows_.PageSize(2);
  rows_.CursorType(kOpenStatic);
  rows_.Open("SELECT * FROM T", connection_, -1, -1, -1);
  connection_->Execute("DELETE FROM T");
  connection_->Execute("DROP TABLE T");
  EXPECT_EQ(rows_.RecordCount(), 3);
  EXPECT_EQ(rows_.PageCount(), 2);
  rows_.PageSize(3);
  EXPECT_EQ(rows_.PageCount(), 1);
  EXPECT_EQ(rows_.Fields(1).Value(), Variant("uno")) << "few rows are read at opening";
}

TEST_F(RecordsetTest, AGreatStaticSetIsReadWholeOrNotAtAll) {
  connection_->Execute("CREATE TABLE G (N LONG)");
  BulkInsert writer(*connection_, "G", {"N"});
  connection_->BeginTrans();
  for (int row = 0; row < 12'000; ++row) writer.Row({row});
  connection_->CommitTrans();
  for (const auto& other : {connection_, folder_.Open("A.mdb")}) {
    Recordset unread;
    unread.Open("SELECT N FROM G", connection_, kOpenStatic);
    other->Execute("INSERT INTO T (N) VALUES (5)");
    EXPECT_EQ(unread.RecordCount(), 12'000);
    EXPECT_EQ(FailureOf([&] { unread.Fields(0).Value(); }), velmar::kRecordDeleted);
  }
  rows_.Open("SELECT N FROM G", connection_, kOpenStatic);
  EXPECT_EQ(rows_.Fields(0).Value(), Variant(0));
  connection_->Execute("DELETE FROM G WHERE N < 11000");
  for (int row = 0; row < 11'999; ++row) rows_.MoveNext();
  EXPECT_EQ(rows_.Fields(0).Value(), Variant(11'999));
}

TEST_F(RecordsetTest, WritesOnlyWhereARowIsARowOfOneTable) {
  struct Case {
    const char* source;
    bool updates;
    bool adds;
    long type = kOpenKeyset;
    long lock = kLockOptimistic;
  };
  const Case cases[] = {
      {"T", true, true},
      {"select top 2 N from T as X where N in (select N from T group by N);", true, true},
      {"SELECT * FROM T", false, false, kOpenKeyset, kLockReadOnly},
      {"SELECT * FROM T", false, true, kOpenStatic},
      {"SELECT * FROM T", false, true, kOpenForwardOnly},
      {"SELECT DISTINCT N FROM T", false, false},
      {"SELECT N FROM T WHERE N > 0 GROUP BY N", false, false},
      {"SELECT N FROM T WHERE N > 0 UNION SELECT N FROM T", false, false},
      {"SELECT N + 0 AS N FROM T", false, false},
      {"SELECT T.N FROM T INNER JOIN T AS U ON T.N = U.N", false, false},
      {"SELECT N FROM (SELECT N FROM T) AS X", false, false},
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
  const std::vector<std::pair<const char*, bool>> cases{
      {"SELECT A, N FROM K ORDER BY 1, 2 DESC", true},
      {"SELECT TOP 50 PERCENT A, N FROM K ORDER BY 1 DESC, N", true},
      {"SELECT N AS Orden, A FROM K ORDER BY orden DESC", true},
      {"SELECT M AS N, N AS M FROM K ORDER BY N", true},
      {"SELECT M AS X, A FROM K ORDER BY K.N DESC", true},
      {"SELECT M, A FROM K ORDER BY IIf(A = 'z', 1, 2), M", true},
      {"SELECT A, N FROM K ORDER BY (1), N", false},
      {"SELECT M AS X, N FROM K WHERE X > 10 ORDER BY N", false},
      {"SELECT A AS X, N AS X FROM K ORDER BY X, N", false},
  };
  connection_->BeginTrans();  // rows are read ahead
  for (const auto& [source, updates] : cases) {
    SCOPED_TRACE(source);
    rows_.Open(source, connection_, kOpenStatic);
    const std::string expected = RowsOf(rows_);
    rows_.Close();
    EXPECT_NE(expected, "");
    rows_.Open(source, connection_, kOpenKeyset, kLockOptimistic);
    EXPECT_EQ(RowsOf(rows_), expected);
    rows_.MoveFirst();
    const long failure = FailureOf([&] { rows_.Update(rows_.Fields(0).Name(), rows_.Fields(0).Value()); });
    EXPECT_EQ(failure == velmar::kReadOnly, !updates);
    rows_.Close();
  }
}

TEST_F(RecordsetTest, RefusesWrongUse) {
  EXPECT_EQ(FailureOf([&] { rows_.Open("T"); }), velmar::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { rows_.Open("DELETE FROM T", connection_); }), velmar::kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([&] { rows_.Open("Falta", connection_); }), velmar::kUnknownTable);
  rows_.ActiveConnection(connection_);
  rows_.Open("SELECT * FROM T");
  EXPECT_EQ(FailureOf([&] { rows_.Open("T"); }), velmar::kObjectOpen);
}

}  // namespace
}  // namespace ADODB
