#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// Walks a whole workbook file by the published formats, on code of its own: header, FAT, DIFAT, directory,
/// every chain, every record, every string, every cell.
class WorkbookCheck {
 public:
  /// The first thing that is wrong; empty if all is well.
  static std::string Problem(const std::string& path);

 private:
  explicit WorkbookCheck(const std::string& path);
  void Run();
  void ReadFat();
  void Claim(std::uint32_t sector, std::uint32_t mark, const char* owner);
  std::vector<std::uint8_t> Stream(std::uint32_t start, std::uint32_t size, const char* owner);
  void CheckOrphans() const;
  /// In the records behind that of the string table, to the EOF of the globals.
  static std::uint32_t CountStrings(std::span<const std::uint8_t> records);
  void CheckStream(std::span<const std::uint8_t> stream) const;
  std::uint32_t CheckSheet(std::span<const std::uint8_t> stream, std::size_t offset, bool shown,
                           std::uint32_t strings) const;
  std::span<const std::uint8_t> Sector(std::uint32_t number) const;

  std::vector<std::uint8_t> bytes_;
  std::vector<std::uint32_t> fat_;
  std::vector<bool> claimed_;
};
