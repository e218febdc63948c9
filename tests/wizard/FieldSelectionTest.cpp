#include "wizard/FieldSelection.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FieldSelectionTest : public testing::OpenWizard {};
constexpr const char* kCol = testing::WizardOffice::kCol;
constexpr const char* kRec = testing::WizardOffice::kRec;
constexpr const char* kNoItem = "+48 ¡Debe seleccionar un elemento de la lista!";
constexpr const char* kNoRow = "+48 ¡Debe seleccionar un elemento de la rejilla!";

TEST_F(FieldSelectionTest, ListShowsTheFieldsOfTheNodeInTheAlphabetWithoutThoseOfTheGrid) {
  EXPECT_THAT(Items(form->cboExportar),
              ElementsAre("(COL) Colaboradores=1", "(DON) Donativos/Suscripciones=4", "(MOD) Modelo182=3",
                          "(REC) Recibos=2"));
  EXPECT_EQ(form->cboExportar.ListIndex(), -1);
  EXPECT_THAT(Available(), IsEmpty());
  Add(kCol, {"Apellidos", "ciudad"});
  EXPECT_THAT(Available(), ElementsAre("Árbol=4", "Nombre=1"));
  ChooseNode(kRec);
  EXPECT_THAT(Available(), ElementsAre("Fecha=6", "Importe=5", "nombre=7"));
  ChooseNode(kCol);
  EXPECT_THAT(Available(), ElementsAre("Árbol=4", "Nombre=1"));
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|ciudad|=3"));
}

TEST_F(FieldSelectionTest, FieldsEnterTheGridByButtonAndByDoubleClick) {
  ChooseNode(kCol);
  Mark({"ciudad", "Árbol"});
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAdd).UserClick());
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Árbol|=4", "(COL)|ciudad|=3"));
  EXPECT_TRUE(form->lstDisponibles.UserDoubleClick(1));
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Árbol|=4", "(COL)|ciudad|=3", "(COL)|Nombre|=1"));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAddAll).UserClick());
  EXPECT_THAT(Grid(),
              ElementsAre("(COL)|Árbol|=4", "(COL)|ciudad|=3", "(COL)|Nombre|=1", "(COL)|Apellidos|=2"));
  EXPECT_THAT(Available(), IsEmpty());
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

TEST_F(FieldSelectionTest, WarnsWhereNothingIsSelectedAndStaysSilentAtTheEnds) {
  const auto boxesOf = [&](bool acted) {
    EXPECT_TRUE(acted);
    return office.Boxes();
  };
  EXPECT_THAT(boxesOf(form->cmdAgregarQuitar(Controls::kAdd).UserClick()), ElementsAre(kNoItem));
  EXPECT_THAT(boxesOf(form->lstDisponibles.UserDoubleClick(-1)), ElementsAre(kNoItem));
  EXPECT_THAT(boxesOf(form->cmdAgregarQuitar(Controls::kAddAll).UserClick()), IsEmpty());
  EXPECT_THAT(boxesOf(form->cmdAgregarQuitar(Controls::kTake).UserClick()), ElementsAre(kNoRow));
  EXPECT_THAT(boxesOf(form->msgSeleccionados.UserDoubleClick()), ElementsAre(kNoRow));
  EXPECT_THAT(boxesOf(form->cmdAgregarQuitar(Controls::kTakeAll).UserClick()), IsEmpty());
  EXPECT_THAT(boxesOf(form->cmdCampos(Controls::kFieldUp).UserClick()), ElementsAre(kNoRow));
  EXPECT_THAT(boxesOf(form->cmdCampos(Controls::kFieldDown).UserClick()), ElementsAre(kNoRow));
  ChooseNode(kCol);
  EXPECT_THAT(boxesOf(form->cmdAgregarQuitar(Controls::kAdd).UserClick()), ElementsAre(kNoItem));
  EXPECT_THAT(Grid(), IsEmpty());
}

TEST_F(FieldSelectionTest, FieldsGoBackToTheListOfTheirNodeOnly) {
  Add(kCol, {"Nombre", "ciudad"});
  Add(kRec, {"Importe"});
  form->msgSeleccionados.TextMatrix(1, kFilterColumn, "{ciudad} = `x´");
  SelectRows(3, 1);  // drawn upwards
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTake).UserClick());
  EXPECT_THAT(Grid(), IsEmpty());
  EXPECT_EQ(form->msgSeleccionados.Rows(), 1);
  EXPECT_EQ(form->msgSeleccionados.TextMatrix(0, 0), "Tabla");
  EXPECT_THAT(Available(), ElementsAre("Fecha=6", "Importe=5", "nombre=7"));
  ChooseNode(kCol);
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Árbol=4", "ciudad=3", "Nombre=1"));
  Mark({"ciudad"});
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kAdd).UserClick());
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|=3")) << "the filter is lost with the row";
}

TEST_F(FieldSelectionTest, TakesExactlyTheSelectedRows) {
  Add(kCol, {"Apellidos", "Árbol", "ciudad", "Nombre"});
  SelectRows(2, 3);
  EXPECT_TRUE(form->msgSeleccionados.UserDoubleClick());
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|Nombre|=1"));
  EXPECT_THAT(Available(), ElementsAre("Árbol=4", "ciudad=3"));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTakeAll).UserClick());
  EXPECT_THAT(Grid(), IsEmpty());
  EXPECT_EQ(form->msgSeleccionados.RowSel(), 0);
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Árbol=4", "ciudad=3", "Nombre=1"));
}

TEST_F(FieldSelectionTest, FieldsThatLeaveTheGridLeaveTheOrder) {
  for (const int way : {int{Controls::kTake}, int{Controls::kTakeAll}, -1}) {
    SCOPED_TRACE(way);
    Add(kCol, {"Nombre"});
    ChooseMenu("Agregar al 'orden'");
    ChooseNode(kRec);
    EXPECT_THAT(Order(), ElementsAre("(COL) Nombre=1"));
    if (way < 0) {
      EXPECT_TRUE(form->msgSeleccionados.UserDoubleClick());
    } else {
      EXPECT_TRUE(form->cmdAgregarQuitar(way).UserClick());
    }
    EXPECT_THAT(Order(), IsEmpty());
    EXPECT_THAT(Grid(), IsEmpty());
  }
}

TEST_F(FieldSelectionTest, ArrowsMoveTheCurrentRowAloneWithAllThatItHolds) {
  Add(kCol, {"Apellidos", "Árbol", "ciudad"});
  const std::string filter = "{ciudad} = `a\tb´\r\n";
  form->msgSeleccionados.TextMatrix(3, kFilterColumn, filter);
  SelectRows(2, 3);
  EXPECT_TRUE(form->cmdCampos(Controls::kFieldDown).UserClick());
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|ciudad|" + filter + "=3", "(COL)|Árbol|=4"));
  EXPECT_EQ(form->msgSeleccionados.Row(), 3);
  EXPECT_EQ(form->msgSeleccionados.RowSel(), 3);
  EXPECT_EQ(form->msgSeleccionados.TopRow(), 3);

  form->msgSeleccionados.TopRow(2);
  EXPECT_TRUE(form->cmdCampos(Controls::kFieldDown).UserClick()) << "at the end";
  EXPECT_EQ(form->msgSeleccionados.TopRow(), 2);
  SelectRows(2, 2);
  EXPECT_TRUE(form->cmdCampos(Controls::kFieldUp).UserClick());
  EXPECT_TRUE(form->cmdCampos(Controls::kFieldUp).UserClick()) << "at the start";
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|" + filter + "=3", "(COL)|Apellidos|=2", "(COL)|Árbol|=4"));
  EXPECT_EQ(form->msgSeleccionados.Row(), 1);
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace velmar::wizard
