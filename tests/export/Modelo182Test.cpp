#include "export/Modelo182.h"

#include <gtest/gtest.h>

#include "export/TestOffice.h"

namespace velmar::testing {
namespace {

struct Person {
  /// Makes another case of somebody who is declared in both kinds; the number is added.
  std::string change;
  const char* kinds;       ///< those that are declared
  const char* restricted;  ///< those that are left where the host restricts the kinds of donations
  const char* name = "Peña Ruiz Ana";
  const char* nif = "12345678Z";
  const char* province = "Álava";
};

const std::string kWhere = " WHERE IDColaborador = ";
const std::string kReceipt = " WHERE IDRecibo = ";
const std::string kSecond = " WHERE CodTipoDonativo = 2 AND CodColaborador = ";

const Person kPeople[] = {
    {"Colaboradores SET Nombre = ''" + kWhere, "", ""},
    {"Colaboradores SET Apellido1 = ''" + kWhere, "", ""},
    {"Colaboradores SET Apellido2 = ''" + kWhere, "AB", "AB", "Peña  Ana"},
    // A missing part makes the whole name NULL.
    {"Colaboradores SET Apellido1 = NULL" + kWhere, "AB", "AB", ""},
    {"Colaboradores SET NIF = ''" + kWhere, "", ""},
    {"Colaboradores SET NIF = NULL" + kWhere, "AB", "AB", "Peña Ruiz Ana", ""},
    {"Colaboradores SET NIF = '12345678A'" + kWhere, "", ""},
    {"Colaboradores SET NIF = 'x12'" + kWhere, "AB", "AB", "Peña Ruiz Ana", "x12"},
    {"Colaboradores SET NIF = 'X12345678'" + kWhere, "AB", "AB", "Peña Ruiz Ana", "X12345678"},
    {"Colaboradores SET NIF = 'X123456789'" + kWhere, "", ""},
    {"Colaboradores SET CodProvincia = 3" + kWhere, "AB", "AB", "Peña Ruiz Ana", "12345678Z", ""},
    {"Colaboradores SET Modelo182 = False" + kWhere, "", ""},
    {"Colaboradores SET Eliminado = True" + kWhere, "", ""},
    {"Colaboradores SET Juridico = True" + kWhere, "", ""},
    {"Recibos SET Importe = 0" + kReceipt, "", ""},
    {"Recibos SET Eliminado = True" + kReceipt, "", ""},
    {"Recibos SET FechaCobro = '20241231'" + kReceipt, "", ""},
    {"Recibos SET FechaCobro = '20260101'" + kReceipt, "", ""},
    {"Donativos SET CodTipoDonativo = 4" + kSecond, "AB", "A"},
    {"Donativos SET CodTipoDonativo = 8" + kSecond, "AB", "A"},
    {"Donativos SET CodTipoDonativo = 3" + kSecond, "AB", "A"},
    {"Donativos SET CodTipoDonativo = 5" + kSecond, "AB", "A"},
};

TEST(Modelo182, DeclaresEachKindOfEachPersonUnlessThereIsAReason) {
  TestOffice office;
  office.Run("INSERT INTO Provincias VALUES (1, 'Álava')");
  // Number, of the other kind, declared where kinds are restricted, deleted.
  for (const std::string type : {"1, False, True, False", "2, True, True, False", "3, True, False, False",
                                 "4, True, True, False", "5, True, True, True", "8, True, True, False"}) {
    office.Run("INSERT INTO TipoDonativos VALUES (" + type + ")");
  }
  Table expected;
  Table restricted;
  int count = 100;
  for (const Person& person : kPeople) {
    const std::string id = std::to_string(++count);
    office.Run("INSERT INTO Colaboradores VALUES (" + id +
               ", 'Ana', 'Peña', 'Ruiz', '12345678Z', 0, False, 1, True, False, '', '')");
    office.Run("INSERT INTO Recibos VALUES (" + id + ", " + id + ", 30.5, False, '20250101')");
    for (const char* kind : {"1", "2"}) {
      office.Run("INSERT INTO Donativos VALUES (" + (kind + id) + ", " + id + ", " + kind + ")");
      office.Run("INSERT INTO Cobros VALUES (" + id + ", " + kind + id + ", 0.1, 1)");
      office.Run("INSERT INTO Cobros VALUES (" + id + ", " + kind + id + ", " + kind + ".2, 1)");
    }
    office.Run("UPDATE " + person.change + id);
    for (const char kind : std::string(person.kinds)) {
      const Names row{id, person.name, person.nif, person.province, {kind}, kind == 'A' ? "1.3" : "2.3", id};
      expected.push_back(row);
      if (std::string(person.restricted).find(kind) != std::string::npos) restricted.push_back(row);
    }
  }
  // The node need not come first.
  office.Select(TestOffice::kCol, "Colaboradores.IDColaborador", "Codigo");
  for (const char* column : {"NombreColaborador", "NIFColaborador", "Provincia", "TipoDonativo", "Importe"}) {
    office.Select("(MOD) Modelo182", std::string("Modelo182Hacienda.") + column, column);
  }
  office.Select(TestOffice::kCol, "Colaboradores.IDColaborador", "Codigo2");
  for (const std::optional<bool> brivana :
       {std::optional<bool>(), std::optional(false), std::optional(true)}) {
    // Of an earlier run.
    office.Run("INSERT INTO Modelo182Hacienda (codColaborador, Importe) VALUES (101, 7)");
    office.host->brivana = brivana;
    office.host->brivanaReads = 0;
    ASSERT_EQ(office.Export(), exporting::Outcome::kFinished) << office.run.Failure().Description();
    EXPECT_EQ(office.host->brivanaReads, 1);
    Table declared = office.Exported();
    std::sort(declared.begin(), declared.end());
    EXPECT_EQ(declared, brivana.value_or(false) ? restricted : expected);
    EXPECT_EQ(office.Rows("SELECT codColaborador FROM Modelo182Hacienda"), Table{});
  }
}

}  // namespace
}  // namespace velmar::testing
