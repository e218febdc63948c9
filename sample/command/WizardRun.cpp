#include "sample/command/WizardRun.h"

#include <filesystem>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/command/ExportEnd.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

using Controls = wizard::ExportControls;

}  // namespace

WizardRun::WizardRun(SampleHost::Settings settings) : settings_(std::move(settings)) {}

void WizardRun::Export(const std::vector<Field>& fields, const std::string& file) {
  WizardSession session(settings_);
  toolkit::ScriptedToolkit& user = session.User();
  user.AlwaysAnswer(toolkit::kYes, "asignar el filtro");
  user.AnswerFile(std::filesystem::absolute(file).string());
  ExportEnd end;
  session.Run([&](wizard::frmExportacion& form) {
    form.watch.ended = [&](exporting::Outcome outcome, const ErrObject& reason) { end = {outcome, reason}; };
    for (const Field& field : fields) Pick(form, user, field);
    form.cmdExportar(Controls::kExport).UserClick();
  });
  if (!end.Finished()) throw end.Failure(session.Messages());
}

void WizardRun::Pick(wizard::frmExportacion& form, toolkit::ScriptedToolkit& user, const Field& field) {
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
