#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <utility>

namespace velmar::excel {

/// Bytes gathered one behind the other. Numbers are little-endian, as everywhere in the format. Made for many
/// tiny pieces: Extend gives raw room and does nothing else while the buffer lasts.
class ByteWriter {
 public:
  ByteWriter() = default;
  ByteWriter(ByteWriter&& other) noexcept { *this = std::move(other); }
  ByteWriter& operator=(ByteWriter&& other) noexcept {
    storage_ = std::move(other.storage_);
    capacity_ = std::exchange(other.capacity_, 0);
    size_ = std::exchange(other.size_, 0);
    return *this;
  }

  /// Room for count more bytes, of any content, valid until the next call.
  std::uint8_t* Extend(std::size_t count) {
    if (capacity_ - size_ < count) Grow(count);
    std::uint8_t* place = storage_.get() + size_;
    size_ += count;
    return place;
  }
  void U8(std::uint8_t value) { *Extend(1) = value; }
  void U16(std::uint16_t value) { Store16(Extend(2), value); }
  void U32(std::uint32_t value) { Store32(Extend(4), value); }
  void U64(std::uint64_t value);
  void Bytes(std::span<const std::uint8_t> bytes) {
    if (!bytes.empty()) std::memcpy(Extend(bytes.size()), bytes.data(), bytes.size());
  }
  void Fill(std::size_t count, std::uint8_t value) { std::memset(Extend(count), value, count); }
  /// The head of a record of the workbook stream.
  void Record(std::uint16_t id, std::size_t length);
  /// Zeros up to a multiple of the unit.
  void PadTo(std::size_t unit);

  /// Overwrite what stands at the place already.
  void Patch16(std::size_t place, std::uint16_t value) { Store16(storage_.get() + place, value); }
  void Patch32(std::size_t place, std::uint32_t value) { Store32(storage_.get() + place, value); }
  void Patch8(std::size_t place, std::uint8_t value) { storage_.get()[place] = value; }

  std::size_t Size() const { return size_; }
  std::span<const std::uint8_t> Content() const { return {storage_.get(), size_}; }

  static void Store16(std::uint8_t* place, std::uint16_t value) {
    place[0] = static_cast<std::uint8_t>(value);
    place[1] = static_cast<std::uint8_t>(value >> 8);
  }
  static void Store32(std::uint8_t* place, std::uint32_t value) {
    Store16(place, static_cast<std::uint16_t>(value));
    Store16(place + 2, static_cast<std::uint16_t>(value >> 16));
  }

 private:
  struct Free {
    void operator()(std::uint8_t* bytes) const noexcept { std::free(bytes); }
  };

  void Grow(std::size_t count);

  // Not a vector: a great buffer grows without being copied, and its unused room is never touched.
  std::unique_ptr<std::uint8_t, Free> storage_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
};

}  // namespace velmar::excel
