#pragma once

#include <optional>
#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "export/Modelo182.h"
#include "export/RunContext.h"
#include "export/RunLoop.h"
#include "export/StagingStatement.h"
#include "export/WorkFiles.h"
#include "platform/error/ErrObject.h"
#include "platform/files/FileLock.h"
#include "query/Selection.h"

namespace velmar::exporting {

class BlockLedger;
class BlockRun;

/// How an export ended.
enum class Outcome {
  kFinished,         ///< The workbook is complete, and the window has been unloaded.
  kDialogCancelled,  ///< Nothing has been touched but a table that an older run has left in the main
                     ///< database.
  kRefused,          ///< The target cannot be used, likewise, or a run is in progress.
  kStagingFailed,    ///< The rows could not be staged.
  kNoData,           ///< The selection has no rows.
  kIncomplete,       ///< Rows are missing from the workbook; the user has been told how many and why.
  kCancelled,        ///< By the user. Neither work files nor a workbook are left.
};

/// Carries out exports for one window, one at a time, any number one after the other. All work is done on the
/// window's thread; other events come in only through the turns of the message loop.
class ExportRun {
 public:
  explicit ExportRun(RunContext context);
  ~ExportRun();
  ExportRun(const ExportRun&) = delete;
  ExportRun& operator=(const ExportRun&) = delete;

  /// One export from the question for the file to the closing message. The selection has passed validation.
  /// Failures are told to the user here; what is thrown comes from the window itself.
  Outcome ExportarDatos(const Selection& selection, const Collection<cCampos>& mcolCampos);

  /// The event of the timer with this index, which is also the block's number.
  void tmrExportacion_Timer(int Index);

  /// True from the start of ExportarDatos to its end, but for the moment when it unloads the
  /// window: the window's own actions do nothing meanwhile.
  bool IsRunning() const noexcept { return running_; }
  /// Why the last export did not come to its end; Number is 0 if it did or was cancelled. The message that
  /// the user gets does not tell the reason of every failure.
  const ErrObject& Failure() const noexcept { return failure_; }
  /// Has the run stop at its next safe point. Nothing happens if none is in progress.
  void RequestCancel() noexcept;

 private:
  Outcome Run(const Selection& selection, const Collection<cCampos>& mcolCampos);
  bool ChooseTarget(Outcome& outcome);
  bool Stage(const Selection& selection, const Collection<cCampos>& mcolCampos);
  StagingStatement Statement(const Selection& selection, const Collection<cCampos>& mcolCampos) const;
  Outcome WriteWorkbook();
  void EliminarTablaExportacion();
  void ComprobarDatosExportados(short& resultado);
  Outcome Finish();
  Outcome ReportStagingFailed(const ErrObject& Err);
  Outcome ReportIncomplete(const BlockLedger& ledger);
  void CleanUpCancelled();
  void RemoveWorkDatabase();
  void CloseAuxiliar();
  std::string StateOfTarget() const;
  void HideBar();
  void Tell(const std::string& message, long style);
  void TellReason();

  RunContext context_;
  RunLoop loop_;
  WorkFiles workFiles_;
  Modelo182 modelo182_;
  BlockRun* blocks_ = nullptr;
  std::string strFichero_;
  ErrObject failure_;
  /// Held while there may be work files of this run that are in use.
  std::optional<files::FileLock> workFolder_;
  bool targetWritten_ = false;
  bool running_ = false;
};

}  // namespace velmar::exporting
