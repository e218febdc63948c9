#include "sample/command/TemplateRun.h"

#include <algorithm>
#include <utility>

#include "export/StagingStatement.h"
#include "export/TargetFile.h"
#include "export/WorkFiles.h"
#include "platform/text/Search.h"
#include "sample/command/CancelSignal.h"
#include "sample/command/CommandError.h"
#include "sample/command/ExportEnd.h"
#include "sample/command/ExportProgress.h"
#include "sample/command/TargetWorkbook.h"
#include "templates/TemplateControls.h"
#include "templates/TemplateStore.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

using Controls = wizard::ExportControls;
using exporting::Outcome;

/// The wizard knows only the place where the workbook is made, which goes with this command.
[[noreturn]] void Fail(const ExportEnd& end, std::string messages, const std::string& unfinished,
                       const std::string& file) {
  if (end.outcome == Outcome::kIncomplete) {
    // Its last line says what has become of the unfinished workbook.
    messages.resize(messages.rfind('\n') + 1);
    messages += "No se ha escrito el archivo " + file + ". Corrija la causa y vuelva a exportar.";
  }
  const CommandError failure = end.Failure(messages);
  throw CommandError(failure.Code(), text::Replace(failure.what(), unfinished, file));
}

[[noreturn]] void Cancelled() {
  throw CommandError(kCancelledByUser, "Exportación cancelada: no se ha dejado ningún libro.");
}

}  // namespace

TemplateRun::TemplateRun(SampleHost::Settings settings, std::string name, Selection::Relation relation)
    : settings_(std::move(settings)), name_(std::move(name)), relation_(relation) {}

void TemplateRun::Fill(wizard::frmExportacion& form, WizardSession& session) const {
  const templates::TemplateStore store(session.Host().conGestion(), settings_.user);
  templates::TemplateContent content;
  store.Load(name_, content);
  if (content.fields.empty()) {
    throw CommandError(kTemplateNotFound, "El usuario " + std::to_string(settings_.user) +
                                              " no tiene ninguna plantilla '" + name_ +
                                              "'. Vea las que tiene con la orden 'plantillas'.");
  }
  templates::TemplateControls(form.msgSeleccionados, form.lstOrden).Append(content);
  form.optExportar(relation_ == Selection::Relation::kComplete ? Controls::kComplete : Controls::kPartial)
      .Value(true);
}

std::string TemplateRun::Export(const std::string& file, bool overwrite, const Terminal& terminal) {
  ExportProgress progress(terminal);
  CancelSignal signal;
  WizardSession session(settings_);
  const std::string path = exporting::CheckTarget(file, exporting::WorkFiles(session.HostObject()));
  TargetWorkbook target(path, overwrite);
  session.User().AnswerFile(target.Unfinished());
  session.User().Loop().Native(&signal);
  ExportEnd end;
  session.Run([&](wizard::frmExportacion& form) {
    Fill(form, session);
    form.prgExportar.Observe(progress);
    form.watch.stageBegins = [&](exporting::RunStage stage) {
      progress.Begin(stage);
      // As closing the window does, a signal asks the run to stop; before the first stage there is none.
      signal.OnTurn([&form] { form.UserClose(); });
    };
    form.watch.ended = [&](Outcome outcome, const ErrObject& reason) {
      progress.End();
      end = {outcome, reason};
    };
    if (!signal.Raised()) form.cmdExportar(Controls::kExport).UserClick();
    signal.OnTurn({});
  });
  // Until the workbook is in its place it is not too late.
  if (end.outcome == Outcome::kCancelled || (signal.Raised() && (end.Finished() || !end.outcome)))
    Cancelled();
  if (!end.Finished()) Fail(end, session.Messages(), target.Unfinished(), path);
  target.Keep();
  return path;
}

std::string TemplateRun::Statement() {
  WizardSession session(settings_);
  std::string text;
  session.Run([&](wizard::frmExportacion& form) {
    Fill(form, session);
    if (!form.ValidarExportacion()) return;
    const std::string workFile =
        exporting::WorkFiles(session.HostObject()).FilePath(exporting::kAuxiliaryFile);
    text =
        exporting::StagingStatement(form.GenerarSQLSELECT(), workFile,
                                    form.GenerarSQLFROM() + form.GenerarSQLWHERE() + form.GenerarSQLORDERBY())
            .Text();
  });
  if (text.empty()) throw ExportEnd().Failure(session.Messages());
  // A line break pasted into a filter is a blank to the engine as well.
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace velmar::sample
