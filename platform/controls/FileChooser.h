#pragma once

#include <optional>
#include <string>

namespace velmar::controls {

class CommonDialog;

/// What asks the person for a file.
class FileChooser {
 public:
  virtual ~FileChooser() = default;

  /// Shows the dialog with these settings for a file to save to, asks before an existing one is taken if the
  /// flags want it, and gives its full path, or nothing if the person cancels.
  virtual std::optional<std::string> ChooseFileToSave(const CommonDialog& dialog) = 0;
};

}  // namespace velmar::controls
