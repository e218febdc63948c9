#include "host/interfaces/FailureReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/HostApi.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;

/// Notes what VerError is told, and what it can read of the failure itself.
class NotingApi : public HostApi {
 public:
  void VerError(const std::string& rutina, const std::string& formulario,
                const std::string& componente) override {
    notes.push_back(rutina + "|" + formulario + "|" + componente + "|" +
                    std::to_string(CurrentError().Number()) + "|" + CurrentError().Description());
    if (inside) inside();
  }
  void SeleccionarTexto(controls::TextBox& /*caja*/) override {}
  long validar_nif(const ADODB::Field& /*nif*/) override { return 1; }

  std::vector<std::string> notes;
  std::function<void()> inside;
};

TEST(FailureReport, TheHostIsToldTheRoutineAndCanReadTheFailure) {
  const auto api = std::make_shared<NotingApi>();
  const FailureReport report = ReportToHost(api, "frmExportacion");
  EXPECT_TRUE(RunReporting(report, "Uno ()", [] {}));
  EXPECT_FALSE(RunReporting(report, "Dos ()", [] { throw RuntimeError(53, "no está"); }));
  EXPECT_FALSE(RunReporting(report, "Tres ()", [] { throw std::runtime_error("de otro"); }));
  EXPECT_THAT(api->notes, ElementsAre("Dos ()|frmExportacion|VelmarExportacion|53|no está",
                                      "Tres ()|frmExportacion|VelmarExportacion|51|de otro"));
  EXPECT_EQ(CurrentError().Number(), 0);
}

TEST(FailureReport, AReportInsideAReportGivesTheOuterFailureBack) {
  const auto api = std::make_shared<NotingApi>();
  const FailureReport report = ReportToHost(api, "frmDatos");
  api->inside = [&] {
    api->inside = nullptr;
    RunReporting(report, "dentro", [] { throw RuntimeError(2, "b"); });
    EXPECT_EQ(CurrentError().Description(), "a");
  };
  RunReporting(report, "fuera", [] { throw RuntimeError(1, "a"); });
  EXPECT_THAT(api->notes,
              ElementsAre("fuera|frmDatos|VelmarExportacion|1|a", "dentro|frmDatos|VelmarExportacion|2|b"));
}

TEST(FailureReport, WithoutApiObjectTheCallItselfFailsAndKeepsTheFirstFailuresText) {
  try {
    RunReporting(ReportToHost(nullptr, "frmExportacion"), "Form_Load()",
                 [] { throw RuntimeError(53, "no está"); });
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kObjectNotSet);
    EXPECT_NE(failure.Description().find("no está"), std::string::npos);
  }

  const auto api = std::make_shared<NotingApi>();
  api->inside = [] { throw RuntimeError(70, "VerError"); };
  EXPECT_THROW(RunReporting(ReportToHost(api, "f"), "r", [] { throw RuntimeError(1, "a"); }), RuntimeError);
  EXPECT_EQ(CurrentError().Number(), 0);
}

}  // namespace
}  // namespace velmar
