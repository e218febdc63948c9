#pragma once

#include <functional>

#include "export/ExportRun.h"

namespace velmar::wizard {

/// Who looks at the exports of a window beside its user. Empty members are not called.
struct ExportWatch {
  /// A stage of an export begins.
  std::function<void(exporting::RunStage)> stageBegins;
  /// An export has ended so, and for this reason: its Number is 0 if the messages told all there is. After a
  /// complete export the window has been unloaded.
  std::function<void(exporting::Outcome, const ErrObject& reason)> ended;
};

}  // namespace velmar::wizard
