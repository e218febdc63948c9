#include "qt/windows/ValuesWindow.h"

#include "qt/windows/ShownWizard.h"
#include "wizard/frmDatos.h"

namespace velmar::qt {
namespace {

using wizard::frmDatos;

class ValuesWindowTest : public ShownWizard {
 protected:
  using User = std::function<void(Window, frmDatos&)>;

  /// Opens the dialog for the first field with its button, and gives what comes back into the filter.
  std::string Fetch(const User& user) {
    Use([&](Window window) {
      form->txtFiltro.Text("");
      window.ClickRow(form->msgSeleccionados, 0);
      UseDialog<frmDatos>("frmDatos", [&](Window dialog, frmDatos& datos) {
        for (const char* value : {"Ávila", "Madrid", "Soria"}) datos.lstDatos.AddItem(value);
        user(dialog, datos);
        EXPECT_FALSE(datos.Visible());
      });
      window.Click(form->cmdVerDatos);
    });
    form->Load();
    return form->txtFiltro.Text();
  }
};

TEST_F(ValuesWindowTest, AValueIsTypedOrPickedOrLeft) {
  const std::pair<User, const char*> kWays[] = {
      {[](Window dialog, frmDatos&) { dialog.Press(Qt::Key_Return); }, "Lugo"},
      {[](Window dialog, frmDatos&) { dialog.Press(Qt::Key_Escape); }, ""},
      {[](Window dialog, frmDatos&) { dialog.Window().close(); }, ""},
      {[](Window dialog, frmDatos& datos) { dialog.Click(datos.cmdDatos(frmDatos::kCancel)); }, ""},
      {[](Window dialog, frmDatos& datos) {
         dialog.Click(datos.optDatos(frmDatos::kPicked));
         EXPECT_FALSE(dialog.View(datos.txtDatos).isEnabled());
         dialog.DoubleClickRow(datos.lstDatos, 1);
       },
       "Madrid"},
  };
  for (const auto& [leave, value] : kWays) {
    const auto user = [&leave = leave](Window dialog, frmDatos& datos) {
      EXPECT_FALSE(dialog.View(datos.lstDatos).isEnabled());
      dialog.VisitByTab();
      dialog.Press(Qt::Key_Tab);
      dialog.Type("Lugo");
      leave(dialog, datos);
    };
    EXPECT_EQ(Fetch(user), value);
  }
}

TEST_F(ValuesWindowTest, TheProgressTakesThePlaceOfTheList) {
  Fetch([&](Window dialog, frmDatos& datos) {
    const QSize before = dialog.Window().size();
    const QRect place = dialog.View(datos.lstDatos).geometry();
    datos.prgDatos.Visible(true);
    datos.lblDatos(frmDatos::kPicked).Visible(false);
    datos.lstDatos.Visible(false);
    dialog.Settle();
    EXPECT_TRUE(place.contains(dialog.View(datos.prgDatos).geometry()));
    EXPECT_EQ(dialog.Window().size(), before);
    dialog.Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace velmar::qt
