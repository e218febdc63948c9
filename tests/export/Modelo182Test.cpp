#include "export/Modelo182.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <set>

#include "export/TestOffice.h"
#include "export/Workbook.h"
#include "platform/ado/BulkInsert.h"

namespace velmar::testing {
namespace {

using exporting::Outcome;
using Table = std::vector<std::vector<std::string>>;

constexpr const char* kDeclared =
    "SELECT codColaborador, NombreColaborador, NIFColaborador, Importe, Provincia, TipoDonativo FROM "
    "Modelo182Hacienda ORDER BY codColaborador, TipoDonativo";

/// A charity made at random, with every reason for which somebody is left out.
void AddCharity(TestOffice& office, unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
  office.Run("INSERT INTO Provincias (IDProvincia, Nombre) VALUES (1, 'Álava')");
  office.Run("INSERT INTO Provincias (IDProvincia, Nombre) VALUES (2, 'A Coruña')");
  office.host->main->BeginTrans();
  {
    ADODB::BulkInsert types(*office.host->main, "TipoDonativos",
                            {"IDTipoDonativo", "Nombre", "TipoA", "Modelo182", "Eliminado"});
    for (int id = 1; id <= 9; ++id) {
      types.AddLong(id);
      types.AddText("T");
      types.AddBoolean(id % 2 == 0);
      types.AddBoolean(id != 3);
      types.AddBoolean(id == 7);
      types.EndRow();
    }
    ADODB::BulkInsert people(*office.host->main, "Colaboradores",
                             {"IDColaborador", "Nombre", "Apellido1", "Apellido2", "NIF", "CodProvincia",
                              "Modelo182", "Eliminado", "Juridico"});
    ADODB::BulkInsert donations(*office.host->main, "Donativos",
                                {"IDDonativo", "CodColaborador", "CodTipoDonativo"});
    ADODB::BulkInsert receipts(*office.host->main, "Recibos",
                               {"IDRecibo", "CodColaborador", "Importe", "Eliminado", "FechaCobro"});
    ADODB::BulkInsert payments(*office.host->main, "Cobros",
                               {"IDCobro", "CodRecibo", "CodDonativo", "Importe"});
    const std::map<int, const char*> oddNifs{
        {5, "1234567890"}, {7, ""}, {8, "x12"}, {9, "MAL1"}, {10, "X123456789"}};
    const auto addOrNull = [](ADODB::BulkInsert& rows, bool there, const char* value) {
      if (there) {
        rows.AddText(value);
      } else {
        rows.AddNull();
      }
    };
    long receipt = 0;
    for (int id = 1; id <= 400; ++id) {
      const int oddity = below(14);
      people.AddLong(id);
      people.AddText(oddity == 1 ? "" : "Ana");
      addOrNull(people, oddity != 3, oddity == 2 ? "" : "Peña");
      people.AddText(oddity == 4 ? "" : "Ruiz");
      const auto nif = oddNifs.find(oddity);
      addOrNull(people, oddity != 6, nif == oddNifs.end() ? "12345678Z" : nif->second);
      // There is no province 3.
      people.AddLong(oddity == 11 ? 3 : below(3) + 1);
      people.AddBoolean(oddity != 12);
      people.AddBoolean(oddity == 13);
      people.AddBoolean(below(10) == 0);
      people.EndRow();
      donations.AddLong(id);
      donations.AddLong(id);
      donations.AddLong(below(9) + 1);
      donations.EndRow();
      donations.AddLong(id + 1000);
      donations.AddLong(id);
      donations.AddLong(below(9) + 1);
      donations.EndRow();
      for (int count = below(5); count > 0; --count) {
        ++receipt;
        const int cents = below(60) == 0 ? 0 : below(1000000) + 1;
        receipts.AddLong(receipt);
        receipts.AddLong(id);
        receipts.AddDouble(cents / 100.0);
        receipts.AddBoolean(below(20) == 0);
        const std::string paidOn = std::to_string(2024 + below(3)) + "0115";
        receipts.AddText(paidOn);
        receipts.EndRow();
        for (int part = 0; part < 2; ++part) {
          payments.AddLong(receipt * 2 + part);
          payments.AddLong(receipt);
          payments.AddLong(id + 1000 * below(2));
          payments.AddDouble((part == 0 ? cents / 3 : cents - cents / 3) / 100.0);
          payments.EndRow();
        }
      }
    }
  }
  office.host->main->CommitTrans();
}

/// The declaration worked out from the tables by hand, in exact cents.
Table Declare(const TestOffice& office, bool restricted) {
  std::map<std::string, std::vector<std::string>> types, donations, provinces;
  for (auto& row : office.Rows("SELECT IDTipoDonativo, TipoA, Modelo182, Eliminado FROM TipoDonativos"))
    types[row[0]] = row;
  for (auto& row : office.Rows("SELECT IDDonativo, CodTipoDonativo FROM Donativos")) donations[row[0]] = row;
  for (auto& row : office.Rows("SELECT IDProvincia, Nombre FROM Provincias")) provinces[row[0]] = row;
  struct Payment {
    std::string person, type;
    long cents;
    bool zeroReceipt;
  };
  std::map<std::string, std::vector<std::string>> receipts;
  for (auto& row :
       office.Rows("SELECT IDRecibo, CodColaborador, Importe, Eliminado, FechaCobro FROM Recibos"))
    receipts[row[0]] = row;
  std::map<std::string, std::vector<Payment>> paid;
  for (auto& row : office.Rows("SELECT CodRecibo, CodDonativo, Importe FROM Cobros")) {
    const auto& receipt = receipts.at(row[0]);
    if (receipt[3] != "0" || receipt[4].substr(0, 4) != "2025") continue;
    const std::string type = donations.at(row[1])[1];
    const auto& kind = types.at(type);
    if (restricted && (type == "4" || type == "8" || kind[2] != "-1" || kind[3] != "0")) continue;
    paid[receipt[1]].push_back(
        {receipt[1], type, std::lround(std::stod(row[2]) * 100), std::stod(receipt[2]) == 0});
  }
  Table declared;
  const auto nullable = [&](const std::string& column) {
    std::set<std::string> ids;
    for (auto& row : office.Rows("SELECT IDColaborador FROM Colaboradores WHERE " + column + " IS NULL"))
      ids.insert(row[0]);
    return ids;
  };
  const auto withoutNif = nullable("NIF");
  const auto withoutSurname = nullable("Apellido1");
  for (auto& p : office.Rows(
           "SELECT IDColaborador, Nombre, Apellido1, Apellido2, NIF, CodProvincia, Modelo182, Eliminado, "
           "Juridico FROM Colaboradores ORDER BY IDColaborador")) {
    if (p[6] == "0" || p[7] != "0" || p[8] != "0" || paid.count(p[0]) == 0) continue;
    const bool hasNif = withoutNif.count(p[0]) == 0;
    const bool hasSurname = withoutSurname.count(p[0]) == 0;
    if (p[1].empty() || (hasSurname && p[2].empty()) || p[4].size() > 9) continue;
    if (hasNif && (p[4].empty() || (p[4][0] != 'X' && p[4][0] != 'x' && p[4].substr(0, 3) == "MAL")))
      continue;
    std::map<std::string, long> sums;
    bool zero = false;
    for (const Payment& payment : paid.at(p[0])) {
      zero = zero || payment.zeroReceipt;
      sums[types.at(payment.type)[1] == "0" ? "A" : "B"] += payment.cents;
    }
    if (zero) continue;
    // A missing part makes the whole name NULL.
    const std::string name = hasSurname ? p[2] + " " + p[3] + " " + p[1] : "";
    for (const auto& [kind, cents] : sums) {
      declared.push_back({p[0], name, p[4], text::FromDouble(static_cast<double>(cents) / 100),
                          provinces.count(p[5]) == 0 ? "" : provinces.at(p[5])[1], kind});
    }
  }
  return declared;
}

TEST(Modelo182, AgreesWithAnIndependentCalculationToTheCent) {
  for (const std::optional<bool> brivana :
       {std::optional<bool>(), std::optional(false), std::optional(true)}) {
    for (const unsigned seed : {1U, 2U, 3U}) {
      SCOPED_TRACE(std::to_string(seed) + (brivana.value_or(false) ? " restricted" : ""));
      TestOffice office;
      AddCharity(office, seed);
      office.host->brivana = brivana;
      office.Run("INSERT INTO Modelo182Hacienda (codColaborador) VALUES (77)");  // of an earlier run
      exporting::RunContext context = office.Context();
      exporting::RunLoop loop(office.toolkit);
      exporting::Modelo182(context, loop).GenerarModelo182();
      const Table expected = Declare(office, brivana.value_or(false));
      EXPECT_GT(expected.size(), 30U);
      EXPECT_EQ(office.Rows(kDeclared), expected);
      for (const std::string& nif : office.api->validated) {
        EXPECT_LE(nif.size(), 9U);
        EXPECT_NE(nif.substr(0, 1), "x");
      }
      EXPECT_EQ(office.toolkit.MousePointer(), 0);
    }
  }
}

TEST(Modelo182, ReadsTheYearBeforeTheCurrentOne) {
  TestOffice office;
  AddCharity(office, 1);
  office.year = 2020;
  exporting::RunContext context = office.Context();
  exporting::RunLoop loop(office.toolkit);
  exporting::Modelo182(context, loop).GenerarModelo182();
  EXPECT_EQ(office.Count("Modelo182Hacienda"), 0);
}

TEST(Modelo182, LeavesOutTwoHundredThousand) {
  TestOffice office;
  office.Run("INSERT INTO TipoDonativos (IDTipoDonativo, TipoA) VALUES (1, False)");
  office.Run("INSERT INTO Donativos (IDDonativo, CodTipoDonativo) VALUES (1, 1)");
  constexpr long kPeople = 200003;
  office.host->main->BeginTrans();
  {
    ADODB::BulkInsert people(
        *office.host->main, "Colaboradores",
        {"IDColaborador", "Nombre", "Apellido1", "Apellido2", "NIF", "Modelo182", "Eliminado", "Juridico"});
    ADODB::BulkInsert receipts(*office.host->main, "Recibos",
                               {"IDRecibo", "CodColaborador", "Importe", "Eliminado", "FechaCobro"});
    ADODB::BulkInsert payments(*office.host->main, "Cobros",
                               {"IDCobro", "CodRecibo", "CodDonativo", "Importe"});
    for (long id = 1; id <= kPeople; ++id) {
      people.AddLong(id);
      people.AddText(id % 2 == 0 ? "" : "Ana");
      people.AddText("Peña");
      people.AddText("Ruiz");
      people.AddText(id > kPeople - 6 ? "12345678Z" : "MAL");
      people.AddBoolean(true);
      people.AddBoolean(false);
      people.AddBoolean(false);
      people.EndRow();
      receipts.AddLong(id);
      receipts.AddLong(id);
      receipts.AddLong(1);
      receipts.AddBoolean(false);
      receipts.AddText("20251231");
      receipts.EndRow();
      payments.AddLong(id);
      payments.AddLong(id);
      payments.AddLong(1);
      payments.AddDouble(0.1);
      payments.EndRow();
    }
  }
  office.host->main->CommitTrans();
  office.Run("CREATE INDEX a ON Recibos (CodColaborador)");
  office.Run("CREATE INDEX b ON Cobros (CodRecibo)");
  exporting::RunContext context = office.Context();
  exporting::RunLoop loop(office.toolkit);
  exporting::Modelo182(context, loop).GenerarModelo182();
  EXPECT_EQ(office.Rows("SELECT codColaborador, Importe FROM Modelo182Hacienda ORDER BY codColaborador"),
            (Table{{"199999", "0.1"}, {"200001", "0.1"}, {"200003", "0.1"}}));
}

TEST(Modelo182, IsFilledForAnyRowOfItsNodeAndEmptyAfterwards) {
  for (const bool first : {true, false}) {
    TestOffice office;
    AddCharity(office, 4);
    const Table expected = Declare(office, false);
    const std::string mod = "(MOD) Modelo182";
    const auto ofPeople = [&] {
      office.Select("(COL) Colaboradores", "c.id", "Colaboradores.IDColaborador AS Codigo");
    };
    if (!first) ofPeople();
    office.Select(mod, "modelo182hacienda.importe", "Modelo182Hacienda.Importe AS Importe");
    office.Select(mod, "modelo182hacienda.tipodonativo", "Modelo182Hacienda.TipoDonativo AS Clave");
    if (first) ofPeople();
    ASSERT_EQ(office.Export(), Outcome::kFinished) << office.run->Failure().Description();
    EXPECT_EQ(ReadWorkbook(office.Path("Salida.xls"))[0].rows.size(), expected.size() + 1);
    EXPECT_EQ(office.Count("Modelo182Hacienda"), 0);
  }
}

TEST(Modelo182, FailureStopsTheExport) {
  TestOffice office;
  AddCharity(office, 1);
  office.Run("DROP TABLE TipoDonativos");
  office.Select("(MOD) Modelo182", "modelo182hacienda.importe", "Modelo182Hacienda.Importe AS Importe");
  EXPECT_EQ(office.Export(), Outcome::kStagingFailed);
  EXPECT_EQ(office.toolkit.MousePointer(), 0);
}

}  // namespace
}  // namespace velmar::testing
