#include "wizard/frmExportacion.h"

#include <gmock/gmock.h>

#include "platform/ado/Connection.h"
#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using Kind = toolkit::Record::Kind;

class frmExportacionTest : public testing::OpenWizard {
 protected:
  using Action = std::function<bool()>;

  bool Click(int button) { return form->cmdExportar(button).UserClick(); }
  void Compose() {
    Add(kCol, {"ciudad", "Nombre"});
    Sort(1);
    form->txtFiltro.Text("filtro");
  }
  /// All that the user's actions could change.
  auto Shown() const {
    return std::tuple(Grid(), Order(), Available(), form->cboExportar.Text(), form->txtFiltro.Text());
  }
  /// One of each kind, but for leaving.
  std::vector<Action> Actions() {
    std::vector<Action> actions = {
        [this] { return form->lstDisponibles.UserDoubleClick(0); },
        [this] { return form->msgSeleccionados.UserDoubleClick(); },
        [this] { return form->lstOperadores.UserDoubleClick(0); },
        [this] { return form->msgSeleccionados.UserMouseUp(2, 0, 0, 0); },
        [this] { return form->cboExportar.UserChoose(form->cboExportar.FindStringExact(kRec)); },
    };
    form->ForEachControl([&](controls::Control& control) {
      auto* button = dynamic_cast<controls::CommandButton*>(&control);
      if (button != nullptr && !button->Cancel()) actions.push_back([=] { return button->UserClick(); });
    });
    return actions;
  }
  void ExpectBeeps(const std::vector<Action>& actions) {
    for (const auto& action : actions) {
      SCOPED_TRACE(&action - actions.data());
      office.toolkit.ClearRecords();
      EXPECT_TRUE(action());
      ASSERT_EQ(office.toolkit.Records().size(), 1U);
      EXPECT_EQ(office.toolkit.Records()[0].kind, Kind::kBeep);
    }
  }
};

TEST_F(frmExportacionTest, ExportsOnlyAValidSelectionWithTheHourglassWhateverBecomesOfIt) {
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_THAT(office.Boxes(),
              ElementsAre("+48 ¡Debe existir por lo menos un campo en la rejilla para poder exportar!"));
  EXPECT_EQ(runner->runs, 0);
  Add(kCol, {"Nombre"});
  runner->during = [this] { EXPECT_EQ(office.toolkit.MousePointer(), 11); };
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_EQ(runner->runs, 1);
  EXPECT_EQ(office.toolkit.MousePointer(), 0);
  runner->during = [] { throw RuntimeError(kDiskFull, "disco lleno"); };
  EXPECT_THROW(Click(Controls::kExport), RuntimeError);
  EXPECT_EQ(office.toolkit.MousePointer(), 0);
}

TEST_F(frmExportacionTest, AsksForAWorkbooksName) {
  const controls::CommonDialog& dialog = form->dlgExportar;
  EXPECT_EQ(dialog.DialogTitle(), "Indique el nombre del archivo para la exportación");
  EXPECT_EQ(dialog.Filter(), "Archivos de Excel |*.xls|");
  EXPECT_EQ(dialog.DefaultExt(), "xls");
  EXPECT_EQ(dialog.InitDir(), "C:\\");
  EXPECT_TRUE(dialog.CancelError());
}

TEST_F(frmExportacionTest, DuringAnExportActionsOnlyBeep) {
  Compose();
  const auto before = Shown();
  runner->during = [&] {
    ExpectBeeps(Actions());
    form->tmrExportacion.Load(3).Fire();
    form->tmrExportacion(0).Fire();
  };
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_THAT(runner->fired, ElementsAre(3, 0));
  EXPECT_EQ(Shown(), before);
  ChooseNode(kRec);
  EXPECT_NE(Shown(), before) << "afterwards all goes on";
}

TEST_F(frmExportacionTest, WhileTheSelectionIsTestedActionsAndLeavingOnlyBeep) {
  Compose();
  const auto before = Shown();
  auto actions = Actions();
  actions.push_back([this] { return Click(Controls::kLeave); });
  actions.push_back([this] { return form->Scope().UserEscape(); });
  actions.push_back([this] {
    form->Unload();  // what the close box does
    return form->Loaded();
  });
  office.toolkit.Loop().Post([&] {
    ExpectBeeps(actions);
    EXPECT_EQ(runner->runs, 0);
  });
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_EQ(runner->runs, 1);
  EXPECT_EQ(Shown(), before);

  office.toolkit.Loop().Post([] { throw RuntimeError(kDiskFull, "disco lleno"); });
  EXPECT_THROW(Click(Controls::kExport), RuntimeError);
  EXPECT_TRUE(Click(Controls::kLeave));
  EXPECT_FALSE(form->Loaded()) << "however the test has ended";
}

TEST_F(frmExportacionTest, LeavingDuringAnExportAsksWhetherToCancelIt) {
  Add(kCol, {"Nombre"});
  const std::string question = "+36 ¿Desea cancelar la exportación en curso?";
  for (const auto answer : {toolkit::kNo, toolkit::kYes}) {
    runner->during = [&] {
      for (int i = 0; i < 3; ++i) office.toolkit.Answer(answer);
      EXPECT_TRUE(Click(Controls::kLeave));
      form->Unload();  // what the close box does
      EXPECT_TRUE(form->Scope().UserEscape());
    };
    EXPECT_TRUE(Click(Controls::kExport));
    EXPECT_EQ(runner->cancelled, answer == toolkit::kYes);
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question, question));
    EXPECT_EQ(office.host->main->State(), ADODB::kStateOpen);
  }
}

}  // namespace
}  // namespace velmar::wizard
