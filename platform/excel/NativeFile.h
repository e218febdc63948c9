#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/excel/File.h"

namespace velmar::excel {

/// An open file of the operating system. Writes go to the system's cache: they outlive this process, not a
/// power cut.
class NativeFile : public File {
 public:
  enum class Kind { kNamed, kNameless, kTemporary };

  /// Takes over the open descriptor. The path is the file's or, until Publish, the one that it will get;
  /// temporaryPath is the name of a kTemporary file, which is deleted if it is not published.
  NativeFile(int descriptor, std::string path, Kind kind = Kind::kNamed, std::string temporaryPath = {});
  ~NativeFile() override;

  std::uint64_t Size() const override;
  void Resize(std::uint64_t size) override;
  void Lock() override;
  void Publish() override;

 protected:
  void DoRead(std::uint64_t offset, std::span<std::uint8_t> bytes) override;
  void DoWrite(std::uint64_t offset, std::span<const std::uint8_t> bytes) override;

 private:
  int descriptor_;
  std::string path_;
  Kind kind_;
  std::string temporaryPath_;
};

}  // namespace velmar::excel
