#include "query/SelectionTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;

TEST(SelectionTexts, NodesComeOnceAndSortedByTheCodesOfTheirCharacters) {
  const struct {
    std::vector<std::string> nodes;
    std::string text;
  } cases[] = {
      {{"(REC) Recibos", "(COL) Colaboradores", "(REC) Recibos"}, "(COL) Colaboradores, (REC) Recibos"},
      {{"(REC) Recibos", "(rec) RECIBOS", "Recibos"}, "(REC) Recibos"},
      {{"Recibos", "(REC) Recibos"}, "(REC) Recibos, Recibos"},
      {{"\U0001F600", "Árbol", "árbol", "\uFFFD", "Zorro", "abeto"},
       "Zorro, abeto, Árbol, \uFFFD, \U0001F600"},
      {{"b, a", "B"}, "a, b"},
  };
  for (const auto& test : cases) {
    Selection selection;
    for (const std::string& node : test.nodes) selection.rows.push_back({node, "x", "", 1});
    EXPECT_EQ(ObtenerStrTablasSeleccionadas(selection), test.text);
  }
  try {
    ObtenerStrTablasSeleccionadas({});
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kInvalidProcedureCall);
  }
}

TEST(SelectionTexts, FieldNamesKeepTheOrderOfRowsAndLeaveOutWhatStandsInsideAnother) {
  testing::Fixture f;
  f.Select(f.Describe("n", "recibos.cuenta", "c"));
  f.Select(f.Describe("n", "colaboradores.provinciaresidencia", "a"));
  f.Select(f.Describe("n", "Colaboradores.Provincia", "b"));
  f.selection.rows.push_back(f.selection.rows[0]);
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()),
            "recibos.cuenta, colaboradores.provinciaresidencia");
  EXPECT_THAT(f.reported, ElementsAre());
}

TEST(SelectionTexts, FieldNamesThatCannotBeFoundAreReportedOnceAndGiveNothing) {
  testing::Fixture f;
  f.Select(f.Describe("n", "recibos.cuenta", "c"));
  f.selection.rows.push_back({"n", "lost", "", 99});
  f.selection.rows.push_back({"n", "lost too", "", -4});
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()), "");
  f.selection.rows.clear();
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()), "");
  EXPECT_THAT(f.reported,
              ElementsAre("ObtenerStrCamposSeleccionados ()", "ObtenerStrCamposSeleccionados ()"));
  EXPECT_THAT(f.failures[0].Description(), ::testing::HasSubstr("99"));
}

}  // namespace
}  // namespace velmar
