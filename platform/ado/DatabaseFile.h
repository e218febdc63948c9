#pragma once

#include <string>

namespace ADODB {

/// A database file in the making: made empty by the constructor, and deleted by the destructor unless Keep
/// was reached.
class DatabaseFile {
 public:
  /// kFileAlreadyExists, kPathNotFound, kPermissionDenied, kDiskFull. Journals that a killed program has left
  /// under this name are deleted: they belong to a file that is gone.
  explicit DatabaseFile(std::string path);
  ~DatabaseFile();
  DatabaseFile(const DatabaseFile&) = delete;
  DatabaseFile& operator=(const DatabaseFile&) = delete;

  /// Writes header, mark and password.
  void Initialise(bool scratch, const std::string& password);
  void Keep() noexcept { keep_ = true; }

 private:
  void RemoveCompanions() const noexcept;

  std::string path_;
  bool keep_ = false;
};

}  // namespace ADODB
