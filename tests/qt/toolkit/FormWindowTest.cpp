#include "qt/toolkit/FormWindow.h"

#include <QLineEdit>
#include <QScreen>

#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAre;

using testing::Robot;
using testing::TestForm;
using testing::TestWindow;

class FormWindows : public testing::QtFixture {};

TEST_F(FormWindows, ShowTheFormInTheMiddleOfTheScreenUntilItIsClosedByItsFrame) {
  user.InWindow("frmUno", [&](QWidget& window) {
    EXPECT_EQ(window.windowTitle().toStdString(), "Ventana frmUno");
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_FALSE(window.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    const QPoint offset = window.geometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(offset.manhattanLength(), 60);
    form->Caption("Otra");
    EXPECT_EQ(window.windowTitle().toStdString(), "Otra");
    form->keepsOpen = true;
    window.close();
    EXPECT_TRUE(window.isVisible());
    form->keepsOpen = false;
    window.close();
    EXPECT_FALSE(window.isVisible());
  });
  form->Show();
  EXPECT_THAT(form->diary, ElementsAre("load", "activate", "unload", "unload"));
  EXPECT_FALSE(form->Loaded());
}

TEST_F(FormWindows, PassTheKeysToTheControls) {
  user.InWindow("frmUno", [&](QWidget& window) {
    const auto focused = [&] { return form->Scope().ActiveControl()->Name(); };
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
      QTest::keyClick(QApplication::focusWidget(), key, with);
    };
    EXPECT_EQ(focused(), "txtDatos");
    EXPECT_EQ(QApplication::focusWidget(), window.findChild<QLineEdit*>());
    press(Qt::Key_Return);
    EXPECT_EQ(form->diary.back(), "accept");
    EXPECT_EQ(focused(), "txtDatos");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "cmdAceptar");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "cmdSalir");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "txtDatos");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "cmdSalir");
    EXPECT_EQ(dynamic_cast<QPushButton&>(*QApplication::focusWidget()).text().toStdString(), "Salir");
    form->Scope().UserTab();
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->Visible());
  });
  form->Show();
  EXPECT_EQ(form->diary.back(), "unload");
}

TEST_F(FormWindows, TakeNoInputWhileTheFormIsDisabled) {
  user.InWindow("frmUno", [&](QWidget& window) {
    form->Enabled(false);
    QTest::keyClick(window.focusWidget(), Qt::Key_A);
    EXPECT_EQ(window.findChild<QLineEdit*>()->text(), "");
    Robot::Press(window, "Aceptar");
    QTest::keyClick(&window, Qt::Key_Escape);
    window.close();
    EXPECT_THAT(form->diary, ElementsAre("load", "activate"));
    form->Enabled(true);
    QTest::keyClick(window.focusWidget(), Qt::Key_A);
    EXPECT_EQ(window.findChild<QLineEdit*>()->text(), "a");
    Robot::Press(window, "Salir");
  });
  form->Show();
}

TEST_F(FormWindows, PaintAtOnceWhenAskedTo) {
  user.InWindow("frmUno", [&](QWidget& window) {
    const auto& shown = dynamic_cast<TestWindow&>(window);
    const int before = shown.paints;
    form->Refresh();
    EXPECT_EQ(shown.paints, before + 1);
    form->Unload();
  });
  form->Show();
}

TEST_F(FormWindows, StandOverOneAnother) {
  auto inner = toolkit::MakeForm<TestForm>(toolkit, "frmDos");
  form->cmdAceptar.Click = [&] {
    inner->Show();
    form->diary.push_back("inner closed");
  };
  user.InWindow("frmUno", [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  user.InWindow("frmDos", [&](QWidget& window) {
    ASSERT_NE(window.parentWidget(), nullptr);
    EXPECT_EQ(window.parentWidget()->objectName(), "frmUno");
    EXPECT_FALSE(form->cmdSalir.UserClick());
    Robot::Press(window, "Salir");
  });
  user.InWindow("frmUno", [&](QWidget& window) {
    EXPECT_EQ(form->diary.back(), "inner closed");
    // An inner form can take the outer one along.
    inner->cmdAceptar.Click = [&] {
      form->Unload();
      inner->Unload();
    };
    Robot::Press(window, "Aceptar");
  });
  user.InWindow("frmDos", [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  form->Show();
  EXPECT_THAT(form->diary, ElementsAre("load", "activate", "inner closed", "unload", "inner closed"));
  EXPECT_EQ(toolkit.ActiveForm(), nullptr);
}

}  // namespace
}  // namespace velmar::qt
