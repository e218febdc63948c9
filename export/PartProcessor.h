#pragma once

#include <string>
#include <vector>

#include "export/RunContext.h"
#include "export/RunLoop.h"
#include "export/WorkFiles.h"
#include "platform/ado/Recordset.h"

namespace velmar::exporting {

/// Makes the rows of a part database fit for a sheet: dates that are none become empty, and the tails of
/// account numbers are decoded. A column whose name holds "cuenta" is an account column, one whose name holds
/// "fecha" otherwise a date column.
///
/// The message loop gets a turn for every account value and every row, so one part may be begun, and
/// finished, inside another.
class PartProcessor {
 public:
  PartProcessor(const RunContext& context, RunLoop& loop, const WorkFiles& workFiles)
      : context_(context), loop_(loop), workFiles_(workFiles) {}

  /// strParte is the part's table, and its file's name without ".mdb".
  void ProcesarParte(const std::string& strParte);

 private:
  struct AccountColumn {
    long index;
    std::string name;
  };

  std::vector<AccountColumn> PrepareColumns(const std::string& strParte, ADODB::Connection& connection,
                                            const ADODB::Recordset& rows);
  void DecodeAccounts(const std::vector<AccountColumn>& accounts, ADODB::Recordset& rows);

  const RunContext& context_;
  RunLoop& loop_;
  const WorkFiles& workFiles_;
};

}  // namespace velmar::exporting
