#pragma once

#include <optional>
#include <string>

namespace velmar::files {

/// A file that one process at a time may hold, by which programs agree who works in a folder. The system lets
/// go of it when the process ends, however it ends; the file itself is deleted by the destructor, and does no
/// harm where a killed process has left it.
///
/// On a drive that knows no locks every taker gets it.
class FileLock {
 public:
  /// Makes the file if there is none. Nothing if another process, or another object of this one, holds it.
  /// Raises what SystemFailure does if the file cannot be made, kDeviceIoError if it is another each time.
  static std::optional<FileLock> TryTake(const std::string& path);
  /// True if somebody holds a lock on the file, of this kind or another. False if it cannot be told.
  static bool IsHeld(const std::string& path);

  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

 private:
  FileLock(int descriptor, std::string path) noexcept;
  void Release() noexcept;

  int descriptor_;
  std::string path_;
};

}  // namespace velmar::files
