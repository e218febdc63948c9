#include "platform/files/WrittenPath.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::files {
namespace {

TEST(WrittenPath, TakesTheNameBehindEitherSeparator) {
  EXPECT_EQ(WrittenPath("C:\\datos\\Informes.mdb").Name(), "Informes.mdb");
  EXPECT_EQ(WrittenPath("/datos\\mis hojas/Ñu 1.xls").Name(), "Ñu 1.xls");
  EXPECT_EQ(WrittenPath("hoja.xls").Name(), "hoja.xls");
  EXPECT_EQ(WrittenPath("datos/").Name(), "");
}

TEST(WrittenPath, OffersTheWrittenSpellingFirst) {
  const TemporaryFolder folder;
  folder.Touch("DATOS/a");
  folder.Touch("Datos/a");
  std::vector<std::string> visited;
  const WrittenPath written(folder / "Datos/x");
  EXPECT_FALSE(written.VisitFolders([&](const std::filesystem::path& path) {
    visited.push_back(ToText(path));
    return false;
  }));
  EXPECT_EQ(visited, (std::vector<std::string>{folder / "Datos", folder / "DATOS"}));
}

TEST(WrittenPath, ListsNothingWhereThereIsNoFolder) {
  EXPECT_TRUE(NamesIn("/no existe/aquí").empty());
}

}  // namespace
}  // namespace velmar::files
