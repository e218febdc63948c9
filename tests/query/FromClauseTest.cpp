#include "query/FromClause.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

#include "platform/text/Search.h"
#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The file holds pairs of lines: nodes and fields, each "node internal.name" followed by ";", and the
/// clause.
TEST(FromClause, NestsTheJoinsOfNodesAndLookupsAsTheTableSays) {
  std::ifstream table(TEST_DATA_DIR "/from_clauses.txt");
  int clauses = 0;
  for (std::string fields, clause; std::getline(table, fields) && std::getline(table, clause); ++clauses) {
    SCOPED_TRACE(fields);
    testing::Fixture f;
    for (const std::string& field : text::Split(fields, "; ")) {
      const auto name = field.rfind(' ') + 1;
      f.Select(f.Describe(field.substr(0, name - 1), field.substr(name), "l"));
    }
    EXPECT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()), clause);
    std::reverse(f.selection.rows.begin(), f.selection.rows.end());
    f.selection.relation = Selection::Relation::kPartial;
    EXPECT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()),
              text::Replace(clause, " INNER JOIN ", " LEFT JOIN "));
    EXPECT_THAT(f.reported, IsEmpty());
    // A field that the catalogue lacks is reported, and no look-up is joined.
    f.selection.rows[0].idCampo = 99;
    EXPECT_THAT(GenerarSQLFROM(f.selection, f.catalogue, f.Report()), Not(HasSubstr("Paises")));
    EXPECT_THAT(f.reported, ElementsAre("ObtenerStrCamposSeleccionados ()"));
  }
  EXPECT_EQ(clauses, 35);
}

}  // namespace
}  // namespace velmar
