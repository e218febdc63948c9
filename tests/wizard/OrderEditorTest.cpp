#include "wizard/OrderEditor.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using OrderEditorTest = testing::OpenWizard;

TEST_F(OrderEditorTest, FieldsEnterMoveAndLeave) {
  Add(kCol, {"Apellidos", "Nombre"});
  Add(kRec, {"nombre"});
  form->lstOrden.AddItem("(col) APELLIDOS");
  EXPECT_TRUE(form->msgSeleccionados.UserMouseUp(1, 0, 0, 0));
  EXPECT_TRUE(office.toolkit.Records(toolkit::Record::Kind::kMenu).empty()) << "not by the left button";
  for (const long row : {2L, 3L, 2L, 1L}) Sort(row);
  EXPECT_THAT(Order(), ElementsAre("(col) APELLIDOS=0", "(COL) Nombre=1", "(REC) nombre=7"));
  EXPECT_TRUE(form->lstOrden.UserClick(2));
  for (const int button :
       {Controls::kOrderDown, Controls::kOrderUp, Controls::kOrderUp, Controls::kOrderUp}) {
    EXPECT_TRUE(form->cmdOrden(button).UserClick());
  }
  EXPECT_THAT(Order(), ElementsAre("(REC) nombre=7", "(col) APELLIDOS=0", "(COL) Nombre=1"));
  for (int i = 0; i < 2; ++i) ChooseMenu("Eliminar del 'orden'");
  EXPECT_THAT(Order(), ElementsAre("(REC) nombre=7", "(COL) Nombre=1"));
  SelectRows(2, 3);
  ChooseMenu("Eliminar del 'orden'");
  EXPECT_THAT(Order(), ElementsAre("(REC) nombre=7")) << "only the row that is current";
  EXPECT_TRUE(form->cmdOrden(Controls::kOrderRemove).UserClick());
  EXPECT_THAT(Order(), IsEmpty());
  EXPECT_TRUE(form->cmdOrden(Controls::kOrderUp).UserClick());
  EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la lista!"));
}

}  // namespace
}  // namespace velmar::wizard
