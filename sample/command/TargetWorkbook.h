#pragma once

#include <string>

#include "sample/WorkFolder.h"

namespace velmar::sample {

/// The workbook that a command makes. It is written in a folder of its own beside its place and moved there
/// when it is complete, so that no failure leaves half a workbook or loses the one that it was to replace.
class TargetWorkbook {
 public:
  /// CommandError (kTargetTaken) if a file stands there that is no workbook, or is one and overwrite is
  /// false; kPathNotFound if its folder cannot be written.
  TargetWorkbook(std::string file, bool overwrite);

  /// Where to write it.
  const std::string& Unfinished() const noexcept { return unfinished_; }
  /// Puts it in its place. Errors as above, if another file has come there meanwhile, or kPermissionDenied.
  void Keep();

 private:
  std::string file_;
  bool overwrite_;
  WorkFolder folder_;
  std::string unfinished_;
};

}  // namespace velmar::sample
