#include "wizard/ValueQueries.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "platform/text/Search.h"
#include "sample/Catalogue.h"
#include "sample/SampleDatabase.h"

namespace velmar::wizard {
namespace {

using Values = std::set<std::string>;

class ValueQueriesTest : public ::testing::Test {
 protected:
  ValueQueriesTest() {
    // What must not show, and what has no value.
    for (const char* change :
         {"UPDATE Colaboradores SET Eliminado = True, Nombre = 'Borrada', Sexo = 9 WHERE IDColaborador = 3",
          "UPDATE Colaboradores SET Nombre = '', FechaAlta = NULL, FechaBaja = '' WHERE IDColaborador = 4",
          "UPDATE Donativos SET Importe = 0 WHERE IDDonativo = 1",
          "UPDATE Donativos SET Importe = 12.5 WHERE IDDonativo = 2",
          "UPDATE TipoPagos SET Eliminado = True WHERE IDTipoPago = 1",
          "UPDATE Cuentas SET Eliminado = True WHERE IDCuenta = 2",
          "INSERT INTO Modelo182Hacienda (CodColaborador, Nombre, NIF, Provincia, TipoDonativo, Importe) "
          "VALUES (1, 'Ana', '1R', 'Soria', 'A', 12.5)",
          "INSERT INTO Modelo182Hacienda (CodColaborador, Nombre) VALUES (2, '')"}) {
      office.main->Execute(change);
    }
  }

  /// What the picker lists; a value that comes twice is told.
  Values List(std::string_view key) const {
    Values values;
    const auto rows = office.main->Execute(ObtenerSQLValorCampo(key));
    for (; !rows->Eof(); rows->MoveNext()) {
      const std::string value = rows->Fields("Campo").Value().AsText();
      EXPECT_TRUE(values.insert(value).second) << value;
    }
    return values;
  }
  /// The values of a column in the rows that are not deleted, taken row by row.
  Values Live(const std::string& table, const std::string& column, bool zeros = true) const {
    Values values;
    const auto rows = office.main->Execute("SELECT * FROM " + table);
    for (; !rows->Eof(); rows->MoveNext()) {
      if (table != "modelo182hacienda" && rows->Fields("Eliminado").Value().AsBoolean()) continue;
      std::string value = rows->Fields(std::string_view(column)).Value().TextOrEmpty();
      if (value.empty() || (value == "0" && !zeros)) continue;
      if (column.starts_with("fecha")) {
        value = value.substr(6, 2) + "/" + value.substr(4, 2) + "/" + value.substr(0, 4);
      }
      values.insert(value);
    }
    return values;
  }

  sample::SampleDatabase office{150};
};

TEST_F(ValueQueriesTest, EveryFieldOfTheCatalogueListsTheValuesOfItsLiveRows) {
  std::map<std::string, Values> named = {{"sexo", {"Hombre", "Mujer"}}, {"juridico", {"Física", "Jurídica"}}};
  const std::pair<const char*, const char*> lookups[] = {
      {"pais", "Paises"},        {"provincia", "Provincias"},       {"tipopago", "TipoPagos"},
      {"codemisor", "Emisores"}, {"tipodonativo", "TipoDonativos"}, {"tipoperiodo", "TipoPeriodos"}};
  for (const auto& [column, table] : lookups) named[column] = Live(table, "Nombre");
  const long long accounts = office.Number("SELECT Count(*) FROM Cuentas WHERE Eliminado = False");
  for (const auto& field : sample::Catalogue()) {
    SCOPED_TRACE(field.internalName);
    const Values listed = List(field.internalName);
    if (IsAccountField(field.internalName)) {
      EXPECT_EQ(listed.size(), static_cast<std::size_t>(accounts));
      continue;
    }
    const auto parts = text::Split(field.internalName, ".");
    const bool own = parts[0] == "modelo182hacienda" || !named.contains(parts[1]);
    const Values expected = own ? Live(parts[0], parts[1], !field.delimiter.empty()) : named[parts[1]];
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(listed, expected);
  }
}

TEST_F(ValueQueriesTest, ListsWordsForCodesThatAreInUse) {
  office.main->Execute("UPDATE Colaboradores SET Sexo = 3 WHERE Sexo <> 1 AND Eliminado = False");
  office.main->Execute("UPDATE Colaboradores SET Juridico = True WHERE Eliminado = False");
  EXPECT_THAT(List("colaboradores.sexo"), ::testing::ElementsAre("Hombre"));
  EXPECT_THAT(List("colaboradores.juridico"), ::testing::ElementsAre("Jurídica"));
}

}  // namespace
}  // namespace velmar::wizard
