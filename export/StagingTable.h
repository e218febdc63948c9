#pragma once

#include "export/RunContext.h"
#include "export/RunLoop.h"
#include "export/StagingStatement.h"

namespace velmar::exporting {

/// Fills the staging table: the selected rows, those of pending receipts behind them, coded columns in words,
/// and no row twice.
class StagingTable {
 public:
  StagingTable(const RunContext& context, RunLoop& loop) : context_(context), loop_(loop) {}

  void Fill(const StagingStatement& statement);

 private:
  /// The number of rows added.
  long AppendPending(const StagingStatement& statement);
  /// True if the statement has coded columns.
  bool Recode(const StagingStatement& statement);
  void RemoveRepeated();

  const RunContext& context_;
  RunLoop& loop_;
};

}  // namespace velmar::exporting
