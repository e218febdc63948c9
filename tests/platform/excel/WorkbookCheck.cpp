#include "platform/excel/WorkbookCheck.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <span>
#include <stdexcept>
#include <vector>

namespace {

constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kEnd = 0xFFFFFFFE;
constexpr std::uint32_t kFat = 0xFFFFFFFD;
constexpr std::uint32_t kDifat = 0xFFFFFFFC;
constexpr std::uint32_t kAnyMark = kFree;

void Require(bool condition, const char* problem) {
  if (!condition) throw std::runtime_error(problem);
}

std::uint32_t Get(std::span<const std::uint8_t> bytes, std::size_t place, int width) {
  Require(place + static_cast<std::size_t>(width) <= bytes.size(), "number beyond the end");
  std::uint32_t value = 0;
  for (int i = width - 1; i >= 0; --i) value = value << 8 | bytes[place + static_cast<std::size_t>(i)];
  return value;
}

// The records that are cells.
const std::map<std::uint32_t, std::size_t> kCellLengths = {{0xFD, 10}, {0x27E, 10}, {0x203, 14}, {0x205, 8}};

struct RawRecord {
  std::uint32_t id;
  std::span<const std::uint8_t> data;
};

RawRecord ReadRecord(std::span<const std::uint8_t> stream, std::size_t& place) {
  const std::uint32_t id = Get(stream, place, 2);
  const std::uint32_t length = Get(stream, place + 2, 2);
  Require(length <= 8224, "record too long");
  Require(place + 4 + length <= stream.size(), "record beyond the end");
  place += 4 + length;
  return {id, stream.subspan(place - length, length)};
}

class Walk {
 public:
  explicit Walk(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Require(file.good(), "no file");
    bytes_.resize(std::filesystem::file_size(path));
    file.read(static_cast<char*>(static_cast<void*>(bytes_.data())),
              static_cast<std::streamsize>(bytes_.size()));
  }

  void Run() {
    ReadFat();
    const std::uint32_t directorySector = Get(bytes_, 48, 4);
    Claim(directorySector, kEnd, "directory");
    const auto directory = Sector(directorySector);
    Require(Get(directory, 66, 1) == 5 && Get(directory, 76, 4) == 1, "root entry");
    Require(Get(directory, 128, 2) == 'W' && Get(directory, 128 + 64, 2) == 18, "workbook entry");
    const auto stream = Stream(Get(directory, 244, 4), Get(directory, 248, 4), "workbook");
    Stream(Get(directory, 372, 4), Get(directory, 376, 4), "state");
    CheckOrphans();
    CheckStream(stream);
  }

 private:
  std::span<const std::uint8_t> Sector(std::uint32_t number) const {
    const std::size_t offset = 512 + std::size_t{number} * 512;
    Require(offset + 512 <= bytes_.size(), "sector beyond the end");
    return std::span(bytes_).subspan(offset, 512);
  }

  void Claim(std::uint32_t sector, std::uint32_t mark, const char* owner) {
    if (claimed_.at(sector)) throw std::runtime_error(std::string(owner) + ": sector used twice");
    claimed_[sector] = true;
    if (mark != kAnyMark && fat_[sector] != mark)
      throw std::runtime_error(std::string(owner) + ": wrong mark in FAT");
  }

  void ReadFat() {
    Require(bytes_.size() >= 512 && bytes_.size() % 512 == 0, "size");
    const std::uint32_t fatCount = Get(bytes_, 44, 4);
    std::vector<std::uint32_t> places;
    for (std::size_t i = 0; i < 109; ++i) places.push_back(Get(bytes_, 76 + 4 * i, 4));
    std::vector<std::uint32_t> difat;
    for (std::uint32_t next = Get(bytes_, 68, 4); next != kEnd;) {
      difat.push_back(next);
      Require(difat.size() <= Get(bytes_, 72, 4), "DIFAT longer than said");
      const auto sector = Sector(next);
      for (std::size_t i = 0; i < 127; ++i) places.push_back(Get(sector, 4 * i, 4));
      next = Get(sector, 508, 4);
    }
    Require(difat.size() == Get(bytes_, 72, 4), "DIFAT shorter than said");
    Require(difat.size() == (fatCount <= 109 ? 0 : (fatCount - 109 + 126) / 127), "DIFAT sectors");
    for (std::size_t i = 0; i < places.size(); ++i) {
      Require((places[i] == kFree) == (i >= fatCount), "FAT places");
      if (i >= fatCount) continue;
      const auto sector = Sector(places[i]);
      for (std::size_t j = 0; j < 128; ++j) fat_.push_back(Get(sector, 4 * j, 4));
    }
    const std::size_t sectors = bytes_.size() / 512 - 1;
    Require(fatCount == (sectors + 127) / 128, "FAT sectors for the file's size");
    claimed_.resize(fat_.size());
    for (std::uint32_t i = 0; i < fatCount; ++i) Claim(places[i], kFat, "FAT");
    for (const std::uint32_t sector : difat) Claim(sector, kDifat, "DIFAT");
    for (std::size_t i = sectors; i < fat_.size(); ++i) Require(fat_[i] == kFree, "FAT beyond the end");
  }

  std::vector<std::uint8_t> Stream(std::uint32_t start, std::uint32_t size, const char* owner) {
    Require(size >= 4096, "stream too short for plain sectors");
    std::vector<std::uint8_t> stream;
    std::uint32_t next = start;
    for (; stream.size() < size; next = fat_.at(next)) {
      const auto sector = Sector(next);
      Claim(next, kAnyMark, owner);
      stream.insert(stream.end(), sector.begin(), sector.end());
    }
    Require(next == kEnd, "chain longer than the stream");
    stream.resize(size);
    return stream;
  }

  void CheckOrphans() const {
    for (std::size_t sector = 0; sector < fat_.size(); ++sector)
      Require((fat_[sector] != kFree) == claimed_[sector], "sector that nothing leads to, or free and used");
  }

  // In the records behind that of the string table, to the EOF of the globals.
  static std::uint32_t CountStrings(std::span<const std::uint8_t> records) {
    std::uint32_t strings = 0;
    std::size_t place = 0;
    std::span<const std::uint8_t> data;
    const auto nextRecord = [&] {
      const RawRecord record = ReadRecord(records, place);
      Require(record.id == 0x3C, "string cut without a CONTINUE");
      data = record.data;
      Require(!data.empty(), "empty CONTINUE");
    };
    while (!data.empty() || Get(records, place, 2) == 0x3C) {
      if (data.empty()) nextRecord();
      std::size_t left = Get(data, 0, 2);
      const std::uint32_t flag = Get(data, 2, 1);
      const std::size_t width = flag + 1;
      Require(flag <= 1 && left > 0, "flag or length of a string");
      Require(data.size() >= 3 + width, "head of a string without its first character");
      data = data.subspan(3);
      std::uint32_t last = 0;
      while (left > 0) {
        if (data.empty()) {
          Require(width == 1 || (last & 0xFC00) != 0xD800, "surrogate pair cut");
          nextRecord();
          Require(data[0] == flag, "flag of a string's rest");
          data = data.subspan(1);
        }
        const std::size_t count = std::min(left, data.size() / width);
        Require(count > 0, "half a character");
        last = Get(data, (count - 1) * width, static_cast<int>(width));
        data = data.subspan(count * width);
        left -= count;
      }
      ++strings;
    }
    const RawRecord last = ReadRecord(records, place);
    Require(last.id == 0x0A && last.data.empty() && place == records.size(), "EOF of the globals");
    return strings;
  }

  void CheckStream(std::span<const std::uint8_t> stream) const {
    std::vector<std::size_t> offsets;
    std::size_t place = 0;
    Require(ReadRecord(stream, place).id == 0x809, "BOF of the globals");
    std::span<const std::uint8_t> table;
    while (table.empty()) {
      const RawRecord record = ReadRecord(stream, place);
      if (record.id == 0x85) offsets.push_back(Get(record.data, 0, 4));
      if (record.id == 0xFC) table = record.data;
    }
    Require(!offsets.empty() && place % 512 == 0 && offsets[0] % 512 == 0, "places of the parts");
    Require(table.size() == 11 + Get(table, 8, 2), "string number 0");
    const std::uint32_t stringCount = 1 + CountStrings(stream.subspan(place, offsets[0] - place));
    Require(Get(table, 4, 4) == stringCount, "count of strings");
    std::uint32_t textCells = 0;
    for (std::size_t i = 0; i < offsets.size(); ++i) {
      const std::size_t end = i + 1 < offsets.size() ? offsets[i + 1] : stream.size();
      Require(offsets[i] < end, "order of the sheets");
      textCells += CheckSheet(stream.first(end), offsets[i], i == 0, stringCount);
    }
    Require(Get(table, 0, 4) == textCells, "count of text cells");
  }

  std::uint32_t CheckSheet(std::span<const std::uint8_t> stream, std::size_t offset, bool shown,
                           std::uint32_t strings) const {
    std::size_t place = offset;
    const RawRecord begin = ReadRecord(stream, place);
    Require(begin.id == 0x809 && Get(begin.data, 2, 2) == 0x10, "BOF of a sheet");
    const RawRecord dimensions = ReadRecord(stream, place);
    Require(dimensions.id == 0x200 && dimensions.data.size() == 14, "DIMENSIONS");
    const std::uint32_t rows = Get(dimensions.data, 4, 4);
    const std::uint32_t columns = Get(dimensions.data, 10, 2);
    Require(rows >= 1 && rows <= 65536 && columns >= 1 && columns <= 256, "size of a sheet");
    std::uint32_t textCells = 0;
    std::uint32_t next = 0;  // the least place that the next cell may have, row by row
    RawRecord record = ReadRecord(stream, place);
    for (; record.id != 0x23E; record = ReadRecord(stream, place)) {
      const auto length = kCellLengths.find(record.id);
      Require(length != kCellLengths.end() && record.data.size() == length->second, "record that is no cell");
      const std::uint32_t row = Get(record.data, 0, 2);
      const std::uint32_t column = Get(record.data, 2, 2);
      Require(row < rows && column < columns && (row << 8 | column) >= next, "place of a cell");
      next = (row << 8 | column) + 1;
      Require(Get(record.data, 4, 2) == (record.id == 0xFD ? 16u : 15u), "format of a cell");
      if (record.id != 0xFD) continue;
      ++textCells;
      const std::uint32_t index = Get(record.data, 6, 4);
      Require(index > 0 && index < strings, "number of a string");
    }
    Require(record.data.size() == 18 && (Get(record.data, 0, 2) == 0x6B6) == shown, "WINDOW2");
    Require(ReadRecord(stream, place).id == 0x0A && place == stream.size(), "EOF of a sheet");
    return textCells;
  }

  std::vector<std::uint8_t> bytes_;
  std::vector<std::uint32_t> fat_;
  std::vector<bool> claimed_;
};

}  // namespace

std::string WorkbookCheck::Problem(const std::string& path) {
  try {
    Walk(path).Run();
    return "";
  } catch (const std::runtime_error& error) {
    return error.what();
  }
}
