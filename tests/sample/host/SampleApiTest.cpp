#include "sample/host/SampleApi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/TestDatabases.h"
#include "platform/controls/TextBox.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/host/SampleClasses.h"

namespace velmar::sample {
namespace {

class SampleApiTest : public ::testing::Test {
 protected:
  SampleApiTest() {
    RegisterSampleClasses(toolkit_, "Oficina");
    api_ = CreateHostApi();
  }

  toolkit::ScriptedToolkit toolkit_;
  std::shared_ptr<HostApi> api_;
};

TEST_F(SampleApiTest, ValidatesTheNifOfTheCurrentRow) {
  testing::TestDatabases databases;
  const auto connection = databases.Create("Prueba.mdb");
  connection->Execute("CREATE TABLE Personas (NIF TEXT(20), Bien LONG)");
  for (const char* row :
       {"'12345678Z', 1", "'12345678A', 0", "'  x1234567l ', 1", "'A58818501', 1", "'', 0", "NULL, 0"}) {
    connection->Execute(std::string("INSERT INTO Personas VALUES (") + row + ")");
  }
  const auto rows = connection->Execute("SELECT NIF, Bien FROM Personas");
  const ADODB::Field nif = rows->Fields("NIF");
  int count = 0;
  for (; !rows->Eof(); rows->MoveNext(), ++count) {
    EXPECT_EQ(api_->validar_nif(nif), rows->Fields("Bien").Value().AsLong()) << nif.Value().TextOrEmpty();
  }
  EXPECT_EQ(count, 6);
}

TEST_F(SampleApiTest, ShowsTheCurrentErrorWithItsLabels) {
  const CurrentErrorScope current(RuntimeError(kUnknownTable, "No existe la tabla Ñandú.", "motor"));
  api_->VerError("Form_Load()", "frmExportacion", "VelmarExportacion");
  const auto boxes = toolkit_.Records(toolkit::Record::Kind::kBox);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text,
            "Error 3078: No existe la tabla Ñandú.\rRutina: Form_Load()\rVentana: frmExportacion\r"
            "Componente: VelmarExportacion");
  EXPECT_EQ(boxes[0].title, "Oficina");
}

TEST_F(SampleApiTest, SelectsAllOfATextBox) {
  controls::TextBox box("txtPlantilla");
  box.Text("Año ñu");
  box.SelStart(3);
  api_->SeleccionarTexto(box);
  EXPECT_EQ(box.SelText(), "Año ñu");
}

TEST_F(SampleApiTest, CodecIsMadeByItsClassAndGoesBothWays) {
  std::string tail = "0123456789";
  CreateCuentaCodec()->CodificarTramo(tail);
  EXPECT_NE(tail, "0123456789");
  CreateCuentaCodec()->DecodificarTramo(tail);
  EXPECT_EQ(tail, "0123456789");
}

}  // namespace
}  // namespace velmar::sample
