#include <filesystem>
#include <stdexcept>
#include <vector>

#include "export/BenchSelection.h"
#include "export/ExportRun.h"
#include "export/Steps.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/AccountCodec.h"
#include "sample/host/SampleHost.h"

namespace velmar::bench {
namespace {

/// The part of a window that an export needs.
class BenchWindow : public toolkit::Form {
 public:
  explicit BenchWindow(toolkit::Toolkit& surroundings) : Form(surroundings, "frmExportacion") {
    dlgExportar.CancelError(true);
    Add(prgExportar);
    Add(dlgExportar);
    tmrExportacion.Wire([this](controls::Timer& timer, int index) {
      Add(timer);
      timer.Elapsed = [this, index] { run->tmrExportacion_Timer(index); };
    });
    tmrExportacion.Load(0);
  }

  std::shared_ptr<ADODB::Connection> conAuxiliar;
  controls::ProgressBar prgExportar{"prgExportar"};
  controls::CommonDialog dlgExportar{"dlgExportar"};
  controls::ControlArray<controls::Timer> tmrExportacion{"tmrExportacion"};
  std::unique_ptr<exporting::ExportRun> run;
};

const std::vector<std::string> kStageNames{"modelo182", "preparacion", "pendientes",
                                           "codigos",   "repetidas",   "bloques",
                                           "cuentas",   "hojas",       "finalizacion"};

}  // namespace

Measures RunExport(const std::string& folder, long lastCollaborator) {
  sample::SampleHost::Settings settings;
  settings.folder = folder;
  const auto host = std::make_shared<sample::SampleHost>(settings);
  host->conGestion()->Open();
  host->coninformes()->Open();
  const BenchSelection chosen(lastCollaborator);
  toolkit::ScriptedToolkit surroundings;
  const std::string file = folder + "/banco.xls";
  surroundings.AnswerFile(file);
  const auto window = toolkit::MakeForm<BenchWindow>(surroundings);
  window->Load();

  Measures measures;
  StopWatch stages;
  std::string stage = "inicio";
  const auto endStage = [&] { stages.Lap(measures, stage); };
  window->run = std::make_unique<exporting::ExportRun>(exporting::RunContext{
      host, *window, window->conAuxiliar, window->prgExportar, window->dlgExportar, window->tmrExportacion,
      [] { return std::shared_ptr<HostApi>(); }, [] { return std::make_shared<sample::AccountCodec>(); },
      [](const RuntimeError& failure, const std::string&) { throw failure; }, exporting::CurrentYear,
      [&](exporting::RunStage next) {
        endStage();
        stage = kStageNames.at(static_cast<std::size_t>(next));
      }});
  StopWatch whole;
  const exporting::Outcome outcome = window->run->ExportarDatos(chosen.selection, chosen.catalogue);
  whole.Lap(measures, "total");
  endStage();
  if (outcome != exporting::Outcome::kFinished)
    throw std::runtime_error(window->run->Failure().Description());
  measures["octetos"] = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::remove(file);
  return measures;
}

}  // namespace velmar::bench
