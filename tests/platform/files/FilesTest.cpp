#include "platform/files/Files.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::files {
namespace {

long FailureOfKill(const std::string& path) {
  try {
    Kill(path);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Files, DirGivesTheFirstNameThatMatches) {
  const TemporaryFolder folder;
  folder.Touch("datos/otro.mdb");
  folder.Touch("Datos/ExportacionExcel2.mdb");
  folder.Touch("Datos/ExportacionAux.mdb");
  folder.Touch("Datos/Exportacion.carpeta.mdb/x");
  EXPECT_EQ(Dir(folder / "datos\\EXPORTACION*.MDB", 32), "ExportacionAux.mdb");
  EXPECT_EQ(Dir(folder / "datos/exportacionexcel2.mdb"), "ExportacionExcel2.mdb");
  for (const char* none : {"Datos", "Datos/", "nada/*.mdb"}) EXPECT_EQ(Dir(folder / none), "") << none;
}

TEST(Files, KillDeletesExactlyWhatMatches) {
  const TemporaryFolder folder;
  for (const char* name : {"ExportacionAux.mdb", "exportacionexcel0.MDB", "Exportacion.xls",
                           "Otros/ExportacionAux.mdb", "ExportacionX.mdb/x"}) {
    folder.Touch(name);
  }
  const std::string pattern = folder / "Exportacion*.mdb";
  Kill(pattern);
  EXPECT_TRUE(Matches(pattern).empty());
  for (const char* kept : {"Exportacion.xls", "Otros/ExportacionAux.mdb", "ExportacionX.mdb"}) {
    EXPECT_TRUE(folder.Has(kept)) << kept;
  }
  EXPECT_EQ(FailureOfKill(pattern), kFileNotFound);
}

TEST(Files, KillOfANameTakesOneFileOnly) {
  const TemporaryFolder folder;
  folder.Touch("HOJA.XLS");
  folder.Touch("Hoja.xls");
  Kill(folder / "Hoja.xls");
  if (!folder.Has("hoja.xls")) {
    EXPECT_FALSE(folder.Has("Hoja.xls"));
    EXPECT_TRUE(folder.Has("HOJA.XLS"));
  }
}

TEST(Files, KillTellsWhatItCannotDelete) {
  const TemporaryFolder folder;
  for (const char* name : {"a1", "a2", "a3"}) folder.Touch(name);
  std::filesystem::permissions(folder / "a2", std::filesystem::perms::owner_read);
  EXPECT_EQ(FailureOfKill(folder / "a*"), kPermissionDenied);
  EXPECT_TRUE(folder.Has("a2")) << "a read-only file is kept";
  EXPECT_FALSE(folder.Has("a1") || folder.Has("a3")) << "the others go all the same";
  EXPECT_EQ(FailureOfKill("/proc/version"), kPermissionDenied);
}

}  // namespace
}  // namespace velmar::files
