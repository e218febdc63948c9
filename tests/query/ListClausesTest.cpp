#include "query/ListClauses.h"

#include <gmock/gmock.h>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

TEST(ListClauses, CopyTheCataloguesTextsInTheOrderOfTheirList) {
  testing::Fixture f;
  f.Select(f.Describe("n", "x", "  Fecha", "  S.Fecha"), "ignored `´");
  f.Select(f.Describe("n", "x", "Tipo, de recibo", "IIF(R.Tipo, 1, 2)"));
  f.selection.order = {2, 1};
  const auto select = [&] { return GenerarSQLSELECT(f.selection, f.catalogue, f.Report()); };
  const auto orderBy = [&] { return GenerarSQLORDERBY(f.selection, f.catalogue, f.Report()); };
  EXPECT_EQ(select(), "SELECT DISTINCT S.Fecha AS [  Fecha], IIF(R.Tipo, 1, 2) AS [Tipo, de recibo]");
  EXPECT_EQ(orderBy(), " ORDER BY IIF(R.Tipo, 1, 2),   S.Fecha");
  f.selection.order.clear();
  EXPECT_EQ(orderBy(), "");
  EXPECT_THAT(f.reported, ::testing::ElementsAre());

  // A failure is reported under the clause's name and gives nothing.
  f.selection.order = {1, 7};
  f.selection.rows[0].idCampo = 7;
  EXPECT_EQ(select(), "");
  EXPECT_EQ(orderBy(), "");
  EXPECT_THAT(f.reported, ::testing::ElementsAre("GenerarSQLSELECT ()", "GenerarSQLORDERBY ()"));
}

}  // namespace
}  // namespace velmar
