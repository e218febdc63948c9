#pragma once

#include <string>

namespace velmar::sample {

/// A folder of its own for the work files of one export, beside the databases and not readable by others. It
/// goes with this object, with all that lies in it.
class WorkFolder {
 public:
  /// kPathNotFound if the folder cannot be made below parent.
  explicit WorkFolder(const std::string& parent);
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const std::string& Path() const noexcept { return path_; }

 private:
  std::string path_;
};

}  // namespace velmar::sample
