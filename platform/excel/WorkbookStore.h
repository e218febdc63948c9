#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/excel/ByteWriter.h"
#include "platform/excel/CompoundFile.h"
#include "platform/excel/FileLayer.h"
#include "platform/excel/SectorMap.h"
#include "platform/excel/SharedStrings.h"
#include "platform/excel/WorkbookState.h"

namespace velmar::excel {

/// A workbook's file between the opening and the end of one statement: reads what the statement must know,
/// and later writes all that it changes. In between the file is not open.
class WorkbookStore {
 public:
  enum class Missing { kRefuse, kCreate };
  enum class Purpose { kRead, kWrite };

  /// Reads and checks the file; with kCreate, a path where there is no file gives an empty state. The layer
  /// must outlive the store.
  WorkbookStore(std::string path, FileLayer& layer, Purpose purpose, Missing missing = Missing::kRefuse);

  const std::string& Path() const { return path_; }
  const WorkbookState& State() const { return state_; }
  const std::string& LastSheet() const { return state_.sheets.back().name; }
  std::size_t LastColumnCount() const { return state_.Columns(state_.sheets.size() - 1).size(); }
  const IoCounts& Counts() const { return counts_; }

  /// What stands already in the sectors where the statement's records of either area begin.
  std::span<const std::uint8_t> StringTail() const { return stringTail_; }
  std::span<const std::uint8_t> SheetTail() const { return sheetTail_; }

  /// Adds a sheet, whose first record will stand at this place of the statement's sheet records.
  void AddSheet(std::string_view name, const std::vector<std::string>& columns);
  void SetSheetPlace(std::size_t place);

  /// What a statement adds. The sheet records begin with SheetTail and end with the records that end a sheet,
  /// which begin at endPlace; the next statement writes over these.
  struct Statement {
    ByteWriter& sheetRecords;
    std::size_t endPlace;
    SharedStrings& strings;
    std::uint32_t textCells;
    std::uint32_t rows;  ///< of the last sheet, header row included
  };
  /// Writes it, all or nothing. Once only. Fails if the file is not the one that was read.
  void Append(const Statement& statement);

 private:
  /// The parts of a file that tell whether it is still the same.
  struct Image {
    CompoundFile::Header header;
    CompoundFile::Directory directory;
    std::vector<std::uint8_t> headerBytes;
    std::vector<std::uint8_t> directoryBytes;
    std::vector<std::uint8_t> stateBytes;
  };

  Image ReadImage(File& file) const;
  std::vector<std::uint8_t> ReadTail(File& file, const StreamArea& area) const;
  void CheckUnchanged(File& file) const;
  void Count(const File& file);

  void AppendStrings(const Statement& statement, SectorMap& map, SectorImages& images);
  void AppendSheetRecords(const Statement& statement, SectorMap& map, SectorImages& images, File* file);
  std::set<std::uint32_t> PatchRows(const Statement& statement, SectorMap& map, SectorImages& images,
                                    File* file);
  ByteWriter Plan(const Statement& statement, SectorMap& map, SectorImages& images, File* file);
  std::uint32_t StreamSize() const;

  std::string path_;
  FileLayer& layer_;
  bool isNew_ = false;
  Image image_;
  WorkbookState state_;
  std::vector<std::uint8_t> stringTail_;
  std::vector<std::uint8_t> sheetTail_;
  IoCounts counts_;
};

}  // namespace velmar::excel
