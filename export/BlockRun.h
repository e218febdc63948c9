#pragma once

#include <memory>
#include <optional>
#include <string>

#include "export/BlockLedger.h"
#include "export/PartProcessor.h"
#include "export/PendingBlocks.h"
#include "export/RunContext.h"
#include "export/RunLoop.h"
#include "export/SheetPlan.h"
#include "export/WorkFiles.h"
#include "platform/ado/Recordset.h"
#include "platform/error/RuntimeError.h"

namespace velmar::exporting {

/// Rows of a block: one part table in one part database.
inline constexpr int kBlockRows = 8000;

/// Takes the rows of the staging table to the target: cuts them into blocks, has each block post-processed
/// from its timer, and copies the blocks to sheets. A block that fails is noted and left out; the others go
/// on.
class BlockRun {
 public:
  /// Counts the rows of the staging table.
  BlockRun(const RunContext& context, RunLoop& loop, const WorkFiles& workFiles, std::string strFichero);
  /// Timers that were loaded are unloaded, and nothing is pending any more.
  ~BlockRun();
  BlockRun(const BlockRun&) = delete;
  BlockRun& operator=(const BlockRun&) = delete;

  /// Carries out the three stages. What fails stands in the ledger.
  void ExportBlocks();

  /// The event of a timer: arms the next one, then works on its own block.
  void TimerFired(int index);

  const BlockLedger& Ledger() const noexcept { return *ledger_; }
  /// True if something of the target has been written.
  bool TargetExists() const noexcept { return sheets_.FileExists(); }

 private:
  void Cut();
  std::optional<RuntimeError> CutBlock(int block);
  void PostProcess();
  void LosePending();
  bool ChainGoesOn() const;
  void WriteSheets();
  void WriteBlock(int block);
  template <typename Step>
  bool Attempt(int block, Step&& step);

  const RunContext& context_;
  RunLoop& loop_;
  const WorkFiles& workFiles_;
  PartProcessor processor_;
  PendingBlocks pending_;
  SheetPlan sheets_;
  std::unique_ptr<ADODB::Recordset> rsExportacion_;
  std::unique_ptr<BlockLedger> ledger_;
  int intUltimoBloque_ = -1;
  int nextToWrite_ = 0;
  int inProgress_ = 0;
};

}  // namespace velmar::exporting
