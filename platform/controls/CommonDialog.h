#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/controls/Control.h"

namespace velmar::controls {

class FileChooser;

/// The dialog that asks for a file name: its settings and the name that was chosen last.
class CommonDialog : public Control {
 public:
  /// Bits of Flags.
  static constexpr long kOverwritePrompt = 0x2;
  static constexpr long kHideReadOnly = 0x4;
  static constexpr long kCreatePrompt = 0x2000;

  /// A choice of the dialog's file types: what it shows, and the patterns, separated by `;`.
  struct FileType {
    std::string description;
    std::string patterns;
  };

  using Control::Control;

  /// Who shows it; borrowed.
  void Chooser(FileChooser* chooser) noexcept { chooser_ = chooser; }

  const std::string& DefaultExt() const noexcept { return defaultExt_; }
  void DefaultExt(std::string extension) { defaultExt_ = std::move(extension); }
  const std::string& DialogTitle() const noexcept { return title_; }
  void DialogTitle(std::string title) { title_ = std::move(title); }
  /// Descriptions and patterns in turn, separated by `|`.
  const std::string& Filter() const noexcept { return filter_; }
  void Filter(std::string filter) { filter_ = std::move(filter); }
  const std::string& InitDir() const noexcept { return initDir_; }
  void InitDir(std::string folder) { initDir_ = std::move(folder); }
  const std::string& FileName() const noexcept { return fileName_; }
  void FileName(std::string name) { fileName_ = std::move(name); }
  long Flags() const noexcept { return flags_; }
  void Flags(long flags) noexcept { flags_ = flags; }
  bool CancelError() const noexcept { return cancelError_; }
  void CancelError(bool raises) noexcept { cancelError_ = raises; }

  /// Filter taken apart.
  std::vector<FileType> FileTypes() const;
  /// The name with DefaultExt behind it, unless its last part has an extension.
  std::string WithDefaultExt(std::string name) const;

  /// Asks for a file to save to and keeps it in FileName, with the default extension if it has none. If the
  /// person cancels, FileName stays, and kDialogCancelled is raised if CancelError is on.
  void ShowSave();

  bool TakesFocus() const noexcept override { return false; }

 private:
  FileChooser* chooser_ = nullptr;
  std::string defaultExt_;
  std::string title_;
  std::string filter_;
  std::string initDir_;
  std::string fileName_;
  long flags_ = 0;
  bool cancelError_ = false;
};

}  // namespace velmar::controls
