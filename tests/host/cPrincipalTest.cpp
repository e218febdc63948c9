#include "host/cPrincipal.h"

#include <gmock/gmock.h>

#include "host/interfaces/cIFunciones.h"
#include "platform/toolkit/Form.h"
#include "wizard/WizardOffice.h"

namespace velmar {
namespace {

using Calls = std::vector<std::string>;

class cPrincipalTest : public ::testing::Test, public ComponentSite {
 protected:
  cPrincipalTest() { principal_.SetSite(this); }
  ~cPrincipalTest() override { cPrincipal().SetSite(nullptr); }

  toolkit::Toolkit& Surroundings() override { return office_.toolkit; }

  /// The number of the failure, 0 for none, of a call in which the user does this in the window.
  long Call(const std::function<void(toolkit::Form&)>& user = {}) {
    if (user) office_.toolkit.WhenShown("frmExportacion", user);
    try {
      principal_.PasarDatos(office_.host);
    } catch (const RuntimeError& failure) {
      return failure.Number();
    }
    return 0;
  }
  long States() const { return office_.host->main->State() * 10 + office_.host->reports->State(); }

  testing::WizardOffice office_;
  cPrincipal principal_;
};

const Calls kWholeLife = {
    "RutaApp",      "conGestion 0",  "coninformes 0",                   // PasarDatos
    "Icono",        "CreateObject",  "conGestion 1",  "coninformes 1",  // Form_Load
    "conGestion 1", "coninformes 1",                                    // ActualizarCatalogo
    "conGestion 1",                                                     // LlenarColeccionCampos
    "conGestion 1",                                                     // fillTablasExportacion
    "shown",        "conGestion 1",  "coninformes 1",                   // Form_Unload
};

TEST_F(cPrincipalTest, CallsTheHostInTheOrderToldWhateverStepFails) {
  constexpr long kFailure = testing::CallLog::kFailure;
  constexpr std::size_t kNone = 99;
  const std::string told = " frmExportacion VelmarExportacion 7000";
  const struct {
    std::size_t step;
    long failure;
    long states;
    Calls behind;  // between the call that failed and the window, which comes if anything does
  } cases[] = {
      {0, kFailure, 0, {}},
      {2, kFailure, 10, {}},
      // There is no API object to report to yet, so the host gets the failure of that.
      {3, kObjectNotSet, 11, {}},
      {5, 0, 0, {"VerError Form_Load()" + told}},
      {8, 0, 0, {"conGestion 1", "conGestion 1"}},
      {9, 0, 0, {"VerError LlenarColeccionCampos ()" + told, "conGestion 1"}},
      {10, 0, 0, {"VerError fillTablasExportacion ()" + told}},
      {12, kFailure, 11, {}},
      {13, kFailure, 1, {}},
      {kNone, 0, 0, {}},
  };
  for (const auto& given : cases) {
    SCOPED_TRACE(given.step);
    for (const auto& connection : {office_.host->main, office_.host->reports}) {
      cIFunciones().CerrarConexion(connection);
    }
    office_.log->FailAt(given.step);
    const auto leave = [this](toolkit::Form& form) {
      office_.log->Note("shown");
      EXPECT_EQ(form.Caption(), "Exportación de datos a una hoja de Excel");
      form.UserClose();
    };
    EXPECT_EQ(given.step > 3 ? Call(leave) : Call(), given.failure);
    const std::size_t kept = given.step == kNone ? kWholeLife.size() - 3 : given.step + 1;
    Calls expected(kWholeLife.begin(), kWholeLife.begin() + static_cast<std::ptrdiff_t>(kept));
    expected.insert(expected.end(), given.behind.begin(), given.behind.end());
    if (given.failure == 0) expected.insert(expected.end(), kWholeLife.end() - 3, kWholeLife.end());
    EXPECT_THAT(office_.log->Take(), ::testing::ElementsAreArray(expected));
    EXPECT_EQ(States(), given.states);
    EXPECT_EQ(office_.toolkit.MousePointer(), 0);
  }
  EXPECT_EQ(office_.toolkit.HelpFile(), "C:\\Quinvera\\Quinvera.chm");
}

TEST_F(cPrincipalTest, OneWindowAtATimeForAHostWithASite) {
  office_.host->main->Open();
  EXPECT_EQ(Call([this](toolkit::Form& form) {
              EXPECT_EQ(Call(), kInvalidProcedureCall);
              EXPECT_EQ(States(), 11);
              form.Hide();
            }),
            0);
  EXPECT_EQ(States(), 0);
  EXPECT_EQ(Call([](toolkit::Form&) { throw RuntimeError(kInternalError, "el guion se ha roto"); }),
            kInternalError);
  EXPECT_EQ(States(), 0);
  EXPECT_THROW(principal_.PasarDatos(nullptr), RuntimeError);
  principal_.SetSite(nullptr);
  EXPECT_EQ(Call(), kObjectNotSet);
  EXPECT_EQ(States(), 0);
}

}  // namespace
}  // namespace velmar
