#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/excel/FileLayer.h"

namespace velmar::fuzz {

/// Files that are byte vectors, under any path. They grow at most to a limit; what goes beyond is a full
/// disk.
class MemoryLayer : public excel::FileLayer {
 public:
  using Content = std::vector<std::uint8_t>;

  /// An empty one if there is no such file.
  Content& Bytes(const std::string& path) { return *Find(path); }

  bool Exists(const std::string& path) override { return files_.contains(path); }
  std::unique_ptr<excel::File> OpenForReading(const std::string& path) override;
  std::unique_ptr<excel::File> OpenForWriting(const std::string& path) override;
  std::unique_ptr<excel::File> Create(const std::string& path) override;

 private:
  class MemoryFile;
  std::shared_ptr<Content>& Find(const std::string& path);

  std::map<std::string, std::shared_ptr<Content>> files_;
};

}  // namespace velmar::fuzz
