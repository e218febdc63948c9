#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "catalogue/CatalogueReader.h"
#include "catalogue/CatalogueTransfer.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/SelectionValidation.h"
#include "query/WhereClause.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"

namespace velmar::sample {
namespace {

/// Selections over the sample's own catalogue, their clauses run on the sample's own data.
class CatalogueClausesTest : public testing::Test {
 protected:
  CatalogueClausesTest() {
    ActualizarCatalogo(*database_.main, *database_.reports, {});
    LlenarColeccionCampos(*database_.main, catalogue_, {}, report_);
  }

  static Selection::Row RowOf(const cCampos& field, const std::string& filter = {}) {
    return {field.LiteralTabla(), field.LiteralCampo(), filter, field.IDCampo()};
  }
  std::string Statement(const Selection& selection) {
    std::string sql = GenerarSQLSELECT(selection, catalogue_, report_);
    sql += GenerarSQLFROM(selection, catalogue_, report_);
    sql += GenerarSQLWHERE(
        selection, catalogue_, [] { return std::make_shared<AccountCodec>(); }, report_);
    return sql + GenerarSQLORDERBY(selection, catalogue_, report_);
  }
  /// Empty if the statement runs, else the failure.
  std::string Run(const std::string& sql) {
    try {
      database_.main->Execute(sql);
      return {};
    } catch (const RuntimeError& error) {
      return error.Description();
    }
  }

  SampleDatabase database_{20};
  Collection<cCampos> catalogue_;
  int reports_ = 0;
  FailureReport report_ = [this](const RuntimeError&, const std::string&) { ++reports_; };
};

/// Which lookups bring the same tables: only one of each may stand in a statement.
const std::map<std::string, int> kSharedTables = {{"colaboradores.cuenta", 1},   {"donativos.cuenta", 1},
                                                  {"recibos.cuenta", 1},         {"remesas.cuenta", 1},
                                                  {"donativos.tipodonativo", 2}, {"recibos.tipodonativo", 2},
                                                  {"donativos.tipopago", 3},     {"recibos.tipopago", 3}};
const std::set<std::string> kOtherLookups = {"colaboradores.provincia", "colaboradores.pais",
                                             "donativos.tipoperiodo", "remesas.codemisor"};

TEST_F(CatalogueClausesTest, EverySubsetOfLookupsRunsOrIsRefusedForATableThatComesTwice) {
  const std::vector<std::set<std::string>> combinations = {{"(COL)"},
                                                           {"(DON)"},
                                                           {"(REC)"},
                                                           {"(REM)"},
                                                           {"(MOD)"},
                                                           {"(COL)", "(DON)"},
                                                           {"(COL)", "(REC)"},
                                                           {"(COL)", "(REM)"},
                                                           {"(COL)", "(MOD)"},
                                                           {"(DON)", "(REC)"},
                                                           {"(REC)", "(REM)"},
                                                           {"(COL)", "(DON)", "(REC)"},
                                                           {"(COL)", "(REC)", "(REM)"}};
  int ran = 0;
  int refused = 0;
  for (const auto& nodes : combinations) {
    std::vector<const cCampos*> lookups;
    Selection plain;
    std::set<std::string> begun;
    for (const cCampos& field : catalogue_) {
      const std::string node = field.LiteralTabla().substr(0, 5);
      if (!nodes.contains(node)) continue;
      const std::string& name = field.NombreInternoCampo();
      if (kSharedTables.contains(name) || kOtherLookups.contains(name)) {
        lookups.push_back(&field);
      } else if (begun.insert(node).second) {
        plain.rows.push_back(RowOf(field));
      }
    }
    for (std::size_t subset = 0; subset < std::size_t{1} << lookups.size(); ++subset) {
      for (const auto relation : {Selection::Relation::kComplete, Selection::Relation::kPartial}) {
        Selection selection = plain;
        selection.relation = relation;
        std::map<int, int> shared;
        for (std::size_t i = 0; i < lookups.size(); ++i) {
          if ((subset >> i & 1) == 0) continue;
          selection.rows.push_back(RowOf(*lookups[i]));
          const auto table = kSharedTables.find(lookups[i]->NombreInternoCampo());
          if (table != kSharedTables.end()) ++shared[table->second];
        }
        const bool twice =
            std::any_of(shared.begin(), shared.end(), [](const auto& use) { return use.second > 1; });
        const std::string sql = Statement(selection);
        const std::string failure = Run(sql);
        ASSERT_EQ(ValidarExportacion(selection, catalogue_).has_value(), twice) << sql;
        ASSERT_EQ(text::Contains(failure, "aparece dos veces", text::Comparison::kBinary), twice)
            << failure << sql;
        ASSERT_TRUE(twice || failure.empty()) << failure << '\n' << sql;
        ++(twice ? refused : ran);
      }
    }
  }
  EXPECT_EQ(ran + refused, 3418);
  EXPECT_GT(ran, 1000);
  EXPECT_GT(refused, 1000);
  EXPECT_EQ(reports_, 0);
}

TEST_F(CatalogueClausesTest, RandomFiltersRunOrFailWithAReportAndAreNeverDropped) {
  const std::vector<std::string> values = {
      "Madrid", "a", "ñ",     "10", "10.5", "-1", "01/02/2024", "1/2/2024",
      "O'Hara", "",  "Mujer", "%",  "[",    "'",  "\"",         "21000418450200051332"};
  const std::vector<std::string> forms = {"{N} = $",
                                          "{N} [Comience por] $",
                                          "{N} [Que contenga] $",
                                          "{N} [Acabe en] $",
                                          "{N} [Entre] $ [Y] $",
                                          "{N} [Igual a uno de] ($, $)",
                                          "NOT ({N} = $)",
                                          "({N} < $ [O] {N} > $)",
                                          "{N} IS NULL",
                                          "{N} [Entre $",
                                          "´ {N} `",
                                          "} {N"};
  std::vector<const cCampos*> fields;
  for (const cCampos& field : catalogue_) fields.push_back(&field);
  std::mt19937 engine(20240229);
  const auto draw = [&](std::size_t below) { return static_cast<std::size_t>(engine()) % below; };
  int ran = 0;
  int unbuilt = 0;
  for (int i = 0; i < 2500; ++i) {
    SCOPED_TRACE(i);
    Selection selection;
    selection.relation = draw(2) == 0 ? Selection::Relation::kComplete : Selection::Relation::kPartial;
    bool filtered = false;
    for (std::size_t left = 1 + draw(5); left > 0; --left) {
      std::string filter = draw(2) == 0 ? forms[draw(forms.size())] : "";
      for (std::size_t at; (at = filter.find('$')) != std::string::npos;)
        filter.replace(at, 1, "`" + values[draw(values.size())] + "´");
      filtered = filtered || !filter.empty();
      selection.rows.push_back(RowOf(*fields[draw(fields.size())], filter));
      if (draw(2) == 0) selection.order.push_back(selection.rows.back().idCampo);
    }
    if (ValidarExportacion(selection, catalogue_)) continue;
    reports_ = 0;
    std::string sql;
    try {
      sql = Statement(selection);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(reports_, 1) << error.Description();
      ++unbuilt;
      continue;
    }
    EXPECT_EQ(reports_, 0);
    EXPECT_EQ(text::Contains(sql, " WHERE ", text::Comparison::kBinary), filtered) << sql;
    ran += Run(sql).empty() ? 1 : 0;  // the engine may refuse what makes no sense, with an error
  }
  EXPECT_GT(ran, 300);
  EXPECT_GT(unbuilt, 50);
}

}  // namespace
}  // namespace velmar::sample
