#include "qt/views/ControlLink.h"

#include <gtest/gtest.h>

#include <QTest>
#include <memory>
#include <string>

#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "qt/views/CommandButtonView.h"
#include "qt/views/FrameView.h"
#include "qt/views/GridView.h"
#include "qt/views/LabelView.h"
#include "qt/views/ListView.h"
#include "qt/views/ShownView.h"
#include "qt/views/TextAreaView.h"

namespace velmar::qt {
namespace {

TEST(ControlLinkTest, FocusIsTheSameOnBothSides) {
  controls::CommandButton first("cmd", "uno");
  controls::ListBox second("lst");
  std::string events;
  first.LostFocus = [&] { events += "-first"; };
  second.GotFocus = [&] { events += "+second"; };
  second.LostFocus = [&] { events += "-second"; };
  ShownView shown;
  auto& firstView = shown.Add<CommandButtonView>(first);
  auto& secondView = shown.Add<ListView>(second);
  shown.Open();
  firstView.setFocus();
  EXPECT_TRUE(first.HasFocus());
  second.SetFocus();
  EXPECT_TRUE(secondView.hasFocus());
  EXPECT_EQ(events, "-first+second");
  QTest::mouseClick(&firstView, Qt::LeftButton);
  EXPECT_EQ(events, "-first+second-second");
}

TEST(ControlLinkTest, TheWidgetShowsTheControlsState) {
  controls::Frame frame("fra", "Marco");
  controls::CommandButton button("cmd", "uno");
  controls::Label label("lbl", "<b>Nodo</b>");
  button.AccessibleName("Agregar");
  button.ToolTipText("Agregar uno");
  button.Visible(false);
  ShownView shown;
  auto& frameView = shown.Add<FrameView>(frame);
  auto& labelView = shown.Add<LabelView>(label);
  CommandButtonView view(button, kAtOnce, &frameView);
  shown.Open();
  EXPECT_EQ(view.accessibleName(), "Agregar");
  EXPECT_EQ(view.toolTip(), "Agregar uno");
  EXPECT_FALSE(view.isVisible());
  button.Visible(true);
  EXPECT_TRUE(view.isVisible());
  button.ToolTipText("otro");
  EXPECT_EQ(view.toolTip(), "otro");
  frame.Enabled(false);
  EXPECT_FALSE(view.isEnabled());
  frame.Caption("Otro marco");
  EXPECT_EQ(frameView.title(), "Otro marco");
  EXPECT_EQ(labelView.textFormat(), Qt::PlainText);
  label.Caption("Otro nodo");
  EXPECT_EQ(labelView.text(), "Otro nodo");
}

TEST(ControlLinkTest, AViewOutlivesItsControl) {
  auto button = std::make_unique<controls::CommandButton>("cmd", "uno");
  auto list = std::make_unique<controls::ListBox>("lst");
  list->AddItem("uno");
  ShownView shown;
  auto& buttonView = shown.Add<CommandButtonView>(*button);
  auto& listView = shown.Add<ListView>(*list);
  auto grid = std::make_unique<controls::Grid>("msg");
  grid->Cols(2);
  grid->Rows(3);
  auto box = std::make_unique<controls::TextBox>("txt");
  auto& gridView = shown.Add<GridView>(*grid);
  auto& textView = shown.Add<TextAreaView>(*box);
  shown.Open();
  button.reset();
  list.reset();
  grid.reset();
  box.reset();
  ShownView::Settle();
  QTest::mouseClick(&buttonView, Qt::LeftButton);
  QTest::mouseClick(listView.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseDClick(gridView.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  QTest::keyClicks(&textView, "abc");
  for (QWidget* view : {static_cast<QWidget*>(&listView), static_cast<QWidget*>(&gridView)}) {
    view->resize(view->sizeHint() / 2);
  }
  ShownView::Settle();
  EXPECT_FALSE(buttonView.isEnabled());
}

}  // namespace
}  // namespace velmar::qt
