#include "platform/excel/ByteWriter.h"

#include <algorithm>
#include <new>

namespace velmar::excel {

void ByteWriter::U64(std::uint64_t value) {
  U32(static_cast<std::uint32_t>(value));
  U32(static_cast<std::uint32_t>(value >> 32));
}

void ByteWriter::Record(std::uint16_t id, std::size_t length) {
  U16(id);
  U16(static_cast<std::uint16_t>(length));
}

void ByteWriter::PadTo(std::size_t unit) {
  const std::size_t over = size_ % unit;
  if (over != 0) Fill(unit - over, 0);
}

void ByteWriter::Grow(std::size_t count) {
  constexpr std::size_t kFirst = 512;
  const std::size_t capacity = std::max({kFirst, capacity_ * 2, size_ + count});
  void* grown = std::realloc(storage_.get(), capacity);
  if (grown == nullptr) throw std::bad_alloc();
  static_cast<void>(storage_.release());
  storage_.reset(static_cast<std::uint8_t*>(grown));
  capacity_ = capacity;
}

}  // namespace velmar::excel
