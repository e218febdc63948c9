#pragma once

#include <memory>
#include <string>

#include "platform/excel/FileLayer.h"

namespace velmar::excel {

/// Files of the operating system. A new file has no name until it is published, where the file system knows
/// such files; elsewhere it is a hidden file beside its later place.
class NativeFileLayer : public FileLayer {
 public:
  bool Exists(const std::string& path) override;
  std::unique_ptr<File> OpenForReading(const std::string& path) override;
  std::unique_ptr<File> OpenForWriting(const std::string& path) override;
  std::unique_ptr<File> Create(const std::string& path) override;
};

}  // namespace velmar::excel
