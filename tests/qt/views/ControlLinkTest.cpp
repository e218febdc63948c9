#include "qt/views/ControlLink.h"

#include <memory>

#include "platform/controls/Frame.h"
#include "qt/views/CommandButtonView.h"
#include "qt/views/FrameView.h"
#include "qt/views/GridView.h"
#include "qt/views/ListView.h"
#include "qt/views/ShownView.h"
#include "qt/views/TextAreaView.h"

namespace velmar::qt {
namespace {

TEST(ControlLinkTest, TheWidgetFollowsTheControl) {
  controls::Frame frame("fra", "Marco");
  controls::CommandButton button("cmd", "uno");
  button.Visible(false);
  ShownView shown;
  EXPECT_EQ(shown.Add<FrameView>(frame).title(), "Marco");
  auto& view = shown.Add<CommandButtonView>(button);
  shown.Open();
  EXPECT_FALSE(view.isVisible());
  button.Visible(true);
  button.ToolTipText("otro");
  button.Caption("dos");
  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(view.toolTip(), "otro");
  EXPECT_EQ(view.text(), "dos");
}

TEST(ControlLinkTest, AViewOutlivesItsControl) {
  struct Controls {
    controls::ListBox list{"lst"};
    controls::Grid grid{"msg"};
    controls::TextBox box{"txt"};
  };
  auto controls = std::make_unique<Controls>();
  controls->list.AddItem("uno");
  controls->grid.Cols(2);
  controls->grid.Rows(3);
  ShownView shown;
  auto& listView = shown.Add<ListView>(controls->list);
  auto& gridView = shown.Add<GridView>(controls->grid);
  auto& textView = shown.Add<TextAreaView>(controls->box);
  shown.Open();
  controls.reset();
  ShownView::Settle();
  for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{&listView, &gridView}) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    view->resize(view->sizeHint() / 2);
    EXPECT_EQ(view->model()->rowCount(), 0);
  }
  QTest::keyClicks(&textView, "abc");
  EXPECT_FALSE(textView.isEnabled());
}

}  // namespace
}  // namespace velmar::qt
