#pragma once

#include <cstdint>
#include <span>

#include "platform/excel/IoCounts.h"

namespace velmar::excel {

/// An open file, read and written at places, which counts its operations. Failures are RuntimeError and name
/// the file; a read beyond the end is one.
class File {
 public:
  File() = default;
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  virtual ~File() = default;

  void Read(std::uint64_t offset, std::span<std::uint8_t> bytes) {
    ++counts_.reads;
    counts_.bytesRead += bytes.size();
    DoRead(offset, bytes);
  }
  void Write(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
    ++counts_.writes;
    counts_.bytesWritten += bytes.size();
    DoWrite(offset, bytes);
  }
  virtual std::uint64_t Size() const = 0;
  virtual void Resize(std::uint64_t size) = 0;
  /// Keeps other programs of this kind from writing until the file is closed. Error 70 if one is at it.
  virtual void Lock() = 0;
  /// For a file from FileLayer::Create: gives it its name, if there is no such file yet; else error 70.
  virtual void Publish() = 0;

  const IoCounts& Counts() const { return counts_; }

 protected:
  virtual void DoRead(std::uint64_t offset, std::span<std::uint8_t> bytes) = 0;
  virtual void DoWrite(std::uint64_t offset, std::span<const std::uint8_t> bytes) = 0;

 private:
  IoCounts counts_;
};

}  // namespace velmar::excel
