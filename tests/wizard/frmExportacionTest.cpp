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
  bool Click(int button) { return form->cmdExportar(button).UserClick(); }
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

TEST_F(frmExportacionTest, DuringAnExportActionsOnlyBeep) {
  Add(kCol, {"ciudad", "Nombre"});
  Sort(1);
  form->txtFiltro.Text("filtro");
  const auto shown = [&] {
    return std::tuple(Grid(), Order(), Available(), form->cboExportar.Text(), form->txtFiltro.Text());
  };
  const auto before = shown();
  runner->during = [&] {
    std::vector<std::function<bool()>> actions = {
        [&] { return form->lstDisponibles.UserDoubleClick(0); },
        [&] { return form->msgSeleccionados.UserDoubleClick(); },
        [&] { return form->lstOperadores.UserDoubleClick(0); },
        [&] { return form->msgSeleccionados.UserMouseUp(2, 0, 0, 0); },
        [&] { return form->cboExportar.UserChoose(form->cboExportar.FindStringExact(kRec)); },
    };
    form->ForEachControl([&](controls::Control& control) {
      auto* button = dynamic_cast<controls::CommandButton*>(&control);
      if (button != nullptr && !button->Cancel()) actions.push_back([=] { return button->UserClick(); });
    });
    for (const auto& action : actions) {
      SCOPED_TRACE(&action - actions.data());
      office.toolkit.ClearRecords();
      EXPECT_TRUE(action());
      ASSERT_EQ(office.toolkit.Records().size(), 1U);
      EXPECT_EQ(office.toolkit.Records()[0].kind, Kind::kBeep);
    }
    form->tmrExportacion.Load(3).Fire();
    form->tmrExportacion(0).Fire();
  };
  EXPECT_TRUE(Click(Controls::kExport));
  EXPECT_THAT(runner->fired, ElementsAre(3, 0));
  EXPECT_EQ(shown(), before);
  ChooseNode(kRec);
  EXPECT_NE(shown(), before) << "afterwards all goes on";
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
