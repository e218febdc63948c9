#pragma once

#include <string>

namespace velmar::sample {

/// A folder of its own for what is not finished yet, beside where it will stand and not readable by others.
/// It goes with this object, with all that lies in it.
///
/// Its process holds a lock on it, which ends with the process however that ends. So the folder that a killed
/// process has left is told from one in use, and whoever makes the next one beside it removes it.
class WorkFolder {
 public:
  /// kPathNotFound if the folder cannot be made below parent.
  explicit WorkFolder(const std::string& parent);
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const std::string& Path() const noexcept { return path_; }

 private:
  /// False if another process took the new folder for a stale one and removed it.
  bool Make(const std::string& parent);

  std::string path_;
  int lock_ = -1;
};

}  // namespace velmar::sample
