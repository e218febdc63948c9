#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>

#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/text/Numbers.h"
#include "platform/text/Trim.h"
#include "sample/SampleDatabase.h"
#include "sample/SpanishIds.h"
#include "sample/WorkbookReader.h"
#include "sample/command/WizardRun.h"
#include "sample/command/Words.h"

namespace velmar::sample {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// The declaration worked out row by row, from plain reads of the tables, in whole cents.
class Declaration {
 public:
  Declaration(ADODB::Connection& main, bool restricted) : main_(main), restricted_(restricted) {
    const auto types = Read("SELECT IDTipoDonativo, TipoA, Modelo182, Eliminado FROM TipoDonativos");
    for (const auto& type : types) types_[type[0]] = {type[1] != "0", type[2] != "0" && type[3] == "0"};
    for (const auto& row : Read("SELECT IDDonativo, CodTipoDonativo FROM Donativos")) kinds_[row[0]] = row[1];
    for (const auto& row : Read("SELECT IDProvincia, Nombre FROM Provincias")) provinces_[row[0]] = row[1];
    const std::string year = std::to_string(static_cast<int>(Today().year()) - 1);
    for (const auto& row :
         Read("SELECT IDRecibo, CodColaborador, FechaCobro, Importe, Eliminado FROM Recibos")) {
      if (row[4] == "0" && row[2].substr(0, 4) == year) receipts_[row[0]] = {row[1], row[3] == "0"};
    }
  }

  Rows Declared() {
    std::map<std::string, std::map<bool, long long>> cents;
    std::set<std::string> withZero;
    for (const auto& row : Read("SELECT CodRecibo, CodDonativo, Importe FROM Cobros")) {
      const auto receipt = receipts_.find(row[0]);
      if (receipt == receipts_.end()) continue;
      const std::string& type = kinds_.at(row[1]);
      if (restricted_ && (type == "4" || type == "8" || !types_.at(type).declared)) continue;
      cents[receipt->second.payer][types_.at(type).isA] += std::llround(text::Val(row[2]) * 100);
      if (receipt->second.isZero) withZero.insert(receipt->second.payer);
    }
    Rows declared;
    const auto people = main_.Execute(
        "SELECT IDColaborador, Nombre, Apellido1, Apellido2, NIF, CodProvincia FROM Colaboradores "
        "WHERE Eliminado = 0 AND Modelo182 <> 0 AND Juridico = 0");
    for (; !people->Eof(); people->MoveNext()) {
      const auto field = [&](long column) -> std::optional<std::string> {
        const ADODB::Variant value = people->Fields(column).Value();
        return value.IsNull() ? std::nullopt : std::optional(value.AsText());
      };
      const std::string id = *field(0);
      if (!cents.contains(id) || withZero.contains(id) || field(1) == "" || field(2) == "") continue;
      const auto nif = field(4);
      if (nif && (text::Len(*nif) > 9 || (text::UCase(text::Left(*nif, 1)) != "X" && !IsValidTaxId(*nif))))
        continue;
      std::string name;
      if (field(1) && field(2) && field(3)) name = text::Trim(*field(2) + ' ' + *field(3) + ' ' + *field(1));
      const auto province = provinces_.find(field(5).value_or(""));
      for (const auto& [isA, sum] : cents[id]) {
        declared.push_back({id, name, nif.value_or(""), province == provinces_.end() ? "" : province->second,
                            isA ? "B" : "A", text::FromDouble(static_cast<double>(sum) / 100)});
      }
    }
    std::sort(declared.begin(), declared.end());
    return declared;
  }

 private:
  struct Type {
    bool isA = false;
    bool declared = false;
  };
  struct Receipt {
    std::string payer;
    bool isZero = false;
  };

  Rows Read(const std::string& sql) {
    Rows rows;
    const auto found = main_.Execute(sql);
    for (; !found->Eof(); found->MoveNext()) {
      auto& row = rows.emplace_back();
      for (long i = 0; i < found->Fields().Count(); ++i)
        row.push_back(found->Fields(i).Value().TextOrEmpty());
    }
    return rows;
  }

  ADODB::Connection& main_;
  bool restricted_;
  std::map<std::string, Type> types_;
  std::map<std::string, std::string> kinds_;
  std::map<std::string, std::string> provinces_;
  std::map<std::string, Receipt> receipts_;
};

TEST(Modelo182SampleTest, DeclaresWhatTheTablesHoldToTheCent) {
  const files::TemporaryFolder folder;
  ASSERT_EQ(
      RunWords({"crear", "--carpeta", folder.Path(), "--colaboradores", "800", "--fecha", "2025-11-22"}).code,
      0);
  // The declaration is that of the year before today's, but the data are to be the same on any day.
  const std::string years = std::to_string(static_cast<int>(Today().year()) - 2025);
  OpenDatabase(folder / "Gestion.mdb")
      ->Execute("UPDATE Recibos SET FechaCobro = (Left(FechaCobro, 4) + " + years +
                ") & Mid(FechaCobro, 5) WHERE FechaCobro <> ''");
  const std::string file = folder / "Modelo 182.xls";
  const auto exported = [&file] {
    Rows rows = ReadWorkbook(file).at(0);
    rows.erase(rows.begin());
    std::sort(rows.begin(), rows.end());
    return rows;
  };
  // The node need not come first for the table to be filled.
  std::vector<WizardRun::Field> fields = {{"(COL) Colaboradores", "Código de colaborador", "", false}};
  for (const char* literal : {"Nombre del declarado", "NIF del declarado", "Provincia del declarado",
                              "Clave del Modelo 182", "Importe declarado"}) {
    fields.push_back({"(MOD) Modelo182", literal, "", false});
  }
  std::set<Rows> results;
  for (const bool restricted : {false, true}) {
    SCOPED_TRACE(restricted);
    SampleHost::Settings settings;
    settings.folder = folder.Path();
    settings.brivana = restricted;
    WizardRun(settings).Export(fields, file);
    const Rows rows = exported();
    const auto main = OpenDatabase(folder / "Gestion.mdb");
    EXPECT_EQ(rows, Declaration(*main, restricted).Declared());
    EXPECT_GT(rows.size(), 200U);
    results.insert(rows);
    if (restricted) continue;
    // The template of the sample declares the same, without the number in front.
    std::filesystem::remove(file);
    const Ended ended =
        RunWords({"exportar", "--carpeta", folder.Path(), "--plantilla", "Modelo 182", "--fichero", file});
    ASSERT_EQ(ended.code, 0) << ended.err;
    std::set<std::vector<std::string>> expected;
    for (const auto& row : rows) expected.emplace(row.begin() + 1, row.end());
    EXPECT_EQ(exported(), Rows(expected.begin(), expected.end()));
  }
  EXPECT_EQ(results.size(), 2U) << "the restriction makes a difference";
}

}  // namespace
}  // namespace velmar::sample
