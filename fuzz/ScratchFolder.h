#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace velmar::fuzz {

/// A folder for one target's files in this process, gone with it. `name` tells it from those of other
/// targets.
class ScratchFolder {
 public:
  explicit ScratchFolder(std::string_view name)
      : path_(std::filesystem::temp_directory_path() /
              ("velmar-fuzz-" + std::string(name) + "-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// The connection text of a database file in the folder, as a work file that never waits for the disk.
  std::string Text(const std::string& file) const {
    return "Data Source=" + (path_ / file).string() + ";Jet OLEDB:Scratch=True";
  }

 private:
  std::filesystem::path path_;
};

}  // namespace velmar::fuzz
