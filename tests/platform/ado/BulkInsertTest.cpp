#include "platform/ado/BulkInsert.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(BulkInsert, WritesEachKindOfValue) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute(
      "CREATE TABLE Donación (ID COUNTER PRIMARY KEY, Año TEXT(50), Baja BIT, Importe DOUBLE)");
  BulkInsert rows(*connection, "DONACIÓN", {"AÑO", "baja", "Importe"});
  connection->BeginTrans();
  rows.AddText("José");
  rows.AddBoolean(true);
  rows.AddDouble(2.5);
  rows.EndRow();
  rows.AddText("");
  rows.AddNull();
  rows.AddLong(3);
  rows.EndRow();
  connection->CommitTrans();
  rows.Row({"x", false, 1e20});
  EXPECT_EQ(RowsOf(*connection, "SELECT * FROM Donación"), "1|José|-1|2.5 / 2||Null|3 / 3|x|0|1E+20");
}

TEST(BulkInsert, AFailedRowIsNotWrittenAndTheNextOneIs) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (ID LONG PRIMARY KEY, N LONG NOT NULL)");
  BulkInsert rows(*connection, "T", {"ID", "N"});
  rows.Row({1, 10});
  EXPECT_EQ(FailureOf([&] { rows.Row({1, 11}); }), velmar::kDuplicateKey);
  EXPECT_EQ(FailureOf([&] { rows.Row({2, nullptr}); }), velmar::kFieldRequired);
  EXPECT_EQ(FailureOf([&] { rows.Row({2}); }), velmar::kColumnCountMismatch);
  EXPECT_EQ(FailureOf([&] { rows.Row({2, 3, 4}); }), velmar::kColumnCountMismatch);
  rows.Row({3, 12});
  EXPECT_EQ(RowsOf(*connection, "SELECT * FROM T"), "1|10 / 3|12");
  EXPECT_EQ(FailureOf([&] { BulkInsert(*connection, "U", {"N"}); }), velmar::kUnknownTable);
  EXPECT_EQ(FailureOf([&] { BulkInsert(*connection, "T", {"M"}); }), velmar::kUnknownName);
  EXPECT_EQ(FailureOf([&] { BulkInsert(*connection, "MSysVelmar", {"Clave"}); }), velmar::kUnknownTable);
  connection->Close();
  EXPECT_EQ(FailureOf([&] { rows.Row({4, 1}); }), velmar::kObjectClosed);
}

}  // namespace
}  // namespace ADODB
