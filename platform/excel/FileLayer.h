#pragma once

#include <memory>
#include <string>

#include "platform/excel/File.h"

namespace velmar::excel {

/// The file system as the workbook sees it. Tests put one of their own in its place, to count, to fail or to
/// stop in the middle.
class FileLayer {
 public:
  virtual ~FileLayer() = default;

  /// The real one.
  static FileLayer& Native();

  virtual bool Exists(const std::string& path) = 0;
  virtual std::unique_ptr<File> OpenForReading(const std::string& path) = 0;
  virtual std::unique_ptr<File> OpenForWriting(const std::string& path) = 0;
  /// A new file that has no name, or an unlikely one beside the path, until it is published under the path.
  /// Closed unpublished, it is gone.
  virtual std::unique_ptr<File> Create(const std::string& path) = 0;
};

}  // namespace velmar::excel
