#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace velmar::files {

/// A folder of its own below the test's temporary folder; gone with all that it holds at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    static int count = 0;
    path_ = std::filesystem::path(::testing::TempDir()) /
            ("velmar " + std::to_string(getpid()) + " " + std::to_string(++count));
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string Path() const { return path_.string(); }
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

  /// Makes an empty file, and its folders.
  void Touch(const std::string& name) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name) << "x";
  }

  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.insert(entry.path().filename());
    return names;
  }
  bool Empty() const { return std::filesystem::is_empty(path_); }
  bool Has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace velmar::files
