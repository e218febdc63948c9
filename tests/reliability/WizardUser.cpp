#include "reliability/WizardUser.h"

#include <chrono>
#include <memory>

#include "host/ComponentSite.h"
#include "host/cPrincipal.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/CalendarDate.h"
#include "sample/host/SampleClasses.h"
#include "sample/host/SampleHost.h"
#include "wizard/frmExportacion.h"

namespace velmar::reliability {
namespace {

using Controls = wizard::ExportControls;

class Site final : public ComponentSite {
 public:
  explicit Site(toolkit::Toolkit& toolkit) : toolkit_(toolkit) { cPrincipal().SetSite(this); }
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;
  ~Site() override { cPrincipal().SetSite(nullptr); }

  toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  toolkit::Toolkit& toolkit_;
};

struct Field {
  const char* node;
  const char* literal;
  std::string filter = {};
  bool sorted = false;
};

std::vector<Field> FieldsOf(Selection selection) {
  const char* people = "(COL) Colaboradores";
  if (selection == Selection::kDeclaration) {
    const char* node = "(MOD) Modelo182";
    return {{node, "Nombre del declarado", {}, true},
            {node, "NIF del declarado"},
            {node, "Provincia del declarado"},
            {node, "Clave del Modelo 182"},
            {node, "Importe declarado"},
            {people, "Código de colaborador"}};
  }
  const char* receipts = "(REC) Recibos";
  const std::string year = std::to_string(static_cast<int>(sample::Today().year()) - 1);
  return {{people, "Código de colaborador"},
          {people, "Primer apellido", {}, true},
          {people, "Sexo"},
          {people, "Tipo de entidad"},
          {receipts, "Fecha de emisión",
           "{Fecha de emisión} [Entre] `01/01/" + year + "´ [Y] `31/12/" +
               std::to_string(std::stoi(year) + 1) + "´",
           true},
          {receipts, "Fecha de cobro"},
          {receipts, "Importe del recibo"},
          {receipts, "Cuenta bancaria"}};
}

/// False if the window does not offer the field, as after a failure while it was loaded.
bool Pick(wizard::frmExportacion& form, toolkit::ScriptedToolkit& user, const Field& field) {
  const long node = form.cboExportar.FindStringExact(field.node);
  if (node < 0 || !form.cboExportar.UserChoose(node)) return false;
  const long literal = form.lstDisponibles.FindStringExact(field.literal);
  if (literal < 0) return false;
  form.lstDisponibles.UserDoubleClick(literal);
  form.msgSeleccionados.UserClick(form.msgSeleccionados.Rows() - 1);
  if (!field.filter.empty()) {
    form.txtFiltro.UserPaste(field.filter);
    form.cmdFiltro(Controls::kFilterAssign).UserClick();
  }
  if (field.sorted) {
    user.AnswerMenu("Agregar al 'orden'");
    form.msgSeleccionados.UserMouseUp(2, 0, 0, 0);
  }
  return true;
}

bool PickAll(wizard::frmExportacion& form, toolkit::ScriptedToolkit& user, Selection selection) {
  for (const Field& field : FieldsOf(selection)) {
    if (!Pick(form, user, field)) return false;
  }
  return true;
}

}  // namespace

bool Seen::Told(const std::string& piece) const {
  for (const std::string& failure : failures) {
    if (text::Contains(failure, piece)) return true;
  }
  return false;
}

std::string Seen::Text() const {
  std::string all = success ? "success" : "no success";
  for (const std::string& failure : failures) all += " | " + text::Replace(failure, "\r", " / ");
  return all;
}

Seen Export(const std::string& folder, const std::string& file, Selection selection) {
  Seen seen;
  toolkit::ScriptedToolkit user;
  sample::SampleHost::Settings settings;
  settings.folder = folder;
  sample::RegisterSampleClasses(user, settings.title);
  const Site site(user);
  user.AlwaysAnswer(toolkit::kYes, "asignar el filtro");
  user.AnswerFile(file);
  user.WhenShown("frmExportacion", [&](toolkit::Form& shown) {
    auto& form = dynamic_cast<wizard::frmExportacion&>(shown);
    if (PickAll(form, user, selection)) form.cmdExportar(Controls::kExport).UserClick();
    form.UserClose();  // Still open after a refusal or a failure.
  });
  std::string error;
  try {
    cPrincipal().PasarDatos(std::make_shared<sample::SampleHost>(settings));
  } catch (const std::exception& failure) {
    error = std::string("PasarDatos: ") + failure.what();
  }
  for (const toolkit::Record& record : user.Records()) {
    if (record.kind != toolkit::Record::Kind::kBox) continue;
    if (record.number == toolkit::kInformation) {
      seen.success = text::Contains(record.text, "ha terminado correctamente");
    } else if (record.number == toolkit::kExclamation || record.number == toolkit::kCritical) {
      seen.failures.push_back(record.text);
    }
  }
  if (!error.empty()) seen.failures.push_back(error);
  return seen;
}

}  // namespace velmar::reliability
