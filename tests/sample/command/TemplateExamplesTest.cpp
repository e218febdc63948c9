#include "sample/TemplateExamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/command/Words.h"

namespace velmar::sample {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// The names of templates, each with a query for what it exports.
std::vector<std::pair<std::string, std::string>> Cases(const std::string& year) {
  const std::string account = "b.Numero & s.Codigo & q.DC & q.Numero";
  const std::string ofAccount =
      " AND q.CodSucursal = s.IDSucursal AND s.CodBanco = b.IDBanco AND q.IDCuenta = ";
  const auto date = [](const std::string& column) {
    return "IIf(" + column + " = '', '', Right(" + column + ", 2) & '/' & Mid(" + column +
           ", 5, 2) & '/' & Left(" + column + ", 4))";
  };
  return {
      {"Felicitaciones",
       "SELECT Nombre, Apellido1, IIf(Sexo = 1, 'Hombre', IIf(Sexo = 2, 'Mujer', '')), 'Física', " +
           date("FechaNacimiento") +
           ", Telefono2 FROM Colaboradores WHERE Left(Nombre, 1) = 'M' AND Juridico = 0"},
      {"Donativos periódicos",
       "SELECT c.IDColaborador, c.Apellido1, c.Nombre, d.Importe, t.Nombre, " + account +
           " FROM Colaboradores c, Donativos d, TipoPeriodos t, Cuentas q, Sucursales s, Bancos b WHERE "
           "c.IDColaborador = d.CodColaborador AND d.CodTipoPeriodo = t.IDTipoPeriodo AND d.Importe >= 20 "
           "AND (t.Nombre = 'Mensual' OR t.Nombre = 'Trimestral')" +
           ofAccount + "d.CodColaborador_Cuenta"},
      {"Recibos del año pasado",
       "SELECT c.IDColaborador, c.NIF, " + date("r.FechaEmision") + ", " + date("r.FechaCobro") +
           ", r.Importe, k.TextoRecibo, " + account +
           " FROM Colaboradores c, Recibos r, Cobros k, Donativos d, Cuentas q, Sucursales s, Bancos b WHERE "
           "c.IDColaborador = r.CodColaborador AND r.IDRecibo = k.CodRecibo AND k.CodDonativo = d.IDDonativo "
           "AND Left(r.FechaEmision, 4) = '" +
           year + "'" + ofAccount + "r.CodCuenta"},
      {"Remesas enviadas",
       "SELECT r.IDRemesa, e.Nombre, r.RecibosBanco, r.TotalBanco FROM Remesas r, Emisores e WHERE "
       "r.CodEmisor = e.IDEmisor AND r.RecibosBanco > 0"},
  };
}

/// The rows of the query, each once, with decoded accounts.
Rows Expected(ADODB::Connection& main, const std::string& query) {
  std::set<std::vector<std::string>> rows;
  for (const auto found = main.Execute(query); !found->Eof(); found->MoveNext()) {
    std::vector<std::string> row;
    for (long i = 0; i < found->Fields().Count(); ++i) {
      const std::string value = found->Fields(i).Value().TextOrEmpty();
      const bool isAccount = value.size() == 20 && value.find_first_not_of("0123456789") == std::string::npos;
      row.push_back(isAccount ? value.substr(0, 10) + AccountCodec::Decode(value.substr(10)) : value);
    }
    rows.insert(row);
  }
  return {rows.begin(), rows.end()};
}

TEST(TemplateExamplesTest, EachOneGivesAWorkbookEqualToItsQuery) {
  const files::TemporaryFolder folder;
  ASSERT_EQ(
      RunWords({"crear", "--carpeta", folder.Path(), "--colaboradores", "400", "--fecha", "2025-11-22"}).code,
      0);
  const auto main = OpenDatabase(folder / "Gestion.mdb");
  const std::string file = folder / "Libro.xls";
  for (const auto& [name, query] : Cases("2024")) {
    SCOPED_TRACE(name);
    const Ended ended = RunWords(
        {"exportar", "--carpeta", folder.Path(), "--plantilla", name, "--fichero", file, "--sobrescribir"});
    ASSERT_EQ(ended.code, 0) << ended.err;
    Rows rows = ReadWorkbook(file).at(0);
    rows.erase(rows.begin());
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, Expected(*main, query));
    EXPECT_GT(rows.size(), 3U);
  }
}

}  // namespace
}  // namespace velmar::sample
