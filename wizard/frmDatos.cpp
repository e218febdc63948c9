#include "wizard/frmDatos.h"

#include "catalogue/FieldLookup.h"
#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/text/Characters.h"
#include "platform/toolkit/Toolkit.h"
#include "wizard/ValueQueries.h"

namespace velmar::wizard {

namespace {

constexpr const char* kForm = "frmDatos";
constexpr int kDefaultPointer = 0;
constexpr int kHourglass = 11;
/// The characters of an account that stand in their plain form.
constexpr std::size_t kPlainLength = 10;

/// While it lives, the dialog takes no user actions and the pointer is the hourglass.
class Busy {
 public:
  explicit Busy(toolkit::Form& form) : form_(form) {
    form_.Surroundings().MousePointer(kHourglass);
    form_.Enabled(false);
  }
  ~Busy() {
    form_.Enabled(true);
    form_.Surroundings().MousePointer(kDefaultPointer);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  toolkit::Form& form_;
};

}  // namespace

frmDatos::frmDatos(toolkit::Toolkit& toolkit, const Collection<cCampos>& mcolCampos)
    : Form(toolkit, kForm), messages_(toolkit), mcolCampos_(mcolCampos) {
  Caption("Datos del campo");
  optDatos.Load(kTyped, "Introducir el valor del campo manualmente:");
  optDatos.Load(kPicked, "Seleccionar valor desde base de datos");
  for (const int index : {kTyped, kPicked}) {
    fraDatos.Load(index);
    lblDatos.Load(index, "Valor del campo:").Container(&fraDatos(index));
    modes_.Add(optDatos(index));
  }
  cmdDatos.Load(kCancel, "&Cancelar").Cancel(true);
  cmdDatos.Load(kAccept, "&Aceptar").Default(true);
  txtDatos.Container(&fraDatos(kTyped));
  txtDatos.AccessibleName("Valor del campo");
  lstDatos.Container(&fraDatos(kPicked));
  lstDatos.Sorted(true);
  lstDatos.AccessibleName("Valores del campo en la base de datos");
  prgDatos.Container(&fraDatos(kPicked));
  prgDatos.Visible(false);
  prgDatos.AccessibleName("Progreso de la lectura de valores");

  optDatos.Wire([this](controls::OptionButton& option, int index) {
    option.Click = [this, index] { optDatos_Click(index); };
  });
  cmdDatos.Wire([this](controls::CommandButton& button, int index) {
    button.Click = [this, index] { cmdDatos_Click(index); };
  });
  lstDatos.DblClick = [this] { lstDatos_DblClick(); };
  AddControls();
  optDatos(kTyped).Value(true);
}

frmDatos::~frmDatos() = default;

void frmDatos::AddControls() {
  int index = 0;
  const auto add = [&](controls::Control& control) {
    control.TabIndex(index++);
    Add(control);
  };
  add(optDatos(kTyped));
  add(txtDatos);
  add(optDatos(kPicked));
  add(lstDatos);
  add(cmdDatos(kAccept));
  add(cmdDatos(kCancel));
  fraDatos.ForEach([&](controls::Frame& frame, int) { add(frame); });
  lblDatos.ForEach([&](controls::Label& label, int) { add(label); });
  add(prgDatos);
}

void frmDatos::Form_Load() {
  // A failure in front of the API object's own step is told as well.
  const FailureReport report = [this](const RuntimeError& failure, const std::string& routine) {
    if (objApi_ == nullptr) objApi_ = CreateHostApi();
    ReportToHost(objApi_, kForm)(failure, routine);
  };
  RunReporting(report, "Form_Load()", [this] {
    Icon(toolkit::Toolkit::LoadPicture(objHost->Icono()));
    objApi_ = CreateHostApi();
  });
}

void frmDatos::Form_Activate() {
  Refresh();
  fillValorCampos();
}

void frmDatos::Form_Unload(bool& /*Cancel*/) {
  objApi_.reset();
}

void frmDatos::optDatos_Click(int index) {
  for (const int mode : {kTyped, kPicked}) {
    fraDatos(mode).Enabled(mode == index);
    lblDatos(mode).Enabled(mode == index);
  }
  txtDatos.Enabled(index == kTyped);
  lstDatos.Enabled(index == kPicked);
}

void frmDatos::cmdDatos_Click(int index) {
  if (index == kCancel) {
    mstrValorCampoElegido.clear();
  } else if (optDatos(kTyped).Value()) {
    mstrValorCampoElegido = txtDatos.Text();
  } else if (lstDatos.SelCount() == 0) {
    messages_.Warn("¡Debe seleccionar un elemento de la lista!");
    return;
  } else {
    mstrValorCampoElegido = lstDatos.List(lstDatos.ListIndex());
  }
  Hide();
}

void frmDatos::lstDatos_DblClick() {
  cmdDatos_Click(kAccept);
}

void frmDatos::fillValorCampos() {
  const Busy busy(*this);
  ErrObject Err;
  std::string nombreInterno;
  Err.Try([&] { nombreInterno = FindField(mcolCampos_, mintIDCampo).NombreInternoCampo(); });
  std::shared_ptr<ADODB::Recordset> rows;
  Err.Try([&] { rows = objHost->conGestion()->Execute(ObtenerSQLValorCampo(nombreInterno)); });
  Err.Try([&] { Surroundings().DoEvents(); });
  if (Err.Number() != 0 || rows == nullptr) {
    messages_.Warn(
        "¡No se pueden mostrar valores para el campo,\rpor favor, introduzca un valor manualmente!");
    return;
  }

  long count = 0;
  const bool counted = Err.Try([&] { count = rows->RecordCount(); });
  if (counted && count == 0) {
    messages_.Inform(
        "¡No existen valores para el campo en la bd,\rpor favor, introduzca un valor manualmente!");
  } else if (counted) {
    fillLista(*rows, count, nombreInterno, Err);
  }
  Err.Try([&] {
    if (rows->State() == ADODB::kStateOpen) rows->Close();
  });
  if (Err.Number() != 0) {
    ReportToHost(objApi_, kForm)(RuntimeError(Err.Number(), Err.Description(), Err.Source()),
                                 "fillValorCampos");
  }
}

void frmDatos::fillLista(ADODB::Recordset& rows, long count, const std::string& nombreInterno,
                         ErrObject& Err) {
  prgDatos.Visible(true);
  Refresh();
  prgDatos.Min(0);
  prgDatos.Max(count);
  prgDatos.Value(0);
  lblDatos(kPicked).Visible(false);
  lstDatos.Visible(false);
  Refresh();

  const bool account = IsAccountField(nombreInterno);
  std::shared_ptr<cCuentaCodec> codec;
  // A row that fails is left out; a recordset that cannot be moved ends the list.
  const auto more = [&] {
    bool found = false;
    return Err.Try([&] { found = !rows.Eof(); }) && found;
  };
  for (bool moved = true; moved && more(); moved = Err.Try([&] { rows.MoveNext(); })) {
    Err.Try([&] { prgDatos.Value(prgDatos.Value() + 1); });
    Err.Try([&] {
      const std::string value = rows.Fields("Campo").Value().AsText();
      lstDatos.AddItem(account ? ShownAccount(value, codec) : value);
    });
    Err.Try([&] { Surroundings().DoEvents(); });
  }

  prgDatos.Value(prgDatos.Max());
  prgDatos.Visible(false);
  lstDatos.Visible(true);
  lblDatos(kPicked).Visible(true);
}

std::string frmDatos::ShownAccount(const std::string& value, std::shared_ptr<cCuentaCodec>& codec) const {
  std::string tail = text::Mid(value, kPlainLength + 1);
  if (codec == nullptr) codec = CreateCuentaCodec();
  codec->DecodificarTramo(tail);
  return text::Left(value, kPlainLength) + tail;
}

}  // namespace velmar::wizard
