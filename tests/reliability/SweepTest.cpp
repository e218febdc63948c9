#include "reliability/Sweep.h"

#include <gtest/gtest.h>

namespace velmar::reliability {

// Where the test library looks for it: its own form would be that of bytes.
static void PrintTo(Selection selection, std::ostream* out) {
  *out << (selection == Selection::kReceipts ? "receipts" : "declaration");
}

namespace {

constexpr long kCollaborators = 12;

class SweepTest : public testing::TestWithParam<Selection> {
 protected:
  static const Office& Original() {
    static const Office office(kCollaborators);
    return office;
  }
  const Scenario scenario_{Original(), GetParam()};
};

void ExpectNone(const Findings& findings) {
  EXPECT_GT(findings.cases, 10);
  for (const std::string& complaint : findings.complaints) ADD_FAILURE() << complaint;
}

TEST_P(SweepTest, FailedOperationIsToldOrDoesNoHarm) {
  for (const Faults::Kind kind : {Faults::Kind::kOnce, Faults::Kind::kFromThereOn}) {
    const Findings findings = SweepFaults(scenario_, Original(), kind, Spread(AllOf(scenario_), 60));
    ExpectNone(findings);
    EXPECT_GT(findings.told, findings.cases / 2);
  }
}

TEST_P(SweepTest, KilledProcessDoesNoHarm) {
  ExpectNone(SweepKills(scenario_, Original(), Spread(AllOf(scenario_), 25)));
  ExpectNone(SweepKillsByTime(scenario_, Original(), 15));
}

INSTANTIATE_TEST_SUITE_P(Exports, SweepTest, testing::Values(Selection::kReceipts, Selection::kDeclaration),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace velmar::reliability
