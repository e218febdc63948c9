#pragma once

#include <cstddef>
#include <cstdint>

namespace velmar::excel {

/// The records of the workbook stream, named as in [MS-XLS] 2.3: a u16 id, a u16 length, at most 8224 bytes.
struct Record {
  static constexpr std::size_t kHead = 4;
  static constexpr std::size_t kLongest = 8224;
  /// The unit in which the compound file below keeps the stream.
  static constexpr std::size_t kSector = 512;

  static constexpr std::uint16_t kEof = 0x0A;
  static constexpr std::uint16_t kContinue = 0x3C;
  static constexpr std::uint16_t kBoundSheet = 0x85;
  static constexpr std::uint16_t kSst = 0xFC;
  static constexpr std::uint16_t kLabelSst = 0xFD;
  static constexpr std::uint16_t kDimensions = 0x200;
  static constexpr std::uint16_t kNumber = 0x203;
  static constexpr std::uint16_t kBoolErr = 0x205;
  static constexpr std::uint16_t kWindow2 = 0x23E;
  static constexpr std::uint16_t kRk = 0x27E;
  static constexpr std::uint16_t kBof = 0x809;

  /// Cell formats of the workbooks written here: numbers and Booleans are General, texts are kept as text
  /// (@).
  static constexpr std::uint16_t kGeneralFormat = 15;
  static constexpr std::uint16_t kTextFormat = 16;
};

}  // namespace velmar::excel
