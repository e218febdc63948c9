#include "templates/frmPlantillas.h"

#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/Raised.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/Connection.h"
#include "platform/text/Trim.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar::templates {

namespace {

constexpr const char* kForm = "frmPlantillas";

}  // namespace

frmPlantillas::frmPlantillas(toolkit::Toolkit& toolkit, controls::Grid& msgSeleccionados,
                             controls::ListBox& lstOrden)
    : Form(toolkit, kForm), messages_(toolkit), selection_(msgSeleccionados, lstOrden) {
  Caption("Asistente de plantillas");
  int index = 0;
  for (const char* caption : {"&Aceptar", "&Cancelar", "&Eliminar"}) cmdPlantilla.Load(index++, caption);
  cmdPlantilla(kAccept).Default(true);
  cmdPlantilla(kCancel).Cancel(true);
  txtPlantilla.MaxLength(kMaxName);
  txtPlantilla.AccessibleName("Nombre de la plantilla");
  lstPlantilla.AccessibleName("Plantillas");
  prgPlantilla.AccessibleName("Progreso de la plantilla");
  prgPlantilla.Visible(false);

  index = 0;
  for (controls::Control* control :
       {static_cast<controls::Control*>(&txtPlantilla), static_cast<controls::Control*>(&lstPlantilla),
        static_cast<controls::Control*>(&cmdPlantilla(kDelete)),
        static_cast<controls::Control*>(&cmdPlantilla(kAccept)),
        static_cast<controls::Control*>(&cmdPlantilla(kCancel)),
        static_cast<controls::Control*>(&lblPlantilla), static_cast<controls::Control*>(&prgPlantilla)}) {
    control->TabIndex(index++);
    Add(*control);
  }

  lstPlantilla.Click = [this] { lstPlantilla_Click(); };
  lstPlantilla.DblClick = [this] { lstPlantilla_DblClick(); };
  txtPlantilla.GotFocus = [this] { txtPlantilla_GotFocus(); };
  cmdPlantilla.Wire([this](controls::CommandButton& button, int number) {
    button.Click = [this, number] { cmdPlantilla_Click(number); };
  });
}

frmPlantillas::~frmPlantillas() = default;

const cConstPlantilla& frmPlantillas::Constants() {
  if (constants_ == nullptr) constants_ = std::make_unique<cConstPlantilla>();
  return *constants_;
}

FailureReport frmPlantillas::Report() const {
  return ReportToHost(objApi_, kForm);
}

TemplateStore frmPlantillas::Store() const {
  return {objHost->conGestion(), idUsuario_, [&toolkit = Surroundings()] { toolkit.DoEvents(); }};
}

void frmPlantillas::Form_Load() {
  // A failure in front of the API object's own step is told as well.
  const FailureReport report = [this](const RuntimeError& failure, const std::string& routine) {
    if (objApi_ == nullptr) objApi_ = CreateHostApi();
    Report()(failure, routine);
  };
  RunReporting(report, "Form_Load()", [this] {
    Icon(toolkit::Toolkit::LoadPicture(objHost->Icono()));
    objApi_ = CreateHostApi();
    if (mbytOperacion == Constants().Salvar()) Caption("Asistente de plantillas: Salvar plantilla");
    if (mbytOperacion == Constants().Cargar()) Caption("Asistente de plantillas: Cargar plantilla");
    idUsuario_ = objHost->IDUsuario();
    fillPlantillas();
  });
}

void frmPlantillas::Form_Unload(bool& Cancel) {
  if (working_) {
    Cancel = true;
    Surroundings().Beep();
    return;
  }
  objApi_.reset();
  constants_.reset();
}

void frmPlantillas::lstPlantilla_Click() {
  const std::string name = lstPlantilla.List(lstPlantilla.ListIndex());
  if (!name.empty()) txtPlantilla.Text(name);
}

void frmPlantillas::lstPlantilla_DblClick() {
  cmdPlantilla_Click(kAccept);
}

void frmPlantillas::txtPlantilla_GotFocus() {
  if (objApi_ != nullptr) objApi_->SeleccionarTexto(txtPlantilla);
}

void frmPlantillas::cmdPlantilla_Click(int index) {
  // The statements give the message loop its turns, in which the user can act again.
  if (working_) {
    Surroundings().Beep();
    return;
  }
  RunReporting(Report(), "cmdPlantilla_Click(" + std::to_string(index) + ")", [&] {
    if (index == kAccept) Accept();
    if (index == kCancel) Unload();
    if (index == kDelete) Delete();
  });
}

void frmPlantillas::Accept() {
  {
    const Raised working(working_);
    if (mbytOperacion == Constants().Salvar()) {
      // Read once: in a turn of the statements the box can be given another name.
      const std::string name = txtPlantilla.Text();
      if (text::Trim(name).empty()) {
        messages_.Warn("¡Debe introducir datos en el campo nombre de la plantilla!");
        // A box that has the focus already does not get it.
        if (txtPlantilla.HasFocus()) {
          txtPlantilla_GotFocus();
        } else {
          txtPlantilla.SetFocus();
        }
        return;
      }
      if (ExistePlantilla(name)) return;
      GuardarPlantilla(name);
    } else if (mbytOperacion == Constants().Cargar()) {
      if (!HasSelection()) return;
      CargarPlantilla();
    }
  }
  Unload();
}

void frmPlantillas::Delete() {
  const Raised working(working_);
  if (!HasSelection()) return;
  if (!messages_.Ask("Se dispone a eliminar la plantilla '" + lstPlantilla.Text() +
                     "' de la lista.\r¿Desea continuar con el proceso de eliminación?")) {
    return;
  }
  EliminarPlantilla();
  txtPlantilla.Text("");
  fillPlantillas();
}

bool frmPlantillas::ExistePlantilla(const std::string& name) {
  existing_ = TemplateStore::Existing::kNone;
  if (!Store().Exists(name)) return false;
  if (!messages_.Confirm("La plantilla '" + PrepararTextoSQL(name) +
                         "' ya existe en la base de datos.\r¿Desea modificar la plantilla existente?")) {
    return true;
  }
  existing_ = TemplateStore::Existing::kReplace;
  return false;
}

void frmPlantillas::GuardarPlantilla(const std::string& name) {
  RunReporting(Report(), "GuardarPlantilla", [&] {
    const TemplateStore store = Store();
    ShowBar();
    store.Save(name, selection_.Read(), existing_, Bar());
    prgPlantilla.Value(prgPlantilla.Max());
    prgPlantilla.Visible(false);
  });
}

void frmPlantillas::CargarPlantilla() {
  TemplateContent content;
  RunReporting(Report(), "CargarPlantilla", [&] {
    const TemplateStore store = Store();
    ShowBar();
    selection_.Clear();
    store.Load(lstPlantilla.Text(), content, Bar());
  });
  // After a failure, too: what was read until then shows.
  selection_.Append(content);
}

void frmPlantillas::fillPlantillas() {
  RunReporting(Report(), "fillPlantillas", [this] {
    lstPlantilla.Clear();
    for (const std::string& name : Store().Names()) lstPlantilla.AddItem(name);
  });
}

void frmPlantillas::EliminarPlantilla() {
  Store().Delete(lstPlantilla.Text());
}

void frmPlantillas::ShowBar() {
  prgPlantilla.Visible(true);
  Refresh();
  prgPlantilla.Min(0);
  prgPlantilla.Value(0);
}

TemplateStore::Progress frmPlantillas::Bar() {
  return [this](long done, long total) {
    prgPlantilla.Max(total);
    prgPlantilla.Value(done);
  };
}

bool frmPlantillas::HasSelection() {
  if (!lstPlantilla.List(lstPlantilla.ListIndex()).empty()) return true;
  messages_.Warn("¡Debe seleccionar una plantilla de la lista de plantillas!");
  return false;
}

}  // namespace velmar::templates
