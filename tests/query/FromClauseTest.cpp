#include "query/FromClause.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "platform/text/Search.h"
#include "query/Nodes.h"
#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;

/// The node whose name holds the three letters, (COL) for example.
std::string NodeOf(std::string_view letters) {
  for (const std::string_view node : {kColaboradores, kDonativos, kRecibos, kRemesas, kModelo182}) {
    if (node.find(letters) != node.npos) return std::string(node);
  }
  return "(" + std::string(letters) + ") Otros";
}

/// The file holds pairs of lines: nodes and fields, each "NODE internal.name" followed by ";", and the
/// clause.
TEST(FromClause, NestsTheJoinsOfNodesAndLookupsAsTheTableSays) {
  std::ifstream table(TEST_DATA_DIR "/from_clauses.txt");
  int clauses = 0;
  for (std::string fields, clause; std::getline(table, fields) && std::getline(table, clause); ++clauses) {
    SCOPED_TRACE(fields);
    testing::Fixture f;
    for (const std::string& field : text::Split(fields, "; ")) {
      f.Select(f.Describe(NodeOf(field.substr(0, 3)), field.substr(4), "l"));
    }
    EXPECT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()), clause);
    std::reverse(f.selection.rows.begin(), f.selection.rows.end());
    f.selection.relation = Selection::Relation::kPartial;
    EXPECT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()),
              text::Replace(clause, " INNER JOIN ", " LEFT JOIN "));
    EXPECT_THAT(f.reported, ElementsAre());
  }
  EXPECT_EQ(clauses, 35);
}

TEST(FromClause, FieldThatTheCatalogueLacksIsReported) {
  testing::Fixture lost;
  lost.Select(lost.Describe("(COL) Colaboradores", "colaboradores.pais", "x"));
  lost.selection.rows.push_back({"(COL) Colaboradores", "y", "", 9});
  EXPECT_EQ(GenerarSQLFROM(lost.selection, lost.catalogue, lost.Report()), " FROM Colaboradores");
  EXPECT_THAT(lost.reported, ElementsAre("ObtenerStrCamposSeleccionados ()"));
}

}  // namespace
}  // namespace velmar
