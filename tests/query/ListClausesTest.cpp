#include "query/ListClauses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;

class ListClauses : public ::testing::Test {
 protected:
  ListClauses() {
    for (const char* text : {"T.Nombre", "  IIF(R.Tipo, 1, 2) AS [Tipo, de recibo]", "S.Fecha  "}) {
      cCampos field;
      field.IDCampo(static_cast<std::int16_t>(f_.catalogue.Count() + 1));
      field.LiteralCampoSELECT(text);
      field.LiteralCampoORDERBY(std::string(text) + " DESC");
      f_.catalogue.Add(field, FieldKey(field.IDCampo()));
    }
  }

  std::string Select(const std::vector<long>& fields) {
    f_.selection.rows.clear();
    for (const long field : fields) f_.selection.rows.push_back({"n", "l", "ignored `´", field});
    return GenerarSQLSELECT(f_.selection, f_.catalogue, f_.Report());
  }
  std::string OrderBy(const std::vector<long>& fields) {
    f_.selection.order = fields;
    return GenerarSQLORDERBY(f_.selection, f_.catalogue, f_.Report());
  }

  testing::Fixture f_;
};

TEST_F(ListClauses, CopyTheCataloguesTextsInTheOrderOfTheirList) {
  EXPECT_EQ(Select({3, 2, 1}),
            "SELECT DISTINCT S.Fecha  ,   IIF(R.Tipo, 1, 2) AS [Tipo, de recibo], T.Nombre");
  EXPECT_EQ(Select({2, 3}), "SELECT DISTINCT IIF(R.Tipo, 1, 2) AS [Tipo, de recibo], S.Fecha");
  EXPECT_EQ(OrderBy({}), "");
  EXPECT_EQ(OrderBy({3, 1}), " ORDER BY S.Fecha   DESC, T.Nombre DESC");
  EXPECT_THAT(f_.reported, ElementsAre());
}

TEST_F(ListClauses, ReportAFailureUnderTheirNameAndGiveNothing) {
  EXPECT_EQ(Select({}), "");
  EXPECT_EQ(Select({1, 7}), "");
  EXPECT_EQ(OrderBy({7, 1}), "");
  EXPECT_THAT(f_.reported, ElementsAre("GenerarSQLSELECT ()", "GenerarSQLSELECT ()", "GenerarSQLORDERBY ()"));
}

}  // namespace
}  // namespace velmar
