#pragma once

#include <string>

#include "export/RunStage.h"
#include "platform/controls/ControlObserver.h"
#include "sample/command/Terminal.h"

namespace velmar::sample {

/// Tells on err how far an export has come. A terminal gets one line, drawn again in place; anything else a
/// short line for each stage and each quarter of a stage that counts. It observes the wizard's progress bar.
class ExportProgress final : public controls::ControlObserver {
 public:
  explicit ExportProgress(const Terminal& terminal) : terminal_(terminal) {}

  void Begin(exporting::RunStage stage);
  void Changed(controls::Control& control, controls::Property what) override;
  /// Takes the line off the terminal.
  void End();

 private:
  void Draw();

  const Terminal& terminal_;
  std::string text_;
  long percent_ = -1;  ///< -1: the stage has not counted yet
  bool drawn_ = false;
};

}  // namespace velmar::sample
