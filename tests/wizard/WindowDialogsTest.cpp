#include <gmock/gmock.h>

#include "platform/ado/Connection.h"
#include "templates/TemplateStore.h"
#include "templates/frmPlantillas.h"
#include "wizard/OpenWizard.h"
#include "wizard/frmDatos.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kCol = testing::WizardOffice::kCol;
constexpr const char* kRec = testing::WizardOffice::kRec;

/// The dialogs over the wizard's window, opened from its buttons and its menu.
class WindowDialogsTest : public testing::OpenWizard {
 protected:
  WindowDialogsTest() {
    office.host->main->Execute(
        "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
        "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
  }

  void Type(const std::string& value) {
    office.toolkit.WhenShown("frmDatos", [value](toolkit::Form& shown) {
      auto& dialog = dynamic_cast<frmDatos&>(shown);
      dialog.txtDatos.Text(value);
      EXPECT_TRUE(dialog.cmdDatos(frmDatos::kAccept).UserClick());
    });
  }
  void UseTemplates(const std::string& name) {
    office.toolkit.WhenShown("frmPlantillas", [name](toolkit::Form& shown) {
      auto& dialog = dynamic_cast<templates::frmPlantillas&>(shown);
      const long item = dialog.lstPlantilla.FindStringExact(name);
      if (item >= 0) dialog.lstPlantilla.UserClick(item);
      dialog.txtPlantilla.Text(name);
      EXPECT_TRUE(dialog.cmdPlantilla(templates::frmPlantillas::kAccept).UserClick());
    });
  }
};

TEST_F(WindowDialogsTest, FetchedValueReplacesTheSelection) {
  EXPECT_TRUE(form->cmdVerDatos.UserClick());  // without a field, no dialog shows
  Add(kCol, {"Nombre"});
  form->txtFiltro.Text("{Año} = `valor1´ Y x");
  form->txtFiltro.SelStart(9);
  form->txtFiltro.SelLength(6);
  Type("Núñez");
  EXPECT_TRUE(form->cmdVerDatos.UserClick());
  EXPECT_EQ(form->txtFiltro.Text(), "{Año} = `Núñez´ Y x");
  EXPECT_EQ(form->txtFiltro.SelStart(), 19);
  Type("");
  ChooseMenu("Ver datos del campo");
  EXPECT_EQ(form->txtFiltro.Text(), "{Año} = `Núñez´ Y x");
  form->txtFiltro.SelStart(1);
  Type("·");
  ChooseMenu("Ver datos del campo");
  EXPECT_EQ(form->txtFiltro.Text(), "{·Año} = `Núñez´ Y x");
}

TEST_F(WindowDialogsTest, EachUseIsForTheCurrentRowAndStartsAfresh) {
  Add(kCol, {"Nombre", "Apellidos", "ciudad"});
  SelectRows(3, 2);
  const long field = form->msgSeleccionados.RowData(form->msgSeleccionados.Row());
  for (int use = 0; use < 2; ++use) {
    bool shown = false;
    office.toolkit.WhenShown("frmDatos", [&](toolkit::Form& window) {
      shown = true;
      auto& dialog = dynamic_cast<frmDatos&>(window);
      EXPECT_EQ(dialog.mintIDCampo, field);
      EXPECT_TRUE(dialog.optDatos(frmDatos::kTyped).Value());
      EXPECT_EQ(dialog.txtDatos.Text(), "");
      EXPECT_EQ(dialog.mstrValorCampoElegido, "");
      dialog.txtDatos.Text("valor");
      EXPECT_TRUE(dialog.optDatos(frmDatos::kPicked).UserClick());
      EXPECT_TRUE(dialog.cmdDatos(frmDatos::kCancel).UserClick());
    });
    EXPECT_TRUE(form->cmdVerDatos.UserClick());
    EXPECT_TRUE(shown);
  }
  EXPECT_EQ(form->txtFiltro.Text(), "");
}

TEST_F(WindowDialogsTest, TemplateIsSavedAndComesBack) {
  EXPECT_TRUE(form->cmdExportar(Controls::kSaveTemplate).UserClick());
  EXPECT_THAT(office.Boxes(),
              ElementsAre("+48 ¡Deberá tener algún campo en la rejilla para salvar plantillas!"));
  Add(kRec, {"Importe"});
  Add(kCol, {"Nombre"});
  ChooseMenu("Agregar al 'orden'");
  const auto grid = Grid();
  const auto order = Order();
  UseTemplates("Mensual");
  EXPECT_TRUE(form->cmdExportar(Controls::kSaveTemplate).UserClick());
  EXPECT_TRUE(form->cmdAgregarQuitar(Controls::kTakeAll).UserClick());
  EXPECT_THAT(Grid(), IsEmpty());
  form->txtFiltro.Text("resto");
  UseTemplates("Mensual");
  EXPECT_TRUE(form->cmdExportar(Controls::kLoadTemplate).UserClick());
  EXPECT_EQ(Grid(), grid);
  EXPECT_EQ(Order(), order);
  EXPECT_EQ(form->txtFiltro.Text(), "");
  EXPECT_THAT(Available(), ::testing::Not(::testing::Contains("Nombre=1")));
}

}  // namespace
}  // namespace velmar::wizard
