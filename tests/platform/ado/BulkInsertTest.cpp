#include "platform/ado/BulkInsert.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

using BulkInsertTest = OneDatabase;

TEST_F(BulkInsertTest, AFailedRowIsNotWrittenAndTheNextOneIs) {
  connection_->Execute("CREATE TABLE Año (ID LONG PRIMARY KEY, Número LONG NOT NULL)");
  BulkInsert rows(*connection_, "AÑO", {"id", "NÚMERO"});
  rows.Row({1, 10});
  EXPECT_EQ(FailureOf([&] { rows.Row({1, 11}); }), velmar::kDuplicateKey);
  EXPECT_EQ(FailureOf([&] { rows.Row({2, nullptr}); }), velmar::kFieldRequired);
  EXPECT_EQ(FailureOf([&] { rows.Row({2}); }), velmar::kColumnCountMismatch);
  EXPECT_EQ(FailureOf([&] { rows.Row({2, 3, 4}); }), velmar::kColumnCountMismatch);
  rows.Row({3, 12});
  EXPECT_EQ(RowsOf(*connection_, "SELECT * FROM Año"), "1|10 / 3|12");
  EXPECT_EQ(FailureOf([&] { BulkInsert(*connection_, "Año", {"M"}); }), velmar::kUnknownName);
}

}  // namespace
}  // namespace ADODB
