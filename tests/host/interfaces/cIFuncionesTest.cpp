#include "host/interfaces/cIFunciones.h"

#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {
namespace {

TEST(cIFunciones, ChangesOnlyWhatIsNotYetInTheStateWanted) {
  const testing::TestDatabases databases;
  const auto connection = databases.Create("Gestion.mdb", "clave");
  const cIFunciones functions;
  for (int twice = 0; twice < 2; ++twice) {
    functions.CerrarConexion(connection);
    EXPECT_EQ(connection->State(), 0);
  }
  for (int twice = 0; twice < 2; ++twice) {
    functions.AbrirConexion(connection);
    EXPECT_EQ(connection->State(), 1);
  }
  connection->Execute("CREATE TABLE T (A LONG)");
  const auto recordset = connection->Execute("SELECT A FROM T");
  for (int twice = 0; twice < 2; ++twice) {
    auto given = recordset;
    functions.CerrarRecordset(given);
    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(recordset->State(), 0);
  }
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
  const auto wrong = std::make_shared<ADODB::Connection>(databases.Text("Gestion.mdb", "otra"));
  std::shared_ptr<ADODB::Recordset> none;
  EXPECT_EQ(number([&] { functions.AbrirConexion(wrong); }), kWrongPassword);
  EXPECT_EQ(number([&] { functions.AbrirConexion(nullptr); }), kObjectNotSet);
  EXPECT_EQ(number([&] { functions.CerrarConexion(nullptr); }), kObjectNotSet);
  EXPECT_EQ(number([&] { functions.CerrarRecordset(none); }), kObjectNotSet);
}

}  // namespace
}  // namespace velmar
