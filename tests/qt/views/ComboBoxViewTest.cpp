#include "qt/views/ComboBoxView.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>
#include <vector>

#include "platform/controls/TextBox.h"
#include "qt/views/ShownView.h"
#include "qt/views/TextLineView.h"

namespace velmar::qt {
namespace {

class ComboBoxViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    other = &shown.Add<TextLineView>(box);
    view = &shown.Add<ComboBoxView>(combo);
    shown.Open();
    for (const char* node : {"Colaboradores", "Donativos", "Recibos"}) combo.AddItem(node);
    combo.Click = [this] { chosen.push_back(combo.ListIndex()); };
  }

  controls::TextBox box{"txt"};
  controls::ComboBox combo{"cbo"};
  ShownView shown;
  TextLineView* other = nullptr;
  ComboBoxView* view = nullptr;
  std::vector<long> chosen;
};

TEST_F(ComboBoxViewTest, ChoosesNothingByItself) {
  EXPECT_EQ(view->currentIndex(), -1);
  EXPECT_EQ(combo.ListIndex(), -1);
  combo.ListIndex(2);
  EXPECT_EQ(view->currentText(), "Recibos");
  combo.RemoveItem(2);
  EXPECT_EQ(view->currentIndex(), -1);
  combo.Clear();
  combo.AddItem("otro");
  EXPECT_EQ(view->currentIndex(), -1);
  EXPECT_EQ(chosen, std::vector<long>{2}) << "the program's choice alone";
}

TEST_F(ComboBoxViewTest, TheUserChoosesFromTheListAndWithKeys) {
  view->showPopup();
  ShownView::Settle();
  QAbstractItemView& popup = *view->view();
  QTest::mouseClick(popup.viewport(), Qt::LeftButton, {},
                    popup.visualRect(popup.model()->index(1, 0)).center());
  EXPECT_EQ(chosen, std::vector<long>{1});
  view->setFocus();
  EXPECT_TRUE(combo.HasFocus());
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(chosen, (std::vector<long>{1, 2}));
  QTest::keyClicks(view, "co");
  EXPECT_EQ(combo.Text(), "Colaboradores");
}

TEST_F(ComboBoxViewTest, AChoiceThatTheProgramTakesBackDoesNotShow) {
  combo.ListIndex(0);
  combo.Click = [this] {
    combo.Click = {};
    combo.ListIndex(0);
  };
  view->setFocus();
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(view->currentIndex(), 0);
}

TEST_F(ComboBoxViewTest, TheWheelTurnsItOnlyWithTheFocus) {
  combo.ListIndex(1);
  const auto turn = [this] {
    QWheelEvent wheel(QPointF(5, 5), view->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &wheel);
    return combo.ListIndex();
  };
  other->setFocus();
  EXPECT_EQ(turn(), 1);
  view->setFocus();
  EXPECT_EQ(turn(), 2);
}

}  // namespace
}  // namespace velmar::qt
