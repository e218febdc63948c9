#pragma once

namespace velmar::sample {

/// What velmar_sample tells a scheduler of how it ended.
enum ExitCode : int {
  kDone = 0,
  kFailed = 1,
  kNotUnderstood = 2,      ///< the words of the command line
  kNothingToExport = 3,    ///< the selection has no rows
  kTemplateNotFound = 4,   ///< the user has no such template
  kTargetTaken = 5,        ///< a file stands where the workbook should, and may not be replaced
  kCancelledByUser = 130,  ///< by SIGINT or SIGTERM, as shells tell the former
};

}  // namespace velmar::sample
