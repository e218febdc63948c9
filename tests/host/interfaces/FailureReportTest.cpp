#include "host/interfaces/FailureReport.h"

#include <gmock/gmock.h>

#include "wizard/RecordingHost.h"

namespace velmar {
namespace {

TEST(FailureReport, MakesEachFailureTheCurrentOneWhileItIsReported) {
  const auto log = std::make_shared<testing::CallLog>();
  const FailureReport report = ReportToHost(std::make_shared<testing::RecordingApi>(log), "frmDatos");
  const CurrentErrorScope outer(RuntimeError(2, "fuera"));
  EXPECT_TRUE(RunReporting(report, "Uno ()", [] {}));
  EXPECT_FALSE(RunReporting(report, "Dos ()", [] { throw RuntimeError(53, "no está"); }));
  EXPECT_FALSE(RunReporting(report, "Tres ()", [] { throw std::runtime_error("de otro"); }));
  EXPECT_THAT(log->Take(), ::testing::ElementsAre("VerError Dos () frmDatos VelmarExportacion 53",
                                                  "VerError Tres () frmDatos VelmarExportacion 51"));
  log->FailAt(0);
  EXPECT_THROW(RunReporting(report, "Dos ()", [] { throw RuntimeError(53, "no está"); }), RuntimeError);
  EXPECT_EQ(CurrentError().Number(), 2);
}

}  // namespace
}  // namespace velmar
