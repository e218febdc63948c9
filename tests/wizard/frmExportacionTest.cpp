#include "wizard/frmExportacion.h"

#include <gmock/gmock.h>

#include "platform/ado/Connection.h"
#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Kind = toolkit::Record::Kind;

constexpr const char* kCol = testing::WizardOffice::kCol;
constexpr const char* kDon = testing::WizardOffice::kDon;
constexpr const char* kRec = testing::WizardOffice::kRec;
constexpr const char* kMod = testing::WizardOffice::kMod;

class frmExportacionTest : public testing::OpenWizard {
 protected:
  std::vector<long> Pointers() {
    std::vector<long> shapes;
    for (const auto& record : office.toolkit.Records(Kind::kPointer)) shapes.push_back(record.number);
    return shapes;
  }
  bool Click(int button) { return form->cmdExportar(button).UserClick(); }
};

TEST_F(frmExportacionTest, TabKeyVisitsTheControlsInTheirOrder) {
  std::vector<std::string> visited;
  for (const controls::Control* control : form->Scope().TabOrder()) {
    if (visited.empty() || visited.back() != control->Name()) visited.push_back(control->Name());
  }
  EXPECT_THAT(visited, ElementsAre("cboExportar", "lstDisponibles", "cmdAgregarQuitar", "msgSeleccionados",
                                   "cmdVerDatos", "cmdCampos", "optExportar", "lstOrden", "cmdOrden",
                                   "lstOperadores", "txtFiltro", "cmdFiltro", "cmdExportar", "cmdFiltro"));
  EXPECT_EQ(form->Scope().TabOrder().size(), 26U);
}

TEST_F(frmExportacionTest, SelectionIsWhatTheControlsHold) {
  Add(kRec, {"Importe"});
  Add(kCol, {"Nombre"});
  form->msgSeleccionados.TextMatrix(1, kFilterColumn, " {Importe} = `1´");
  SelectRows(2, 2);
  ChooseMenu("Agregar al 'orden'");
  SelectRows(1, 1);
  ChooseMenu("Agregar al 'orden'");
  EXPECT_TRUE(form->optExportar(Controls::kPartial).UserClick());
  const Selection selection = form->CurrentSelection();
  ASSERT_EQ(selection.rows.size(), 2U);
  EXPECT_EQ(selection.rows[0].tabla, kRec);
  EXPECT_EQ(selection.rows[0].campo, "Importe");
  EXPECT_EQ(selection.rows[0].filtro, " {Importe} = `1´");
  EXPECT_EQ(selection.rows[0].idCampo, 5);
  EXPECT_EQ(selection.rows[1].idCampo, 1);
  EXPECT_THAT(selection.order, ElementsAre(1, 5));
  EXPECT_EQ(selection.relation, Selection::Relation::kPartial);
  EXPECT_EQ(form->GenerarSQLSELECT(), "SELECT DISTINCT S5, S1");
  EXPECT_THAT(form->GenerarSQLFROM(), HasSubstr("LEFT JOIN"));
  EXPECT_THAT(form->GenerarSQLWHERE(), HasSubstr("W5 = '1'"));
  EXPECT_EQ(form->GenerarSQLORDERBY(), " ORDER BY O1, O5");
  EXPECT_TRUE(form->optExportar(Controls::kComplete).UserClick());
  EXPECT_EQ(form->CurrentSelection().relation, Selection::Relation::kComplete);
  EXPECT_FALSE(form->optExportar(Controls::kPartial).Value());
}

TEST_F(frmExportacionTest, ExportsOnlyAValidSelection) {
  struct Case {
    std::vector<std::pair<std::string, std::string>> fields;
    std::string refusal;
  };
  const std::vector<Case> cases = {
      {{}, "¡Debe existir por lo menos un campo en la rejilla para poder exportar!"},
      {{{kDon, "Tipo"}, {kMod, "Clave"}},
       "¡Ha seleccionado campos de dos tablas que no pueden ser relacionadas!\r"
       "Por favor, seleccione campos validos para realizar la exportación."},
      {{{kCol, "Nombre"}, {kRec, "nombre"}},
       "¡Ha seleccionado campos de dos tablas diferentes pero que tienen el mismo literal!\r"
       "Por favor, seleccione campos validos para realizar la exportación."},
      {{{kCol, "Nombre"}, {kRec, "Importe"}}, ""},
  };
  for (const Case& given : cases) {
    SCOPED_TRACE(given.refusal);
    form->cmdAgregarQuitar(Controls::kTakeAll).UserClick();
    for (const auto& [node, literal] : given.fields) Add(node, {literal});
    office.toolkit.ClearRecords();
    runner->runs = 0;
    EXPECT_TRUE(Click(Controls::kExport));
    EXPECT_EQ(runner->runs, given.refusal.empty() ? 1 : 0);
    EXPECT_EQ(Pointers(), given.refusal.empty() ? std::vector<long>({11, 0}) : std::vector<long>());
    const auto boxes = office.Boxes();
    if (given.refusal.empty()) {
      EXPECT_THAT(boxes, IsEmpty());
    } else {
      EXPECT_THAT(boxes, ElementsAre("+48 " + given.refusal));
    }
  }
}

TEST_F(frmExportacionTest, PointerComesBackWhenAnExportFails) {
  Add(kCol, {"Nombre"});
  runner->during = [] { throw RuntimeError(kDiskFull, "disco lleno"); };
  EXPECT_THROW(Click(Controls::kExport), RuntimeError);
  EXPECT_THAT(Pointers(), ElementsAre(11, 0));
}

TEST_F(frmExportacionTest, DuringAnExportActionsOnlyBeep) {
  Add(kCol, {"ciudad", "Nombre"});
  ChooseMenu("Agregar al 'orden'");
  form->txtFiltro.Text("filtro");
  const auto grid = Grid();
  const auto order = Order();
  const auto available = Available();
  runner->during = [&] {
    const std::vector<std::function<bool()>> actions = {
        [&] { return form->cmdAgregarQuitar(Controls::kTakeAll).UserClick(); },
        [&] { return form->cmdAgregarQuitar(Controls::kAddAll).UserClick(); },
        [&] { return form->lstDisponibles.UserDoubleClick(0); },
        [&] { return form->msgSeleccionados.UserDoubleClick(); },
        [&] { return form->cmdCampos(Controls::kFieldDown).UserClick(); },
        [&] { return form->lstOrden.UserClick(0) && form->cmdOrden(Controls::kOrderRemove).UserClick(); },
        [&] { return form->cmdFiltro(Controls::kFilterClear).UserClick(); },
        [&] { return form->lstOperadores.UserDoubleClick(0); },
        [&] { return form->msgSeleccionados.UserMouseUp(2, 0, 0, 0); },
        [&] { return form->cboExportar.UserChoose(form->cboExportar.FindStringExact(kRec)); },
        [&] { return Click(Controls::kExport); },
        [&] { return Click(Controls::kHelp); },
    };
    for (std::size_t i = 0; i < actions.size(); ++i) {
      SCOPED_TRACE(i);
      office.toolkit.ClearRecords();
      EXPECT_TRUE(actions[i]());
      EXPECT_EQ(office.toolkit.Records().size(), 1U);
      EXPECT_EQ(office.toolkit.Records(Kind::kBeep).size(), 1U);
    }
    form->tmrExportacion.Load(3).Fire();
    form->tmrExportacion(0).Fire();
  };
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_EQ(runner->runs, 1);
  EXPECT_THAT(runner->fired, ElementsAre(3, 0));
  EXPECT_EQ(Grid(), grid);
  EXPECT_EQ(Order(), order);
  EXPECT_EQ(Available(), available);
  EXPECT_EQ(form->cboExportar.Text(), kCol);
  EXPECT_EQ(form->txtFiltro.Text(), "filtro");
  ChooseNode(kRec);
  EXPECT_NE(Available(), available) << "afterwards all goes on";
}

TEST_F(frmExportacionTest, LeavingDuringAnExportAsksWhetherToCancelIt) {
  Add(kCol, {"Nombre"});
  const std::string question = "+36 ¿Desea cancelar la exportación en curso?";
  for (const auto answer : {toolkit::kNo, toolkit::kYes}) {
    SCOPED_TRACE(answer);
    runner->cancelled = false;
    runner->during = [&] {
      office.toolkit.Answer(answer);
      EXPECT_TRUE(Click(Controls::kLeave));
      office.toolkit.Answer(answer);
      form->Unload();  // what the close box does
      office.toolkit.Answer(answer);
      EXPECT_TRUE(form->Scope().UserEscape());
    };
    EXPECT_TRUE(Click(Controls::kExport));
    EXPECT_EQ(runner->cancelled, answer == toolkit::kYes);
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question, question));
    EXPECT_TRUE(form->Loaded());
    EXPECT_EQ(office.host->main->State(), ADODB::kStateOpen);
    EXPECT_EQ(Grid().size(), 1U);
  }
}

TEST_F(frmExportacionTest, HelpOpensTheTopicOfTheWindow) {
  office.toolkit.HelpFile("C:\\Quinvera\\Quinvera.chm");
  office.toolkit.WhenShown("frmExportacion", [this](toolkit::Form&) {
    EXPECT_TRUE(Click(Controls::kHelp));
    EXPECT_TRUE(form->txtFiltro.UserFocus());
    office.toolkit.UserHelp();
  });
  office.toolkit.WhenShown("frmExportacion", [](toolkit::Form& shown) { shown.UserClose(); });
  form->Show();
  const auto help = office.toolkit.Records(Kind::kHelp);
  ASSERT_EQ(help.size(), 2U);
  for (const toolkit::Record& opened : help) {
    EXPECT_EQ(opened.text, "C:\\Quinvera\\Quinvera.chm");
    EXPECT_EQ(opened.number, 138);
  }
}

TEST_F(frmExportacionTest, MenuOpensOnTheRightButtonAloneAndWorksOnTheCurrentRow) {
  Add(kCol, {"ciudad", "Nombre"});
  SelectRows(2, 2);
  office.toolkit.ClearRecords();
  EXPECT_TRUE(form->msgSeleccionados.UserMouseUp(1, 0, 0, 0));
  EXPECT_THAT(office.toolkit.Records(), IsEmpty());
  ChooseMenu("Agregar al 'orden'");
  EXPECT_THAT(Order(), ElementsAre("(COL) Nombre=1"));
  EXPECT_EQ(office.toolkit.Records(Kind::kMenu).size(), 1U);
}

TEST_F(frmExportacionTest, UnloadingReleasesWhatTheWindowHolds) {
  EXPECT_EQ(form->mcolCampos().Count(), 9U);
  EXPECT_NE(form->objApi(), nullptr);
  const std::weak_ptr<ADODB::Connection> auxiliary = form->conAuxiliar();
  EXPECT_TRUE(Click(Controls::kLeave));
  EXPECT_THAT(office.log->Take(), ElementsAre("conGestion 1", "coninformes 1"));
  EXPECT_EQ(office.host->main->State(), ADODB::kStateClosed);
  EXPECT_EQ(office.host->reports->State(), ADODB::kStateClosed);
  EXPECT_EQ(form->objApi(), nullptr);
  EXPECT_EQ(form->mcolCampos().Count(), 0U);
  EXPECT_FALSE(auxiliary.expired());
  form.reset();
  EXPECT_TRUE(auxiliary.expired());
}

TEST_F(frmExportacionTest, CatalogueThatEndsEarlyLeavesTheWindowUsable) {
  Click(Controls::kLeave);
  office.host->main->Open();
  office.host->main->Execute("UPDATE ExportacionCampos SET LiteralCampoWHERE = NULL WHERE IDCampo = 3");
  office.log->Take();
  form->Load();
  EXPECT_THAT(office.log->Take(), ::testing::Contains("VerError LlenarColeccionCampos () frmExportacion "
                                                      "VelmarExportacion 94"));
  EXPECT_EQ(form->mcolCampos().Count(), 2U);
  ChooseNode(kCol);
  EXPECT_THAT(Available(), ElementsAre("Apellidos=2", "Nombre=1"));
}

}  // namespace
}  // namespace velmar::wizard
