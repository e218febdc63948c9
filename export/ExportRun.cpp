#include "export/ExportRun.h"

#include <algorithm>
#include <utility>

#include "export/BlockRun.h"
#include "export/StagingTable.h"
#include "export/TargetFile.h"
#include "host/interfaces/cIFunciones.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrObject.h"
#include "platform/files/Files.h"
#include "platform/toolkit/Toolkit.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/Nodes.h"

namespace velmar::exporting {
namespace {

constexpr long kHourglass = 11;

constexpr const char* kStagingFailed =
    "¡Se ha producido un error en la sentencia sql de selección de registros";
constexpr const char* kNoData =
    "¡No se han seleccionado datos para la exportación!\rModifique algun dato en el filtro de selección.";
constexpr const char* kFinished =
    "¡El proceso de exportación a una hoja de Microsoft Excel ha terminado correctamente!\r"
    "El asistente de exportación se cerrará automaticamente.";

bool HoldsModelo182(const Selection& selection) {
  return std::any_of(selection.rows.begin(), selection.rows.end(),
                     [](const Selection::Row& row) { return row.tabla == kModelo182; });
}

/// Sets a value for the length of a scope.
template <typename Value>
class ScopedValue {
 public:
  ScopedValue(Value& place, Value value) : place_(place), previous_(std::exchange(place, value)) {}
  ~ScopedValue() { place_ = previous_; }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  Value& place_;
  Value previous_;
};

}  // namespace

ExportRun::ExportRun(RunContext context)
    : context_(std::move(context)),
      loop_(context_.window.Surroundings()),
      workFiles_(context_.host),
      modelo182_(context_, loop_) {}

ExportRun::~ExportRun() = default;

Outcome ExportRun::ExportarDatos(const Selection& selection, const Collection<cCampos>& mcolCampos) {
  if (running_) {
    context_.window.Surroundings().Beep();
    return Outcome::kRefused;
  }
  const ScopedValue running(running_, true);
  loop_.Begin();
  targetWritten_ = false;
  failure_.Clear();
  Outcome outcome = Outcome::kCancelled;
  try {
    outcome = Run(selection, mcolCampos);
  } catch (const RunCancelled&) {
    CleanUpCancelled();
  }
  context_.window.Surroundings().MousePointer(0);
  return outcome;
}

void ExportRun::tmrExportacion_Timer(int Index) {
  if (blocks_ != nullptr) blocks_->TimerFired(Index);
}

void ExportRun::RequestCancel() noexcept {
  if (running_) loop_.Cancel();
}

Outcome ExportRun::Run(const Selection& selection, const Collection<cCampos>& mcolCampos) {
  context_.window.Surroundings().MousePointer(kHourglass);
  EliminarTablaExportacion();
  Outcome outcome = Outcome::kFinished;
  if (!ChooseTarget(outcome)) return outcome;
  loop_.DoEvents();
  context_.window.Refresh();
  if (!Stage(selection, mcolCampos)) return Outcome::kStagingFailed;
  short resultado = 0;
  ComprobarDatosExportados(resultado);
  outcome = resultado == -1 ? WriteWorkbook() : Outcome::kNoData;
  CloseAuxiliar();
  return outcome;
}

bool ExportRun::ChooseTarget(Outcome& outcome) {
  ErrObject Err;
  Err.Try([&] {
    context_.dlgExportar.Flags(controls::CommonDialog::kOverwritePrompt |
                               controls::CommonDialog::kHideReadOnly | controls::CommonDialog::kCreatePrompt);
    context_.dlgExportar.ShowSave();
    strFichero_ = PrepareTarget(context_.dlgExportar.FileName(), workFiles_);
  });
  if (Err.Number() == 0) return true;
  if (Err.Number() == kDialogCancelled) {
    outcome = Outcome::kDialogCancelled;
  } else {
    outcome = Outcome::kRefused;
    failure_ = Err;
    Tell(Err.Description(), toolkit::kExclamation);
  }
  return false;
}

bool ExportRun::Stage(const Selection& selection, const Collection<cCampos>& mcolCampos) {
  const bool declares = HoldsModelo182(selection);
  ErrObject Err;
  Err.Try([&] {
    if (declares) {
      context_.Begin(RunStage::kModelo182);
      modelo182_.GenerarModelo182();
      loop_.DoEvents();
    }
    context_.conAuxiliar = workFiles_.CrearBaseAuxiliar();
    StagingTable(context_, loop_).Fill(Statement(selection, mcolCampos));
    loop_.DoEvents();
    context_.window.Refresh();
  });
  ErrObject ignored;
  ignored.Try([&] { modelo182_.Vaciar(); });
  if (Err.Number() == 0) return true;
  ReportStagingFailed(Err);
  return false;
}

Outcome ExportRun::ReportStagingFailed(const ErrObject& Err) {
  failure_ = Err;
  ErrObject ignored;
  ignored.Try([&] { cIFunciones().CerrarConexion(context_.conAuxiliar); });
  Tell(kStagingFailed, toolkit::kExclamation);
  return Outcome::kStagingFailed;
}

StagingStatement ExportRun::Statement(const Selection& selection,
                                      const Collection<cCampos>& mcolCampos) const {
  std::string select = GenerarSQLSELECT(selection, mcolCampos, context_.report);
  std::string rest = GenerarSQLFROM(selection, mcolCampos, context_.report);
  rest += GenerarSQLWHERE(selection, mcolCampos, context_.createCodec, context_.report);
  rest += GenerarSQLORDERBY(selection, mcolCampos, context_.report);
  return {std::move(select), context_.conAuxiliar->Properties("DATA SOURCE").Value(), std::move(rest)};
}

void ExportRun::EliminarTablaExportacion() {
  const auto conGestion = context_.host->conGestion();
  ErrObject Err;
  Err.Try([&] { conGestion->Execute(std::string("DELETE FROM ") + kTable); });
  loop_.DoEvents();
  if (Err.Number() != 0) return;  // there is no such table
  Err.Try([&] { conGestion->Execute(std::string("DROP TABLE ") + kTable); });
  loop_.DoEvents();
}

void ExportRun::ComprobarDatosExportados(short& resultado) {
  ErrObject Err;
  bool empty = true;
  Err.Try([&] {
    // Reopened, so that what the main database's connection has written is seen.
    if (context_.conAuxiliar->State() == ADODB::kStateOpen) context_.conAuxiliar->Close();
    context_.conAuxiliar->Open("", "", "", -1);
    const auto rows = context_.conAuxiliar->Execute(std::string("SELECT TOP 1 * FROM ") + kTable);
    loop_.DoEvents();
    empty = rows->Eof();
    // A NULL is a value like any other here: only a table without rows holds no data.
    if (!empty) rows->Fields(0).Value();
    rows->Close();
  });
  if (Err.Number() != 0 || empty) {
    failure_ = Err;
    Tell(kNoData, toolkit::kExclamation);
    resultado = 0;
  } else {
    resultado = -1;
  }
}

Outcome ExportRun::WriteWorkbook() {
  std::unique_ptr<BlockRun> blocks;
  ErrObject Err;
  Err.Try([&] { blocks = std::make_unique<BlockRun>(context_, loop_, workFiles_, strFichero_); });
  if (Err.Number() != 0) return ReportStagingFailed(Err);
  const ScopedValue current(blocks_, blocks.get());
  try {
    blocks->ExportBlocks();
    context_.Begin(RunStage::kClosing);
    RemoveWorkDatabase();
    context_.prgExportar.Value(context_.prgExportar.Max());
    loop_.DoEvents();
  } catch (const RunCancelled&) {
    targetWritten_ = blocks->TargetExists();
    throw;
  }
  return blocks->Ledger().Complete() ? Finish() : ReportIncomplete(blocks->Ledger());
}

Outcome ExportRun::Finish() {
  Tell(kFinished, toolkit::kInformation);
  context_.prgExportar.Visible(false);
  running_ = false;  // the window may close now
  context_.window.Unload();
  return Outcome::kFinished;
}

Outcome ExportRun::ReportIncomplete(const BlockLedger& ledger) {
  failure_.Set(ledger.Reason());
  ErrObject ignored;
  ignored.Try([&] { workFiles_.RemoveAll(); });
  Tell("¡No se han podido escribir " + std::to_string(ledger.LostRows()) + " filas de " +
           std::to_string(ledger.Rows()) + "!\rMotivo: " + failure_.Description() +
           "\rCorrija la causa y vuelva a exportar.",
       toolkit::kExclamation);
  HideBar();
  return Outcome::kIncomplete;
}

void ExportRun::CleanUpCancelled() {
  HideBar();
  // Each step is tried whatever became of the one before; what cannot be deleted goes with the next run.
  ErrObject ignored;
  ignored.Try([&] { CloseAuxiliar(); });
  ignored.Try([&] { workFiles_.RemoveAll(); });
  ignored.Try([&] { modelo182_.Vaciar(); });
  if (targetWritten_) ignored.Try([&] { files::Kill(strFichero_); });
}

void ExportRun::RemoveWorkDatabase() {
  ErrObject ignored;
  ignored.Try([&] { context_.conAuxiliar->Close(); });
  loop_.DoEvents();
  ignored.Try([&] { files::Kill(context_.conAuxiliar->Properties("DATA SOURCE").Value()); });
}

void ExportRun::CloseAuxiliar() {
  if (context_.conAuxiliar == nullptr || context_.conAuxiliar->State() != ADODB::kStateOpen) return;
  context_.conAuxiliar->Close();
  context_.conAuxiliar = nullptr;
}

void ExportRun::HideBar() {
  context_.prgExportar.Visible(false);
  context_.prgExportar.Value(context_.prgExportar.Min());
}

void ExportRun::Tell(const std::string& message, long style) {
  context_.window.Surroundings().Beep();
  context_.window.Surroundings().MsgBox(message, style, context_.host->TituloAplicacion());
}

}  // namespace velmar::exporting
