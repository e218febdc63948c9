#include "wizard/FilterEditor.h"

#include <gmock/gmock.h>

#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kCol = testing::WizardOffice::kCol;

class FilterEditorTest : public testing::OpenWizard {
 protected:
  void Type(const std::string& text) { ASSERT_TRUE(form->txtFiltro.UserType(text)); }
  void Filter(int button) { ASSERT_TRUE(form->cmdFiltro(button).UserClick()); }
  const std::string& Box() const { return form->txtFiltro.Text(); }
};

TEST_F(FilterEditorTest, EachOperatorWritesItsForm) {
  const std::vector<std::string> forms = {
      " [Comience por] `valor´ ",
      " [Que contenga] `valor´ ",
      " [Acabe en] `valor´ ",
      " [Entre] `valor1´ [Y] `valor2´ ",
      " [Igual a uno de] (`valor1´, `valor2´, `valorN´) ",
      " `valor1´ ",
      "[Y]",
      "[O]",
      " ( ",
      " ) ",
      " = `valor1´ ",
      " < `valor1´ ",
      " > `valor1´ ",
      " <= `valor1´ ",
      " >= `valor1´ ",
      " <> `valor1´ ",
      " ` ",
      " ´ ",
  };
  ASSERT_EQ(form->lstOperadores.ListCount(), static_cast<long>(forms.size()));
  Add(kCol, {"Nombre"});
  for (std::size_t i = 0; i < forms.size(); ++i) {
    SCOPED_TRACE(forms[i]);
    Filter(Controls::kFilterClear);
    EXPECT_TRUE(form->lstOperadores.UserDoubleClick(static_cast<long>(i)));
    EXPECT_EQ(Box(), forms[i]);
  }
}

TEST_F(FilterEditorTest, InsertionLeavesTheSelectedTextBehindItAndTheCaretAtTheEnd) {
  Add(kCol, {"Árbol"});
  Type("año ñu");
  EXPECT_TRUE(form->txtFiltro.UserSetCaret(4, 2));
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(6));
  EXPECT_EQ(Box(), "año [Y]ñu");
  EXPECT_EQ(form->txtFiltro.SelStart(), 9);
  EXPECT_EQ(form->txtFiltro.SelLength(), 0);
  EXPECT_TRUE(form->txtFiltro.UserSetCaret(0));
  ChooseMenu("Agregar literal al filtro");
  EXPECT_EQ(Box(), "{Árbol}año [Y]ñu");
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(-1))
      << "beside the items the last operator is still chosen";
  EXPECT_EQ(Box(), "{Árbol}año [Y]ñu[Y]");
}

TEST_F(FilterEditorTest, DoesNothingWithAnEmptyGridButEmptyTheBox) {
  Type("{Nombre} = `x´");
  const std::string typed = Box();
  EXPECT_TRUE(form->lstOperadores.UserDoubleClick(6));
  Filter(Controls::kFilterAssign);
  Filter(Controls::kFilterRemove);
  for (const controls::MenuItem& entry : form->mnuEmergente.Items()) {
    if (!entry.IsSeparator()) ChooseMenu(entry.caption);
  }
  EXPECT_EQ(Box(), typed);
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
  const auto refusal = office.Boxes();
  ASSERT_EQ(refusal.size(), 1U) << "out of balance";
  EXPECT_THAT(refusal[0], HasSubstr("+48 "));
  EXPECT_EQ(Box(), "  `a´ ( ");

  Type(") ");
  office.toolkit.Answer(toolkit::kNo);
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(office.Boxes(), ElementsAre(question));
  EXPECT_EQ(Box(), "  `a´ ( ) ");
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|=3", "(COL)|Nombre|=1"));

  office.toolkit.AlwaysAnswer(toolkit::kYes);
  Filter(Controls::kFilterAssign);
  EXPECT_EQ(Box(), "");
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|  `a´ ( ) =3", "(COL)|Nombre|=1"));

  office.Boxes();
  Type(" ");
  Filter(Controls::kFilterAssign);
  EXPECT_THAT(office.Boxes(), ElementsAre(question)) << "a text of blanks, over another filter";
  EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad| =3", "(COL)|Nombre|=1"));
}

TEST_F(FilterEditorTest, RemovesTheFilterOfTheCurrentRowByButtonAndMenu) {
  Add(kCol, {"ciudad", "Nombre"});
  Type("abc");
  Filter(Controls::kFilterRemove);
  EXPECT_THAT(office.Boxes(), IsEmpty());
  EXPECT_EQ(Box(), "abc") << "a row without filter";

  const std::string question =
      "+36 ¿Desea eliminar el filtro asignado al campo (- ciudad -), seleccionado en la rejilla?";
  for (const bool byMenu : {false, true}) {
    SCOPED_TRACE(byMenu);
    form->msgSeleccionados.TextMatrix(1, kFilterColumn, "uno");
    form->msgSeleccionados.TextMatrix(2, kFilterColumn, "dos");
    form->txtFiltro.Text("abc");
    const auto remove = [&](toolkit::MsgBoxResult answer) {
      office.toolkit.Answer(answer);
      if (byMenu) {
        ChooseMenu("Eliminar filtro");
      } else {
        Filter(Controls::kFilterRemove);
      }
    };
    remove(toolkit::kNo);
    EXPECT_EQ(Box(), "abc");
    EXPECT_EQ(form->msgSeleccionados.TextMatrix(1, kFilterColumn), "uno");
    remove(toolkit::kYes);
    EXPECT_EQ(Box(), "");
    EXPECT_THAT(Grid(), ElementsAre("(COL)|ciudad|=3", "(COL)|Nombre|dos=1"));
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
  }
}

TEST_F(FilterEditorTest, ShowsTheFilterOfTheCurrentRow) {
  Add(kCol, {"ciudad", "Nombre"});
  form->msgSeleccionados.TextMatrix(1, kFilterColumn, "{ñ}");
  Type("abc");
  ChooseMenu("Ver filtro");
  EXPECT_EQ(Box(), "{ñ}");
  EXPECT_EQ(form->txtFiltro.SelStart(), 3);
  SelectRows(2, 2);
  EXPECT_EQ(Box(), "{ñ}") << "the box does not follow the row";
  ChooseMenu("Ver filtro");
  EXPECT_EQ(Box(), "");
}

TEST_F(FilterEditorTest, EnterNeitherMakesALineNorExports) {
  Add(kCol, {"Nombre"});
  Type("a\rb");
  EXPECT_EQ(Box(), "ab");
  EXPECT_TRUE(form->txtFiltro.UserPaste("\r\nc"));
  EXPECT_EQ(Box(), "ab\r\nc") << "a pasted line stays";
  form->Scope().UserEnter();
  EXPECT_EQ(runner->runs, 0);
  EXPECT_EQ(Box(), "ab\r\nc");
  EXPECT_FALSE(form->cmdExportar(Controls::kExport).Default());
  EXPECT_TRUE(form->lstOrden.UserFocus());
  EXPECT_TRUE(form->cmdExportar(Controls::kExport).Default());
  form->Scope().UserEnter();
  EXPECT_EQ(runner->runs, 1);
}

}  // namespace
}  // namespace velmar::wizard
