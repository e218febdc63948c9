#include "wizard/OrderEditor.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OrderEditorTest : public testing::OpenWizard {};
constexpr const char* kCol = testing::WizardOffice::kCol;
constexpr const char* kRec = testing::WizardOffice::kRec;
constexpr const char* kNoItem = "+48 ¡Debe seleccionar un elemento de la lista!";

TEST_F(OrderEditorTest, FieldsEnterAndLeaveThroughTheMenu) {
  Add(kCol, {"Apellidos", "Nombre"});
  Add(kRec, {"nombre"});
  for (const long row : {2L, 3L, 2L}) {
    SelectRows(row, row);
    ChooseMenu("Agregar al 'orden'");
  }
  EXPECT_THAT(Order(), ElementsAre("(COL) Nombre=1", "(REC) nombre=7"));
  SelectRows(1, 1);
  ChooseMenu("Eliminar del 'orden'");
  EXPECT_EQ(Order().size(), 2U) << "a field that is not in the list";
  SelectRows(2, 3);
  ChooseMenu("Eliminar del 'orden'");
  EXPECT_THAT(Order(), ElementsAre("(REC) nombre=7")) << "only the row that is current";
  EXPECT_EQ(Grid().size(), 3U);
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

TEST_F(OrderEditorTest, KnowsAnItemByItsTextWithoutRegardToCase) {
  form->lstOrden.AddItem("(COL) NOMBRE");
  form->lstOrden.ItemData(0, 99);
  Add(kCol, {"Nombre"});
  ChooseMenu("Agregar al 'orden'");
  EXPECT_THAT(Order(), ElementsAre("(COL) NOMBRE=99"));
  ChooseMenu("Eliminar del 'orden'");
  EXPECT_THAT(Order(), IsEmpty());
}

TEST_F(OrderEditorTest, ButtonsMoveAndRemoveTheChosenItem) {
  Add(kCol, {"Apellidos", "ciudad", "Nombre"});
  for (const long row : {1L, 2L, 3L}) {
    SelectRows(row, row);
    ChooseMenu("Agregar al 'orden'");
  }
  const auto click = [&](int button) { EXPECT_TRUE(form->cmdOrden(button).UserClick()); };
  EXPECT_TRUE(form->lstOrden.UserClick(2));
  click(Controls::kOrderDown);
  EXPECT_EQ(form->lstOrden.ListIndex(), 2);
  click(Controls::kOrderUp);
  click(Controls::kOrderUp);
  EXPECT_THAT(Order(), ElementsAre("(COL) Nombre=1", "(COL) Apellidos=2", "(COL) ciudad=3"));
  EXPECT_EQ(form->lstOrden.ListIndex(), 0);
  click(Controls::kOrderUp);
  EXPECT_EQ(form->lstOrden.ListIndex(), 0);
  click(Controls::kOrderDown);
  EXPECT_THAT(Order(), ElementsAre("(COL) Apellidos=2", "(COL) Nombre=1", "(COL) ciudad=3"));
  EXPECT_THAT(office.Boxes(), IsEmpty());

  click(Controls::kOrderRemove);
  EXPECT_THAT(Order(), ElementsAre("(COL) Apellidos=2", "(COL) ciudad=3"));
  EXPECT_EQ(Grid().size(), 3U);
  for (const int button : {Controls::kOrderRemove, Controls::kOrderUp, Controls::kOrderDown}) {
    SCOPED_TRACE(button);
    click(button);
    EXPECT_THAT(office.Boxes(), ElementsAre(kNoItem)) << "nothing is selected any more";
  }
  EXPECT_EQ(Order().size(), 2U);
}

}  // namespace
}  // namespace velmar::wizard
