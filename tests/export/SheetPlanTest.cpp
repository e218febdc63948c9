#include "export/SheetPlan.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace velmar::testing {
namespace {

std::string Create(int block, int sheet) {
  return "SELECT * INTO [Excel 8.0;DATABASE=/d/Lista.xls].[Hoja" + std::to_string(sheet) +
         "] FROM [ExportacionExcel" + std::to_string(block) + "] ";
}

std::string Append(int block, int sheet) {
  return "INSERT INTO [Excel 8.0;DATABASE=/d/Lista.xls].[Hoja" + std::to_string(sheet) +
         "] SELECT * FROM [ExportacionExcel" + std::to_string(block) + "]";
}

TEST(SheetPlan, StartsASheetEveryEightBlocks) {
  exporting::SheetPlan plan("/d/Lista.xls");
  for (int block = 0; block < 40; ++block) {
    const int sheet = block / 8 + 1;
    EXPECT_EQ(plan.StatementFor(block), block % 8 == 0 ? Create(block, sheet) : Append(block, sheet));
    plan.Written();
  }
}

TEST(SheetPlan, MakesASheetWithItsFirstBlockThatSucceeds) {
  exporting::SheetPlan plan("/d/Lista.xls");
  const std::set<int> failing{0, 1, 5, 8, 9};
  for (int block = 0; block < 12; ++block) {
    const bool first = block <= 2 || (block >= 8 && block <= 10);
    EXPECT_EQ(plan.StatementFor(block), first ? Create(block, block / 8 + 1) : Append(block, block / 8 + 1));
    EXPECT_EQ(plan.FileExists(), block > 2);
    if (failing.count(block) == 0) plan.Written();
  }
}

}  // namespace
}  // namespace velmar::testing
