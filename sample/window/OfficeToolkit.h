#pragma once

#include <optional>
#include <string>

#include "platform/controls/CommonDialog.h"
#include "qt/toolkit/QtToolkit.h"

namespace velmar::sample {

/// The toolkit of the sample host, which knows where the user saved last.
class OfficeToolkit final : public qt::QtToolkit {
 public:
  using QtToolkit::QtToolkit;

  /// Full path; empty if nothing has been saved yet.
  const std::string& LastChosen() const noexcept { return lastChosen_; }

  std::optional<std::string> ChooseFileToSave(const controls::CommonDialog& dialog) override {
    auto chosen = QtToolkit::ChooseFileToSave(dialog);
    if (chosen) lastChosen_ = *chosen;
    return chosen;
  }

 private:
  std::string lastChosen_;
};

}  // namespace velmar::sample
