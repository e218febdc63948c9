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
    const std::vector<std::pair<std::string, std::string>> texts = {
        {"Colaboradores.Nombre", "Colaboradores.Nombre"},
        {"  IIF(Recibos.Tipo, 1, 2) AS [Tipo, de recibo]", "Recibos.Fecha DESC, Recibos.IDRecibo"},
        {"Remesas.Fecha  ", "  Remesas.Fecha  "},
    };
    for (std::size_t index = 0; index < texts.size(); ++index) {
      cCampos field;
      field.IDCampo(static_cast<std::int16_t>(index + 1));
      field.LiteralCampoSELECT(texts[index].first);
      field.LiteralCampoORDERBY(texts[index].second);
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
  EXPECT_EQ(Select({1}), "SELECT DISTINCT Colaboradores.Nombre");
  EXPECT_EQ(Select({3, 2, 1}),
            "SELECT DISTINCT Remesas.Fecha  ,   IIF(Recibos.Tipo, 1, 2) AS [Tipo, de recibo], "
            "Colaboradores.Nombre");
  EXPECT_EQ(Select({2, 3}), "SELECT DISTINCT IIF(Recibos.Tipo, 1, 2) AS [Tipo, de recibo], Remesas.Fecha");
  EXPECT_EQ(OrderBy({}), "");
  EXPECT_EQ(OrderBy({2}), " ORDER BY Recibos.Fecha DESC, Recibos.IDRecibo");
  EXPECT_EQ(OrderBy({3, 1}), " ORDER BY Remesas.Fecha  , Colaboradores.Nombre");
  EXPECT_TRUE(f_.reported.empty());
}

TEST_F(ListClauses, ReportAFailureUnderTheirNameAndGiveNothing) {
  EXPECT_EQ(Select({}), "");
  EXPECT_EQ(Select({1, 7}), "");
  EXPECT_EQ(OrderBy({7, 1}), "");
  EXPECT_THAT(f_.reported, ElementsAre("GenerarSQLSELECT ()", "GenerarSQLSELECT ()", "GenerarSQLORDERBY ()"));
}

}  // namespace
}  // namespace velmar
