#include <gtest/gtest.h>

#include <filesystem>

#include "platform/excel/CellModel.h"
#include "platform/excel/WorkbookCheck.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

TEST(WorkbookSize, CreatesAndGrowsAtEdges) {
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
  // Numbers of sectors at which the FAT, its places in the header or a sector of the DIFAT run full.
  for (const int edge : {128, 256, 109 * 128, (109 + 127) * 128}) {
    SCOPED_TRACE(edge);
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
}

TEST(WorkbookSize, ABlockCostsTheSameHoweverLongTheFile) {
  const files::TemporaryFolder folder;
  Workbook book(folder / "libro.xls");
  std::vector<IoCounts> counts;
  for (int block = 0; block < 60; ++block) {
    const std::string sheet = "Hoja" + std::to_string(block / 8 + 1);
    const auto writer =
        block % 8 == 0 ? book.CreateSheet(sheet, {"Nombre", "Importe"}) : book.AppendTo(sheet, 2);
    // Rows of equal length, whatever their number.
    for (int row = 1'000'000; row < 1'008'000; ++row)
      CellModel::AddRow(*writer, {"Socio número " + std::to_string(row + block * 8000), row * 0.37});
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
