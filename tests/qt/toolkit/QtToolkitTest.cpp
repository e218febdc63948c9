#include "qt/toolkit/QtToolkit.h"

#include <QCursor>
#include <QMenu>

#include "platform/controls/Menu.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using testing::Robot;

class QtToolkits : public testing::QtFixture {
 protected:
  void Help(const std::string& name) {
    user.InWindow(name, [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_F1); });
  }
  /// The user reads what a box says, and answers with Enter.
  void Read(const std::string& text, const std::function<void(MessageBox&)>& meanwhile = nullptr) {
    const auto isIt = [text](QWidget& window) {
      const auto* box = dynamic_cast<MessageBox*>(&window);
      return box != nullptr && box->text().toStdString().find(text) != std::string::npos;
    };
    user.When(text, isIt, [meanwhile](QWidget& box) {
      if (meanwhile) meanwhile(dynamic_cast<MessageBox&>(box));
      QTest::keyClick(&box, Qt::Key_Return);
    });
  }
};

TEST_F(QtToolkits, TimersAndUserEventsComeInsideDoEventsAlsoBehindABox) {
  int fired = 0;
  form->timer.Elapsed = [&] { ++fired; };
  form->timer.Interval(2);
  form->button.Click = [&] {
    form->timer.Enabled(true);
    while (fired < 3) toolkit.DoEvents();
    bool asked = false;
    QTimer::singleShot(0, [&] {
      toolkit.MsgBox("¿Desea seguir?", 36, "Gestión");
      asked = true;
    });
    while (!asked) toolkit.DoEvents();
    Close("frmUno");
    while (form->Visible()) toolkit.DoEvents();
  };
  Accept("frmUno");
  Read("¿Desea seguir?", [&](MessageBox&) {
    const int before = fired;
    EXPECT_TRUE(QTest::qWaitFor([&] { return fired > before + 2; }, 20000));
  });
  form->Show();
}

TEST_F(QtToolkits, FailuresOfEventsAreToldAndTheWindowStays) {
  form->button.Click = [] { throw RuntimeError(kFileNotFound, "No se encuentra el archivo.", "prueba"); };
  form->timer.Elapsed = [] { throw std::runtime_error("tick"); };
  form->Caption("Ventana");
  ::testing::internal::CaptureStderr();
  Accept("frmUno");
  bool reading = true;
  Read("No se encuentra el archivo.", [&](MessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Ventana");
    form->timer.Interval(1);
    form->timer.Enabled(true);
    QTest::qWait(20);
    reading = false;
  });
  Read("tick", [&](MessageBox&) {
    EXPECT_FALSE(reading) << "no box over the other";
    form->timer.Enabled(false);
  });
  Close("frmUno");
  form->Show();
  EXPECT_THAT(::testing::internal::GetCapturedStderr(),
              ::testing::HasSubstr("Error 53: No se encuentra el archivo. (prueba)"));
}

TEST_F(QtToolkits, AMenuRunsTheEntryThatIsChosenWithTheHourglassPutAside) {
  const auto waits = [] { return QApplication::overrideCursor() != nullptr; };
  std::string chosen;
  controls::Menu menu("mnuEmergente");
  for (const char* caption : {"Ver datos del campo", "-", "Agregar al 'orden'", "Ver filtro"}) {
    menu.Add({caption, caption, [&chosen, caption] { chosen += caption; }});
  }
  const auto isMenu = [](QWidget& window) { return window.objectName() == "mnuEmergente"; };
  user.When("the menu", isMenu, [&](QWidget& popup) {
    EXPECT_FALSE(waits());
    EXPECT_TRUE(popup.actions()[1]->isSeparator());
    const QRect entry = dynamic_cast<QMenu&>(popup).actionGeometry(popup.actions()[2]);
    QTest::mouseClick(&popup, Qt::LeftButton, {}, entry.center());
  });
  for (int i = 0; i < 2; ++i) toolkit.MousePointer(11);
  toolkit.PopupMenu(menu);
  EXPECT_TRUE(waits());
  toolkit.MousePointer(0);
  EXPECT_FALSE(waits());
  user.When("the menu", isMenu, [](QWidget& popup) { QTest::keyClick(&popup, Qt::Key_Escape); });
  toolkit.PopupMenu(menu);
  EXPECT_EQ(chosen, "Agregar al 'orden'");
}

TEST_F(QtToolkits, AMenuOpensInTheWindowAndClosesWithIt) {
  controls::Menu menu("mnuEmergente");
  menu.Add({"mnuUno", "Uno", [] { ADD_FAILURE() << "nobody has chosen it"; }});
  form->button.Click = [&] { form->PopupMenu(menu); };
  QRect place;
  user.InWindow("frmUno", [&](QWidget& window) {
    QWidget& button = *window.findChild<QPushButton*>();
    button.setFocus();
    place = {button.mapToGlobal(QPoint(0, 0)), button.size()};
    QCursor::setPos(window.mapToGlobal(QPoint(-200, -200)));
    QTest::keyClick(&button, Qt::Key_Space);
  });
  user.When(
      "the menu", [](QWidget& window) { return window.objectName() == "mnuEmergente"; },
      [&](QWidget& popup) {
        EXPECT_TRUE(place.contains(popup.pos())) << "not at the mouse, which is elsewhere";
        // What a task bar does: the window itself takes no input while the menu is open.
        form->UserClose();
      });
  form->Show();
}

TEST_F(QtToolkits, HelpOpensBesideTheInnermostWindowOrIsSaidToBeMissing) {
  std::string asked;
  toolkit.HelpFile("ayuda.chm");
  form->HelpContextID(138);
  inner->HelpContextID(7);
  form->button.Click = [&] { inner->Show(); };
  const auto isHelp = [](QWidget& window) { return window.objectName() == "ayuda" && window.isVisible(); };

  Help("frmUno");
  Read("tema 138 de ayuda.chm", [&](MessageBox&) {
    toolkit.Help([&](const std::string& file, long topic) {
      asked += file + ' ' + std::to_string(topic) + ' ';
      return std::optional<QString>("<h1>Ayuda</h1>");
    });
  });
  Help("frmUno");
  // The window behind the help can be used meanwhile.
  user.When("help", isHelp, [](QWidget& help) { Robot::Press(*help.parentWidget(), "Aceptar"); });
  Help("frmDos");
  user.When("help of the inner window", isHelp, [](QWidget& help) {
    EXPECT_EQ(help.parentWidget()->objectName(), "frmDos");
    Robot::Press(help, "Cerrar");
    EXPECT_FALSE(help.isVisible());
  });
  Close("frmDos");
  Close("frmUno");
  form->Show();
  EXPECT_EQ(asked, "ayuda.chm 138 ayuda.chm 7 ");
}

}  // namespace
}  // namespace velmar::qt
