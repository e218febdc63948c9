#include "qt/windows/ValuesWindow.h"

#include <gmock/gmock.h>

#include "qt/windows/ShownWizard.h"
#include "wizard/frmDatos.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAre;
using wizard::frmDatos;

class ValuesWindowTest : public ShownWizard {
 protected:
  /// Opens the dialog for the first field with its button, and gives what comes back into the filter.
  std::string Fetch(const std::function<void(Window, frmDatos&)>& user) {
    Use([&](Window window) {
      if (Literals().empty()) AddAll(window);
      window.ClickRow(form->msgSeleccionados, 0);
      UseDialog<frmDatos>("frmDatos", [&](Window dialog, frmDatos& datos) {
        for (const char* value : {"Ávila", "Madrid", "Soria"}) datos.lstDatos.AddItem(value);
        user(dialog, datos);
      });
      window.Click(form->cmdVerDatos);
    });
    form->Load();
    return form->txtFiltro.Text();
  }
};

TEST_F(ValuesWindowTest, AValueIsTyped) {
  const std::string value = Fetch([&](Window dialog, frmDatos& datos) {
    EXPECT_EQ(QApplication::focusWidget(), &dialog.View(datos.optDatos(frmDatos::kTyped)));
    EXPECT_FALSE(dialog.View(datos.lstDatos).isEnabled());
    dialog.Press(Qt::Key_Tab);
    dialog.Type("Lugo");
    dialog.Press(Qt::Key_Return);
    EXPECT_FALSE(datos.Visible());
  });
  EXPECT_EQ(value, "Lugo");
}

TEST_F(ValuesWindowTest, AValueIsPickedByDoubleClick) {
  const std::string value = Fetch([&](Window dialog, frmDatos& datos) {
    dialog.Mark(datos.optDatos(frmDatos::kPicked));
    EXPECT_TRUE(dialog.View(datos.lstDatos).isEnabled());
    EXPECT_FALSE(dialog.View(datos.txtDatos).isEnabled());
    office.toolkit.ClearRecords();
    dialog.Click(datos.cmdDatos(frmDatos::kAccept));
    EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la lista!"));
    dialog.DoubleClickRow(datos.lstDatos, 1);
    EXPECT_FALSE(datos.Visible());
  });
  EXPECT_EQ(value, "Madrid");
}

TEST_F(ValuesWindowTest, EscTheCloseBoxAndTheButtonLeaveWithoutAValue) {
  const std::function<void(Window, frmDatos&)> kWays[] = {
      [](Window dialog, frmDatos&) { dialog.Press(Qt::Key_Escape); },
      [](Window dialog, frmDatos&) { dialog.Window().close(); },
      [](Window dialog, frmDatos& datos) { dialog.Click(datos.cmdDatos(frmDatos::kCancel)); }};
  for (const auto& leave : kWays) {
    const std::string value = Fetch([&](Window dialog, frmDatos& datos) {
      dialog.Press(Qt::Key_Tab);
      dialog.Type("Lugo");
      leave(dialog, datos);
      EXPECT_FALSE(datos.Visible());
    });
    EXPECT_EQ(value, "");
  }
}

TEST_F(ValuesWindowTest, TheProgressTakesThePlaceOfTheList) {
  Fetch([&](Window dialog, frmDatos& datos) {
    const QSize before = dialog.Window().size();
    QWidget& list = dialog.View(datos.lstDatos);
    QWidget& bar = dialog.View(datos.prgDatos);
    const QRect place = list.geometry();
    EXPECT_FALSE(bar.isVisible());
    datos.prgDatos.Visible(true);
    datos.lblDatos(frmDatos::kPicked).Visible(false);
    datos.lstDatos.Visible(false);
    dialog.Settle();
    EXPECT_TRUE(place.contains(bar.geometry()));
    EXPECT_EQ(dialog.Window().size(), before);
    datos.lstDatos.Visible(true);
    dialog.Settle();
    EXPECT_EQ(list.geometry(), place) << "the layout is as it was";
    dialog.Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace velmar::qt
