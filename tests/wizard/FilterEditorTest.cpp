#include "wizard/FilterEditor.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class FilterEditorTest : public testing::OpenWizard {
 protected:
  void Type(const std::string& text) { ASSERT_TRUE(form->txtFiltro.UserType(text)); }
  void Filter(int button) { ASSERT_TRUE(form->cmdFiltro(button).UserClick()); }
  const std::string& Box() const { return form->txtFiltro.Text(); }
};

TEST_F(FilterEditorTest, EachOperatorWritesItsForm) {
  Add(kCol, {"Nombre"});
  for (long i = 0; i < form->lstOperadores.ListCount(); ++i) form->lstOperadores.UserDoubleClick(i);
  EXPECT_EQ(
      Box(),
      " [Comience por] `valor´  [Que contenga] `valor´  [Acabe en] `valor´  [Entre] `valor1´ [Y] `valor2´ "
      " [Igual a uno de] (`valor1´, `valor2´, `valorN´)  `valor1´ [Y][O] (  )  = `valor1´  < `valor1´ "
      " > `valor1´  <= `valor1´  >= `valor1´  <> `valor1´  `  ´ ");
}

TEST_F(FilterEditorTest, InsertionLeavesTheSelectedTextBehindItAndTheCaretAtTheEnd) {
  Add(kCol, {"Árbol"});
  Type("año ñu");
  EXPECT_TRUE(form->txtFiltro.UserSetCaret(4, 2));
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(6));
  EXPECT_EQ(Box(), "año [Y]ñu");
  EXPECT_EQ(form->txtFiltro.SelStart(), 9);
  EXPECT_TRUE(form->txtFiltro.UserSetCaret(0));
  ChooseMenu("Agregar literal al filtro");
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(-1)) << "beside the items the last one is still chosen";
  EXPECT_EQ(Box(), "{Árbol}año [Y]ñu[Y]");
}

TEST_F(FilterEditorTest, DoesNothingWithAnEmptyGridButEmptyTheBox) {
  Type("{x}");
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(6));
  Filter(Controls::kFilterAssign);
  Filter(Controls::kFilterRemove);
  EXPECT_TRUE(form->cmdVerDatos.UserClick());
  for (const controls::MenuItem& entry : form->mnuEmergente.Items()) {
    if (!entry.IsSeparator()) ChooseMenu(entry.caption);
  }
  EXPECT_EQ(Box(), "{x}");
  EXPECT_THAT(office.Boxes(), IsEmpty());
  EXPECT_THAT(Order(), IsEmpty());
  Filter(Controls::kFilterClear);
  EXPECT_EQ(Box(), "");
}

TEST_F(FilterEditorTest, AssignsToTheCurrentRowAfterAQuestion) {
  const std::string question =
      "+36 ¿Desea asignar el filtro al campo (- ciudad -), seleccionado en la rejilla?";
  Add(kCol, {"ciudad", "Nombre"});
  SelectRows(1, 2);
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡No puede asignar al campo (- ciudad -) un filtro vacío!"));
  Type("  `a´ ( ");
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(office.Boxes(), ElementsAre(HasSubstr("+48 "))) << "out of balance";
  Type(") ");
  office.toolkit.Answer(toolkit::kNo);
  Filter(Controls::kFilterAssign);
  EXPECT_EQ(Box(), "  `a´ ( ) ");
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|=3", "(COL)|Nombre|=1"));
  office.toolkit.AlwaysAnswer(toolkit::kYes);
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|  `a´ ( ) =3", "(COL)|Nombre|=1"));
  EXPECT_EQ(Box(), "");
  Type(" ");
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad| =3", "(COL)|Nombre|=1")) << "blanks, over another filter";
  EXPECT_THAT(office.Boxes(), ElementsAre(question, question, question));
}

TEST_F(FilterEditorTest, ShowsAndRemovesTheFilterOfTheCurrentRow) {
  Add(kCol, {"ciudad", "Nombre"});
  form->msgSeleccionados.TextMatrix(1, templates::kFiltroColumn, "{ñ}");
  SelectRows(1, 2);
  ChooseMenu("Ver filtro");
  EXPECT_EQ(Box(), "{ñ}");
  EXPECT_EQ(form->txtFiltro.SelStart(), 3);
  office.toolkit.Answer(toolkit::kNo);
  Filter(Controls::kFilterRemove);
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|{ñ}=3", "(COL)|Nombre|=1"));
  office.toolkit.Answer(toolkit::kYes);
  ChooseMenu("Eliminar filtro");
  EXPECT_EQ(Box(), "");
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|=3", "(COL)|Nombre|=1"));
  const std::string question =
      "+36 ¿Desea eliminar el filtro asignado al campo (- ciudad -), seleccionado en la rejilla?";
  EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
  Type("abc");
  Filter(Controls::kFilterRemove);
  EXPECT_EQ(Box(), "abc") << "a row without filter";
  ChooseMenu("Ver filtro");
  EXPECT_EQ(Box(), "");
}

}  // namespace
}  // namespace velmar::wizard
