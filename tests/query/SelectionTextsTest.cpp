#include "query/SelectionTexts.h"

#include <gtest/gtest.h>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

TEST(SelectionTexts, NodesComeOnceAndSortedByTheCodesOfTheirCharacters) {
  const struct {
    std::vector<std::string> nodes;
    std::string text;
  } cases[] = {
      {{"(REC) Recibos", "(COL) Colaboradores", "(rec) RECIBOS"}, "(COL) Colaboradores, (REC) Recibos"},
      {{"(REC) Recibos", "Recibos"}, "(REC) Recibos"},
      {{"Árbol", "árbol", "\uFFFD", "Zorro", "abeto"}, "Zorro, abeto, Árbol, \uFFFD"},
  };
  for (const auto& test : cases) {
    Selection selection;
    for (const std::string& node : test.nodes) selection.rows.push_back({node, "x", "", 1});
    EXPECT_EQ(ObtenerStrTablasSeleccionadas(selection), test.text);
  }
}

TEST(SelectionTexts, FieldNamesKeepTheirOrderAndLeaveOutWhatStandsInsideAnother) {
  testing::Fixture f;
  f.Select(f.Describe("n", "recibos.cuenta", "c"));
  f.Select(f.Describe("n", "colaboradores.provinciaresidencia", "a"));
  f.Select(f.Describe("n", "Colaboradores.Provincia", "b"));
  EXPECT_EQ(ObtenerStrCamposSeleccionados(f.selection, f.catalogue, f.Report()),
            "recibos.cuenta, colaboradores.provinciaresidencia");
}

}  // namespace
}  // namespace velmar
