#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "platform/excel/CellModel.h"
#include "platform/excel/WorkbookCheck.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

constexpr int kBlock = 8000;
constexpr int kSheet = 64'000;
const std::vector<std::string> kColumns = {"Número", "Nombre", "Calle", "Importe", "Activo", "Nota"};

std::vector<CellModel::Row> Block(int first, int end) {
  std::vector<CellModel::Row> rows;
  for (int i = first; i < std::min(end, first + kBlock); ++i) {
    CellModel::Row row = {
        double(i),  "Socio número " + std::to_string(i),  "Calle " + std::to_string(i % 97), i * 0.37,
        i % 2 == 0, "Ñandú 10 € " + std::to_string(i % 5)};
    if (i % 3 == 0) row[4] = {};
    if (i % 7 == 0) row[5] = "";
    rows.push_back(std::move(row));
  }
  return rows;
}

TEST(WorkbookSizes, ReadBackCellByCell) {
  for (const int count : {1, 8001, 200'000}) {
    SCOPED_TRACE(count);
    const files::TemporaryFolder folder;
    const std::string path = folder / "libro.xls";
    Workbook book(path);
    CellModel model;
    for (int first = 0; first < count; first += kBlock) {
      const auto rows = Block(first, count);
      if (first % kSheet == 0)
        model.Create(book, "Hoja" + std::to_string(first / kSheet + 1), kColumns, rows);
      else
        model.Append(book, rows);
    }
    EXPECT_EQ(WorkbookCheck::Problem(path), "");
    EXPECT_EQ(model.Differs(path), "");
  }
}

// Numbers of sectors at which the FAT, its places in the header or a sector of the DIFAT run full.
class WorkbookSizesAtEdges : public testing::TestWithParam<int> {};

TEST_P(WorkbookSizesAtEdges, CreateAndGrow) {
  const files::TemporaryFolder folder;
  const std::string path = folder / "libro.xls";
  const auto sectors = [&] { return static_cast<int>(std::filesystem::file_size(path) / 512) - 1; };
  // Texts of some 59 sectors, and numbers of which 36 fill a sector.
  const auto write = [&](std::unique_ptr<SheetWriter> writer, int texts, int numbers) {
    for (int i = 0; i < texts; ++i)
      CellModel::AddRow(*writer, {std::string(30'000, 'x') + std::to_string(i)});
    for (int i = 0; i < numbers; ++i) CellModel::AddRow(*writer, {double(i)});
    writer->Commit();
    ASSERT_EQ(WorkbookCheck::Problem(path), "");
  };
  const auto create = [&](int texts, int numbers) {
    std::filesystem::remove(path);
    write(Workbook(path).CreateSheet("Hoja1", {"a"}), texts, numbers);
  };
  const int edge = GetParam();
  const int texts = (edge - 60) / 60;
  create(texts, 0);
  int size = sectors();
  ASSERT_LT(size, edge - 3);
  for (int numbers = 36 * (edge - 3 - size); size <= edge; numbers += 18) {
    SCOPED_TRACE(numbers);
    create(texts, numbers);
    size = sectors();
    write(Workbook(path).AppendTo("Hoja1", 1), 0, 1);
    write(Workbook(path).AppendTo("Hoja1", 1), 2, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Edges, WorkbookSizesAtEdges,
                         testing::Values(128, 256, 109 * 128, (109 + 127) * 128));

TEST(WorkbookSize, ABlockCostsTheSameHoweverLongTheFile) {
  const files::TemporaryFolder folder;
  Workbook book(folder / "libro.xls");
  std::vector<IoCounts> counts;
  for (int block = 0; block < 60; ++block) {
    const std::string sheet = "Hoja" + std::to_string(block / 8 + 1);
    const auto writer =
        block % 8 == 0 ? book.CreateSheet(sheet, kColumns) : book.AppendTo(sheet, kColumns.size());
    // Rows of equal length, whatever their number.
    for (const auto& row : Block(1'000'000 + block * kBlock, INT32_MAX)) CellModel::AddRow(*writer, row);
    writer->Commit();
    counts.push_back(writer->Counts());
  }
  const IoCounts& early = counts[1];
  for (std::size_t block = 52; block < 60; ++block) {
    SCOPED_TRACE(block);
    EXPECT_LE(counts[block].writes, early.writes + 3);
    EXPECT_LE(counts[block].reads, early.reads + 12);
    EXPECT_LE(counts[block].bytesWritten, early.bytesWritten + 16'384);
    EXPECT_LE(counts[block].bytesRead, early.bytesRead + 32'768);
  }
}

}  // namespace
}  // namespace velmar::excel
