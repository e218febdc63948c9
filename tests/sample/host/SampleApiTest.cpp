#include "sample/host/SampleApi.h"

#include <gtest/gtest.h>

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/TestDatabases.h"
#include "platform/controls/TextBox.h"
#include "platform/toolkit/ScriptedToolkit.h"

namespace velmar::sample {
namespace {

TEST(SampleApiTest, ValidatesTheNifOfTheCurrentRow) {
  toolkit::ScriptedToolkit toolkit;
  const testing::TestDatabases databases;
  const auto database = databases.Create("Gestion.mdb");
  const std::pair<const char*, long> cases[] = {
      {"'12345678Z'", 1}, {"'12345678A'", 0}, {"'  x1234567l '", 1}, {"''", 0}, {"NULL", 0}};
  for (const auto& [nif, valid] : cases) {
    const auto row = database->Execute(std::string("SELECT NIF FROM (SELECT ") + nif + " AS NIF) AS T");
    EXPECT_EQ(SampleApi(toolkit, "Oficina").validar_nif(row->Fields("NIF")), valid) << nif;
  }
}

TEST(SampleApiTest, ShowsTheCurrentErrorWithItsLabels) {
  toolkit::ScriptedToolkit toolkit;
  const CurrentErrorScope current(RuntimeError(kUnknownTable, "No existe la tabla Ñandú.", "motor"));
  SampleApi(toolkit, "Oficina").VerError("Form_Load()", "frmExportacion", "VelmarExportacion");
  const auto box = toolkit.Records(toolkit::Record::Kind::kBox).at(0);
  EXPECT_EQ(box.text,
            "Error 3078: No existe la tabla Ñandú.\rRutina: Form_Load()\rVentana: frmExportacion\r"
            "Componente: VelmarExportacion");
  EXPECT_EQ(box.title, "Oficina");
}

TEST(SampleApiTest, SelectsAllOfATextBox) {
  toolkit::ScriptedToolkit toolkit;
  controls::TextBox box("txtPlantilla");
  box.Text("Año ñu");
  box.SelStart(3);
  SampleApi(toolkit, "Oficina").SeleccionarTexto(box);
  EXPECT_EQ(box.SelText(), "Año ñu");
}

}  // namespace
}  // namespace velmar::sample
