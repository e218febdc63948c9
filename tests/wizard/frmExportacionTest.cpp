#include "wizard/frmExportacion.h"

#include <gmock/gmock.h>

#include "platform/ado/Connection.h"
#include "templates/frmPlantillas.h"
#include "wizard/OpenWizard.h"
#include "wizard/frmDatos.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Kind = toolkit::Record::Kind;

class frmExportacionTest : public testing::OpenWizard {
 protected:
  bool Click(int button) { return form->cmdExportar(button).UserClick(); }
  std::vector<long> Pointers() {
    std::vector<long> shapes;
    for (const auto& record : office.toolkit.Records(Kind::kPointer)) shapes.push_back(record.number);
    return shapes;
  }
};

TEST_F(frmExportacionTest, TabKeyVisitsTheControlsInTheirOrder) {
  std::string visited;
  for (const controls::Control* control : form->Scope().TabOrder()) {
    const auto* captioned = dynamic_cast<const controls::CaptionedControl*>(control);
    visited += captioned == nullptr ? control->AccessibleName() : captioned->Caption();
    visited += "|";
  }
  EXPECT_EQ(
      visited,
      "Nodo|Campos disponibles|>|>>|<|<<|Campos seleccionados|&Ver datos|||Relación parcial entre tablas|"
      "Relación completa entre tablas|Orden de los registros||||Operadores del filtro|Condiciones del "
      "filtro|Asignar|Vaciar|&Ayuda|&Cargar plantilla|Salvar &plantilla|&Exportar|&Salir|Eliminar|");
}

TEST_F(frmExportacionTest, SelectionIsWhatTheControlsHold) {
  Add(kRec, {"Importe"});
  Add(kCol, {"Nombre"});
  form->msgSeleccionados.TextMatrix(1, kFilterColumn, "{Importe} = `1´");
  for (const long row : {2L, 1L}) Sort(row);
  EXPECT_EQ(form->CurrentSelection().relation, Selection::Relation::kComplete);
  EXPECT_TRUE(form->optExportar(Controls::kPartial).UserClick());
  EXPECT_EQ(form->GenerarSQLSELECT(), "SELECT DISTINCT S5, S1");
  EXPECT_THAT(form->GenerarSQLFROM(), HasSubstr("Colaboradores  LEFT JOIN"));
  EXPECT_THAT(form->GenerarSQLWHERE(), HasSubstr("W5 = '1'"));
  EXPECT_EQ(form->GenerarSQLORDERBY(), " ORDER BY O1, O5");
}

TEST_F(frmExportacionTest, ExportsOnlyAValidSelectionWithTheHourglassWhateverBecomesOfIt) {
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_THAT(office.Boxes(),
              ElementsAre("+48 ¡Debe existir por lo menos un campo en la rejilla para poder exportar!"));
  EXPECT_EQ(runner->runs, 0);
  Add(kCol, {"Nombre"});
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_EQ(runner->runs, 1);
  EXPECT_THAT(Pointers(), ElementsAre(11, 0));
  runner->during = [] { throw RuntimeError(kDiskFull, "disco lleno"); };
  EXPECT_THROW(Click(Controls::kExport), RuntimeError);
  EXPECT_THAT(Pointers(), ElementsAre(11, 0, 11, 0));
}

TEST_F(frmExportacionTest, DuringAnExportActionsOnlyBeep) {
  Add(kCol, {"ciudad", "Nombre"});
  Sort(1);
  form->txtFiltro.Text("filtro");
  const auto shown = [&] {
    return std::tuple(Grid(), Order(), Available(), form->cboExportar.Text(), form->txtFiltro.Text());
  };
  const auto before = shown();
  runner->during = [&] {
    const std::function<bool()> actions[] = {
        [&] { return form->cmdAgregarQuitar(Controls::kTakeAll).UserClick(); },
        [&] { return form->lstDisponibles.UserDoubleClick(0); },
        [&] { return form->msgSeleccionados.UserDoubleClick(); },
        [&] { return form->cmdCampos(Controls::kFieldDown).UserClick(); },
        [&] { return form->lstOrden.UserClick(0) && form->cmdOrden(Controls::kOrderRemove).UserClick(); },
        [&] { return form->cmdFiltro(Controls::kFilterClear).UserClick(); },
        [&] { return form->lstOperadores.UserDoubleClick(0); },
        [&] { return form->cmdVerDatos.UserClick(); },
        [&] { return form->msgSeleccionados.UserMouseUp(2, 0, 0, 0); },
        [&] { return form->cboExportar.UserChoose(form->cboExportar.FindStringExact(kRec)); },
        [&] { return Click(Controls::kExport); },
        [&] { return Click(Controls::kHelp); },
        [&] { return Click(Controls::kLoadTemplate); },
        [&] { return Click(Controls::kSaveTemplate); },
    };
    for (const auto& action : actions) {
      SCOPED_TRACE(&action - actions);
      office.toolkit.ClearRecords();
      EXPECT_TRUE(action());
      ASSERT_EQ(office.toolkit.Records().size(), 1U);
      EXPECT_EQ(office.toolkit.Records()[0].kind, Kind::kBeep);
    }
    form->tmrExportacion.Load(3).Fire();
    form->tmrExportacion(0).Fire();
  };
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_EQ(runner->runs, 1);
  EXPECT_THAT(runner->fired, ElementsAre(3, 0));
  EXPECT_EQ(shown(), before);
  ChooseNode(kRec);
  EXPECT_NE(shown(), before) << "afterwards all goes on";
}

TEST_F(frmExportacionTest, LeavingDuringAnExportAsksWhetherToCancelIt) {
  Add(kCol, {"Nombre"});
  const std::string question = "+36 ¿Desea cancelar la exportación en curso?";
  for (const auto answer : {toolkit::kNo, toolkit::kYes}) {
    runner->during = [&] {
      for (int i = 0; i < 3; ++i) office.toolkit.Answer(answer);
      EXPECT_TRUE(Click(Controls::kLeave));
      form->Unload();  // what the close box does
      EXPECT_TRUE(form->Scope().UserEscape());
    };
    EXPECT_TRUE(Click(Controls::kExport));
    EXPECT_EQ(runner->cancelled, answer == toolkit::kYes);
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question, question));
    EXPECT_EQ(office.host->main->State(), ADODB::kStateOpen);
    EXPECT_EQ(Grid().size(), 1U);
  }
}

TEST_F(frmExportacionTest, HelpOpensTheTopicOfTheWindow) {
  office.toolkit.WhenShown("frmExportacion", [this](toolkit::Form& shown) {
    EXPECT_TRUE(form->txtFiltro.UserFocus());
    office.toolkit.UserHelp();
    shown.UserClose();
  });
  form->Show();
  EXPECT_EQ(office.toolkit.Records(Kind::kHelp).at(0).number, 138);
}

TEST_F(frmExportacionTest, FetchedValueOfTheCurrentRowReplacesTheSelectedText) {
  Add(kCol, {"Nombre", "Apellidos", "ciudad"});
  SelectRows(3, 2);
  form->txtFiltro.Text("{Año} = `valor1´ Y x");
  std::string value = "Núñez";
  office.toolkit.WheneverShown("frmDatos", [&](toolkit::Form& shown) {
    auto& dialog = dynamic_cast<frmDatos&>(shown);
    EXPECT_EQ(dialog.mintIDCampo, 3);
    EXPECT_EQ(dialog.txtDatos.Text(), "");
    dialog.txtDatos.Text(value);
    dialog.Scope().UserEnter();
  });
  form->txtFiltro.UserSetCaret(9, 6);
  EXPECT_TRUE(form->cmdVerDatos.UserClick());
  EXPECT_EQ(form->txtFiltro.Text(), "{Año} = `Núñez´ Y x");
  EXPECT_EQ(form->txtFiltro.SelStart(), 19);
  form->txtFiltro.UserSetCaret(1);
  for (const char* next : {"", "·"}) {
    value = next;
    ChooseMenu("Ver datos del campo");
  }
  EXPECT_EQ(form->txtFiltro.Text(), "{·Año} = `Núñez´ Y x") << "no value leaves the caret in its place";
}

TEST_F(frmExportacionTest, TemplateIsSavedAndComesBack) {
  office.host->main->Execute(
      "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
      "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
  office.toolkit.WheneverShown("frmPlantillas", [](toolkit::Form& shown) {
    auto& dialog = dynamic_cast<templates::frmPlantillas&>(shown);
    dialog.lstPlantilla.UserClick(0);
    dialog.txtPlantilla.Text("Mensual");
    dialog.Scope().UserEnter();
  });
  EXPECT_TRUE(Click(Controls::kSaveTemplate));
  EXPECT_THAT(office.Boxes(),
              ElementsAre("+48 ¡Deberá tener algún campo en la rejilla para salvar plantillas!"));
  Add(kCol, {"Nombre"});
  Sort(1);
  EXPECT_TRUE(Click(Controls::kSaveTemplate));
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTakeAll).UserClick());
  form->txtFiltro.Text("resto");
  EXPECT_TRUE(Click(Controls::kLoadTemplate));
  EXPECT_THAT(Grid(), ElementsAre("(COL)|Nombre|=1"));
  EXPECT_THAT(Order(), ElementsAre("(COL) Nombre=1"));
  EXPECT_EQ(form->txtFiltro.Text(), "");
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Árbol=4", "ciudad=3"));
}

}  // namespace
}  // namespace velmar::wizard
