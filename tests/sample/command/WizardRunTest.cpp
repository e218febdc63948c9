#include "sample/command/WizardRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "platform/error/RuntimeError.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"

namespace velmar::sample {
namespace {

using testing::HasSubstr;
using Rows = std::vector<std::vector<std::string>>;

class WizardRunTest : public testing::Test {
 protected:
  WizardRun Wizard() const {
    SampleHost::Settings settings;
    settings.folder = database_.folder.Path();
    return WizardRun(settings);
  }
  /// What the run says when it fails; it leaves neither a workbook nor work files.
  std::string Failure(const std::vector<WizardRun::Field>& fields) const {
    try {
      Wizard().Export(fields, file_);
    } catch (const RuntimeError& error) {
      EXPECT_FALSE(std::filesystem::exists(file_));
      return error.Description();
    }
    return "none";
  }

  SampleDatabase database_{60};
  std::string file_ = database_.folder / "Salida.xls";
};

std::string Shown(const std::string& stored) {
  return stored.empty() ? "" : stored.substr(6) + '/' + stored.substr(4, 2) + '/' + stored.substr(0, 4);
}

TEST_F(WizardRunTest, ExportsReceiptsAndPendingOnesWithDatesAndAccounts) {
  const std::string filter = "{Fecha de emisión} [Entre] `01/01/2024´ [Y] `31/12/2025´";
  Wizard().Export({{"(COL) Colaboradores", "Código de colaborador", "", false},
                   {"(COL) Colaboradores", "Sexo", "", false},
                   {"(REC) Recibos", "Fecha de emisión", filter, true},
                   {"(REC) Recibos", "Fecha de cobro", "", false},
                   {"(REC) Recibos", "Importe del recibo", "", false},
                   {"(REC) Recibos", "Cuenta bancaria", "", false}},
                  file_);

  Rows expected;
  std::size_t collected = 0;
  for (const std::string prefix : {"", "pendientes"}) {
    const std::string id = prefix.empty() ? "" : "pendiente";
    const auto found = database_.main->Execute(
        "SELECT DISTINCT c.IDColaborador, c.Sexo, r.FechaEmision, r.FechaCobro, r.Importe, "
        "b.Numero & s.Codigo & q.DC AS Principio, q.Numero FROM Colaboradores c, Recibos" +
        prefix + " r, Cobros" + prefix + " k, Donativos d, Cuentas q, Sucursales s, Bancos b " +
        "WHERE c.IDColaborador = r.CodColaborador AND r.IDRecibo" + id +
        " = k.CodRecibo AND k.CodDonativo = " +
        "d.IDDonativo AND r.CodCuenta = q.IDCuenta AND q.CodSucursal = s.IDSucursal AND s.CodBanco = "
        "b.IDBanco " +
        "AND r.FechaEmision >= '20240101' AND r.FechaEmision <= '20251231'");
    for (; !found->Eof(); found->MoveNext()) {
      const auto value = [&](long column) { return found->Fields(column).Value().TextOrEmpty(); };
      const std::string sex = value(1) == "1" ? "Hombre" : value(1) == "2" ? "Mujer" : "";
      expected.push_back({value(0), sex, Shown(value(2)), Shown(value(3)), value(4),
                          value(5) + AccountCodec::Decode(value(6))});
    }
    if (prefix.empty()) collected = expected.size();
  }
  ASSERT_GT(collected, 50U);
  ASSERT_GT(expected.size(), collected) << "pending receipts are part of it";

  Rows rows = ReadWorkbook(file_).at(0);
  rows.erase(rows.begin());
  std::sort(rows.begin(), rows.end());
  std::sort(expected.begin(), expected.end());
  expected.erase(std::unique(expected.begin(), expected.end()), expected.end());
  EXPECT_EQ(rows, expected);
}

TEST_F(WizardRunTest, TellsWhyThereIsNoWorkbook) {
  const std::string node = "(COL) Colaboradores";
  EXPECT_THAT(Failure({}), HasSubstr("por lo menos un campo"));
  EXPECT_THAT(Failure({{node, "Talla", "", false}}), HasSubstr("'Talla'"));
  EXPECT_THAT(Failure({{"(XXX) Nada", "Sexo", "", false}}), HasSubstr("(XXX) Nada"));
  EXPECT_THAT(Failure({{node, "Población", "{Población} = `Oz´", false}}),
              HasSubstr("No se han seleccionado datos"));
  EXPECT_THAT(Failure({{node, "Población", "{Población} [Empieza] `A´", false}}),
              HasSubstr("GenerarSQLWHERE ()"));
  EXPECT_THAT(
      Failure({{"(REM) Remesas", "Emisor", "", false}, {"(MOD) Modelo182", "NIF del declarado", "", false}}),
      HasSubstr("no pueden ser relacionadas"));
  SampleHost::Settings nowhere;
  nowhere.folder = database_.folder / "nada";
  EXPECT_THROW(WizardRun(nowhere).Export({}, file_), RuntimeError);
}

}  // namespace
}  // namespace velmar::sample
