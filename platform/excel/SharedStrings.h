#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/excel/BiffString.h"
#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// The distinct texts of one statement: gives each its index in the workbook's string table and lays them out
/// as that table's next CONTINUE records ([MS-XLS] 2.4.265 SST, 2.4.58 Continue).
///
/// Two copies are held while the statement lasts: the texts as given, to find them again, and their records.
class SharedStrings {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFFu;

  /// The table has firstIndex strings. Its records go on behind the tail, which is what already stands in
  /// the sector where they begin.
  SharedStrings(std::uint32_t firstIndex, std::span<const std::uint8_t> tail);

  /// The index of the text, or kNone if nothing of it is left to show (empty, or U+0000 only).
  std::uint32_t Index(std::string_view utf8);

  /// How many texts are new in the table.
  std::uint32_t Count() const { return count_; }
  std::size_t Size() const { return records_.Size(); }

  /// Ends the table: a string of blanks that nothing refers to fills the last sector, so that the EOF record
  /// of the globals stands at its end. The next statement writes over both. Returns the place of the filler.
  std::size_t Finish();
  /// After Finish: 1 if there is a filler string, else 0. It counts as a string of the table.
  std::uint32_t FillerCount() const { return fillerCount_; }
  /// From the sector's beginning, tail included.
  std::span<const std::uint8_t> Records() const { return records_.Content(); }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t entry = kNone;
  };
  struct Entry {
    std::size_t place;
    std::uint32_t length;
    std::uint32_t index;
  };

  std::uint32_t Add(std::string_view utf8);
  void Rehash();
  void OpenRecord();
  void CloseRecord();
  std::size_t RoomInRecord() const;
  void BeginString(std::size_t length, bool narrow, std::size_t firstCharacter);
  void WritePlain(std::string_view text);
  void WriteConverted();

  std::uint32_t nextIndex_;
  std::uint32_t count_ = 0;
  std::uint32_t fillerCount_ = 0;
  ByteWriter records_;
  std::size_t recordPlace_ = 0;  // of the open record's head; 0 in size when none is open
  bool recordOpen_ = false;
  std::vector<Slot> slots_;
  std::vector<Entry> entries_;
  ByteWriter texts_;
  BiffString converted_;
};

}  // namespace velmar::excel
