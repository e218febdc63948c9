#include "reliability/Cases.h"

#include <gtest/gtest.h>

namespace velmar::reliability {
namespace {

class CasesTest : public testing::Test {
 protected:
  void Expect(const Findings& findings) {
    EXPECT_GT(findings.cases, 0);
    for (const std::string& complaint : findings.complaints) ADD_FAILURE() << complaint;
    for (const std::string& skipped : findings.skipped) std::cout << "not possible here: " << skipped << '\n';
  }

  const Office original_{12};
  const Scenario scenario_{original_, Selection::kReceipts};
};

TEST_F(CasesTest, FullDiskIsToldAndDoesNoHarm) {
  Expect(FullDisks(scenario_, original_, false));
}

TEST_F(CasesTest, AwkwardPlaceWorksOrIsRefusedClearly) {
  Expect(AwkwardPlaces(scenario_, original_));
}

TEST_F(CasesTest, SecondWizardIsRefused) {
  Expect(TwoWizards(scenario_, original_));
}

}  // namespace
}  // namespace velmar::reliability
