#include "query/SelectionValidation.h"

#include <gtest/gtest.h>

#include <array>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

// Which two nodes can be related, as a square in the order COL, DON, REC, REM, MOD.
constexpr std::array<const char*, 5> kNodes = {"(COL) Colaboradores", "(DON) Donativos/Suscripciones",
                                               "(REC) Recibos", "(REM) Remesas", "(MOD) Modelo182"};
constexpr std::array<const char*, 5> kRelated = {"+++++", "+++--", "++++-", "+-++-", "+---+"};

TEST(SelectionValidation, NodesAreRefusedExactlyWhenTwoOfThemCannotBeRelated) {
  for (unsigned mask = 1; mask < 32; ++mask) {
    Selection selection;
    bool related = true;
    for (std::size_t one = 0; one < 5; ++one) {
      if ((mask >> one & 1) == 0) continue;
      selection.rows.insert(selection.rows.begin(), {kNodes[one], "x", "", 1});
      for (std::size_t other = 0; other < 5; ++other) {
        if (mask >> other & 1) related = related && kRelated[one][other] == '+';
      }
    }
    EXPECT_EQ(ValidarTablas(selection, {}), related) << mask;
  }
}

TEST(SelectionValidation, LiteralsAreComparedAsPartsOfThoseAbove) {
  const std::pair<std::vector<std::string>, bool> cases[] = {
      {{"Número", "NÚMERO"}, false},       {{"Numero", "Número"}, true},
      {{"Fecha de alta", "Fecha"}, false}, {{"Fecha", "Fecha de alta"}, true},
      {{"Uno", "Dos", "o, D"}, false},
  };
  for (const auto& [literals, accepted] : cases) {
    testing::Fixture f;
    for (const std::string& literal : literals) {
      f.Select(f.Describe("n", "colaboradores.x", literal));
      f.selection.rows.back().campo = "another text in the cell";
    }
    EXPECT_EQ(ValidarLiterales(f.selection, f.catalogue), accepted) << literals.back();
  }
}

TEST(SelectionValidation, TheFirstFailingTestGivesTheMessage) {
  testing::Fixture f;
  const auto validate = [&] { return ValidarExportacion(f.selection, f.catalogue).value_or("accepted"); };
  f.Select(f.Describe(kNodes[1], "donativos.importe", "Importe"), "(((");
  EXPECT_EQ(validate(), "accepted");
  f.Select(f.Describe(kNodes[2], "recibos.importe", "importe"));
  EXPECT_EQ(validate(),
            "¡Ha seleccionado campos de dos tablas diferentes pero que tienen el mismo literal!\r"
            "Por favor, seleccione campos validos para realizar la exportación.");
  f.Select(f.Describe(kNodes[3], "remesas.fecha", "Fecha"));
  EXPECT_EQ(validate(),
            "¡Ha seleccionado campos de dos tablas que no pueden ser relacionadas!\r"
            "Por favor, seleccione campos validos para realizar la exportación.");
}

}  // namespace
}  // namespace velmar
