#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

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

  /// Makes a small file, and its folders.
  void Touch(const std::string& name) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    Write(name, "x");
  }

  void Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  /// Nothing where there is no file.
  std::string Read(const std::string& name) const {
    if (!std::filesystem::is_regular_file(path_ / name)) return {};
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// Of all that stands in it, or in a folder below it.
  std::set<std::string> Names(const std::string& below = {}) const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_ / below))
      names.insert(entry.path().filename());
    return names;
  }
  bool Empty() const { return std::filesystem::is_empty(path_); }
  bool Has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace velmar::files
