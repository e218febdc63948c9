#include "host/interfaces/cIFunciones.h"

#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {
namespace {

TEST(cIFunciones, ChangesOnlyWhatIsNotYetInTheStateWanted) {
  const testing::TestDatabases databases;
  databases.Create("Gestion.mdb", "clave")->Close();
  const cIFunciones functions;
  const auto connection = std::make_shared<ADODB::Connection>(databases.Text("Gestion.mdb", "clave"));
  functions.CerrarConexion(connection);
  EXPECT_EQ(connection->State(), 0);
  functions.AbrirConexion(connection);
  EXPECT_EQ(connection->State(), 1);
  functions.AbrirConexion(connection);  // a second Open would fail
  EXPECT_EQ(connection->State(), 1);

  connection->Execute("CREATE TABLE T (A LONG)");
  auto recordset = connection->Execute("SELECT A FROM T");
  const auto same = recordset;
  functions.CerrarRecordset(recordset);
  EXPECT_EQ(recordset, nullptr);
  EXPECT_EQ(same->State(), 0);
  recordset = same;
  functions.CerrarRecordset(recordset);
  EXPECT_EQ(recordset, nullptr);

  functions.CerrarConexion(connection);
  functions.CerrarConexion(connection);
  EXPECT_EQ(connection->State(), 0);
}

TEST(cIFunciones, FailuresGoToTheCaller) {
  const testing::TestDatabases databases;
  databases.Create("Gestion.mdb", "clave")->Close();
  const cIFunciones functions;
  const auto number = [](const auto& statement) {
    try {
      statement();
    } catch (const RuntimeError& failure) {
      return failure.Number();
    }
    return 0L;
  };
  EXPECT_EQ(
      number([&] {
        functions.AbrirConexion(std::make_shared<ADODB::Connection>(databases.Text("Gestion.mdb", "otra")));
      }),
      kWrongPassword);
  EXPECT_EQ(number([&] {
              functions.AbrirConexion(std::make_shared<ADODB::Connection>(databases.Text("Falta.mdb")));
            }),
            kDatabaseNotFound);
  std::shared_ptr<ADODB::Recordset> none;
  EXPECT_EQ(number([&] { functions.AbrirConexion(nullptr); }), kObjectNotSet);
  EXPECT_EQ(number([&] { functions.CerrarConexion(nullptr); }), kObjectNotSet);
  EXPECT_EQ(number([&] { functions.CerrarRecordset(none); }), kObjectNotSet);
}

}  // namespace
}  // namespace velmar
