#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// A text as the workbook format keeps it: UTF-16 units, or one byte a unit when all are below U+0100
/// ([MS-XLS] 2.5.293, XLUnicodeRichExtendedString, and 2.5.240, ShortXLUnicodeString).
class BiffString {
 public:
  /// The longest text of a cell, in UTF-16 units.
  static constexpr std::size_t kLongest = 32'767;

  /// True for a text that needs no conversion: bytes 1 to 127 only.
  static bool IsPlain(std::string_view utf8);

  /// What is not UTF-8 becomes U+FFFD; U+0000, which ends a text for several readers, is left out.
  void Assign(std::string_view utf8);

  bool Empty() const { return units_.empty(); }
  std::size_t Length() const { return units_.size(); }
  /// True when every unit fits a byte.
  bool Narrow() const { return narrow_; }
  const std::u16string& Units() const { return units_; }

  /// The flag byte and the characters, behind a length of one byte: names of sheets and fonts, up to 255
  /// units.
  void WriteShort(ByteWriter& out) const;
  /// The characters from first on, without length and flag.
  void WriteUnits(ByteWriter& out, std::size_t first, std::size_t count) const;

 private:
  std::u16string units_;
  bool narrow_ = true;
};

}  // namespace velmar::excel
