#include "sample/command/WizardRun.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "host/ComponentSite.h"
#include "host/cPrincipal.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/host/SampleClasses.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

using Controls = wizard::ExportControls;
using Kind = toolkit::Record::Kind;

/// What the component runs in, for as long as this object lives.
class UnattendedSite final : public ComponentSite {
 public:
  explicit UnattendedSite(toolkit::Toolkit& toolkit) : toolkit_(toolkit) { cPrincipal().SetSite(this); }
  UnattendedSite(const UnattendedSite&) = delete;
  UnattendedSite& operator=(const UnattendedSite&) = delete;
  ~UnattendedSite() override { cPrincipal().SetSite(nullptr); }

  toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  toolkit::Toolkit& toolkit_;
};

/// A complete export ends with a report; every other end is an exclamation or silence.
void RequireSuccess(const std::vector<toolkit::Record>& boxes) {
  if (!boxes.empty() && boxes.back().number == toolkit::kInformation) return;
  std::string messages;
  for (const toolkit::Record& box : boxes) messages += (messages.empty() ? "" : "\n") + box.text;
  throw RuntimeError(
      kEngineFailure,
      messages.empty() ? "El asistente se cerró sin exportar." : text::Replace(messages, "\r", "\n"),
      "WizardRun");
}

}  // namespace

WizardRun::WizardRun(SampleHost::Settings settings) : settings_(std::move(settings)) {}

void WizardRun::Export(const std::vector<Field>& fields, const std::string& file) {
  toolkit::ScriptedToolkit user;
  RegisterSampleClasses(user, settings_.title);
  const UnattendedSite site(user);
  user.AlwaysAnswer(toolkit::kYes, "asignar el filtro");
  user.AnswerFile(std::filesystem::absolute(file).string());
  user.WhenShown("frmExportacion", [&](toolkit::Form& shown) {
    auto& form = dynamic_cast<wizard::frmExportacion&>(shown);
    for (const Field& field : fields) Pick(form, user, field);
    form.cmdExportar(Controls::kExport).UserClick();
    form.UserClose();  // Still open after a refusal or a failure.
  });
  cPrincipal().PasarDatos(std::make_shared<SampleHost>(settings_));
  RequireSuccess(user.Records(Kind::kBox));
}

void WizardRun::Pick(wizard::frmExportacion& form, toolkit::ScriptedToolkit& user, const Field& field) const {
  const long node = form.cboExportar.FindStringExact(field.node);
  const long literal = node >= 0 && form.cboExportar.UserChoose(node)
                           ? form.lstDisponibles.FindStringExact(field.literal)
                           : -1;
  if (literal < 0) {
    throw RuntimeError(
        kItemNotInCollection,
        "El asistente no ofrece el campo '" + field.literal + "' en el nodo '" + field.node + "'.",
        "WizardRun");
  }
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
}

}  // namespace velmar::sample
