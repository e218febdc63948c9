#include "reliability/Cases.h"

#include <gtest/gtest.h>

namespace velmar::reliability {
namespace {

class CasesTest : public testing::Test {
 protected:
  /// Nothing is wrong in at least so many cases. A group that the system refuses as a whole is no success.
  void Expect(const Findings& findings, long least) {
    std::string skipped;
    for (const std::string& what : findings.skipped) skipped += "\n  " + what;
    if (findings.cases == 0 && !skipped.empty()) GTEST_SKIP() << "not possible here:" << skipped;
    EXPECT_GE(findings.cases, least) << "not possible here:" << skipped;
    for (const std::string& complaint : findings.complaints) ADD_FAILURE() << complaint;
  }

  const Office original_{12};
  const Scenario scenario_{original_, Selection::kReceipts};
};

TEST_F(CasesTest, LimitOfFilesIsToldAndDoesNoHarm) {
  Expect(LimitedFiles(scenario_, original_, false), 6);
}

TEST_F(CasesTest, FullDiskIsToldAndDoesNoHarm) {
  Expect(SmallDisks(scenario_, original_, false), 10);
}

TEST_F(CasesTest, ProtectedPlaceIsRefusedClearly) {
  Expect(ProtectedPlaces(scenario_, original_), 1);
}

TEST_F(CasesTest, AwkwardPlaceWorksOrIsRefusedClearly) {
  Expect(AwkwardPlaces(scenario_, original_), 20);
}

TEST_F(CasesTest, SecondWizardIsRefused) {
  Expect(TwoWizards(scenario_, original_), 2);
}

}  // namespace
}  // namespace velmar::reliability
