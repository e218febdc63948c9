#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/excel/DamagedFile.h"

namespace velmar::excel {

/// Reads little-endian numbers one behind the other. DamagedFile when the bytes end too early.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint8_t U8() { return Bytes(1)[0]; }
  std::uint16_t U16() {
    const auto b = Bytes(2);
    return static_cast<std::uint16_t>(b[0] | b[1] << 8);
  }
  std::uint32_t U32() {
    const std::uint32_t low = U16();
    return low | static_cast<std::uint32_t>(U16()) << 16;
  }
  std::uint64_t U64() {
    const std::uint64_t low = U32();
    return low | static_cast<std::uint64_t>(U32()) << 32;
  }
  std::span<const std::uint8_t> Bytes(std::size_t count) {
    if (count > bytes_.size() - place_) throw DamagedFile();
    place_ += count;
    return bytes_.subspan(place_ - count, count);
  }
  std::size_t Place() const { return place_; }
  std::size_t Left() const { return bytes_.size() - place_; }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t place_ = 0;
};

}  // namespace velmar::excel
