#include "sample/TemplateExamples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/text/Collation.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"

namespace velmar::sample {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// What a column of a plain query becomes in the workbook.
enum class Shown { kPlain, kSex, kDate, kAccount };

struct Case {
  const char* name;
  std::vector<std::string> queries;  ///< the second one for pending receipts
  std::vector<Shown> columns;
  std::vector<std::size_t> sorted;  ///< columns, of those shown as they are sorted
};

const std::string kAccountOf =
    " AND q.CodSucursal = s.IDSucursal AND s.CodBanco = b.IDBanco AND q.IDCuenta = ";

const std::vector<Case>& Cases() {
  using enum Shown;
  const std::string account = "b.Numero & s.Codigo & q.DC & q.Numero";
  const auto receipts = [&](const std::string& suffix, const std::string& id) {
    return "SELECT c.IDColaborador, c.NIF, r.FechaEmision, r.FechaCobro, r.Importe, k.TextoRecibo, " +
           account + " FROM Colaboradores c, Recibos" + suffix + " r, Cobros" + suffix +
           " k, Donativos d, Cuentas q, Sucursales s, Bancos b WHERE c.IDColaborador = r.CodColaborador AND "
           "r.IDRecibo" +
           id + " = k.CodRecibo AND k.CodDonativo = d.IDDonativo AND r.FechaEmision >= '20240101' AND " +
           "r.FechaEmision <= '20241231'" + kAccountOf + "r.CodCuenta";
  };
  static const std::vector<Case> cases = {
      {"Socios de Madrid",
       {"SELECT c.Apellido1, c.Nombre, p.Nombre FROM Colaboradores c, Provincias p WHERE c.CodProvincia = "
        "p.IDProvincia AND p.Nombre = 'Madrid'"},
       {kPlain, kPlain, kPlain},
       {0, 1}},
      {"Felicitaciones",
       {"SELECT Nombre, Apellido1, Sexo, 'Física', FechaNacimiento, Telefono2 FROM Colaboradores WHERE "
        "Left(Nombre, 1) = 'M' AND Juridico = 0"},
       {kPlain, kPlain, kSex, kPlain, kDate, kPlain},
       {}},
      {"Donativos periódicos",
       {"SELECT c.IDColaborador, c.Apellido1, c.Nombre, d.Importe, t.Nombre, " + account +
        " FROM Colaboradores c, Donativos d, TipoPeriodos t, Cuentas q, Sucursales s, Bancos b WHERE "
        "c.IDColaborador = d.CodColaborador AND d.CodTipoPeriodo = t.IDTipoPeriodo AND d.Importe >= 20 AND "
        "(t.Nombre = 'Mensual' OR t.Nombre = 'Trimestral')" +
        kAccountOf + "d.CodColaborador_Cuenta"},
       {kPlain, kPlain, kPlain, kPlain, kPlain, kAccount},
       {1, 2}},
      {"Recibos del año pasado",
       {receipts("", ""), receipts("Pendientes", "pendiente")},
       {kPlain, kPlain, kDate, kDate, kPlain, kPlain, kAccount},
       {}},
      {"Remesas enviadas",
       {"SELECT r.IDRemesa, e.Nombre, r.RecibosBanco, r.TotalBanco FROM Remesas r, Emisores e WHERE "
        "r.CodEmisor = e.IDEmisor AND r.RecibosBanco > 0"},
       {kPlain, kPlain, kPlain, kPlain},
       {}},
  };
  return cases;
}

std::string AsShown(const std::string& value, Shown shown) {
  switch (shown) {
    case Shown::kPlain:
      return value;
    case Shown::kSex:
      return value == "1" ? "Hombre" : value == "2" ? "Mujer" : "";
    case Shown::kDate:
      return value.empty() ? "" : value.substr(6) + '/' + value.substr(4, 2) + '/' + value.substr(0, 4);
    case Shown::kAccount:
      return value.substr(0, 10) + AccountCodec::Decode(value.substr(10));
  }
  return {};
}

Rows Expected(ADODB::Connection& main, const Case& example) {
  std::set<std::vector<std::string>> rows;
  for (const std::string& query : example.queries) {
    for (const auto found = main.Execute(query); !found->Eof(); found->MoveNext()) {
      std::vector<std::string> row;
      for (std::size_t i = 0; i < example.columns.size(); ++i) {
        row.push_back(AsShown(found->Fields(static_cast<long>(i)).Value().TextOrEmpty(), example.columns[i]));
      }
      rows.insert(row);
    }
  }
  return {rows.begin(), rows.end()};
}

bool InOrder(const Rows& rows, const std::vector<std::size_t>& columns) {
  return std::is_sorted(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
    for (const std::size_t column : columns) {
      const int order = text::CompareText(a[column], b[column]);
      if (order != 0) return order < 0;
    }
    return false;
  });
}

TEST(TemplateExamplesTest, EachOneGivesAWorkbookEqualToItsQuery) {
  const SampleDatabase database(400);
  const std::string listed = RunWords({"plantillas", "--carpeta", database.folder.Path()}).out;
  EXPECT_EQ(std::count(listed.begin(), listed.end(), '\n'), 6)
      << "these and the declaration, tested elsewhere";
  for (const Case& example : Cases()) {
    SCOPED_TRACE(example.name);
    EXPECT_THAT(listed, testing::HasSubstr(example.name));
    const std::string file = database.folder / "Libro.xls";
    const Ended ended = RunWords({"exportar", "--carpeta", database.folder.Path(), "--plantilla",
                                  example.name, "--fichero", file, "--sobrescribir"});
    ASSERT_EQ(ended.code, 0) << ended.err;
    Rows rows = ReadWorkbook(file).at(0);
    rows.erase(rows.begin());
    EXPECT_TRUE(InOrder(rows, example.sorted));
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, Expected(*database.main, example));
    EXPECT_GT(rows.size(), 3U);
  }
}

}  // namespace
}  // namespace velmar::sample
