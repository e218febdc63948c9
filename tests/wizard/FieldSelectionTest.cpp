#include "wizard/FieldSelection.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using FieldSelectionTest = testing::OpenWizard;

TEST_F(FieldSelectionTest, FieldsStandInTheListOfTheirNodeOrInTheGrid) {
  EXPECT_THAT(Items(form->cboExportar),
              ElementsAre("(COL) Colaboradores=1", "(DON) Donativos/Suscripciones=4", "(MOD) Modelo182=3",
                          "(REC) Recibos=2"));
  Add(kCol, {"ciudad", "Árbol"});
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Nombre=1"));
  EXPECT_TRUE(form->lstDisponibles.UserDoubleClick(1));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAddAll).UserClick());
  EXPECT_THAT(Available(), IsEmpty());
  Add(kRec, {"Importe"});
  EXPECT_THAT(Available(), ElementsAre("Fecha=6", "nombre=7"));
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Árbol|=4", "(COL)|ciudad|=3", "(COL)|Nombre|=1",
                                  "(COL)|Apellidos|=2", "(REC)|Importe|=5"));
  for (const long row : {1L, 3L, 5L}) Sort(row);
  SelectRows(5, 4);  // drawn upwards
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTake).UserClick());
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Árbol|=4", "(COL)|ciudad|=3", "(COL)|Nombre|=1"));
  EXPECT_THAT(Available(), ElementsAre("Fecha=6", "Importe=5", "nombre=7"));
  EXPECT_THAT(Order(), ElementsAre("(COL) Árbol=4", "(COL) Nombre=1")) << "what leaves the grid leaves it";
  ChooseNode(kCol);
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2"));
  SelectRows(2, 3);
  EXPECT_TRUE(form->msgSeleccionados.UserDoubleClick());
  EXPECT_THAT(Order(), ElementsAre("(COL) Árbol=4"));
  form->msgSeleccionados.TextMatrix(1, templates::kFiltroColumn, "{Árbol} = `x´");
  EXPECT_TRUE(form->msgSeleccionados.UserDoubleClick());
  EXPECT_THAT(Grid(), IsEmpty());
  EXPECT_EQ(form->msgSeleccionados.TextMatrix(0, 0), "Tabla");
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Árbol=4", "ciudad=3", "Nombre=1"));
  Add(kCol, {"Apellidos", "Árbol"});
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|Árbol|=4")) << "the filter went with the row";
}

TEST_F(FieldSelectionTest, WarnsWhereNothingIsSelected) {
  const std::string noRow = "+48 ¡Debe seleccionar un elemento de la rejilla!";
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAdd).UserClick());
  EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la lista!"));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTake).UserClick());
  EXPECT_TRUE(form->cmdCampos(Controls::kFieldUp).UserClick());
  EXPECT_THAT(office.Boxes(), ElementsAre(noRow, noRow));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAddAll).UserClick());
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTakeAll).UserClick());
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

TEST_F(FieldSelectionTest, ArrowsMoveTheCurrentRowAloneWithAllThatItHolds) {
  Add(kCol, {"Apellidos", "Árbol", "ciudad"});
  const std::string filter = "{Árbol} = `a\tb´\r\n";
  form->msgSeleccionados.TextMatrix(2, templates::kFiltroColumn, filter);
  SelectRows(2, 3);
  const auto move = [&](int button) { EXPECT_TRUE(form->cmdCampos(button).UserClick()); };
  move(Controls::kFieldDown);
  EXPECT_EQ(form->msgSeleccionados.TopRow(), 3);
  move(Controls::kFieldDown);  // at the end
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|ciudad|=3", "(COL)|Árbol|" + filter + "=4"));
  EXPECT_EQ(form->msgSeleccionados.RowSel(), 3);
  for (int i = 0; i < 3; ++i) move(Controls::kFieldUp);
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Árbol|" + filter + "=4", "(COL)|Apellidos|=2", "(COL)|ciudad|=3"));
  EXPECT_EQ(form->msgSeleccionados.Row(), 1);
}

}  // namespace
}  // namespace velmar::wizard
