#include "export/WorkFiles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "export/TestOffice.h"
#include "platform/error/RuntimeError.h"

namespace velmar::testing {
namespace {

using exporting::WorkFiles;

struct Place {
  const char* folder;
  const char* reports;
  const char* password;
};

// Whatever the host calls its reports database, wherever it lies and whatever its password.
TEST(WorkFiles, LieBesideTheReportsDatabaseWithoutPassword) {
  for (const Place& place : {Place{"Datos", "Informes.mdb", ""}, Place{"DATOS Ñ", "INFORMES.MDB", "SecretaÁ"},
                             Place{"d'Ana", "informes.mdb", "x;y"},
                             Place{"Informes.mdb.d", "otros informes.db", "ExportacionAux"}}) {
    SCOPED_TRACE(place.folder);
    TestOffice office(place.folder, place.password, place.reports);
    const WorkFiles files(office.host);
    const auto work = files.CrearBaseAuxiliar();
    EXPECT_EQ(work->Properties("DATA SOURCE").Value(), office.Path("ExportacionAux.mdb"));
    EXPECT_EQ(work->Properties("Jet OLEDB:Database Password").Value(), "");
    work->Execute("CREATE TABLE ExportacionExcel (N LONG)");
    for (int n = 1; n <= 5; ++n)
      work->Execute("INSERT INTO ExportacionExcel (N) VALUES (" + std::to_string(n) + ")");
    files.CrearBaseParte("ExportacionExcel", "10", 3, *work);
    EXPECT_EQ(office.WorkFiles(), (std::vector<std::string>{"ExportacionAux.mdb", "ExportacionExcel10.mdb"}));

    ADODB::Connection part(files.ConnectionText("ExportacionExcel10.mdb"));
    part.Open();
    const auto rows = part.Execute("SELECT Max(N) AS M, Count(*) AS C FROM ExportacionExcel10");
    EXPECT_EQ(rows->Fields("M").Value().AsLong(), 3);
    EXPECT_EQ(rows->Fields("C").Value().AsLong(), 3);
    part.Close();
    work->Close();
    files.RemoveAll();
    EXPECT_EQ(office.Files().size(), 2U);
  }
}

std::string RefusalOf(const WorkFiles& files) {
  try {
    files.Reserve();
    return "none";
  } catch (const RuntimeError& refusal) {
    return refusal.Description();
  }
}

TEST(WorkFiles, BelongToOneRunAtATime) {
  TestOffice office;
  const WorkFiles files(office.host);
  {
    const auto held = files.Reserve();
    EXPECT_NE(RefusalOf(files).find("exportación en curso"), std::string::npos);
    EXPECT_NE(RefusalOf(files).find(office.folder / ""), std::string::npos);
    files.RemoveAll();
    EXPECT_NE(RefusalOf(files).find("exportación en curso"), std::string::npos)
        << "swept with the work files";
  }
  EXPECT_EQ(RefusalOf(files), "none");
  EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb"}));

  // A killed run's file is in nobody's way; a folder in its place is.
  office.folder.Touch("VelmarExportacion.lock");
  EXPECT_EQ(RefusalOf(files), "none");
  std::filesystem::create_directory(office.Path("VelmarExportacion.lock"));
  EXPECT_NE(RefusalOf(files).find("VelmarExportacion.lock"), std::string::npos);
}

TEST(WorkFiles, AreRefusedInAFolderThatStatementsCannotName) {
  for (const char* name : {"a]b", "a;PWD=b"}) {
    TestOffice office(name);
    EXPECT_NE(RefusalOf(WorkFiles(office.host)).find(name), std::string::npos);
  }
}

TEST(WorkFiles, NeverDeletesTheHostsDatabases) {
  TestOffice office("d", {}, "ExportacionInformes.mdb");
  std::filesystem::copy_file(office.Path("Gestion.mdb"), office.Path("exportacion vieja.MDB"));
  std::filesystem::create_hard_link(office.Path("Gestion.mdb"), office.Path("Exportacion enlace.mdb"));
  const WorkFiles files(office.host);
  files.RemoveAll();
  EXPECT_EQ(office.Files(),
            (std::vector<std::string>{"Exportacion enlace.mdb", "ExportacionInformes.mdb", "Gestion.mdb"}));
  files.Remove("EXPORTACIONINFORMES.mdb");
  files.Remove("Gestion.mdb");
  EXPECT_EQ(office.Files().size(), 3U);
}

}  // namespace
}  // namespace velmar::testing
