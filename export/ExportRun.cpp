#include "export/ExportRun.h"

#include <algorithm>
#include <utility>

#include "export/BlockRun.h"
#include "export/StagingTable.h"
#include "export/TargetFile.h"
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

/// Lets go of the work folder at the end of a scope.
class FolderRelease {
 public:
  explicit FolderRelease(std::optional<files::FileLock>& folder) : folder_(folder) {}
  ~FolderRelease() { folder_.reset(); }
  FolderRelease(const FolderRelease&) = delete;
  FolderRelease& operator=(const FolderRelease&) = delete;

 private:
  std::optional<files::FileLock>& folder_;
};

/// True for failures of files, disks and locks, which no change of the selection would help.
bool IsOfTheSurroundings(long number) {
  switch (number) {
    case kFileNotFound:
    case kDeviceIoError:
    case kFileAlreadyExists:
    case kDiskFull:
    case kPermissionDenied:
    case kPathNotFound:
    case kDatabaseNotFound:
    case kDatabaseLocked:
    case kReadOnly:
    case kNotADatabase:
    case kWrongPassword:
      return true;
    default:
      return false;
  }
}

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
  const FolderRelease release(workFolder_);
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
    workFolder_ = workFiles_.Reserve();
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
  CloseAuxiliar();
  Tell(kStagingFailed, toolkit::kExclamation);
  if (IsOfTheSurroundings(failure_.Number())) TellReason();
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
  ErrObject Err;
  Err.Try([&] { context_.host->conGestion()->Execute(std::string("DELETE FROM ") + kTable); });
  loop_.DoEvents();
  if (Err.Number() != 0) return;  // as a rule because there is no such table
  Err.Try([&] { context_.host->conGestion()->Execute(std::string("DROP TABLE ") + kTable); });
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
    if (failure_.Number() != 0) TellReason();
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
    targetWritten_ = blocks->TargetExists();
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
           std::to_string(ledger.Rows()) + "!\rMotivo: " + failure_.Description() + "\r" + StateOfTarget() +
           " Corrija la causa y vuelva a exportar.",
       toolkit::kExclamation);
  HideBar();
  return Outcome::kIncomplete;
}

std::string ExportRun::StateOfTarget() const {
  return targetWritten_ ? "El archivo " + strFichero_ + " está incompleto: no lo utilice."
                        : "No se ha creado el archivo " + strFichero_ + ".";
}

void ExportRun::CleanUpCancelled() {
  HideBar();
  // Each step is tried whatever became of the one before; what cannot be deleted goes with the next run.
  ErrObject ignored;
  CloseAuxiliar();
  // Before it has the folder a run has made nothing, and what is there may be another wizard's.
  if (!workFolder_) return;
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

/// How the run ends is settled by now, and no row is left to be lost.
void ExportRun::CloseAuxiliar() {
  if (context_.conAuxiliar == nullptr || context_.conAuxiliar->State() != ADODB::kStateOpen) return;
  // What cannot be closed is let go of with the object.
  const auto closing = std::exchange(context_.conAuxiliar, nullptr);
  ErrObject ignored;
  ignored.Try([&] { closing->Close(); });
}

void ExportRun::HideBar() {
  context_.prgExportar.Visible(false);
  context_.prgExportar.Value(context_.prgExportar.Min());
}

/// The messages above speak of the selection alone: where it is not to blame, a second one tells what is.
void ExportRun::TellReason() {
  Tell("La causa no está en la selección.\r" + failure_.Description(), toolkit::kExclamation);
}

void ExportRun::Tell(const std::string& message, long style) {
  workFolder_.reset();  // A box may stand for hours, and nothing is worked on behind it.
  context_.window.Surroundings().Beep();
  context_.window.Surroundings().MsgBox(message, style, context_.host->TituloAplicacion());
}

}  // namespace velmar::exporting
