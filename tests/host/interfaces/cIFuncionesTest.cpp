#include "host/interfaces/cIFunciones.h"

#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"

namespace velmar {
namespace {

TEST(cIFunciones, ClosesARecordsetThatIsOpenAndDropsItAnyway) {
  const testing::TestDatabases databases;
  const auto connection = databases.Create("Gestion.mdb");
  const auto recordset = connection->Execute("SELECT 1 AS A");
  for (int twice = 0; twice < 2; ++twice) {
    auto given = recordset;
    cIFunciones().CerrarRecordset(given);
    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(recordset->State(), 0);
  }
}

}  // namespace
}  // namespace velmar
