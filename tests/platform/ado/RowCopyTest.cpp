#include "platform/ado/RowCopy.h"

#include <freexl.h>
#include <gtest/gtest.h>

#include <functional>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

/// A column of the staging table that tells the rows apart, in an order that no key gives.
std::string ValueOfRow(int row) {
  return "Fila " + std::to_string((row * 7919LL) % 1'000'003);
}

void FillStaging(Connection& connection, int rows) {
  connection.Execute(
      "CREATE TABLE ExportacionExcel (Nombre TEXT(60), Importe DOUBLE, Socio BIT, Vacio TEXT(10))");
  BulkInsert staging(connection, "ExportacionExcel", {"Nombre", "Importe", "Socio"});
  connection.BeginTrans();
  for (int row = 0; row < rows; ++row) staging.Row({ValueOfRow(row), row / 4.0, row % 3 == 0});
  connection.CommitTrans();
}

/// All cells of a sheet (from 0), read by the library freexl.
void ReadSheet(const std::string& path, unsigned short sheet,
               const std::function<void(unsigned row, unsigned short column, const FreeXL_CellValue&)>& cell,
               unsigned& rows) {
  const void* handle = nullptr;
  ASSERT_EQ(freexl_open(path.c_str(), &handle), FREEXL_OK);
  ASSERT_EQ(freexl_select_active_worksheet(handle, sheet), FREEXL_OK);
  unsigned short columns = 0;
  ASSERT_EQ(freexl_worksheet_dimensions(handle, &rows, &columns), FREEXL_OK);
  for (unsigned row = 0; row < rows; ++row) {
    for (unsigned short column = 0; column < columns; ++column) {
      FreeXL_CellValue value;
      ASSERT_EQ(freexl_get_cell_value(handle, row, column, &value), FREEXL_OK);
      cell(row, column, value);
    }
  }
  freexl_close(handle);
}

TEST(RowCopy, CutsIntoBlocksAndSheetsWithEveryRowOnceAndInOrder) {
  for (const int total : {1, 8000, 8001, 64'001}) {
    SCOPED_TRACE(total);
    const TestFolder folder;
    const auto work = folder.OpenNew("ExportacionAux.mdb", "Jet OLEDB:Scratch=True");
    FillStaging(*work, total);
    Recordset counted;
    counted.PageSize(8000);
    counted.CursorType(kOpenStatic);
    counted.Open("SELECT * FROM ExportacionExcel", work);
    const long blocks = counted.PageCount();
    ASSERT_EQ(blocks, (total + 7999) / 8000);
    for (long block = 0; block < blocks; ++block) {
      const std::string name = "ExportacionExcel" + std::to_string(block);
      folder.Create(name + ".mdb", "Jet OLEDB:Scratch=True");
      work->Execute("SELECT TOP 8000 * INTO " + name + " IN '" + folder.File(name + ".mdb") +
                    "' FROM ExportacionExcel");
      work->Execute("DELETE ExportacionExcel FROM (SELECT TOP 8000 * FROM ExportacionExcel) As T1 ");
    }
    EXPECT_EQ(counted.RecordCount(), total);
    EXPECT_EQ(RowsOf(*work, "SELECT Count(*) FROM ExportacionExcel"), "0");
    const std::string workbook = folder.File("Salida.xls");
    for (long block = 0; block < blocks; ++block) {
      const std::string name = "ExportacionExcel" + std::to_string(block);
      const std::string sheet =
          "[Excel 8.0;DATABASE=" + workbook + "].[Hoja" + std::to_string(block / 8 + 1) + "] ";
      const auto part = folder.Open(name + ".mdb");
      part->Execute(block % 8 == 0 ? "SELECT * INTO " + sheet + "FROM [" + name + "] "
                                   : "INSERT INTO " + sheet + "SELECT * FROM [" + name + "]");
    }
    int row = 0;
    for (int sheet = 0; sheet < (total + 63'999) / 64'000; ++sheet) {
      unsigned rows = 0;
      ReadSheet(
          workbook, static_cast<unsigned short>(sheet),
          [&](unsigned line, unsigned short column, const FreeXL_CellValue& value) {
            if (line == 0) {
              const char* names[] = {"Nombre", "Importe", "Socio", "Vacio"};
              ASSERT_STREQ(value.value.text_value, names[column]);
            } else if (column == 0) {
              ASSERT_EQ(value.value.text_value, ValueOfRow(row));
            } else if (column == 1) {
              ASSERT_EQ(value.type == FREEXL_CELL_INT ? value.value.int_value : value.value.double_value,
                        row / 4.0);
            } else if (column == 2) {
              ASSERT_EQ(value.value.int_value, row % 3 == 0 ? 1 : 0);
            } else {
              ASSERT_EQ(value.type, FREEXL_CELL_NULL);
              ++row;
            }
          },
          rows);
      EXPECT_EQ(rows, 1U + static_cast<unsigned>(std::min(64'000, total - sheet * 64'000)));
    }
    EXPECT_EQ(row, total);
  }
}

TEST(RowCopy, KeepsTypesAndValues) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute(
      "CREATE TABLE T (ID COUNTER PRIMARY KEY, Texto TEXT(20), Memo MEMO, B BYTE, Doble DOUBLE, Dinero "
      "CURRENCY, Si BIT, "
      "Fecha DATETIME)");
  connection->Execute("INSERT INTO T VALUES (7, '007', '1e3', 255, 0.5, 1.2345, True, #12/31/2025#)");
  connection->Execute("INSERT INTO T (ID) VALUES (8)");
  const std::string all = RowsOf(*connection, "SELECT * FROM T");
  connection->Execute("SELECT T.*, Texto + 'x' AS Y, B * 2 AS Z, IIf(ID > 0, Texto, B) AS W INTO U FROM T");
  EXPECT_EQ(RowsOf(*connection, "SELECT ID, Texto, Memo, B, Doble, Dinero, Si, Fecha FROM U"), all);
  EXPECT_EQ(RowsOf(*connection, "SELECT Y, Z, W FROM U WHERE ID = 7"), "007x|510|007");
  connection->Execute("SELECT * INTO V FROM U");
  connection->Execute("INSERT INTO V (ID, Texto, B) VALUES (9, 12, '13')");
  EXPECT_EQ(RowsOf(*connection, "SELECT Texto, B + 1, Si FROM V WHERE ID IN (7, 9)"),
            "007|256|-1 / 12|14|Null");
  const auto value = connection->Execute("SELECT Si, Texto, B FROM V WHERE ID = 7");
  EXPECT_TRUE(value->Fields("Si").Value().IsBoolean());
  EXPECT_TRUE(value->Fields("Texto").Value().IsText());
  EXPECT_TRUE(value->Fields("B").Value().IsWhole());
}

TEST(RowCopy, AppendsByNameElseByPosition) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (A TEXT(5), Ñu TEXT(5), C TEXT(5))");
  struct Case {
    const char* text;
    const char* row;
  };
  for (const Case& each : {Case{"INSERT INTO T SELECT 'c' AS C, 'a' AS a, 'n' AS ñU", "a|n|c"},
                           Case{"INSERT INTO T SELECT 'c' AS C", "Null|Null|c"},
                           Case{"INSERT INTO T SELECT 'x' AS X, 'a' AS A, 'c' AS C", "x|a|c"},
                           Case{"INSERT INTO T (C, A) SELECT 'p' AS A, 'q' AS C", "q|Null|p"},
                           Case{"INSERT INTO t SELECT 'x' AS A, 'y' AS A, 'z' AS C", "x|y|z"}}) {
    SCOPED_TRACE(each.text);
    long rows = 0;
    connection->Execute(each.text, &rows);
    EXPECT_EQ(rows, 1);
    EXPECT_EQ(RowsOf(*connection, "SELECT * FROM T"), each.row);
    connection->Execute("DELETE FROM T");
  }
  connection->Execute("INSERT INTO T VALUES ('1', '2', '3')");
  for (int doubling = 0; doubling < 3; ++doubling) connection->Execute("INSERT INTO T SELECT * FROM T");
  EXPECT_EQ(RowsOf(*connection, "SELECT Count(*) FROM T"), "8");
}

TEST(RowCopy, AppendsToASheetByNameElseByPosition) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (A LONG, Año LONG, C LONG)");
  connection->Execute("INSERT INTO T VALUES (1, 2, 3)");
  const std::string sheet = "[Excel 8.0;DATABASE=" + folder.File("S.xls") + "].[Hoja1] ";
  connection->Execute("SELECT * INTO " + sheet + "FROM T");
  connection->Execute("INSERT INTO " + sheet + "SELECT C, AÑO FROM T");
  connection->Execute("INSERT INTO " + sheet + "SELECT 7 AS X, 8 AS Y, 9 AS Z");
  EXPECT_EQ(FailureOf([&] { connection->Execute("INSERT INTO " + sheet + "SELECT 7 AS X, 8 AS Y"); }),
            velmar::kColumnCountMismatch);
  EXPECT_EQ(FailureOf([&] { connection->Execute("SELECT * INTO " + sheet + "FROM T"); }),
            velmar::kTableExists);
  EXPECT_NE(
      FailureOf([&] { connection->Execute("INSERT INTO " + sheet + "SELECT 1 / (A - 1) AS A FROM T"); }), 0);
  std::string cells;
  unsigned rows = 0;
  ReadSheet(
      folder.File("S.xls"), 0,
      [&](unsigned row, unsigned short column, const FreeXL_CellValue& value) {
        if (column == 0) cells += " / ";
        if (row > 0) cells += value.type == FREEXL_CELL_NULL ? "-" : std::to_string(value.value.int_value);
      },
      rows);
  EXPECT_EQ(cells, " /  / 123 / -23 / 789");
}

}  // namespace
}  // namespace ADODB
