#include "qt/windows/TemplatesWindow.h"

#include "qt/windows/ShownWizard.h"
#include "templates/frmPlantillas.h"

namespace velmar::qt {
namespace {

using templates::frmPlantillas;

using TemplatesWindowTest = ShownWizard;

TEST_F(TemplatesWindowTest, ATemplateIsSavedAndLoaded) {
  Use([&](Window window) {
    Sort(2);
    const auto selected = std::pair(Grid(), Order());
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas&) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Salvar plantilla");
      dialog.VisitByTab();
      dialog.Type("Socios");
      dialog.Press(Qt::Key_Return);
    });
    window.Click(form->cmdExportar(Controls::kSaveTemplate));
    form->txtFiltro.Text("resto");
    window.Click(form->cmdAgregarQuitar(Controls::kTakeAll));
    EXPECT_TRUE(Grid().empty() && Order().empty());
    window.Click(form->cmdExportar(Controls::kSaveTemplate));
    EXPECT_EQ(office.Boxes().back(), "+48 ¡Deberá tener algún campo en la rejilla para salvar plantillas!");
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Cargar plantilla");
      dialog.DoubleClickRow(shown.lstPlantilla, 0);
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
    EXPECT_EQ(std::pair(Grid(), Order()), selected);
    EXPECT_EQ(form->txtFiltro.Text(), "");
    EXPECT_TRUE(Available().empty());
  });
}

}  // namespace
}  // namespace velmar::qt
