#include "platform/files/Paths.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"
#include "platform/text/Case.h"

namespace velmar::files {
namespace {

TEST(Paths, FindsAFileWhateverTheCaseOfItsPath) {
  const TemporaryFolder folder;
  folder.Touch("Año 2001/Mis Datos/Informes.mdb");
  const std::string real = folder / "Año 2001/Mis Datos/Informes.mdb";
  std::string windows = text::UCase(real);
  std::replace(windows.begin(), windows.end(), '/', '\\');
  for (const std::string& written : {real, text::LCase(real), windows}) EXPECT_EQ(Resolve(written), real);
  EXPECT_EQ(Resolve(folder / "AN\u0303O 2001/mis datos/"), folder / "Año 2001/Mis Datos");
  EXPECT_EQ(Resolve(folder / "Ano 2001/Mis Datos/Informes.mdb"), std::nullopt);
  EXPECT_EQ(Resolve(folder / "Año 2001/Mis Datos/Informes.mdb/x"), std::nullopt);
  EXPECT_EQ(Resolve(""), std::nullopt);
}

TEST(Paths, LooksIntoEveryFolderThatIsMeantTheWrittenOneFirst) {
  const TemporaryFolder folder;
  for (const char* name : {"DATOS/a", "Datos/a", "Datos/A", "Datos/Informes.mdb", "datos/b"})
    folder.Touch(name);
  EXPECT_EQ(Resolve(folder / "Datos/a"), folder / "Datos/a");
  EXPECT_EQ(Resolve(folder / "Datos/A"), folder / "Datos/A");
  EXPECT_EQ(Resolve(folder / "datos/a"), folder / "DATOS/a") << "of others the first by its bytes";
  EXPECT_EQ(Resolve(folder / "DATOS/informes.mdb"), folder / "Datos/Informes.mdb");
}

TEST(Paths, ANewFileKeepsItsNameInTheRealFolder) {
  const TemporaryFolder folder;
  folder.Touch("Datos/Informes.mdb");
  EXPECT_EQ(ResolveForCreation(folder / "DATOS\\ExportacionExcel0.mdb"),
            folder / "Datos/ExportacionExcel0.mdb");
  EXPECT_EQ(ResolveForCreation("hoja.xls"), "hoja.xls");
  EXPECT_THROW(ResolveForCreation(folder / "Otros/hoja.xls"), RuntimeError);
  EXPECT_THROW(ResolveForCreation(folder / "Datos/"), RuntimeError);
}

TEST(Paths, AFolderThatCannotBeListedHidesOnlyOtherSpellings) {
  const TemporaryFolder folder;
  folder.Touch("casa/ana/Informes.mdb");
  const std::filesystem::path home = folder / "casa";
  std::filesystem::permissions(home, std::filesystem::perms{0111});
  const std::shared_ptr<void> afterwards(nullptr, [home, user = geteuid()](void*) {
    EXPECT_EQ(seteuid(user), 0);
    std::filesystem::permissions(home, std::filesystem::perms{0755});
  });
  ASSERT_TRUE(geteuid() != 0 || seteuid(65534) == 0) << "root may list every folder, so it becomes nobody";
  EXPECT_EQ(Resolve(folder / "casa/ana/informes.mdb"), folder / "casa/ana/Informes.mdb");
  EXPECT_EQ(Resolve(folder / "casa/ana/Otro.mdb"), std::nullopt);
  EXPECT_EQ(ResolveForCreation(folder / "casa/ana/Otro.mdb"), folder / "casa/ana/Otro.mdb");
  EXPECT_THROW(Resolve(folder / "casa/ANA/Informes.mdb"), RuntimeError);
}

}  // namespace
}  // namespace velmar::files
