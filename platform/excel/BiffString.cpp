#include "platform/excel/BiffString.h"

#include <unicode/ustring.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::excel {

bool BiffString::IsPlain(std::string_view utf8) {
  constexpr std::uint64_t kHigh = 0x8080808080808080u;
  constexpr std::uint64_t kOnes = 0x0101010101010101u;
  const char* place = utf8.data();
  std::size_t left = utf8.size();
  for (; left >= 8; place += 8, left -= 8) {
    std::uint64_t word;
    std::memcpy(&word, place, 8);
    // A byte of zero borrows from its neighbour's high bit when ones are taken away.
    if (((word | (word - kOnes)) & kHigh) != 0) return false;
  }
  return std::all_of(place, place + left, [](char c) { return static_cast<signed char>(c) > 0; });
}

void BiffString::Assign(std::string_view utf8) {
  if (utf8.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max()))
    throw RuntimeError(kFieldSizeExceeded, "Un texto de más de 2 GB no cabe en un libro de Excel.", "Excel");
  units_.resize(utf8.size());
  int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8WithSub(units_.data(), static_cast<int32_t>(units_.size()), &length, utf8.data(),
                       static_cast<int32_t>(utf8.size()), 0xFFFD, nullptr, &status);
  units_.resize(static_cast<std::size_t>(length));
  std::erase(units_, u'\0');
  narrow_ = std::all_of(units_.begin(), units_.end(), [](char16_t unit) { return unit < 0x100; });
}

void BiffString::WriteShort(ByteWriter& out) const {
  out.U8(static_cast<std::uint8_t>(units_.size()));
  out.U8(narrow_ ? 0 : 1);
  WriteUnits(out, 0, units_.size());
}

void BiffString::WriteUnits(ByteWriter& out, std::size_t first, std::size_t count) const {
  std::uint8_t* place = out.Extend(narrow_ ? count : 2 * count);
  for (std::size_t i = first; i < first + count; ++i) {
    if (narrow_) {
      *place++ = static_cast<std::uint8_t>(units_[i]);
    } else {
      ByteWriter::Store16(place, units_[i]);
      place += 2;
    }
  }
}

}  // namespace velmar::excel
