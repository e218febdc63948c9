#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// The fixed parts of a compound file, version 3 ([MS-CFB]): its header and its one directory sector, with
/// the streams "Workbook" and the state of the writer. Sector n lies 512 (n + 1) bytes from the beginning.
class CompoundFile {
 public:
  static constexpr std::uint32_t kSector = 512;
  /// Shorter streams would have to stand elsewhere; there are none here.
  static constexpr std::uint32_t kLeastStream = 4096;
  static constexpr std::uint32_t kHeaderPlaces = 109;
  static constexpr std::uint32_t kEnd = 0xFFFFFFFEu;
  static constexpr std::uint32_t kFree = 0xFFFFFFFFu;
  static constexpr std::uint32_t kFatSector = 0xFFFFFFFDu;
  static constexpr std::uint32_t kDifatSector = 0xFFFFFFFCu;

  struct Header {
    std::uint32_t fatSectors = 0;
    std::uint32_t directorySector = 0;
    std::uint32_t firstDifat = kEnd;
    std::uint32_t difatSectors = 0;
    /// The first FAT sectors; unused places are kFree.
    std::array<std::uint32_t, kHeaderPlaces> fat{};

    ByteWriter Encode() const;
    /// DamagedFile if the bytes are the header of no compound file, or of one of another kind.
    static Header Decode(std::span<const std::uint8_t> bytes);
    /// True if the bytes begin like any compound file.
    static bool HasSignature(std::span<const std::uint8_t> bytes);
  };

  struct Directory {
    std::uint32_t workbookStart = 0;
    std::uint32_t workbookSize = 0;
    std::uint32_t stateStart = 0;
    std::uint32_t stateSize = 0;

    ByteWriter Encode() const;
    /// DamagedFile if the sector is not one that Encode has written.
    static Directory Decode(std::span<const std::uint8_t> bytes);
  };

  static std::uint64_t Offset(std::uint32_t sector) { return (std::uint64_t{sector} + 1) * kSector; }
};

}  // namespace velmar::excel
