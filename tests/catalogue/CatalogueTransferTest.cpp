#include "catalogue/CatalogueTransfer.h"

#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"
#include "platform/error/RuntimeError.h"

namespace velmar {
namespace {

constexpr const char* kMakeFields = "SELECT 'Número' AS Campo INTO ExportacionCamposTEMP";
constexpr const char* kMakeTemplates = "SELECT 'Semilla' AS Nombre INTO ExportacionPlantillasTEMP";
const std::function<void()> kFailingTurn = [] { throw RuntimeError(5, "turn"); };

struct Office {
  explicit Office(const std::string& managementPassword = {}, const std::string& reportsPassword = {})
      : management(databases.Create("Gestion de datos.mdb", managementPassword)),
        reports(databases.Create("Informes.mdb", reportsPassword)) {}

  /// The first values of both tables behind a transfer, "" for an empty table and "-" for none.
  std::string Transfer(const std::function<void()>& turn = {}) const {
    ActualizarCatalogo(*management, *reports, turn);
    std::string values;
    for (const std::string table : {"ExportacionCampos", "ExportacionPlantillas"}) {
      try {
        const auto rows = management->Execute("SELECT * FROM " + table);
        values += (rows->Eof() ? "" : rows->Fields(0L).Value().AsText()) + "|";
      } catch (const RuntimeError&) {
        values += "-|";
      }
    }
    return values;
  }

  testing::TestDatabases databases;
  std::shared_ptr<ADODB::Connection> management;
  std::shared_ptr<ADODB::Connection> reports;
};

TEST(CatalogueTransfer, CopiesBothTablesOnceWithAndWithoutPasswords) {
  for (const Office& office : {Office("uno", ""), Office("", "otra ñ")}) {
    office.reports->Execute(kMakeFields);
    office.reports->Execute(kMakeTemplates);
    EXPECT_EQ(office.Transfer(), "Número||");
    office.management->BeginTrans();  // none has been left open
    office.management->RollbackTrans();

    // Later calls touch nothing, also when an event fails in the turn behind a good probe.
    office.management->Execute("INSERT INTO ExportacionPlantillas VALUES ('Mía')");
    office.management->Execute("DELETE FROM ExportacionCampos");
    EXPECT_EQ(office.Transfer(kFailingTurn), "|Mía|");
    // Nor do templates go when the probe fails for the fields alone.
    office.management->Execute("DROP TABLE ExportacionCampos");
    EXPECT_EQ(office.Transfer(), "Número|Mía|");
  }
}

TEST(CatalogueTransfer, LeavesATransactionOfTheHostOpen) {
  const Office office;
  office.reports->Execute(kMakeFields);
  office.reports->Execute(kMakeTemplates);
  office.management->BeginTrans();
  EXPECT_EQ(office.Transfer(), "Número||");
  office.management->RollbackTrans();
}

TEST(CatalogueTransfer, EachStepRunsWhateverBecameOfTheOneBefore) {
  const Office office;
  EXPECT_EQ(office.Transfer(), "-|-|");
  office.reports->Execute(kMakeTemplates);
  EXPECT_EQ(office.Transfer(), "-||");
  office.reports->Execute(kMakeFields);
  EXPECT_EQ(office.Transfer(kFailingTurn), "Número||");
  office.management->Close();
  office.reports->Close();
  office.Transfer();
}

}  // namespace
}  // namespace velmar
