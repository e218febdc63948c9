#include "query/SelectionTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "query/Nodes.h"
#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;

Selection OfNodes(const std::vector<std::string>& nodes) {
  Selection selection;
  for (const std::string& node : nodes) selection.rows.push_back({node, "x", "", 1});
  return selection;
}

TEST(SelectionTexts, NodesComeOnceAndSortedWhateverTheOrderOfRows) {
  const struct {
    std::vector<std::string> nodes;
    std::string text;
  } cases[] = {
      {{"(REC) Recibos"}, "(REC) Recibos"},
      {{"(REC) Recibos", "(COL) Colaboradores", "(REC) Recibos"}, "(COL) Colaboradores, (REC) Recibos"},
      {{"(REM) Remesas", "(REC) Recibos", "(MOD) Modelo182", "(DON) Donativos/Suscripciones",
        "(COL) Colaboradores"},
       "(COL) Colaboradores, (DON) Donativos/Suscripciones, (MOD) Modelo182, (REC) Recibos, (REM) Remesas"},
      {{"(REC) Recibos", "(rec) RECIBOS", "Recibos"}, "(REC) Recibos"},
      {{"Recibos", "(REC) Recibos"}, "(REC) Recibos, Recibos"},
      {{"Árbol", "árbol", "Zorro", "abeto"}, "Zorro, abeto, Árbol"},
      {{"b, a", "B"}, "a, b"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.text);
    EXPECT_EQ(ObtenerStrTablasSeleccionadas(OfNodes(test.nodes)), test.text);
  }
}

TEST(SelectionTexts, NodesOfNoRowAreAFailureForTheCaller) {
  try {
    ObtenerStrTablasSeleccionadas({});
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kInvalidProcedureCall);
  }
}

TEST(SelectionTexts, FieldNamesKeepTheOrderOfRowsAndLeaveOutWhatStandsInsideAnother) {
  testing::Fixture f;
  const cCampos province = f.Describe("(COL) Colaboradores", "colaboradores.provinciaresidencia", "a");
  const cCampos part = f.Describe("(COL) Colaboradores", "Colaboradores.Provincia", "b");
  const cCampos account = f.Describe("(REC) Recibos", "recibos.cuenta", "c");
  f.Select(account);
  f.Select(province);
  f.Select(part);
  f.Select(account);
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()),
            "recibos.cuenta, colaboradores.provinciaresidencia");
  EXPECT_TRUE(f.reported.empty());
}

TEST(SelectionTexts, FieldNamesThatCannotBeFoundAreReportedOnceAndGiveNothing) {
  testing::Fixture f;
  f.Select(f.Describe("(REC) Recibos", "recibos.cuenta", "c"));
  f.selection.rows.push_back({"(REC) Recibos", "lost", "", 99});
  f.selection.rows.push_back({"(REC) Recibos", "lost too", "", -4});
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()), "");
  EXPECT_THAT(f.reported, ElementsAre("ObtenerStrCamposSeleccionados ()"));
  EXPECT_NE(f.failures[0].Description().find("99"), std::string::npos);

  testing::Fixture empty;
  EXPECT_EQ(ObtenerStrCamposSeleccionados(empty.selection, empty.catalogue, empty.Report()), "");
  EXPECT_THAT(empty.reported, ElementsAre("ObtenerStrCamposSeleccionados ()"));
}

TEST(SelectionTexts, TextsSortByTheCodesOfTheirCharacters) {
  std::vector<std::string> texts = {"\U0001F600", "ñ", "n", "Z", "\uFFFD", "a", ""};
  OrdenarTextos(texts);
  EXPECT_THAT(texts, ElementsAre("", "Z", "a", "n", "ñ", "\uFFFD", "\U0001F600"));
}

}  // namespace
}  // namespace velmar
