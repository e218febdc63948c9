#include "qt/windows/ValuesWindow.h"

#include <QRadioButton>

#include "qt/windows/ShownWizard.h"
#include "wizard/frmDatos.h"

namespace velmar::qt {
namespace {

using wizard::frmDatos;

class ValuesWindowTest : public ShownWizard {
 protected:
  using User = std::function<void(Window, frmDatos&)>;

  /// Opens the dialog for the second and third field, and gives what the filter has become and its caret.
  std::string Fetch(const User& user, bool byMenu = false) {
    Use([&](Window window) {
      form->txtFiltro.Text("{Año} = `valor1´");
      form->txtFiltro.UserSetCaret(9, 6);
      SelectRows(3, 2);
      UseDialog<frmDatos>("frmDatos", [&](Window dialog, frmDatos& datos) {
        EXPECT_EQ(datos.mintIDCampo, 4);
        for (const char* value : {"Ávila", "Madrid", "Soria"}) datos.lstDatos.AddItem(value);
        user(dialog, datos);
      });
      byMenu ? ChooseMenu("Ver datos del campo") : window.Click(form->cmdVerDatos);
    });
    const std::string filter = form->txtFiltro.Text() + '|' + std::to_string(form->txtFiltro.SelStart());
    form->Load();
    return filter;
  }
};

TEST_F(ValuesWindowTest, AValueIsTypedOrPickedOrLeft) {
  const char* const left = "{Año} = `valor1´|9";
  const std::pair<User, const char*> kWays[] = {
      {[](Window dialog, frmDatos&) { dialog.Press(Qt::Key_Return); }, "{Año} = `Lugo´|14"},
      {[](Window dialog, frmDatos&) { dialog.Press(Qt::Key_Escape); }, left},
      {[](Window dialog, frmDatos&) { dialog.Window().close(); }, left},
      {[](Window dialog, frmDatos& datos) {
         const auto& typed = dialog.View<QRadioButton>(datos.optDatos(frmDatos::kTyped));
         for (int i = 0; i < 2; ++i) dialog.Click(datos.optDatos(frmDatos::kPicked));
         EXPECT_FALSE(typed.isChecked());
         // Round to the first and back.
         dialog.Press(Qt::Key_Down);
         EXPECT_TRUE(typed.isChecked() && typed.hasFocus());
         dialog.Press(Qt::Key_Up);
         EXPECT_FALSE(dialog.View(datos.txtDatos).isEnabled());
         dialog.DoubleClickRow(datos.lstDatos, 1);
       },
       "{Año} = `Madrid´|16"},
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
  const auto user = [](Window dialog, frmDatos& datos) {
    const QSize before = dialog.Window().size();
    const QRect place = dialog.View(datos.lstDatos).geometry();
    datos.prgDatos.Visible(true);
    datos.lblDatos(frmDatos::kPicked).Visible(false);
    datos.lstDatos.Visible(false);
    dialog.Settle();
    EXPECT_TRUE(place.contains(dialog.View(datos.prgDatos).geometry()));
    EXPECT_EQ(dialog.Window().size(), before);
    datos.txtDatos.Text("x");
    dialog.Press(Qt::Key_Return);
  };
  EXPECT_EQ(Fetch(user, true), "{Año} = `x´|11");
}

}  // namespace
}  // namespace velmar::qt
