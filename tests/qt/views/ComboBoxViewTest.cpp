#include "qt/views/ComboBoxView.h"

#include <QWheelEvent>
#include <vector>

#include "qt/views/ShownView.h"

namespace velmar::qt {
namespace {

class ComboBoxViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    shown.Open();
    for (const char* node : {"Colaboradores", "Donativos", "Recibos"}) combo.AddItem(node);
    combo.Click = [this] { chosen.push_back(combo.ListIndex()); };
  }

  controls::ComboBox combo{"cbo"};
  ShownView shown;
  ComboBoxView& view = shown.Add<ComboBoxView>(combo);
  std::vector<long> chosen;
};

TEST_F(ComboBoxViewTest, ChoosesNothingByItself) {
  EXPECT_EQ(view.currentIndex(), -1);
  combo.ListIndex(2);
  EXPECT_EQ(view.currentText(), "Recibos");
  combo.RemoveItem(2);
  EXPECT_EQ(view.currentIndex(), -1);
  combo.Clear();
  combo.AddItem("otro");
  EXPECT_EQ(view.currentIndex(), -1);
  EXPECT_EQ(chosen, std::vector<long>{2}) << "the program's choice alone";
}

TEST_F(ComboBoxViewTest, TheUserChoosesAndTheControlHasTheLastWord) {
  QTest::keyClick(&view, Qt::Key_Down);
  QTest::keyClick(&view, Qt::Key_End);
  EXPECT_EQ(chosen, (std::vector<long>{0, 2}));
  shown.scope.Enabled(false);
  QTest::keyClick(&view, Qt::Key_C);
  EXPECT_EQ(view.currentIndex(), 2) << "the control has refused";
}

TEST_F(ComboBoxViewTest, TheWheelTurnsItOnlyWithTheFocus) {
  combo.ListIndex(1);
  const auto turn = [this] {
    QWheelEvent wheel(QPointF(5, 5), view.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &wheel);
    return combo.ListIndex();
  };
  view.clearFocus();
  EXPECT_EQ(turn(), 1);
  EXPECT_FALSE(view.hasFocus()) << "nor does it take the focus";
  EXPECT_EQ(view.focusPolicy() & Qt::WheelFocus, Qt::StrongFocus) << "the application would give it";
  view.setFocus();
  EXPECT_EQ(turn(), 2);
}

}  // namespace
}  // namespace velmar::qt
