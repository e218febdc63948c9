#include "qt/windows/TemplatesWindow.h"

#include <gmock/gmock.h>

#include "qt/windows/ShownWizard.h"
#include "templates/frmPlantillas.h"

namespace velmar::qt {
namespace {

using templates::frmPlantillas;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
    AddAll(window);
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Salvar plantilla");
      EXPECT_EQ(QApplication::focusWidget(), &dialog.View(shown.txtPlantilla));
      dialog.Type("Socios");
      dialog.Press(Qt::Key_Return);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kSaveTemplate));
    window.Click(form->cmdAgregarQuitar(Controls::kTakeAll));
    EXPECT_THAT(Literals(), IsEmpty());

    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      EXPECT_EQ(dialog.Window().windowTitle(), "Asistente de plantillas: Cargar plantilla");
      dialog.ClickRow(shown.lstPlantilla, 0);
      EXPECT_EQ(shown.txtPlantilla.Text(), "Socios");
      dialog.DoubleClickRow(shown.lstPlantilla, 0);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "Árbol", "ciudad", "Nombre"));

    office.toolkit.ClearRecords();
    office.toolkit.Answer(toolkit::kYes, "Se dispone a eliminar la plantilla 'Socios'");
    UseDialog<frmPlantillas>("frmPlantillas", [this](Window dialog, frmPlantillas& shown) {
      dialog.ClickRow(shown.lstPlantilla, 0);
      dialog.Click(shown.cmdPlantilla(frmPlantillas::kDelete));
      EXPECT_THAT(Texts(shown.lstPlantilla), IsEmpty());
      EXPECT_EQ(shown.txtPlantilla.Text(), "");
      dialog.Press(Qt::Key_Escape);
      EXPECT_FALSE(shown.Visible());
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
    EXPECT_EQ(office.Boxes().size(), 1U);
  });
}

TEST_F(TemplatesWindowTest, TheTabKeyVisitsTheControlsInTheirOrder) {
  Use([&](Window window) {
    UseDialog<frmPlantillas>("frmPlantillas", [](Window dialog, frmPlantillas& shown) {
      const controls::Control* const kOrder[] = {
          &shown.txtPlantilla, &shown.lstPlantilla, &shown.cmdPlantilla(frmPlantillas::kDelete),
          &shown.cmdPlantilla(frmPlantillas::kAccept), &shown.cmdPlantilla(frmPlantillas::kCancel)};
      for (const controls::Control* control : kOrder) {
        EXPECT_EQ(QApplication::focusWidget(), &dialog.View(*control)) << control->Name();
        dialog.Press(Qt::Key_Tab);
      }
      dialog.Press(Qt::Key_Escape);
    });
    window.Click(form->cmdExportar(Controls::kLoadTemplate));
  });
}

}  // namespace
}  // namespace velmar::qt
