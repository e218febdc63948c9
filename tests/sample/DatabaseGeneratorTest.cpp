#include "sample/DatabaseGenerator.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "sample/SampleDatabase.h"
#include "sample/Schema.h"
#include "sample/SpanishIds.h"

namespace velmar::sample {
namespace {

/// The name in "CREATE TABLE name (".
std::string TableOf(std::string_view statement) {
  const std::size_t start = std::string_view("CREATE TABLE ").size();
  return std::string(statement.substr(start, statement.find(' ', start) - start));
}

/// All rows of all tables as one text.
std::string Dump(ADODB::Connection& connection, std::span<const std::string_view> tables) {
  std::string dump;
  for (const std::string_view statement : tables) {
    dump += TableOf(statement) + '\n';
    const auto rows = connection.Execute("SELECT * FROM " + TableOf(statement));
    for (; !rows->Eof(); rows->MoveNext()) {
      for (long i = 0; i < rows->Fields().Count(); ++i) {
        const ADODB::Variant value = rows->Fields(i).Value();
        dump += (value.IsNull() ? "NULL" : value.AsText()) + '|';
      }
      dump += '\n';
    }
  }
  return dump;
}

TEST(DatabaseGeneratorTest, SeedDecidesEveryRow) {
  const SampleDatabase first(40, 7);
  const SampleDatabase again(40, 7);
  const SampleDatabase other(40, 8);
  const std::string rows = Dump(*first.main, MainTables());
  EXPECT_EQ(rows, Dump(*again.main, MainTables()));
  EXPECT_NE(rows, Dump(*other.main, MainTables()));
  EXPECT_EQ(Dump(*first.reports, ReportTables()), Dump(*again.reports, ReportTables()));
}

/// One database for all tests that only look at the data.
class SampleDataTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { database_ = std::make_unique<SampleDatabase>(2000); }
  static void TearDownTestSuite() { database_.reset(); }

  static long long Number(const std::string& sql) { return database_->Number(sql); }

  static std::unique_ptr<SampleDatabase> database_;
};

std::unique_ptr<SampleDatabase> SampleDataTest::database_;

TEST_F(SampleDataTest, EveryReferenceFindsItsRow) {
  // Table, column, the table that it leads to, and the key there.
  using Reference = std::array<const char*, 4>;
  constexpr std::array<Reference, 22> kReferences = {{
      {"Sucursales", "CodBanco", "Bancos", "IDBanco"},
      {"Cuentas", "CodSucursal", "Sucursales", "IDSucursal"},
      {"Colaboradores", "CodProvincia", "Provincias", "IDProvincia"},
      {"Colaboradores", "CodPais", "Paises", "IDPais"},
      {"Colaboradores_Cuentas", "CodColaborador", "Colaboradores", "IDColaborador"},
      {"Colaboradores_Cuentas", "CodCuenta", "Cuentas", "IDCuenta"},
      {"Donativos", "CodColaborador", "Colaboradores", "IDColaborador"},
      {"Donativos", "CodTipoDonativo", "TipoDonativos", "IDTipoDonativo"},
      {"Donativos", "CodTipoPeriodo", "TipoPeriodos", "IDTipoPeriodo"},
      {"Donativos", "CodTipoPago", "TipoPagos", "IDTipoPago"},
      {"Donativos", "CodColaborador_Cuenta", "Cuentas", "IDCuenta"},
      {"Recibos", "CodColaborador", "Colaboradores", "IDColaborador"},
      {"Recibos", "CodRemesa", "Remesas", "IDRemesa"},
      {"Recibos", "CodCuenta", "Cuentas", "IDCuenta"},
      {"Recibos", "CodEmisor_Cuenta", "Emisores_Cuentas", "IDEmisor_Cuenta"},
      {"Cobros", "CodRecibo", "Recibos", "IDRecibo"},
      {"Cobros", "CodDonativo", "Donativos", "IDDonativo"},
      {"CobrosPendientes", "CodRecibo", "RecibosPendientes", "IDReciboPendiente"},
      {"Remesas", "CodEmisor", "Emisores", "IDEmisor"},
      {"Emisores", "CodPresentador", "Presentadores", "IDPresentador"},
      {"Emisores_Cuentas", "CodCuenta", "Cuentas", "IDCuenta"},
      {"Presentadores", "CodBanco", "Bancos", "IDBanco"},
  }};
  for (const auto& [table, column, target, key] : kReferences) {
    const std::string reference = std::string(table) + '.' + column;
    const std::string found = std::string(target) + '.' + key;
    EXPECT_EQ(
        Number("SELECT Count(*) FROM " + std::string(table) + " LEFT JOIN " + target + " ON " + reference +
               " = " + found + " WHERE " + found + " IS NULL AND " + reference + " IS NOT NULL"),
        0)
        << reference;
    EXPECT_GT(Number("SELECT Count(" + reference + ") FROM " + table), 0) << reference;
  }
}

TEST_F(SampleDataTest, SumsAgree) {
  // Payments add up to their receipt, receipts to their remittance, and a remittance has one issuer.
  for (const std::string suffix : {"", "Pendientes"}) {
    const std::string key = suffix.empty() ? "IDRecibo" : "IDReciboPendiente";
    EXPECT_EQ(Number("SELECT Count(*) FROM (SELECT R." + key + " FROM Recibos" + suffix +
                     " AS R INNER JOIN Cobros" + suffix + " AS C ON R." + key + " = C.CodRecibo GROUP BY R." +
                     key + ", R.Importe HAVING Sum(C.Importe) <> R.Importe) AS T"),
              0);
    EXPECT_EQ(Number("SELECT Count(*) FROM Recibos" + suffix + " WHERE " + key +
                     " NOT IN (SELECT CodRecibo FROM Cobros" + suffix + ")"),
              0);
  }
  EXPECT_EQ(
      Number(
          "SELECT Count(*) FROM (SELECT M.IDRemesa FROM Remesas AS M INNER JOIN Recibos AS R ON "
          "M.IDRemesa = R.CodRemesa WHERE R.Eliminado = 0 GROUP BY M.IDRemesa, M.TotalBanco, M.RecibosBanco "
          "HAVING Sum(R.Importe) <> M.TotalBanco OR Count(*) <> M.RecibosBanco) AS T"),
      0);
  EXPECT_EQ(
      Number(
          "SELECT Count(*) FROM (Recibos INNER JOIN Remesas ON Recibos.CodRemesa = Remesas.IDRemesa) INNER "
          "JOIN Emisores_Cuentas ON Recibos.CodEmisor_Cuenta = Emisores_Cuentas.IDEmisor_Cuenta WHERE "
          "Emisores_Cuentas.CodEmisor <> Remesas.CodEmisor"),
      0);
  EXPECT_GT(
      Number(
          "SELECT Count(*) FROM (SELECT CodRecibo FROM Cobros GROUP BY CodRecibo HAVING Count(*) > 1) AS T"),
      0);
}

TEST_F(SampleDataTest, CountsAreThoseOfAnOffice) {
  struct Row {
    const char* count;
    long long low, high;
  };
  // Of 2000 collaborators.
  constexpr std::array<Row, 20> kRows = {{
      {"Colaboradores", 2000, 2000},
      {"Colaboradores WHERE Eliminado = -1", 20, 120},
      {"Colaboradores WHERE Juridico = -1", 50, 160},
      {"Colaboradores WHERE Sexo = 0 AND Juridico = 0", 10, 100},
      {"Colaboradores WHERE CodProvincia IS NULL", 10, 60},
      {"Colaboradores WHERE CodPais <> 1", 5, 50},
      {"Colaboradores WHERE Nombre = ''", 10, 10},
      {"Colaboradores WHERE Apellido1 = '' AND Juridico = 0", 10, 10},
      {"Colaboradores WHERE Len(NIF) > 9", 10, 10},
      {"Colaboradores WHERE NIF IS NULL", 10, 10},
      {"Colaboradores WHERE FechaBaja <> ''", 40, 300},
      {"Colaboradores WHERE FechaNacimiento = ''", 150, 600},
      {"Recibos WHERE Importe = 0", 5, 10},
      {"Recibos WHERE Devolucion <> 0", 50, 600},
      {"Recibos WHERE FechaCobro = ''", 50, 800},
      {"Recibos WHERE Left(FechaCobro, 4) = '2024'", 1500, 8000},
      {"Recibos WHERE Left(FechaCobro, 4) = '2025'", 1500, 8000},
      {"RecibosPendientes", 200, 2000},
      {"TipoDonativos WHERE IDTipoDonativo IN (4, 8) AND Modelo182 = 0", 2, 2},
      {"Modelo182Hacienda", 0, 0},
  }};
  for (const Row& row : kRows) {
    const long long count = Number("SELECT Count(*) FROM " + std::string(row.count));
    EXPECT_GE(count, row.low) << row.count;
    EXPECT_LE(count, row.high) << row.count;
  }
}

TEST_F(SampleDataTest, DatesAreEightDigitsOrEmptyAndNotAfterTheDay) {
  struct Column {
    const char *table, *column;
    bool mayLieAhead;
  };
  constexpr std::array<Column, 9> kColumns = {{{"Colaboradores", "FechaNacimiento", false},
                                               {"Colaboradores", "FechaAlta", false},
                                               {"Colaboradores", "FechaBaja", false},
                                               {"Donativos", "FechaAlta", true},
                                               {"Donativos", "FechaPrimerPago", true},
                                               {"Recibos", "FechaEmision", false},
                                               {"Recibos", "FechaCobro", false},
                                               {"RecibosPendientes", "FechaEmision", true},
                                               {"Remesas", "Fecha", true}}};
  for (const Column& c : kColumns) {
    SCOPED_TRACE(std::string(c.table) + '.' + c.column);
    const auto rows =
        database_->main->Execute("SELECT DISTINCT " + std::string(c.column) + " FROM " + c.table);
    ASSERT_GT(rows->RecordCount(), 1);
    for (; !rows->Eof(); rows->MoveNext()) {
      const std::string date = rows->Fields(0).Value().AsText();
      if (date.empty()) continue;
      ASSERT_EQ(date.size(), 8U);
      EXPECT_TRUE(ParseDate(date.substr(0, 4) + '-' + date.substr(4, 2) + '-' + date.substr(6))) << date;
      if (!c.mayLieAhead) {
        EXPECT_LE(date, "20251122");
      }
    }
  }
}

TEST_F(SampleDataTest, TaxNumbersAreRightButForAboutOneInAHundred) {
  const auto rows = database_->main->Execute("SELECT NIF, Juridico FROM Colaboradores WHERE NIF IS NOT NULL");
  int natural = 0;
  int wrong = 0;
  int foreign = 0;
  for (; !rows->Eof(); rows->MoveNext()) {
    const std::string id = rows->Fields(0).Value().AsText();
    if (rows->Fields(1).Value().AsBoolean()) {
      EXPECT_TRUE(IsValidTaxId(id)) << id;
      continue;
    }
    if (id.size() != 9 || id[0] == 'x') continue;
    ++natural;
    if (!IsValidTaxId(id)) ++wrong;
    if (std::string_view("XYZ").find(id[0]) != std::string_view::npos) ++foreign;
  }
  EXPECT_GT(natural, 1700);
  EXPECT_GE(wrong, natural / 300);
  EXPECT_LE(wrong, natural / 40);
  EXPECT_GT(foreign, natural / 40);
}

TEST_F(SampleDataTest, PostcodesBelongToTheirProvince) {
  EXPECT_EQ(Number("SELECT Count(*) FROM Colaboradores INNER JOIN Provincias ON Colaboradores.CodProvincia = "
                   "Provincias.IDProvincia WHERE Left(Colaboradores.CP, 2) <> Provincias.Codigo"),
            0);
  EXPECT_EQ(Number("SELECT Count(*) FROM Provincias"), 52);
  EXPECT_EQ(Number("SELECT Count(*) FROM (SELECT DISTINCT CodProvincia FROM Colaboradores) AS T WHERE "
                   "CodProvincia IS NOT NULL"),
            52);
}

/// The value picker lists what a field holds by its internal name; every list has something to show.
TEST_F(SampleDataTest, ValuesOfEveryFieldCanBeListed) {
  struct List {
    const char* table;
    const char* empty;
    const char* columns;
  };
  constexpr std::array<List, 7> kLists = {
      {{"Colaboradores", "''",
        "nombre apellido1 apellido2 telefono2 direccion poblacion cp nif observaciones fechabaja"},
       {"Colaboradores", "0", "idcolaborador sexo juridico"},
       {"Donativos", "''", "fechaprimerpago"},
       {"Recibos", "0", "mes importe codremesa devolucion"},
       {"Recibos", "''", "fechacobro"},
       {"Cobros", "''", "textorecibo"},
       {"Remesas", "0", "idremesa recibosbanco totalbanco"}}};
  for (const List& list : kLists) {
    const std::string table = list.table;
    for (const std::string& name : text::Split(list.columns, " ")) {
      const std::string column = table + "." + name;
      const auto values = database_->main->Execute(
          "SELECT DISTINCT " + column + " AS Campo FROM " + table + " WHERE " + column + " <> " + list.empty +
          " AND " + column + " IS NOT NULL AND " + table + ".Eliminado = False ");
      EXPECT_GT(values->RecordCount(), 0) << column;
    }
  }
  for (const char* table :
       {"Paises", "Provincias", "TipoPagos", "TipoDonativos", "TipoPeriodos", "Emisores"}) {
    const std::string name(table);
    EXPECT_GT(Number("SELECT Count(*) FROM (SELECT DISTINCT Nombre AS Campo FROM " + name + " WHERE " + name +
                     ".Eliminado = False) AS T"),
              1)
        << name;
  }
  EXPECT_GT(
      database_->main
          ->Execute(
              "SELECT DISTINCT (Bancos.Numero + '' + Sucursales.Codigo + '' + Cuentas.DC + '' + "
              "Cuentas.Numero) AS Campo FROM Cuentas INNER JOIN (Sucursales INNER JOIN Bancos ON "
              "Sucursales.CodBanco = Bancos.IDBanco) ON Cuentas.CodSucursal = Sucursales.IDSucursal WHERE "
              "Cuentas.Eliminado = False AND Cuentas.Numero IS NOT NULL")
          ->RecordCount(),
      1000);
}

TEST(DatabaseGeneratorErrorsTest, LeavesNothingBehindAndOverwritesNothing) {
  const TestFolder folder;
  const auto numberOf = [](const std::function<void()>& call) -> long {
    try {
      call();
    } catch (const RuntimeError& failure) {
      return failure.Number();
    }
    return 0;
  };
  GeneratorOptions options = OptionsFor(folder / "nueva", 0);
  EXPECT_EQ(numberOf([&] { DatabaseGenerator(options).Run(); }), kInvalidProcedureCall);
  EXPECT_FALSE(std::filesystem::exists(options.folder));

  // A file stands where the folder should be.
  std::ofstream(folder / "archivo") << "x";
  options = OptionsFor(folder / "archivo", 5);
  EXPECT_EQ(numberOf([&] { DatabaseGenerator(options).Run(); }), kPathNotFound);

  options = OptionsFor(folder.Path(), 5);
  std::ofstream(folder / "Informes.mdb") << "mine";
  EXPECT_EQ(numberOf([&] { DatabaseGenerator(options).Run(); }), kFileAlreadyExists);
  EXPECT_FALSE(std::filesystem::exists(folder / "Gestion.mdb"));
  EXPECT_EQ(std::filesystem::file_size(folder / "Informes.mdb"), 4U);
}

TEST(DatabaseGeneratorErrorsTest, PasswordsGuardBothFiles) {
  const TestFolder folder;
  GeneratorOptions options = OptionsFor(folder.Path(), 5);
  options.mainPassword = "Ge;stión";
  options.reportsPassword = "informes'";
  DatabaseGenerator(options).Run();
  EXPECT_EQ(OpenDatabase(folder / "Gestion.mdb", "Ge;stión")->State(), ADODB::kStateOpen);
  EXPECT_EQ(OpenDatabase(folder / "Informes.mdb", "informes'")->State(), ADODB::kStateOpen);
  EXPECT_THROW(OpenDatabase(folder / "Gestion.mdb"), RuntimeError);
  EXPECT_THROW(OpenDatabase(folder / "Informes.mdb", "otra"), RuntimeError);
}

}  // namespace
}  // namespace velmar::sample
