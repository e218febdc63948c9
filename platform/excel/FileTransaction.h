#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/excel/File.h"

namespace velmar::excel {

/// Writes to a file of a known size that can be taken back: unless Keep is called, the destructor gives the
/// file its old bytes and its old size again.
class FileTransaction {
 public:
  /// The file must outlive the transaction.
  FileTransaction(File& file, std::uint64_t size) : file_(file), size_(size) {}
  FileTransaction(const FileTransaction&) = delete;
  FileTransaction& operator=(const FileTransaction&) = delete;
  ~FileTransaction();

  void Write(std::uint64_t offset, std::span<const std::uint8_t> bytes);
  void Keep() { kept_ = true; }

 private:
  struct Old {
    std::uint64_t offset;
    std::vector<std::uint8_t> bytes;
  };

  void TakeBack();

  File& file_;
  std::uint64_t size_;
  std::vector<Old> old_;
  bool kept_ = false;
};

}  // namespace velmar::excel
