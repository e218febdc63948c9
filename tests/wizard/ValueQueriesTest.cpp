#include "wizard/ValueQueries.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "platform/text/Collation.h"
#include "sample/Catalogue.h"
#include "sample/SampleDatabase.h"

namespace velmar::wizard {
namespace {

using ADODB::Variant;

struct SpanishOrder {
  bool operator()(const std::string& a, const std::string& b) const { return text::CompareText(a, b) < 0; }
};
using Values = std::set<std::string, SpanishOrder>;

/// How the values of a key come out of the rows of a table.
enum class Shown { kText, kNumber, kDate, kName };

struct Key {
  const char* key;
  Shown shown;
  const char* table;
  const char* column;
};

const Key kKeys[] = {
    {"colaboradores.nombre", Shown::kText, "Colaboradores", "Nombre"},
    {"colaboradores.apellido1", Shown::kText, "Colaboradores", "Apellido1"},
    {"colaboradores.apellido2", Shown::kText, "Colaboradores", "Apellido2"},
    {"colaboradores.telefono2", Shown::kText, "Colaboradores", "Telefono2"},
    {"colaboradores.direccion", Shown::kText, "Colaboradores", "Direccion"},
    {"colaboradores.poblacion", Shown::kText, "Colaboradores", "Poblacion"},
    {"colaboradores.cp", Shown::kText, "Colaboradores", "CP"},
    {"colaboradores.nif", Shown::kText, "Colaboradores", "NIF"},
    {"colaboradores.observaciones", Shown::kText, "Colaboradores", "Observaciones"},
    {"colaboradores.idcolaborador", Shown::kNumber, "Colaboradores", "IDColaborador"},
    {"colaboradores.fechanacimiento", Shown::kDate, "Colaboradores", "FechaNacimiento"},
    {"colaboradores.fechaalta", Shown::kDate, "Colaboradores", "FechaAlta"},
    {"colaboradores.fechabaja", Shown::kDate, "Colaboradores", "FechaBaja"},
    {"colaboradores.pais", Shown::kName, "Paises", "Nombre"},
    {"colaboradores.provincia", Shown::kName, "Provincias", "Nombre"},
    {"donativos.fechaprimerpago", Shown::kDate, "Donativos", "FechaPrimerPago"},
    {"donativos.fechaalta", Shown::kDate, "Donativos", "FechaAlta"},
    {"donativos.importe", Shown::kNumber, "Donativos", "Importe"},
    {"donativos.tipopago", Shown::kName, "TipoPagos", "Nombre"},
    {"donativos.tipodonativo", Shown::kName, "TipoDonativos", "Nombre"},
    {"donativos.tipoperiodo", Shown::kName, "TipoPeriodos", "Nombre"},
    {"recibos.fechacobro", Shown::kDate, "Recibos", "FechaCobro"},
    {"recibos.fechaemision", Shown::kDate, "Recibos", "FechaEmision"},
    {"recibos.mes", Shown::kNumber, "Recibos", "Mes"},
    {"recibos.importe", Shown::kNumber, "Recibos", "Importe"},
    {"recibos.codremesa", Shown::kNumber, "Recibos", "CodRemesa"},
    {"recibos.devolucion", Shown::kNumber, "Recibos", "Devolucion"},
    {"recibos.tipopago", Shown::kName, "TipoPagos", "Nombre"},
    {"recibos.tipodonativo", Shown::kName, "TipoDonativos", "Nombre"},
    {"cobros.textorecibo", Shown::kText, "Cobros", "TextoRecibo"},
    {"remesas.idremesa", Shown::kNumber, "Remesas", "IDRemesa"},
    {"remesas.recibosbanco", Shown::kNumber, "Remesas", "RecibosBanco"},
    {"remesas.totalbanco", Shown::kNumber, "Remesas", "TotalBanco"},
    {"remesas.codemisor", Shown::kName, "Emisores", "Nombre"},
};

class ValueQueriesTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    office = std::make_unique<sample::SampleDatabase>(150);
    // What must not show, and what has no value.
    office->main->Execute(
        "UPDATE Colaboradores SET Eliminado = True, Nombre = 'Borrada' WHERE IDColaborador = 3");
    office->main->Execute("UPDATE Colaboradores SET Nombre = '', FechaAlta = NULL WHERE IDColaborador = 4");
    office->main->Execute("UPDATE Donativos SET Importe = 0 WHERE IDDonativo = 1");
    office->main->Execute("UPDATE Donativos SET Importe = 12.5 WHERE IDDonativo = 2");
    office->main->Execute("UPDATE TipoPagos SET Eliminado = True WHERE IDTipoPago = 1");
  }
  static void TearDownTestSuite() { office.reset(); }

  /// The first column of a statement; a value that comes twice is told.
  static Values Run(const std::string& statement, const std::string& column) {
    Values values;
    const auto rows = office->main->Execute(statement);
    for (; !rows->Eof(); rows->MoveNext()) {
      const std::string value = rows->Fields(std::string_view(column)).Value().AsText();
      EXPECT_TRUE(values.insert(value).second) << value;
    }
    return values;
  }
  static Values List(std::string_view key) { return Run(ObtenerSQLValorCampo(key), "Campo"); }

  /// Every live row of a table, taken in turn.
  template <typename Take>
  static void ForEachLive(const std::string& table, Take take) {
    const auto rows = office->main->Execute("SELECT * FROM " + table);
    for (; !rows->Eof(); rows->MoveNext()) {
      if (!rows->Fields("Eliminado").Value().AsBoolean()) take(*rows);
    }
  }
  static std::string Shape(const Variant& value, Shown shown) {
    if (value.IsNull()) return {};
    if (shown == Shown::kNumber && value.AsDouble() == 0) return {};
    const std::string stored = value.AsText();
    if (shown != Shown::kDate || stored.empty()) return stored;
    return stored.substr(6, 2) + "/" + stored.substr(4, 2) + "/" + stored.substr(0, 4);
  }

  static inline std::unique_ptr<sample::SampleDatabase> office;
};

TEST_F(ValueQueriesTest, ListsTheValuesOfTheLiveRows) {
  for (const Key& key : kKeys) {
    SCOPED_TRACE(key.key);
    Values expected;
    ForEachLive(key.table, [&](const ADODB::Recordset& row) {
      const std::string value = Shape(row.Fields(std::string_view(key.column)).Value(), key.shown);
      if (!value.empty()) expected.insert(value);
    });
    EXPECT_FALSE(expected.empty());
    const Values listed = List(key.key);
    EXPECT_TRUE(std::equal(listed.begin(), listed.end(), expected.begin(), expected.end(), text::EqualText))
        << ::testing::PrintToString(listed) << " instead of " << ::testing::PrintToString(expected);
  }
  EXPECT_TRUE(List("donativos.importe").contains("12.5"));
  EXPECT_FALSE(List("colaboradores.nombre").contains("Borrada"));
}

TEST_F(ValueQueriesTest, DatesAreCutAsTheyStandWhateverTheirLength) {
  office->main->BeginTrans();
  office->main->Execute("UPDATE Colaboradores SET FechaBaja = ''");
  const std::pair<const char*, const char*> cases[] = {
      {"20240229", "29/02/2024"}, {"2024", "24//2024"}, {"2024022", "22/02/2024"}, {"1", "1//1"}};
  Values expected;
  int id = 10;
  for (const auto& [stored, shown] : cases) {
    office->main->Execute("UPDATE Colaboradores SET Eliminado = False, FechaBaja = '" + std::string(stored) +
                          "' WHERE IDColaborador = " + std::to_string(++id));
    expected.insert(shown);
  }
  EXPECT_EQ(List("colaboradores.fechabaja"), expected);
  office->main->RollbackTrans();
}

TEST_F(ValueQueriesTest, ListsWordsForCodesThatAreInUse) {
  std::set<long long> sexes;
  std::set<bool> kinds;
  ForEachLive("Colaboradores", [&](const ADODB::Recordset& row) {
    sexes.insert(row.Fields("Sexo").Value().AsLong());
    kinds.insert(row.Fields("Juridico").Value().AsBoolean());
  });
  ASSERT_EQ(kinds.size(), 2U);
  ASSERT_TRUE(sexes.contains(1) && sexes.contains(2));
  EXPECT_THAT(List("colaboradores.sexo"), ::testing::ElementsAre("Hombre", "Mujer"));
  EXPECT_THAT(List("colaboradores.juridico"), ::testing::ElementsAre("Física", "Jurídica"));

  office->main->BeginTrans();
  office->main->Execute("UPDATE Colaboradores SET Sexo = 3, Juridico = True WHERE Sexo <> 1");
  office->main->Execute("UPDATE Colaboradores SET Juridico = True");
  EXPECT_THAT(List("colaboradores.sexo"), ::testing::ElementsAre("Hombre"));
  EXPECT_THAT(List("colaboradores.juridico"), ::testing::ElementsAre("Jurídica"));
  office->main->RollbackTrans();
}

TEST_F(ValueQueriesTest, ListsAllAccountsForEachAccountField) {
  std::map<long long, std::string> banks;
  std::map<long long, std::string> branches;
  const auto text = [](const ADODB::Recordset& row, std::string_view column) {
    return row.Fields(column).Value().AsText();
  };
  const auto number = [](const ADODB::Recordset& row, std::string_view column) {
    return row.Fields(column).Value().AsLong();
  };
  ForEachLive("Bancos", [&](const auto& row) { banks[number(row, "IDBanco")] = text(row, "Numero"); });
  ForEachLive("Sucursales", [&](const auto& row) {
    branches[number(row, "IDSucursal")] = banks.at(number(row, "CodBanco")) + text(row, "Codigo");
  });
  Values expected;
  ForEachLive("Cuentas", [&](const auto& row) {
    expected.insert(branches.at(number(row, "CodSucursal")) + text(row, "DC") + text(row, "Numero"));
  });
  ASSERT_FALSE(expected.empty());
  for (const char* key : {"colaboradores.cuenta", "donativos.cuenta", "recibos.cuenta", "remesas.cuenta"}) {
    EXPECT_EQ(List(key), expected) << key;
    EXPECT_TRUE(IsAccountField(key));
  }
  EXPECT_TRUE(IsAccountField("otra.CUENTAbancaria"));
  EXPECT_FALSE(IsAccountField("colaboradores.nombre"));
}

TEST_F(ValueQueriesTest, EveryFieldOfTheCatalogueHasAStatement) {
  for (const auto& field : sample::Catalogue()) {
    SCOPED_TRACE(field.internalName);
    const std::string statement = ObtenerSQLValorCampo(field.internalName);
    ASSERT_FALSE(statement.empty());
    const auto rows = office->main->Execute(statement);
    EXPECT_GE(rows->RecordCount(), 0);
  }
}

TEST_F(ValueQueriesTest, ListsTheDeclaredWhileThereAreAny) {
  const char* keys[] = {"nombre", "nif", "provincia", "tipodonativo"};
  const auto list = [](const std::string& key) { return List("modelo182hacienda." + key); };
  for (const char* key : keys) EXPECT_TRUE(list(key).empty());
  office->main->BeginTrans();
  office->main->Execute(
      "INSERT INTO Modelo182Hacienda (CodColaborador, Nombre, NIF, Provincia, TipoDonativo) VALUES (1, "
      "'Ana', "
      "'1R', 'Soria', 'A')");
  office->main->Execute("INSERT INTO Modelo182Hacienda (CodColaborador, Nombre) VALUES (2, '')");
  Values found;
  for (const char* key : keys) found.merge(list(key));
  EXPECT_THAT(found, ::testing::ElementsAre("1R", "A", "Ana", "Soria"));
  office->main->Execute("INSERT INTO Modelo182Hacienda (CodColaborador, Importe) VALUES (3, 12.5)");
  office->main->Execute("INSERT INTO Modelo182Hacienda (CodColaborador, Importe) VALUES (4, 12.5)");
  EXPECT_THAT(list("importe"), ::testing::ElementsAre("12.5"));
  office->main->RollbackTrans();
}

TEST(ValueQueryTextTest, StatementsAreTheGivenTexts) {
  const std::pair<const char*, const char*> cases[] = {
      {"colaboradores.cp",
       "SELECT DISTINCT colaboradores.cp AS Campo FROM Colaboradores WHERE colaboradores.cp <> '' AND "
       "colaboradores.cp IS NOT NULL AND Colaboradores.Eliminado = False"},
      {"remesas.totalbanco",
       "SELECT DISTINCT remesas.totalbanco AS Campo FROM Remesas WHERE remesas.totalbanco <> 0 AND "
       "remesas.totalbanco IS NOT NULL AND Remesas.Eliminado = False "},
      {"recibos.fechacobro",
       "SELECT DISTINCT (Right(recibos.fechacobro, 2) + '/' + Mid(recibos.fechacobro, 5, 2) + '/' + "
       "Left(recibos.fechacobro, 4)) AS Campo FROM Recibos WHERE recibos.fechacobro <> '' AND "
       "recibos.fechacobro IS NOT NULL AND Recibos.Eliminado = False"},
      {"modelo182hacienda.importe",
       "SELECT DISTINCT modelo182hacienda.importe AS Campo FROM Modelo182Hacienda WHERE "
       "modelo182hacienda.importe <> '' AND modelo182hacienda.importe IS NOT NULL"},
      {"colaboradores.pais", "SELECT DISTINCT Nombre AS Campo FROM Paises WHERE Eliminado = False"},
      {"remesas.codemisor", "SELECT DISTINCT Nombre AS Campo FROM Emisores WHERE Emisores.Eliminado = False"},
      {"colaboradores.sexo",
       "SELECT TOP 1 'Hombre' AS Campo FROM Colaboradores WHERE Sexo=1 AND Colaboradores.Eliminado=0 UNION "
       "SELECT TOP 1 'Mujer' AS Campo FROM Colaboradores WHERE Sexo=2 AND Colaboradores.Eliminado=0"},
      {"colaboradores.juridico",
       "SELECT TOP 1 'Jurídica' AS Campo FROM Colaboradores WHERE Juridico=-1 AND Colaboradores.Eliminado=0 "
       "UNION SELECT TOP 1 'Física' AS Campo FROM Colaboradores WHERE Juridico=0 AND "
       "Colaboradores.Eliminado=0"},
      {"cobros.textorecibo",
       "SELECT DISTINCT Cobros.TextoRecibo AS Campo FROM Cobros WHERE Cobros.TextoRecibo<>'' AND "
       "Cobros.TextoRecibo IS NOT NULL AND Cobros.Eliminado=0"},
      {"remesas.cuenta",
       "SELECT DISTINCT (Bancos.Numero + '' + Sucursales.Codigo + '' + Cuentas.DC + '' + Cuentas.Numero) AS "
       "Campo FROM Cuentas INNER JOIN (Sucursales INNER JOIN Bancos ON Sucursales.CodBanco = "
       "Bancos.IDBanco) ON Cuentas.CodSucursal = Sucursales.IDSucursal WHERE Cuentas.Eliminado = False AND "
       "Cuentas.Numero IS NOT NULL"},
      {"Colaboradores.cp", ""},
      {"colaboradores.email", ""},
      {"", ""},
  };
  for (const auto& [key, statement] : cases) EXPECT_EQ(ObtenerSQLValorCampo(key), statement);
}

}  // namespace
}  // namespace velmar::wizard
