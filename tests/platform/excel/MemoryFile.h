#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

#include "platform/excel/File.h"

/// A file that is a vector.
class MemoryFile : public velmar::excel::File {
 public:
  std::vector<std::uint8_t> bytes;

  std::uint64_t Size() const override { return bytes.size(); }
  void Resize(std::uint64_t size) override { bytes.resize(size); }
  void Lock() override {}
  void Publish() override {}

 protected:
  void DoRead(std::uint64_t offset, std::span<std::uint8_t> out) override {
    if (offset + out.size() > bytes.size()) throw std::out_of_range("read beyond the end");
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), out.size(), out.begin());
  }
  void DoWrite(std::uint64_t offset, std::span<const std::uint8_t> in) override {
    if (bytes.size() < offset + in.size()) bytes.resize(offset + in.size());
    std::copy(in.begin(), in.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
  }
};
