#include "wizard/frmExportacion.h"

#include <utility>

#include "catalogue/CatalogueReader.h"
#include "catalogue/CatalogueTransfer.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/Raised.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/Connection.h"
#include "platform/error/ErrObject.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/Toolkit.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/SelectionValidation.h"
#include "query/WhereClause.h"
#include "templates/cConstPlantilla.h"
#include "templates/frmPlantillas.h"
#include "wizard/ControlSelection.h"
#include "wizard/NodeList.h"
#include "wizard/SelectionGrid.h"
#include "wizard/frmDatos.h"

namespace velmar::wizard {

namespace {

constexpr const char* kForm = "frmExportacion";
constexpr int kDefaultPointer = 0;
constexpr int kHourglass = 11;
constexpr int kRightButton = 2;

}  // namespace

frmExportacion::frmExportacion(toolkit::Toolkit& toolkit, ExportRunnerFactory makeRunner)
    : Form(toolkit, kForm),
      messages_(toolkit),
      order_(lstOrden, msgSeleccionados, messages_),
      fields_(cboExportar, lstDisponibles, msgSeleccionados, order_, messages_),
      filter_(txtFiltro, lstOperadores, msgSeleccionados, cmdExportar(kExport), messages_),
      makeRunner_(std::move(makeRunner)) {
  Caption("Exportación de datos a una hoja de Excel");
  HelpContextID(kHelpTopic);
  AddControls();
  WireFieldSelection();
  WireFilterEditor();
  WireOrderEditor();
  WireWindow();
  FillMenu();
}

frmExportacion::~frmExportacion() = default;

void frmExportacion::AddControls() {
  ForEachControl([this](auto& control) { Add(control); });
  // Also for the timers that an export loads later.
  tmrExportacion.Wire([this](controls::Timer& timer, int index) {
    Add(timer);
    timer.Elapsed = [this, index] {
      if (runner_ != nullptr) runner_->tmrExportacion_Timer(index);
    };
  });
}

void frmExportacion::Act(const std::function<void()>& action) {
  if (IsBusy()) {
    Surroundings().Beep();
    return;
  }
  action();
}

bool frmExportacion::IsExporting() const {
  return runner_ != nullptr && runner_->IsRunning();
}

std::function<void()> frmExportacion::Turn() const {
  return [&toolkit = Surroundings()] { toolkit.DoEvents(); };
}

void frmExportacion::WireFieldSelection() {
  cboExportar.Click = [this] { NodeChosen(); };
  cmdAgregarQuitar.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { Act([&] { fields_.cmdAgregarQuitar_Click(index); }); };
  });
  cmdCampos.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { Act([&] { fields_.cmdCampos_Click(index); }); };
  });
  lstDisponibles.DblClick = [this] { Act([&] { fields_.lstDisponibles_DblClick(); }); };
  msgSeleccionados.DblClick = [this] { Act([&] { fields_.msgSeleccionados_DblClick(); }); };
}

void frmExportacion::WireFilterEditor() {
  lstOperadores.DblClick = [this] { Act([&] { filter_.lstOperadores_DblClick(); }); };
  cmdFiltro.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { Act([&] { filter_.cmdFiltro_Click(index); }); };
  });
  txtFiltro.GotFocus = [this] { filter_.txtFiltro_GotFocus(); };
  txtFiltro.LostFocus = [this] { filter_.txtFiltro_LostFocus(); };
  txtFiltro.KeyPress = [this](int& keyAscii) { filter_.txtFiltro_KeyPress(keyAscii); };
}

void frmExportacion::WireOrderEditor() {
  cmdOrden.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { Act([&] { order_.cmdOrden_Click(index); }); };
  });
}

void frmExportacion::WireWindow() {
  cmdExportar.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { cmdExportar_Click(index); };
  });
  cmdVerDatos.Click = [this] { Act([&] { cmdVerDatos_Click(); }); };
  msgSeleccionados.MouseUp = [this](int button, int, float, float) {
    if (button == kRightButton) Act([&] { PopupMenu(mnuEmergente); });
  };
}

void frmExportacion::FillMenu() {
  const auto entry = [this](const char* name, const char* caption, std::function<void()> action) {
    mnuEmergente.Add({name, caption, [this, action = std::move(action)] { Act(action); }});
  };
  entry("mnuVerDatos", "Ver datos del campo", [this] { cmdVerDatos_Click(); });
  mnuEmergente.Add({"mnuSeparador0", "-", {}});
  entry("mnuAgregarOrden", "Agregar al 'orden'", [this] { order_.mnuAgregarOrden_Click(); });
  entry("mnuEliminarOrden", "Eliminar del 'orden'", [this] { order_.mnuEliminarOrden_Click(); });
  mnuEmergente.Add({"mnuSeparador1", "-", {}});
  entry("mnuAgregarFiltro", "Agregar literal al filtro", [this] { filter_.mnuAgregarFiltro_Click(); });
  entry("mnuEliminarFiltro", "Eliminar filtro", [this] { filter_.mnuEliminarFiltro_Click(); });
  entry("mnuVerFiltro", "Ver filtro", [this] { filter_.mnuVerFiltro_Click(); });
}

Collection<cCampos>& frmExportacion::mcolCampos() {
  if (mcolCampos_ == nullptr) mcolCampos_ = std::make_unique<Collection<cCampos>>();
  return *mcolCampos_;
}

cIFunciones& frmExportacion::objFunciones() {
  if (objFunciones_ == nullptr) objFunciones_ = std::make_unique<cIFunciones>();
  return *objFunciones_;
}

FailureReport frmExportacion::Report() const {
  return ReportToHost(objApi_, kForm);
}

void frmExportacion::Form_Initialize() {
  conAuxiliar_ = std::make_shared<ADODB::Connection>();
  if (makeRunner_) runner_ = makeRunner_(*this);
}

void frmExportacion::Form_Load() {
  // The report is made when it is needed: the API object comes to be within these steps.
  const FailureReport report = [this](const RuntimeError& failure, const std::string& routine) {
    Report()(failure, routine);
  };
  RunReporting(report, "Form_Load()", [this] {
    Icon(toolkit::Toolkit::LoadPicture(objHost->Icono()));
    objApi_ = CreateHostApi();
    objFunciones().AbrirConexion(objHost->conGestion());
    objFunciones().AbrirConexion(objHost->coninformes());
    ActualizarCatalogo();
    LlenarColeccionCampos();
    fillTablasExportacion();
    PrepararRejilla(msgSeleccionados);
    Surroundings().MousePointer(kDefaultPointer);
  });
  Surroundings().MousePointer(kDefaultPointer);
}

void frmExportacion::Form_Unload(bool& Cancel) {
  if (IsExporting()) {
    Cancel = true;
    if (messages_.Confirm("¿Desea cancelar la exportación en curso?")) runner_->RequestCancel();
    return;
  }
  if (IsBusy()) {
    Cancel = true;
    Surroundings().Beep();
    return;
  }
  objFunciones().CerrarConexion(objHost->conGestion());
  objFunciones().CerrarConexion(objHost->coninformes());
  objApi_.reset();
  objFunciones_.reset();
  mcolCampos_.reset();
}

void frmExportacion::Form_Terminate() {
  runner_.reset();
  conAuxiliar_.reset();
}

void frmExportacion::ActualizarCatalogo() {
  ErrObject Err;
  Err.Try([this] {
    const auto conGestion = objHost->conGestion();
    const auto coninformes = objHost->coninformes();
    velmar::ActualizarCatalogo(*conGestion, *coninformes, Turn());
  });
}

std::shared_ptr<ADODB::Connection> frmExportacion::Gestion(const std::string& routine) const {
  std::shared_ptr<ADODB::Connection> conGestion;
  RunReporting(Report(), routine, [&] { conGestion = objHost->conGestion(); });
  return conGestion;
}

void frmExportacion::LlenarColeccionCampos() {
  const auto conGestion = Gestion("LlenarColeccionCampos ()");
  if (conGestion != nullptr) velmar::LlenarColeccionCampos(*conGestion, mcolCampos(), Turn(), Report());
}

void frmExportacion::fillTablasExportacion() {
  NodeList nodes(cboExportar);
  const auto conGestion = Gestion("fillTablasExportacion ()");
  if (conGestion != nullptr) LeerTablasExportacion(*conGestion, nodes, Turn(), Report());
}

void frmExportacion::fillCamposDisponibles() {
  wizard::fillCamposDisponibles(cboExportar, mcolCampos(), msgSeleccionados, lstDisponibles);
}

Selection frmExportacion::CurrentSelection() const {
  return ReadSelection(msgSeleccionados, lstOrden, optExportar(kComplete));
}

std::string frmExportacion::GenerarSQLSELECT() {
  return velmar::GenerarSQLSELECT(CurrentSelection(), mcolCampos(), Report());
}

std::string frmExportacion::GenerarSQLFROM() {
  return velmar::GenerarSQLFROM(CurrentSelection(), mcolCampos(), Report());
}

std::string frmExportacion::GenerarSQLWHERE() {
  return velmar::GenerarSQLWHERE(CurrentSelection(), mcolCampos(), CreateCuentaCodec, Report());
}

std::string frmExportacion::GenerarSQLORDERBY() {
  return velmar::GenerarSQLORDERBY(CurrentSelection(), mcolCampos(), Report());
}

bool frmExportacion::ValidarExportacion() {
  // The test gives the message loop a turn, and needs the catalogue and the grid behind it.
  const Raised validating(validating_);
  const auto refusal = velmar::ValidarExportacion(CurrentSelection(), mcolCampos(), Turn());
  if (refusal) messages_.Warn(*refusal);
  return !refusal;
}

void frmExportacion::cboExportar_Click() {
  fillCamposDisponibles();
}

void frmExportacion::NodeChosen() {
  if (!IsBusy()) {
    shownNode_ = cboExportar.ListIndex();
    cboExportar_Click();
  } else if (cboExportar.ListIndex() != shownNode_) {
    // The list of fields still shows the node from before.
    Surroundings().Beep();
    cboExportar.ListIndex(shownNode_);
  }
}

void frmExportacion::cmdExportar_Click(int index) {
  switch (index) {
    case kLeave:
      Unload();
      return;
    case kExport:
      Act([this] { Export(); });
      return;
    case kHelp:
      Act([this] { Surroundings().SendKeys("{F1}", true); });
      return;
    case kLoadTemplate:
      Act([this] { LoadTemplate(); });
      return;
    case kSaveTemplate:
      Act([this] { SaveTemplate(); });
      return;
    default:
      return;
  }
}

void frmExportacion::cmdVerDatos_Click() {
  if (!HasFieldRow(msgSeleccionados)) return;
  const long idCampo = msgSeleccionados.RowData(msgSeleccionados.Row());
  if (!std::in_range<std::int16_t>(idCampo)) {
    throw RuntimeError(kOverflow,
                       "El campo tiene un número que no es válido: " + std::to_string(idCampo) + ".", kForm);
  }
  const auto dialog = toolkit::MakeForm<frmDatos>(Surroundings(), mcolCampos());
  dialog->mintIDCampo = static_cast<std::int16_t>(idCampo);
  dialog->Load();
  dialog->Show();
  const std::string value = dialog->mstrValorCampoElegido;
  dialog->Unload();
  if (!value.empty()) filter_.InsertValue(value);
}

void frmExportacion::LoadTemplate() {
  ShowTemplates(cConstPlantilla().Cargar());
  txtFiltro.Text({});
  cboExportar_Click();
}

void frmExportacion::SaveTemplate() {
  if (msgSeleccionados.Rows() == 1) {
    messages_.Warn("¡Deberá tener algún campo en la rejilla para salvar plantillas!");
    return;
  }
  ShowTemplates(cConstPlantilla().Salvar());
}

void frmExportacion::ShowTemplates(std::uint8_t operation) {
  const auto dialog = toolkit::MakeForm<templates::frmPlantillas>(Surroundings(), msgSeleccionados, lstOrden);
  dialog->mbytOperacion = operation;
  dialog->Show();
}

void frmExportacion::Export() {
  if (!ValidarExportacion()) return;
  if (runner_ == nullptr) {
    throw RuntimeError(kObjectNotSet, "No se puede exportar: la ventana se ha creado sin exportación.",
                       kForm);
  }
  Surroundings().MousePointer(kHourglass);
  try {
    runner_->ExportarDatos();
  } catch (...) {
    Surroundings().MousePointer(kDefaultPointer);
    throw;
  }
  Surroundings().MousePointer(kDefaultPointer);
}

}  // namespace velmar::wizard
