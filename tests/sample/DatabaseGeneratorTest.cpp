#include "sample/DatabaseGenerator.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"
#include "sample/SpanishIds.h"

namespace velmar::sample {
namespace {

TEST(DatabaseGeneratorTest, SeedDecidesEveryByte) {
  const auto bytes = [](std::uint64_t seed) {
    const SampleDatabase database(40, seed);
    std::ostringstream content;
    for (const char* name : {"Gestion.mdb", "Informes.mdb"})
      content << std::ifstream(database.folder / name, std::ios::binary).rdbuf();
    return content.str();
  };
  const std::string first = bytes(7);
  EXPECT_TRUE(first == bytes(7));
  EXPECT_FALSE(first == bytes(8));
}

/// One database for all tests that only look at the data.
class SampleDataTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { database_ = std::make_unique<SampleDatabase>(2000); }
  static void TearDownTestSuite() { database_.reset(); }

  static long long Count(const std::string& rows) {
    return database_->Number("SELECT Count(*) FROM " + rows);
  }
  static inline std::unique_ptr<SampleDatabase> database_;
};

TEST_F(SampleDataTest, EveryReferenceFindsItsRow) {
  struct Reference {
    std::string table, column, target, key;
  };
  const Reference references[] = {
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
  };
  for (const auto& [table, column, target, key] : references) {
    SCOPED_TRACE(table + '.' + column);
    const std::string joined = table + " AS a LEFT JOIN " + target + " AS b ON a." + column + " = b." + key;
    EXPECT_EQ(Count(joined + " WHERE b." + key + " IS NULL AND a." + column + " IS NOT NULL"), 0);
    EXPECT_GT(Count(joined + " WHERE b." + key + " IS NOT NULL"), 0);
  }
}

TEST_F(SampleDataTest, SumsAndPlacesAgree) {
  const char* contradictions[] = {
      // payments and their receipt, receipts and their remittance, which has one issuer
      "SELECT R.IDRecibo FROM Recibos AS R LEFT JOIN Cobros AS C ON R.IDRecibo = C.CodRecibo "
      "GROUP BY R.IDRecibo, R.Importe HAVING Count(C.Importe) = 0 OR Sum(C.Importe) <> R.Importe",
      "SELECT R.IDReciboPendiente FROM RecibosPendientes AS R LEFT JOIN CobrosPendientes AS C ON "
      "R.IDReciboPendiente = C.CodRecibo GROUP BY R.IDReciboPendiente, R.Importe "
      "HAVING Count(C.Importe) = 0 OR Sum(C.Importe) <> R.Importe",
      "SELECT M.IDRemesa FROM Remesas AS M INNER JOIN Recibos AS R ON M.IDRemesa = R.CodRemesa "
      "WHERE R.Eliminado = 0 GROUP BY M.IDRemesa, M.TotalBanco, M.RecibosBanco "
      "HAVING Sum(R.Importe) <> M.TotalBanco OR Count(*) <> M.RecibosBanco",
      "SELECT R.IDRecibo FROM Recibos AS R, Remesas AS M, Emisores_Cuentas AS E WHERE R.CodRemesa = "
      "M.IDRemesa AND R.CodEmisor_Cuenta = E.IDEmisor_Cuenta AND E.CodEmisor <> M.CodEmisor",
      // a postcode and its province
      "SELECT C.IDColaborador FROM Colaboradores AS C INNER JOIN Provincias AS P ON C.CodProvincia = "
      "P.IDProvincia WHERE Left(C.CP, 2) <> P.Codigo",
  };
  for (const std::string rows : contradictions) EXPECT_EQ(Count("(" + rows + ") AS T"), 0) << rows;
}

TEST_F(SampleDataTest, CountsAreThoseOfAnOffice) {
  struct Row {
    const char* rows;
    long long low, high;
  };
  // Of 2000 collaborators.
  constexpr Row kRows[] = {
      {"Colaboradores", 2000, 2000},
      {"Colaboradores WHERE Eliminado = -1", 20, 120},
      {"Colaboradores WHERE Juridico = -1", 50, 160},
      {"Colaboradores WHERE CodProvincia IS NULL", 10, 60},
      {"(SELECT DISTINCT CodProvincia FROM Colaboradores WHERE CodProvincia IS NOT NULL) AS T", 52, 52},
      {"Colaboradores WHERE CodPais <> 1", 5, 50},
      {"Colaboradores WHERE Nombre = ''", 10, 10},
      {"Colaboradores WHERE Apellido1 = '' AND Juridico = 0", 10, 10},
      {"Colaboradores WHERE Len(NIF) > 9", 10, 10},
      {"Colaboradores WHERE NIF IS NULL", 10, 10},
      {"Colaboradores WHERE FechaNacimiento = ''", 150, 600},
      {"Colaboradores WHERE FechaBaja <> ''", 40, 300},
      {"Recibos WHERE FechaCobro = ''", 50, 800},
      {"Recibos WHERE Importe = 0", 5, 10},
      {"Recibos WHERE Devolucion <> 0", 50, 600},
      {"Recibos WHERE Left(FechaCobro, 4) = '2024'", 1500, 8000},
      {"Recibos WHERE Left(FechaCobro, 4) = '2025'", 1500, 8000},
      {"RecibosPendientes", 200, 2000},
      {"(SELECT CodRecibo FROM Cobros GROUP BY CodRecibo HAVING Count(*) > 1) AS T", 50, 5000},
      {"Donativos WHERE CodTipoPago = 1 AND CodColaborador_Cuenta IS NULL", 0, 0},
      {"TipoDonativos WHERE IDTipoDonativo IN (4, 8) AND Modelo182 = 0", 2, 2},
  };
  for (const Row& row : kRows) {
    EXPECT_GE(Count(row.rows), row.low) << row.rows;
    EXPECT_LE(Count(row.rows), row.high) << row.rows;
  }
}

TEST_F(SampleDataTest, DatesAreEightDigitsOrEmptyAndNotAfterTheDay) {
  const std::pair<std::string, std::string> columns[] = {{"Colaboradores", "FechaNacimiento"},
                                                         {"Colaboradores", "FechaAlta"},
                                                         {"Colaboradores", "FechaBaja"},
                                                         {"Recibos", "FechaEmision"},
                                                         {"Recibos", "FechaCobro"}};
  for (const auto& [table, column] : columns) {
    SCOPED_TRACE(column);
    EXPECT_EQ(Count(table + " WHERE " + column + " <> '' AND (Len(" + column + ") <> 8 OR " + column +
                    " > '20251104')"),
              0);
  }
}

TEST_F(SampleDataTest, TaxNumbersAreRightButForAboutOneInAHundred) {
  const auto rows =
      database_->main->Execute("SELECT NIF FROM Colaboradores WHERE Len(NIF) = 9 AND Left(NIF, 1) <> 'X'");
  int wrong = 0;
  for (; !rows->Eof(); rows->MoveNext()) wrong += IsValidTaxId(rows->Fields(0).Value().AsText()) ? 0 : 1;
  EXPECT_GT(rows->RecordCount(), 1700);
  EXPECT_NEAR(wrong, 25, 20);
}

TEST(DatabaseGeneratorErrorsTest, LeavesNothingBehindAndOverwritesNothing) {
  const files::TemporaryFolder folder;
  folder.Touch("archivo");
  folder.Touch("llena/Informes.mdb");
  EXPECT_THROW(DatabaseGenerator(OptionsFor(folder / "nueva", 0)).Run(), RuntimeError);
  EXPECT_THROW(DatabaseGenerator(OptionsFor(folder / "archivo", 5)).Run(), RuntimeError);
  EXPECT_THROW(DatabaseGenerator(OptionsFor(folder / "llena", 5)).Run(), RuntimeError);
  EXPECT_FALSE(folder.Has("nueva") || folder.Has("llena/Gestion.mdb"));
  EXPECT_EQ(std::filesystem::file_size(folder / "llena/Informes.mdb"), 1U);
}

}  // namespace
}  // namespace velmar::sample
