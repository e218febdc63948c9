#include "catalogue/CatalogueTransfer.h"

#include <gtest/gtest.h>

#include <memory>

#include "host/interfaces/TestDatabases.h"
#include "platform/error/RuntimeError.h"

namespace velmar {
namespace {

class CatalogueTransfer : public ::testing::Test {
 protected:
  void Open(const std::string& managementPassword = {}, const std::string& reportsPassword = {}) {
    databases_ = std::make_unique<testing::TestDatabases>();
    management_ = databases_->Create("Gestion de datos.mdb", managementPassword);
    reports_ = databases_->Create("Informes.mdb", reportsPassword);
  }
  void FillFields() {
    reports_->Execute(
        "CREATE TABLE ExportacionCamposTEMP (IDTabla LONG, LiteralCampo TEXT(50), Otra CURRENCY)");
    reports_->Execute("INSERT INTO ExportacionCamposTEMP VALUES (2, 'Número', 1.5)");
    reports_->Execute("INSERT INTO ExportacionCamposTEMP VALUES (1, NULL, NULL)");
  }
  void FillTemplates() {
    reports_->Execute("CREATE TABLE ExportacionPlantillasTEMP (Nombre TEXT(50), IDUsuario LONG)");
    reports_->Execute("INSERT INTO ExportacionPlantillasTEMP VALUES ('Semilla', 7)");
  }

  /// The rows of a table of the management database as one text, or what the query failed with.
  std::string Rows(const std::string& table) const {
    try {
      const auto recordset = management_->Execute("SELECT * FROM " + table);
      std::string rows;
      for (; !recordset->Eof(); recordset->MoveNext()) {
        for (long index = 0; index < recordset->Fields().Count(); ++index) {
          rows += recordset->Fields(index).Value().TextOrEmpty() + "|";
        }
      }
      return rows;
    } catch (const RuntimeError&) {
      return "failed";
    }
  }

  std::unique_ptr<testing::TestDatabases> databases_;
  std::shared_ptr<ADODB::Connection> management_;
  std::shared_ptr<ADODB::Connection> reports_;
};

const std::function<void()> kFailingTurn = [] { throw RuntimeError(5, "turn"); };

TEST_F(CatalogueTransfer, CopiesBothTablesOnceWithAndWithoutPasswords) {
  for (const auto& [managementPassword, reportsPassword] : {std::pair("uno", ""), std::pair("", "otra ñ")}) {
    Open(managementPassword, reportsPassword);
    FillFields();
    FillTemplates();
    int turns = 0;
    ActualizarCatalogo(*management_, *reports_, [&] { ++turns; });
    EXPECT_EQ(turns, 4);
    EXPECT_EQ(Rows("ExportacionCampos"), "2|Número|1.5|1|||");
    EXPECT_EQ(Rows("ExportacionPlantillas"), "");
    EXPECT_NO_THROW(management_->BeginTrans()) << "a transaction has been left open";
    management_->RollbackTrans();

    // Later calls touch nothing, also when an event fails in the turn behind a good probe.
    management_->Execute("INSERT INTO ExportacionPlantillas VALUES ('Mía', 7)");
    management_->Execute("DELETE FROM ExportacionCampos");
    turns = 0;
    ActualizarCatalogo(*management_, *reports_, [&] {
      ++turns;
      kFailingTurn();
    });
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(Rows("ExportacionCampos"), "");
    EXPECT_EQ(Rows("ExportacionPlantillas"), "Mía|7|");
    // Nor do templates go when the probe fails for the fields alone.
    management_->Execute("DROP TABLE ExportacionCampos");
    ActualizarCatalogo(*management_, *reports_, {});
    EXPECT_EQ(Rows("ExportacionCampos"), "2|Número|1.5|1|||");
    EXPECT_EQ(Rows("ExportacionPlantillas"), "Mía|7|");
  }
}

TEST_F(CatalogueTransfer, EachStepRunsWhateverBecameOfTheOneBefore) {
  Open();
  EXPECT_NO_THROW(ActualizarCatalogo(*management_, *reports_, {}));
  EXPECT_EQ(Rows("ExportacionCampos"), "failed");
  FillTemplates();
  EXPECT_NO_THROW(ActualizarCatalogo(*management_, *reports_, {}));
  EXPECT_EQ(Rows("ExportacionCampos"), "failed");
  EXPECT_EQ(Rows("ExportacionPlantillas"), "");
  FillFields();
  EXPECT_NO_THROW(ActualizarCatalogo(*management_, *reports_, kFailingTurn));
  EXPECT_EQ(Rows("ExportacionCampos"), "2|Número|1.5|1|||");
  management_->Close();
  reports_->Close();
  EXPECT_NO_THROW(ActualizarCatalogo(*management_, *reports_, {}));
}

}  // namespace
}  // namespace velmar
