#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/com/Guid.h"
#include "platform/files/FileLock.h"

namespace velmar::com {

/// Where classes are published beyond this process: a text file with one class a line, its name, its
/// identifier and the full path of the library that makes it, separated by tabs. Rewritten as a whole, so
/// that a reader never sees half of it.
class ClassFile {
 public:
  struct Entry {
    std::string progId;
    Guid classId;
    std::string server;
  };

  explicit ClassFile(std::string path);
  /// The user's own: velmar/clases.tsv below $XDG_DATA_HOME, or else ~/.local/share.
  static ClassFile OfUser();

  const std::string& Path() const noexcept { return path_; }
  /// Empty if there is no such file. Raises kDeviceIoError for a file that cannot be read or is not one.
  std::vector<Entry> Entries() const;
  std::optional<Entry> Find(std::string_view progId) const;
  std::optional<Entry> Find(const Guid& classId) const;

  /// Publishes the class, in place of one with the same name or identifier. Makes the file and its folder.
  /// Waits for another program that changes the file, for 5 seconds at most. Raises kPermissionDenied if they
  /// cannot be written, kInvalidProcedureCall for a name or a path with a tab or a line feed.
  void Publish(const Entry& entry) const;
  /// Takes the class out; nothing if it is not there.
  void Withdraw(const Guid& classId) const;

 private:
  files::FileLock Lock() const;
  void Write(const std::vector<Entry>& entries) const;
  [[noreturn]] void RaiseUnwritable(const std::string& remedy) const;

  std::string path_;
};

}  // namespace velmar::com
