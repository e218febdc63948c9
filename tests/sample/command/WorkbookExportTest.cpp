#include "sample/command/WorkbookExport.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"

namespace velmar::sample {
namespace {

TEST(WorkbookExportTest, PutsTheTargetBeforeTheRightFrom) {
  constexpr std::array<std::array<const char*, 2>, 4> kRows = {{
      {"SELECT a FROM t", "SELECT a INTO X FROM t"},
      {"select (SELECT Max(b) FROM u) AS m, 'FROM x' AS f, [from] from t",
       "select (SELECT Max(b) FROM u) AS m, 'FROM x' AS f, [from] INTO X from t"},
      {"SELECT * FROM (SELECT * FROM t) AS d", "SELECT * INTO X FROM (SELECT * FROM t) AS d"},
      {"SELECT a FROM t UNION SELECT b FROM u", "SELECT a INTO X FROM t UNION SELECT b FROM u"},
  }};
  for (const auto& [statement, expected] : kRows)
    EXPECT_EQ(WorkbookExport::WithTarget(statement, "X"), expected);

  for (const char* wrong : {"", "DELETE FROM t", "SELECT 1", "SELECT a INTO u FROM t", "SELECT (a FROM t)"}) {
    EXPECT_THROW(WorkbookExport::WithTarget(wrong, "X"), RuntimeError) << wrong;
  }
}

class WorkbookExportRunTest : public testing::Test {
 protected:
  SampleDatabase database_{60};
  WorkbookExport export_{database_.main, database_.folder.Path()};
  std::string file_ = database_.folder / "Libro.xls";

  /// Names in the folder beside the two databases and the workbook.
  long Strangers() const {
    long count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(database_.folder.Path())) {
      const std::string name = entry.path().filename();
      if (name != "Gestion.mdb" && name != "Informes.mdb" && name != "Libro.xls") ++count;
    }
    return count;
  }
};

TEST_F(WorkbookExportRunTest, RowsOfTwoSheetsComeOutInOrder) {
  // 60 * 52 * 24 rows are more than one sheet holds.
  const std::string statement =
      "SELECT C.IDColaborador AS C, P.Nombre AS P, Q.Codigo AS Q FROM Colaboradores AS C, Provincias AS P, "
      "Paises AS "
      "Q ORDER BY C.IDColaborador, P.IDProvincia, Q.IDPais";
  const WorkbookExport::Result result = export_.Run(statement, file_, false);
  EXPECT_EQ(result.rows, 60 * 52 * 24);
  EXPECT_EQ(result.sheets, 2);
  const auto sheets = ReadWorkbook(file_);
  ASSERT_EQ(sheets.size(), 2U);
  EXPECT_EQ(sheets[0].size(), 64'001U);
  const auto rows = database_.main->Execute(statement);
  for (const auto& sheet : sheets) {
    EXPECT_EQ(sheet[0], (std::vector<std::string>{"C", "P", "Q"}));
    for (std::size_t i = 1; i < sheet.size(); ++i, rows->MoveNext()) {
      ASSERT_FALSE(rows->Eof());
      for (long column = 0; column < 3; ++column) {
        ASSERT_EQ(sheet[i][static_cast<std::size_t>(column)], rows->Fields(column).Value().AsText()) << i;
      }
    }
  }
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(Strangers(), 0);
}

TEST_F(WorkbookExportRunTest, AFailureLeavesFilesAsTheyWere) {
  std::ofstream(file_) << "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 mine";
  EXPECT_THROW(export_.Run("SELECT Nombre FROM Provincias", file_, false), RuntimeError);
  EXPECT_THROW(export_.Run("SELECT Nada FROM Provincias", file_, true), RuntimeError);
  EXPECT_EQ(export_.Run("SELECT Nombre FROM Provincias WHERE Codigo = '99'", file_, true).rows, 0);
  EXPECT_THROW(export_.Run("SELECT Nombre FROM Provincias", database_.folder / "no/hay/Libro.xls", true),
               RuntimeError);
  EXPECT_EQ(std::filesystem::file_size(file_), 13U);
  EXPECT_EQ(Strangers(), 0);

  EXPECT_EQ(export_.Run("SELECT Nombre FROM Provincias", file_, true).rows, 52);
  EXPECT_EQ(ReadWorkbook(file_)[0][1][0], "Álava");

  const std::string letter = database_.folder / "Carta.txt";
  std::ofstream(letter) << "Estimado socio:";
  EXPECT_THROW(export_.Run("SELECT Nombre FROM Provincias", letter, true), RuntimeError);
  EXPECT_EQ(std::filesystem::file_size(letter), 15U) << "only a workbook is replaced";
}

}  // namespace
}  // namespace velmar::sample
