#include "catalogue/CatalogueTransfer.h"

#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"
#include "platform/error/RuntimeError.h"

namespace velmar {
namespace {

using Connection = std::shared_ptr<ADODB::Connection>;

/// The rows of a query as one text, or what the query failed with.
std::string Rows(const Connection& connection, const std::string& sql) {
  try {
    const auto recordset = connection->Execute(sql);
    std::string rows;
    for (; !recordset->Eof(); recordset->MoveNext()) {
      for (long index = 0; index < recordset->Fields().Count(); ++index) {
        rows += recordset->Fields(index).Value().TextOrEmpty() + "|";
      }
      rows += "\n";
    }
    return rows;
  } catch (const RuntimeError&) {
    return "failed";
  }
}

void FillReports(const Connection& reports) {
  reports->Execute(
      "CREATE TABLE ExportacionCamposTEMP (IDCampo LONG, LiteralCampo TEXT(50), IDTabla SHORT, Otra "
      "CURRENCY)");
  reports->Execute("INSERT INTO ExportacionCamposTEMP VALUES (2, 'Número', 1, 1.5)");
  reports->Execute("INSERT INTO ExportacionCamposTEMP VALUES (1, NULL, 1, NULL)");
  reports->Execute("CREATE TABLE ExportacionPlantillasTEMP (Nombre TEXT(50), IDUsuario LONG)");
  reports->Execute("INSERT INTO ExportacionPlantillasTEMP VALUES ('Semilla', 7)");
}

TEST(CatalogueTransfer, CopiesBothTablesWithAndWithoutPasswords) {
  for (const auto& [managementPassword, reportsPassword] :
       {std::pair("", ""), std::pair("uno", ""), std::pair("", "dos"),
        std::pair("contraseña ñ", "otra clave")}) {
    SCOPED_TRACE(std::string(managementPassword) + "/" + reportsPassword);
    const testing::TestDatabases databases;
    const Connection management = databases.Create("Gestion de datos.mdb", managementPassword);
    const Connection reports = databases.Create("Informes.mdb", reportsPassword);
    FillReports(reports);
    int turns = 0;
    ActualizarCatalogo(*management, *reports, [&] { ++turns; });
    EXPECT_EQ(turns, 4);
    EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionCampos"), "2|Número|1|1.5|\n1||1||\n");
    EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionPlantillas"), "");
    EXPECT_EQ(Rows(reports, "SELECT Nombre FROM ExportacionPlantillasTEMP"), "Semilla|\n");
    management->BeginTrans();  // none has been left open
    management->RollbackTrans();

    management->Execute("INSERT INTO ExportacionPlantillas VALUES ('Mía', 7)");
    reports->Execute("INSERT INTO ExportacionCamposTEMP VALUES (3, 'Nuevo', 1, 0)");
    management->Close();
    management->Open();
    turns = 0;
    ActualizarCatalogo(*management, *reports, [&] { ++turns; });
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(Rows(management, "SELECT IDCampo FROM ExportacionCampos"), "2|\n1|\n");
    EXPECT_EQ(Rows(management, "SELECT Nombre FROM ExportacionPlantillas"), "Mía|\n");
  }
}

TEST(CatalogueTransfer, ATableThatCanBeReadIsLeftAloneAlsoWhenEmpty) {
  const testing::TestDatabases databases;
  const Connection management = databases.Create("Gestion.mdb");
  const Connection reports = databases.Create("Informes.mdb");
  FillReports(reports);
  management->Execute("CREATE TABLE ExportacionCampos (IDTabla LONG)");
  ActualizarCatalogo(*management, *reports, {});
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionCampos"), "");
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionPlantillas"), "failed");
}

TEST(CatalogueTransfer, EachStepRunsWhateverBecameOfTheOneBefore) {
  const testing::TestDatabases databases;
  const Connection management = databases.Create("Gestion.mdb");
  const Connection reports = databases.Create("Informes.mdb");
  EXPECT_NO_THROW(ActualizarCatalogo(*management, *reports, {}));
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionCampos"), "failed");

  reports->Execute("CREATE TABLE ExportacionPlantillasTEMP (Nombre TEXT(50))");
  reports->Execute("INSERT INTO ExportacionPlantillasTEMP VALUES ('Semilla')");
  EXPECT_NO_THROW(ActualizarCatalogo(*management, *reports, {}));
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionCampos"), "failed");
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionPlantillas"), "");

  reports->Execute("CREATE TABLE ExportacionCamposTEMP (IDTabla LONG)");
  reports->Execute("INSERT INTO ExportacionCamposTEMP VALUES (4)");
  EXPECT_NO_THROW(ActualizarCatalogo(*management, *reports, [] { throw RuntimeError(5, "turn"); }));
  EXPECT_EQ(Rows(management, "SELECT * FROM ExportacionCampos"), "4|\n");

  management->Close();
  reports->Close();
  EXPECT_NO_THROW(ActualizarCatalogo(*management, *reports, {}));
}

TEST(CatalogueTransfer, TemplatesThatUsersHaveSavedStayWhateverFails) {
  const testing::TestDatabases databases;
  const Connection management = databases.Create("Gestion.mdb");
  const Connection reports = databases.Create("Informes.mdb");
  FillReports(reports);
  ActualizarCatalogo(*management, *reports, {});
  management->Execute("INSERT INTO ExportacionPlantillas VALUES ('Mía', 7)");

  // An event that fails in the turn behind a good probe.
  ActualizarCatalogo(*management, *reports, [] { throw RuntimeError(5, "turn"); });
  EXPECT_EQ(Rows(management, "SELECT Nombre FROM ExportacionPlantillas"), "Mía|\n");
  // A probe that fails although the templates are there.
  management->Execute("DROP TABLE ExportacionCampos");
  ActualizarCatalogo(*management, *reports, {});
  EXPECT_EQ(Rows(management, "SELECT IDCampo FROM ExportacionCampos"), "2|\n1|\n");
  EXPECT_EQ(Rows(management, "SELECT Nombre FROM ExportacionPlantillas"), "Mía|\n");
}

}  // namespace
}  // namespace velmar
