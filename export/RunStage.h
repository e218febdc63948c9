#pragma once

namespace velmar::exporting {

/// What an export does, in this order. Stages with nothing to do are left out.
enum class RunStage {
  kModelo182,       ///< works out the data of Modelo 182
  kStaging,         ///< takes the selected rows to the work database
  kPending,         ///< adds the rows of pending receipts
  kRecoding,        ///< puts words for codes
  kRepeated,        ///< takes out repeated rows
  kCutting,         ///< moves the rows into part databases
  kPostProcessing,  ///< decodes accounts and empties dates
  kSheets,          ///< writes the workbook
  kClosing,         ///< removes the work files and tells the user
};

}  // namespace velmar::exporting
