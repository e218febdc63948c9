#pragma once

#include <QFileDialog>
#include <functional>
#include <optional>
#include <string>

#include "qt/toolkit/FileIcons.h"

namespace velmar::controls {
class CommonDialog;
}

namespace velmar::qt {

/// In front of the dialog, which uses the icons to its very end.
struct WithFileIcons {
  FileIcons icons;
};

/// Qt's own dialog for a file to save to, with the settings of a CommonDialog. It opens in the folder of the
/// last choice, else in the one that the settings name, else in the user's documents.
class SaveDialog : private WithFileIcons, public QFileDialog {
 public:
  /// Asks whether the existing file may be replaced; the argument is its full path.
  using Confirm = std::function<bool(const std::string& path)>;

  /// The settings are borrowed.
  SaveDialog(const controls::CommonDialog& settings, Confirm confirm, QWidget* parent);

  /// Shows the dialog until a file is chosen, and gives its full path with the default extension; nothing if
  /// the person cancels.
  std::optional<std::string> Ask();

 protected:
  void accept() override;

 private:
  std::string Chosen() const;

  const controls::CommonDialog& settings_;
  Confirm confirm_;
};

}  // namespace velmar::qt
