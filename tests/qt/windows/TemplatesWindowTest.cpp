#include "qt/windows/TemplatesWindow.h"

#include <gmock/gmock.h>

#include "qt/windows/ShownWizard.h"
#include "templates/frmPlantillas.h"

namespace velmar::qt {
namespace {

using templates::frmPlantillas;

class TemplatesWindowTest : public ShownWizard {
 protected:
  TemplatesWindowTest() {
    office.host->main->Execute(
        "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
        "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
  }
};

TEST_F(TemplatesWindowTest, ATemplateIsSavedLoadedAndDeleted) {
  Use([&](Window window) {
    const auto selected = Grid();
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Salvar plantilla");
      dialog.VisitByTab();
      dialog.Type("Socios");
      dialog.Press(Qt::Key_Return);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kSaveTemplate));
    window.Click(form->cmdAgregarQuitar(Controls::kTakeAll));
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Cargar plantilla");
      dialog.DoubleClickRow(shown.lstPlantilla, 0);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
    EXPECT_EQ(Grid(), selected);
    office.toolkit.Answer(toolkit::kYes, "Se dispone a eliminar la plantilla 'Socios'");
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      dialog.ClickRow(shown.lstPlantilla, 0);
      dialog.Click(shown.cmdPlantilla(frmPlantillas::kDelete));
      EXPECT_EQ(shown.lstPlantilla.ListCount(), 0);
      dialog.Press(Qt::Key_Escape);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
  });
}

}  // namespace
}  // namespace velmar::qt
