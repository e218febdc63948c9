#include "platform/ado/RowCopy.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"
#include "sample/WorkbookReader.h"

namespace ADODB {
namespace {

using RowCopyTest = OneDatabase;

TEST_F(RowCopyTest, KeepsTypesAndValues) {
  connection_->Execute(
      "CREATE TABLE T (ID COUNTER PRIMARY KEY, Texto TEXT(20), Memo MEMO, B BYTE, Doble DOUBLE, Dinero "
      "CURRENCY, Si BIT, Fecha DATETIME)");
  connection_->Execute("INSERT INTO T VALUES (7, '007', '1e3', 255, 0.5, 1.2345, True, #12/31/2025#)");
  connection_->Execute("INSERT INTO T (ID) VALUES (8)");
  const std::string all = RowsOf(*connection_, "SELECT * FROM T");
  connection_->Execute("SELECT T.*, Texto + 'x' AS Y, B * 2 AS Z, IIf(ID > 0, Texto, B) AS W INTO U FROM T");
  EXPECT_EQ(RowsOf(*connection_, "SELECT ID, Texto, Memo, B, Doble, Dinero, Si, Fecha FROM U"), all);
  EXPECT_EQ(RowsOf(*connection_, "SELECT Y, Z, W FROM U WHERE ID = 7"), "007x|510|007");
  connection_->Execute("SELECT * INTO V FROM U");
  connection_->Execute("INSERT INTO V (ID, Texto, B) VALUES (9, 12, '13')");
  EXPECT_EQ(RowsOf(*connection_, "SELECT Texto, B + 1, Si FROM V WHERE ID IN (7, 9)"),
            "007|256|-1 / 12|14|Null");
  EXPECT_TRUE(connection_->Execute("SELECT Si FROM V")->Fields("Si").Value().IsBoolean());
}

TEST_F(RowCopyTest, AppendsByNameElseByPosition) {
  connection_->Execute("CREATE TABLE T (A TEXT(5), Ñu TEXT(5), C TEXT(5))");
  for (const auto& [text, row] : std::vector<std::pair<const char*, const char*>>{
           {"INSERT INTO T SELECT 'c' AS C, 'a' AS a, 'n' AS ñU", "a|n|c"},
           {"INSERT INTO T SELECT 'c' AS C", "Null|Null|c"},
           {"INSERT INTO T SELECT 'x' AS X, 'a' AS A, 'c' AS C", "x|a|c"},
           {"INSERT INTO T (C, A) SELECT 'p' AS A, 'q' AS C", "q|Null|p"},
           {"INSERT INTO t SELECT 'x' AS A, 'y' AS A, 'z' AS C", "x|y|z"},
       }) {
    SCOPED_TRACE(text);
    connection_->Execute(text);
    EXPECT_EQ(RowsOf(*connection_, "SELECT * FROM T"), row);
    connection_->Execute("DELETE FROM T");
  }
  connection_->Execute("INSERT INTO T VALUES ('1', '2', '3')");
  connection_->Execute("INSERT INTO T SELECT * FROM T");
  EXPECT_EQ(RowsOf(*connection_, "SELECT * FROM T"), "1|2|3 / 1|2|3");
}

TEST_F(RowCopyTest, AppendsToASheetByNameElseByPosition) {
  connection_->Execute("CREATE TABLE T (A LONG, Año DOUBLE, C BIT)");
  connection_->Execute("INSERT INTO T VALUES (1, 2.5, True)");
  const std::string sheet = "[Excel 8.0;DATABASE=" + folder_.File("S.xls") + "].[Hoja1] ";
  EXPECT_EQ(FailureOf(*connection_, "SELECT T.*, U.* INTO " + sheet + "FROM T, T AS U"),
            velmar::kDuplicateOutput);
  long rows = 0;
  connection_->Execute("SELECT * INTO " + sheet + "FROM T", &rows);
  EXPECT_EQ(rows, 1);
  connection_->Execute("INSERT INTO " + sheet + "SELECT C, AÑO FROM T");
  connection_->Execute("INSERT INTO " + sheet + "SELECT 'siete' AS X, 8 AS Y, NULL AS Z");
  EXPECT_EQ(FailureOf(*connection_, "INSERT INTO " + sheet + "SELECT 7 AS X, 8 AS Y"),
            velmar::kColumnCountMismatch);
  EXPECT_EQ(FailureOf(*connection_, "SELECT * INTO " + sheet + "FROM T"), velmar::kTableExists);
  EXPECT_NE(FailureOf(*connection_, "INSERT INTO " + sheet + "SELECT 1 / (A - 1) AS A FROM T"), 0);
  const std::vector<std::vector<std::string>> cells{
      {"A", "Año", "C"}, {"1", "2.5", "1"}, {"", "2.5", "1"}, {"siete", "8", ""}};
  EXPECT_EQ(velmar::sample::ReadWorkbook(folder_.File("S.xls")).at(0), cells);
}

}  // namespace
}  // namespace ADODB
