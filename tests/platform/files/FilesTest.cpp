#include "platform/files/Files.h"

#include <gtest/gtest.h>

#include "platform/error/Failure.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::files {
namespace {

TEST(Files, DirGivesTheFirstNameThatMatches) {
  const TemporaryFolder folder;
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
                           "EXPORTACION.XLS", "Otros/ExportacionAux.mdb", "ExportacionX.mdb/x"}) {
    folder.Touch(name);
  }
  Kill(folder / "Exportacion*.mdb");
  Kill(folder / "Exportacion.xls");
  EXPECT_EQ(folder.Names(), (std::set<std::string>{"EXPORTACION.XLS", "ExportacionX.mdb", "Otros"}));
  EXPECT_TRUE(folder.Has("Otros/ExportacionAux.mdb"));
  EXPECT_EQ(FailureOf([&] { Kill(folder / "Exportacion*.mdb"); }), kFileNotFound);
}

TEST(Files, FolderThatExistsAsWrittenIsTheOnlyOne) {
  const TemporaryFolder folder;
  for (const char* name : {"Datos/a/otro.mdb", "datos/a/Exportacion.mdb", "DATOS/x"}) folder.Touch(name);
  EXPECT_EQ(Dir(folder / "Datos/a/Exportacion*.mdb"), "");
  for (const char* name : {"Datos/a/Exportacion*.mdb", "Datos/a/Exportacion.mdb"}) {
    EXPECT_EQ(FailureOf([&] { Kill(folder / name); }), kFileNotFound) << name;
  }
  Kill(folder / "DATOS/a/Exportacion*.mdb");
  EXPECT_FALSE(folder.Has("datos/a/Exportacion.mdb"));
}

TEST(Files, KillTellsWhatItCannotDelete) {
  const TemporaryFolder folder;
  for (const char* name : {"a1", "a2", "a3"}) folder.Touch(name);
  std::filesystem::permissions(folder / "a2", std::filesystem::perms::owner_read);
  EXPECT_EQ(FailureOf([&] { Kill(folder / "a*"); }), kPermissionDenied);
  EXPECT_EQ(folder.Names(), std::set<std::string>{"a2"}) << "a read-only file is kept, the others go";
  EXPECT_EQ(FailureOf([&] { Kill("/proc/version"); }), kPermissionDenied);
}

}  // namespace
}  // namespace velmar::files
