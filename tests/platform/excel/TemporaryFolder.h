#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    static std::atomic<int> count = 0;
    path_ = std::filesystem::path(testing::TempDir()) /
            ("excel-" + std::to_string(getpid()) + "-" + std::to_string(++count));
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string File(const std::string& name) const { return (path_ / name).string(); }
  bool Empty() const { return std::filesystem::is_empty(path_); }

 private:
  std::filesystem::path path_;
};
