#pragma once

#include <optional>
#include <string>

#include "export/ExportRun.h"
#include "platform/error/ErrObject.h"
#include "sample/command/CommandError.h"

namespace velmar::sample {

/// How the wizard's part of an export ended that has nobody before it.
struct ExportEnd {
  std::optional<exporting::Outcome> outcome;  ///< nothing if the export was refused before it began
  ErrObject reason;

  bool Finished() const { return outcome == exporting::Outcome::kFinished; }
  /// What a command reports of any other end: the wizard's messages, and the reason if they do not tell it.
  CommandError Failure(const std::string& messages) const;
};

}  // namespace velmar::sample
