#include "reliability/WizardUser.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "sample/CalendarDate.h"
#include "sample/command/WizardRun.h"
#include "sample/command/WizardSession.h"
#include "wizard/frmExportacion.h"

namespace velmar::reliability {
namespace {

using Controls = wizard::ExportControls;

using sample::WizardRun;

std::vector<WizardRun::Field> FieldsOf(Selection selection) {
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
  sample::SampleHost::Settings settings;
  settings.folder = folder;
  sample::WizardSession session(settings);
  toolkit::ScriptedToolkit& user = session.User();
  user.AlwaysAnswer(toolkit::kYes, "asignar el filtro");
  user.AnswerFile(file);
  std::string error;
  try {
    session.Run([&](wizard::frmExportacion& form) {
      try {
        for (const WizardRun::Field& field : FieldsOf(selection)) WizardRun::Pick(form, user, field);
      } catch (const RuntimeError& missing) {
        // The window does not offer the field, as after a failure while it was loaded.
        if (missing.Number() == kItemNotInCollection) return;
        throw;
      }
      form.cmdExportar(Controls::kExport).UserClick();
    });
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
