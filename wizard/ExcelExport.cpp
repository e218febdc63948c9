#include "wizard/ExcelExport.h"

#include "host/interfaces/HostObjects.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "wizard/frmExportacion.h"

namespace velmar::wizard {

namespace {

exporting::RunContext ContextOf(frmExportacion& window) {
  // The API object comes to be when the window loads, so the report is asked for when there is something to
  // say.
  const FailureReport report = [&window](const RuntimeError& failure, const std::string& routine) {
    window.Report()(failure, routine);
  };
  return {objHost,
          window,
          window.conAuxiliar(),
          window.prgExportar,
          window.dlgExportar,
          window.tmrExportacion,
          CreateHostApi,
          CreateCuentaCodec,
          report,
          exporting::CurrentYear,
          [&window](exporting::RunStage stage) {
            if (window.watch.stageBegins) window.watch.stageBegins(stage);
          }};
}

}  // namespace

ExcelExport::ExcelExport(frmExportacion& window) : window_(window), run_(ContextOf(window)) {}

void ExcelExport::ExportarDatos() {
  const exporting::Outcome outcome = run_.ExportarDatos(window_.CurrentSelection(), window_.mcolCampos());
  if (window_.watch.ended) window_.watch.ended(outcome, run_.Failure());
}

std::unique_ptr<ExportRunner> ExcelExport::Make(frmExportacion& window) {
  return std::make_unique<ExcelExport>(window);
}

}  // namespace velmar::wizard
