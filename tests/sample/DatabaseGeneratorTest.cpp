#include "sample/DatabaseGenerator.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "platform/error/Failure.h"
#include "platform/error/OperationObserver.h"
#include "platform/text/Search.h"
#include "sample/SampleDatabase.h"
#include "sample/Schema.h"
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
  EXPECT_TRUE(bytes(7) == bytes(7));
  EXPECT_FALSE(bytes(7) == bytes(8));
}

class SampleDataTest : public testing::Test {
 protected:
  long long Count(const std::string& rows) const { return database_.Number("SELECT Count(*) FROM " + rows); }
  const SampleDatabase database_{2000};
};

TEST_F(SampleDataTest, EveryReferenceFindsItsRow) {
  // The keys by their names; a table stands behind those that it refers to.
  std::map<std::string, std::string> tables;
  for (const std::string_view statement : MainTables()) {
    const std::vector<std::string> words = text::Split(statement, " ");
    const std::string& table = words[2];
    for (std::string column : words) {
      if (!column.starts_with("Cod") || column == "Codigo") continue;
      const std::string pending = table == "CobrosPendientes" && column == "CodRecibo" ? "Pendiente" : "";
      const std::string target = column == "CodColaborador_Cuenta" ? "Cuenta" : column.substr(3);
      const std::string key = "ID" + target + pending;
      EXPECT_EQ(
          Count(table + " WHERE " + column + " NOT IN (SELECT " + key + " FROM " + tables.at(key) + ")"), 0)
          << statement;
    }
    tables[words[3].substr(1)] = table;
  }
}

TEST_F(SampleDataTest, RowsAreThoseOfAnOffice) {
  const struct {
    std::string rows;
    long long low, high;
  } cases[] = {
      // payments and their receipt, receipts and their remittance, which has one issuer
      {"(SELECT R.IDRecibo FROM Recibos AS R LEFT JOIN Cobros AS C ON R.IDRecibo = C.CodRecibo "
       "GROUP BY R.IDRecibo, R.Importe HAVING Count(C.Importe) = 0 OR Sum(C.Importe) <> R.Importe) AS T",
       0, 0},
      {"RecibosPendientes AS R WHERE Importe <> "
       "(SELECT Sum(Importe) FROM CobrosPendientes WHERE CodRecibo = R.IDReciboPendiente)",
       0, 0},
      {"(SELECT M.IDRemesa FROM Remesas AS M INNER JOIN Recibos AS R ON M.IDRemesa = R.CodRemesa "
       "WHERE R.Eliminado = 0 GROUP BY M.IDRemesa, M.TotalBanco, M.RecibosBanco "
       "HAVING Sum(R.Importe) <> M.TotalBanco OR Count(*) <> M.RecibosBanco) AS T",
       0, 0},
      {"Recibos AS R, Remesas AS M, Emisores_Cuentas AS E WHERE R.CodRemesa = M.IDRemesa "
       "AND R.CodEmisor_Cuenta = E.IDEmisor_Cuenta AND E.CodEmisor <> M.CodEmisor",
       0, 0},
      {"Recibos WHERE CodRemesa > 0 AND CodCuenta > 0 AND CodEmisor_Cuenta > 0", 3000, 20000},
      // a postcode and its province
      {"Colaboradores AS C INNER JOIN Provincias AS P ON C.CodProvincia = P.IDProvincia "
       "WHERE Left(C.CP, 2) <> P.Codigo",
       0, 0},
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
      {"RecibosPendientes", 200, 2000},
      {"(SELECT CodRecibo FROM Cobros GROUP BY CodRecibo HAVING Count(*) > 1) AS T", 50, 5000},
      {"Donativos WHERE CodTipoPago = 1 AND CodColaborador_Cuenta IS NULL", 0, 0},
  };
  for (const auto& [rows, low, high] : cases) {
    EXPECT_GE(Count(rows), low) << rows;
    EXPECT_LE(Count(rows), high) << rows;
  }
  // Dates are eight digits or empty and not after the day.
  for (const std::string date : {"Colaboradores.FechaNacimiento", "Colaboradores.FechaAlta",
                                 "Colaboradores.FechaBaja", "Recibos.FechaEmision", "Recibos.FechaCobro"}) {
    EXPECT_EQ(Count(date.substr(0, date.find('.')) + " WHERE " + date + " <> '' AND (Len(" + date +
                    ") <> 8 OR " + date + " > '20251104')"),
              0);
  }
  const auto ids =
      database_.main->Execute("SELECT NIF FROM Colaboradores WHERE Len(NIF) = 9 AND Left(NIF, 1) <> 'X'");
  int wrong = 0;
  for (; !ids->Eof(); ids->MoveNext()) wrong += IsValidTaxId(ids->Fields(0).Value().AsText()) ? 0 : 1;
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

/// Another program that is quicker: it puts a file under a name while the databases are being made.
class Quicker : public OperationObserver {
 public:
  Quicker(const files::TemporaryFolder& folder, const char* name) : folder_(folder), name_(name) {}
  void Begins(Operation operation, std::string_view) override {
    if (operation == Operation::kCommit) folder_.Touch(name_);
  }

 private:
  const files::TemporaryFolder& folder_;
  const char* name_;
};

TEST(DatabaseGeneratorErrorsTest, DatabaseThatAppearsMeanwhileIsKept) {
  for (const char* name : {"Informes.mdb", "Gestion.mdb"}) {
    const files::TemporaryFolder folder;
    Quicker other(folder, name);
    const OperationObserver::Scope scope(other);
    const RuntimeError failure = FailureIn([&] { DatabaseGenerator(OptionsFor(folder.Path(), 5)).Run(); });
    EXPECT_EQ(failure.Number(), kFileAlreadyExists) << name;
    EXPECT_TRUE(text::Contains(failure.Description(), folder / name)) << failure.Description();
    EXPECT_EQ(folder.Read(name), "x");
    EXPECT_EQ(folder.Names(), std::set<std::string>{name});
  }
}

}  // namespace
}  // namespace velmar::sample
