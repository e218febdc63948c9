#include "qt/toolkit/FormWindow.h"

#include <QScreen>

#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using testing::TestWindow;

class FormWindows : public testing::QtFixture {};

TEST_F(FormWindows, ShowTheFormInTheMiddleOfTheScreenUntilItIsClosedByItsFrame) {
  user.InWindow<TestWindow>("frmUno", [&](TestWindow& window) {
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    const QPoint offset = window.geometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(offset.manhattanLength(), 60);
    form->Caption("Otra");
    EXPECT_EQ(window.windowTitle(), "Otra");
    const int before = window.paints;
    form->Refresh();
    EXPECT_EQ(window.paints, before + 1);
    form->onUnload = [](bool& cancel) { cancel = true; };
    window.close();
    EXPECT_TRUE(window.isVisible());
    form->onUnload = nullptr;
    window.close();
    EXPECT_FALSE(window.isVisible());
  });
  form->Show();
  EXPECT_EQ(events, "Load Activate Unload Unload ");
}

TEST_F(FormWindows, TakeNoInputWhileTheFormIsDisabled) {
  form->button.Click = [&] { events += "Click "; };
  form->button.Cancel(true);
  user.InWindow<TestWindow>("frmUno", [&](TestWindow& window) {
    form->Enabled(false);
    QTest::keyClick(window.line, Qt::Key_A);
    QTest::mouseClick(window.button, Qt::LeftButton);
    QTest::keyClick(&window, Qt::Key_Escape);
    window.close();
    EXPECT_EQ(window.line->text(), "");
    EXPECT_EQ(events, "Load Activate ");
    form->Enabled(true);
    QTest::keyClick(window.focusWidget(), Qt::Key_B);
    EXPECT_EQ(window.line->text(), "b");
    window.close();
  });
  form->Show();
}

TEST_F(FormWindows, StandOverOneAnother) {
  form->button.Click = [&] {
    inner->Show();
    events += "Closed ";
  };
  // An inner form can take the outer one along.
  inner->button.Click = [&] {
    form->Unload();
    inner->Unload();
  };
  Accept("frmUno");
  user.InWindow("frmDos", [&](QWidget& window) {
    EXPECT_EQ(window.parentWidget()->objectName(), "frmUno");
    EXPECT_FALSE(form->button.UserClick());
    window.close();
  });
  Accept("frmUno");
  Accept("frmDos");
  form->Show();
  EXPECT_EQ(events, "Load Activate Load Activate Unload Closed Load Activate Unload Unload Closed ");
}

}  // namespace
}  // namespace velmar::qt
