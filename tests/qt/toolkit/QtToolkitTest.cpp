#include "qt/toolkit/QtToolkit.h"

#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTextBrowser>

#include "platform/controls/Menu.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "qt/toolkit/HelpWindow.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using ::testing::HasSubstr;

using testing::Robot;
using testing::TestForm;

class QtToolkits : public testing::QtFixture {
 protected:
  /// Opens the form, has the user do one thing in it, and closes it.
  void InForm(const std::function<void(QWidget& window)>& action) {
    user.InWindow("frmUno", action);
    user.InWindow("frmUno", [](QWidget& window) { window.close(); });
    form->Show();
  }
};

TEST_F(QtToolkits, TimersFireWhileQtsLoopRuns) {
  int fired = 0;
  form->tmrReloj.Elapsed = [&] {
    if (++fired == 3) form->Unload();
  };
  form->tmrReloj.Interval(5);
  form->tmrReloj.Enabled(true);
  form->Show();
  EXPECT_EQ(fired, 3);
}

TEST_F(QtToolkits, TimersAndUserEventsComeInsideDoEvents) {
  int fired = 0;
  form->tmrReloj.Elapsed = [&] { ++fired; };
  form->tmrReloj.Interval(5);
  int accepted = 0;
  form->cmdAceptar.Click = [&] {
    if (++accepted > 1) return;
    form->tmrReloj.Enabled(true);
    // The second click waits in Qt's queue until the busy routine gives the loop a turn.
    QPointer<QWidget> window = QApplication::activeModalWidget();
    QTimer::singleShot(0, window, [window] { Robot::Press(*window, "Aceptar"); });
    while (accepted < 2 || fired < 3) toolkit.DoEvents();
    form->tmrReloj.Enabled(false);
  };
  InForm([](QWidget& window) { Robot::Press(window, "Aceptar"); });
  EXPECT_EQ(accepted, 2);
  EXPECT_GE(fired, 3);
}

TEST_F(QtToolkits, AWindowThatIsClosedInsideDoEventsEndsWithItsRoutine) {
  bool finished = false;
  form->cmdAceptar.Click = [&] {
    QPointer<QWidget> window = QApplication::activeModalWidget();
    QTimer::singleShot(0, window, [window] { window->close(); });
    while (form->Visible()) toolkit.DoEvents();
    finished = true;
  };
  user.InWindow("frmUno", [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  form->Show();
  EXPECT_TRUE(finished);
}

TEST_F(QtToolkits, TimersGoOnWhileABoxShowsInsideDoEvents) {
  int fired = 0;
  form->tmrReloj.Elapsed = [&] { ++fired; };
  form->tmrReloj.Interval(2);
  toolkit::MsgBoxResult answer = toolkit::kOk;
  form->cmdAceptar.Click = [&] {
    form->tmrReloj.Enabled(true);
    bool asked = false;
    toolkit.Loop().Post([&] {
      answer = toolkit.MsgBox("¿Desea seguir?", 36, "Gestión");
      asked = true;
    });
    while (!asked) toolkit.DoEvents();
    form->tmrReloj.Enabled(false);
  };
  user.InWindow("frmUno", [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  user.InModal<MessageBox>("the box", [&](MessageBox& box) {
    const int before = fired;
    ASSERT_TRUE(QTest::qWaitFor([&] { return fired > before + 2; }, 20000));
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  user.InWindow("frmUno", [](QWidget& window) { window.close(); });
  form->Show();
  EXPECT_EQ(answer, toolkit::kNo);
}

TEST_F(QtToolkits, FailuresOfEventsAreToldAndTheWindowStays) {
  form->cmdAceptar.Click = [] { throw RuntimeError(kFileNotFound, "No se encuentra el archivo.", "prueba"); };
  form->tmrReloj.Elapsed = [] { throw std::runtime_error("tick"); };
  ::testing::internal::CaptureStderr();
  user.InWindow("frmUno", [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  user.InModal<MessageBox>("the click's failure", [](MessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(box.windowTitle().toStdString(), "Ventana frmUno");
    EXPECT_THAT(box.text().toStdString(), HasSubstr("No se encuentra el archivo."));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  user.InWindow("frmUno", [&](QWidget&) {
    form->tmrReloj.Interval(1);
    form->tmrReloj.Enabled(true);
  });
  user.InModal<MessageBox>("the timer's failure", [&](MessageBox& box) {
    EXPECT_THAT(box.text().toStdString(), HasSubstr("tick"));
    QTest::qWait(20);  // it goes on failing meanwhile
    EXPECT_EQ(QApplication::activeModalWidget(), &box);
    form->tmrReloj.Enabled(false);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  user.InWindow("frmUno", [](QWidget& window) { window.close(); });
  form->Show();
  EXPECT_THAT(::testing::internal::GetCapturedStderr(),
              HasSubstr("Error 53: No se encuentra el archivo. (prueba)"));
}

TEST_F(QtToolkits, TheHourglassIsPutAsideForABox) {
  const auto shape = [] {
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor == nullptr ? Qt::ArrowCursor : cursor->shape();
  };
  toolkit.MousePointer(11);
  toolkit.MousePointer(11);
  EXPECT_EQ(shape(), Qt::WaitCursor);
  user.InModal<MessageBox>("the box", [&](MessageBox& box) {
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  toolkit.MsgBox("Espere.", 64, "Gestión");
  EXPECT_EQ(shape(), Qt::WaitCursor);
  toolkit.MousePointer(0);
  EXPECT_EQ(shape(), Qt::ArrowCursor);
}

TEST_F(QtToolkits, AMenuRunsTheEntryThatIsChosen) {
  std::string chosen;
  controls::Menu menu("mnuEmergente");
  for (const char* caption : {"Ver datos del campo", "-", "Agregar al 'orden'", "Ver filtro"}) {
    menu.Add({caption, caption, [&chosen, caption] { chosen = caption; }});
  }
  const auto isMenu = [](QWidget& window) { return window.objectName() == "mnuEmergente"; };
  user.When("the menu", isMenu, [](QWidget& window) {
    auto& popup = dynamic_cast<QMenu&>(window);
    ASSERT_EQ(popup.actions().size(), 4);
    EXPECT_TRUE(popup.actions()[1]->isSeparator());
    QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.actionGeometry(popup.actions()[2]).center());
  });
  toolkit.PopupMenu(menu);
  EXPECT_EQ(chosen, "Agregar al 'orden'");

  chosen.clear();
  user.When("the menu", isMenu, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  toolkit.PopupMenu(menu);
  EXPECT_EQ(chosen, "");
}

TEST_F(QtToolkits, HelpOpensBesideTheInnermostWindow) {
  std::vector<std::pair<std::string, long>> asked;
  toolkit.HelpFile("/oficina\\ayuda.chm");
  toolkit.Help([&](const std::string& file, long topic) {
    asked.emplace_back(file, topic);
    return std::optional<QString>("<h1>Campos</h1><p>Texto</p>" + QString("<p>línea</p>").repeated(200) +
                                  "<h1><a name='fin'></a>Fin</h1>" + QString("<p>línea</p>").repeated(200));
  });
  form->cmdAceptar.HelpContextID(7);
  auto inner = toolkit::MakeForm<TestForm>(toolkit, "frmDos");
  const auto isHelp = [](QWidget& window) { return window.objectName() == "ayuda" && window.isVisible(); };

  user.InWindow("frmUno", [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_F1); });
  user.When("help", isHelp, [&](QWidget& help) {
    EXPECT_EQ(help.windowTitle().toStdString(), "Ayuda del asistente de exportación");
    EXPECT_FALSE(help.isModal());
    auto* text = help.findChild<QTextBrowser*>();
    emit text->anchorClicked(QUrl("#fin"));
    EXPECT_GT(text->verticalScrollBar()->value(), 0);
    EXPECT_THAT(text->toPlainText().toStdString(), HasSubstr("Texto"));
    // The window behind it can be used meanwhile.
    Robot::Press(*help.parentWidget(), "Aceptar");
    EXPECT_EQ(form->diary.back(), "accept");
    toolkit.SendKeys("{F1}", true);
    form->cmdAceptar.Click = [&] { inner->Show(); };
    Robot::Press(*help.parentWidget(), "Aceptar");
  });
  user.InWindow("frmDos", [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_F1); });
  user.When("help of the inner window", isHelp, [](QWidget& help) {
    ASSERT_EQ(help.parentWidget()->objectName(), "frmDos");
    Robot::Press(help, "Cerrar");
    EXPECT_FALSE(help.isVisible());
  });
  user.InWindow("frmDos", [](QWidget& window) { window.close(); });
  user.InWindow("frmUno", [](QWidget& window) { window.close(); });
  form->Show();
  const std::string file = "/oficina\\ayuda.chm";
  EXPECT_THAT(asked,
              ::testing::ElementsAre(std::pair(file, 138L), std::pair(file, 7L), std::pair(file, 138L)));
}

TEST_F(QtToolkits, HelpThatIsMissingIsSaid) {
  toolkit.HelpFile("/oficina\\ayuda.chm");
  user.InWindow("frmUno", [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_F1); });
  user.InModal<MessageBox>("the box", [](MessageBox& box) {
    EXPECT_THAT(box.text().toStdString(), HasSubstr("tema 138 de /oficina\\ayuda.chm"));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  user.InWindow("frmUno", [](QWidget& window) { window.close(); });
  form->Show();
}

}  // namespace
}  // namespace velmar::qt
