#include "host/cPrincipal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "host/TestSite.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/toolkit/Form.h"
#include "wizard/WizardOffice.h"
#include "wizard/frmExportacion.h"

namespace velmar {
namespace {

using ::testing::ElementsAreArray;
using Calls = std::vector<std::string>;

class cPrincipalTest : public ::testing::Test {
 protected:
  cPrincipalTest() { principal_.SetSite(&site_); }
  ~cPrincipalTest() override { cPrincipal().SetSite(nullptr); }

  /// The user does this in the window, then closes it by its frame.
  void PlayUser(std::function<void(wizard::frmExportacion&)> action = {}) {
    office_.toolkit.WhenShown("frmExportacion", [this, action](toolkit::Form& form) {
      office_.log->Note("shown");
      if (action) action(dynamic_cast<wizard::frmExportacion&>(form));
      form.UserClose();
    });
  }
  /// The number of the failure, 0 for none.
  long Call(std::int32_t* lngIDRecibo = nullptr) {
    try {
      principal_.PasarDatos(office_.host, lngIDRecibo);
    } catch (const RuntimeError& failure) {
      description_ = failure.Description();
      return failure.Number();
    }
    return 0;
  }
  long States() const { return office_.host->main->State() * 10 + office_.host->reports->State(); }

  testing::WizardOffice office_;
  testing::TestSite site_{office_.toolkit};
  cPrincipal principal_;
  std::string description_;
};

const Calls kWholeLife = {
    "RutaApp",      "conGestion 0",  "coninformes 0",                   // PasarDatos
    "Icono",        "CreateObject",  "conGestion 1",  "coninformes 1",  // Form_Load
    "conGestion 1", "coninformes 1",                                    // ActualizarCatalogo
    "conGestion 1",                                                     // LlenarColeccionCampos
    "conGestion 1",                                                     // fillTablasExportacion
    "shown",        "conGestion 1",  "coninformes 1",                   // Form_Unload
};

TEST_F(cPrincipalTest, CallsTheHostInTheOrderToldAndClosesBothConnectionsInTheEnd) {
  Calls expected = kWholeLife;
  for (const bool open : {false, true}) {
    if (open) {
      office_.host->main->Open();
      office_.host->reports->Open();
      expected[1] = "conGestion 1";
      expected[2] = "coninformes 1";
    }
    std::int32_t receipt = 41;
    PlayUser();
    EXPECT_EQ(Call(open ? &receipt : nullptr), 0) << description_;
    EXPECT_THAT(office_.log->Take(), ElementsAreArray(expected));
    EXPECT_EQ(States(), 0);
    EXPECT_EQ(receipt, 41);
  }
  EXPECT_EQ(office_.toolkit.HelpFile(), "C:\\Quinvera\\Quinvera.chm");
  EXPECT_EQ(objHost, office_.host);
}

TEST_F(cPrincipalTest, EachWayOfLeavingClosesBothConnections) {
  using Controls = wizard::ExportControls;
  const std::vector<std::function<void(wizard::frmExportacion&)>> ways = {
      [](wizard::frmExportacion& form) { form.cmdExportar(Controls::kLeave).UserClick(); },
      [](wizard::frmExportacion& form) { form.Scope().UserEscape(); },
      [](wizard::frmExportacion& form) { form.Unload(); },  // as a finished export does
      [](wizard::frmExportacion& form) { form.Hide(); },
      [](wizard::frmExportacion&) { throw RuntimeError(kInternalError, "el guion se ha roto"); },
  };
  for (std::size_t i = 0; i < ways.size(); ++i) {
    SCOPED_TRACE(i);
    office_.toolkit.WhenShown(
        "frmExportacion", [&](toolkit::Form& form) { ways[i](dynamic_cast<wizard::frmExportacion&>(form)); });
    EXPECT_EQ(Call(), i + 1 == ways.size() ? long{kInternalError} : 0L);
    EXPECT_EQ(States(), 0);
  }
}

TEST_F(cPrincipalTest, EachCallBuildsANewWindow) {
  for (int call = 0; call < 2; ++call) {
    std::weak_ptr<toolkit::Form> window;
    std::weak_ptr<ADODB::Connection> auxiliary;
    PlayUser([&](wizard::frmExportacion& form) {
      window = form.weak_from_this();
      auxiliary = form.conAuxiliar();
      EXPECT_EQ(form.mcolCampos().Count(), 9U);
      EXPECT_EQ(form.msgSeleccionados.Rows(), 1);
      form.cboExportar.UserChoose(0);
      form.cmdAgregarQuitar(wizard::ExportControls::kAddAll).UserClick();
      EXPECT_EQ(form.msgSeleccionados.Rows(), 5);
    });
    EXPECT_EQ(Call(), 0) << description_;
    EXPECT_TRUE(window.expired() && auxiliary.expired());
  }
}

TEST_F(cPrincipalTest, EachStepThatFailsLeavesTheOthersAsTold) {
  constexpr long kFailure = testing::CallLog::kFailure;
  const auto told = [](const std::string& routine) {
    return "VerError " + routine + " frmExportacion VelmarExportacion 7000";
  };
  struct Case {
    std::size_t step;
    long failure;
    Calls behind;  // between the call that failed and the window, which comes if anything does
    long states;
  };
  const std::vector<Case> cases = {
      {0, kFailure, {}, 0},
      {1, kFailure, {}, 0},
      {2, kFailure, {}, 10},
      // There is no API object to report to yet, so the host gets the failure of that.
      {3, kObjectNotSet, {}, 11},
      {4, kObjectNotSet, {}, 11},
      {5, 0, {told("Form_Load()")}, 0},
      {6, 0, {told("Form_Load()")}, 0},
      {7, 0, {"conGestion 1", "conGestion 1"}, 0},
      {8, 0, {"conGestion 1", "conGestion 1"}, 0},
      {9, 0, {told("LlenarColeccionCampos ()"), "conGestion 1"}, 0},
      {10, 0, {told("fillTablasExportacion ()")}, 0},
      {12, kFailure, {}, 11},
      {13, kFailure, {}, 1},
  };
  for (const Case& given : cases) {
    SCOPED_TRACE(given.step);
    for (const auto& connection : {office_.host->main, office_.host->reports}) {
      if (connection->State() == ADODB::kStateOpen) connection->Close();
    }
    office_.log->FailAt(given.step);
    if (given.step > 4) PlayUser();
    EXPECT_EQ(Call(), given.failure) << description_;
    Calls expected(kWholeLife.begin(), kWholeLife.begin() + static_cast<std::ptrdiff_t>(given.step) + 1);
    expected.insert(expected.end(), given.behind.begin(), given.behind.end());
    if (given.failure == 0) expected.insert(expected.end(), kWholeLife.end() - 3, kWholeLife.end());
    EXPECT_THAT(office_.log->Take(), ElementsAreArray(expected));
    EXPECT_EQ(States(), given.states);
    EXPECT_EQ(office_.toolkit.MousePointer(), 0);
  }
  PlayUser();
  EXPECT_EQ(Call(), 0) << "the next call starts anew";
}

TEST_F(cPrincipalTest, RefusesASecondWindowAndCallsWithoutAHostOrASite) {
  PlayUser([&](wizard::frmExportacion& form) {
    EXPECT_EQ(Call(), kInvalidProcedureCall);
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(States(), 11);
  });
  EXPECT_EQ(Call(), 0) << description_;
  EXPECT_THROW(principal_.PasarDatos(nullptr, nullptr), RuntimeError);
  EXPECT_EQ(objHost, office_.host);
  principal_.SetSite(nullptr);
  EXPECT_EQ(Call(), kObjectNotSet);
  EXPECT_EQ(States(), 0);
}

}  // namespace
}  // namespace velmar
