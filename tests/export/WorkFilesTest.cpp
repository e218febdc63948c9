#include "export/WorkFiles.h"

#include <gtest/gtest.h>

#include "export/TestOffice.h"

namespace velmar::testing {
namespace {

TEST(WorkFiles, SweepSparesTheHostsDatabasesAndKeepsOtherRunsOut) {
  TestOffice office("DATOS Ñ", "ExportacionInformes.mdb");
  std::filesystem::copy_file(office.Path("Gestion.mdb"), office.Path("exportacion vieja.MDB"));
  std::filesystem::create_hard_link(office.Path("Gestion.mdb"), office.Path("Exportacion enlace.mdb"));
  const exporting::WorkFiles files(office.host);
  const auto held = files.Reserve();
  files.RemoveAll();
  files.Remove("EXPORTACIONINFORMES.mdb");
  EXPECT_EQ(office.Files(), (FileNames{"Exportacion enlace.mdb", "ExportacionInformes.mdb", "Gestion.mdb",
                                       "VelmarExportacion.lock"}));
  EXPECT_THROW(files.Reserve(), RuntimeError);
  for (const char* name : {"EXPORTACIONUno.mdb", "VelmarExportacion.lock"}) {
    EXPECT_TRUE(files.IsWorkFile(std::filesystem::relative(office.Path(name)))) << name;
    EXPECT_FALSE(files.IsWorkFile(name)) << name;
  }
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(office.Path(""));
  EXPECT_TRUE(files.IsWorkFile("ExportacionUno.mdb"));
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace velmar::testing
