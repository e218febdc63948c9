#include <gtest/gtest.h>

#include <QPixmap>
#include <QTest>

#include "platform/controls/OptionGroup.h"
#include "qt/views/CommandButtonView.h"
#include "qt/views/OptionButtonView.h"
#include "qt/views/ProgressBarView.h"
#include "qt/views/ShownView.h"

namespace velmar::qt {
namespace {

TEST(CommandButtonViewTest, IsPressedByMouseBlankAndAccessKey) {
  controls::CommandButton first("cmd", "&Primero");
  controls::CommandButton second("cmd", "&Segundo");
  ShownView shown;
  auto& firstView = shown.Add<CommandButtonView>(first);
  auto& secondView = shown.Add<CommandButtonView>(second);
  shown.Open();
  int pressed = 0;
  second.Click = [&] {
    ++pressed;
    EXPECT_TRUE(second.HasFocus());
  };
  QTest::mouseClick(&secondView, Qt::LeftButton);
  EXPECT_EQ(pressed, 1);
  QTest::keyClick(&secondView, Qt::Key_Space);
  EXPECT_EQ(pressed, 2);
  firstView.setFocus();
  ASSERT_TRUE(first.HasFocus());
  QTest::keyClick(&firstView, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 3; }));
  EXPECT_TRUE(secondView.hasFocus());

  QTest::keyClick(&secondView, Qt::Key_Return);
  EXPECT_EQ(pressed, 3) << "the window knows what Enter presses";
  second.Enabled(false);
  QTest::mouseClick(&secondView, Qt::LeftButton);
  EXPECT_EQ(pressed, 3);
}

TEST(CommandButtonViewTest, ShowsItsDrawingInTheColoursOfThePalette) {
  controls::CommandButton button("cmd");
  ShownView shown;
  auto& view = shown.Add<CommandButtonView>(button, Glyph::kUp);
  const auto darkest = [&](QIcon::Mode mode) {
    const QImage image = view.icon().pixmap({32, 32}, mode).toImage();
    int alpha = 0;
    QColor colour;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 32; ++x) {
        const QColor at = image.pixelColor(x, y);
        if (at.alpha() > alpha) {
          alpha = at.alpha();
          colour = at;
        }
      }
    }
    return colour.rgb();
  };
  const QPalette palette = QApplication::palette();
  EXPECT_EQ(darkest(QIcon::Normal), palette.color(QPalette::Active, QPalette::ButtonText).rgb());
  EXPECT_EQ(darkest(QIcon::Disabled), palette.color(QPalette::Disabled, QPalette::ButtonText).rgb());
}

TEST(OptionButtonViewTest, OneOfAGroupIsChosen) {
  controls::OptionButton complete("opt", "Completa");
  controls::OptionButton partial("opt", "Parcial");
  controls::OptionGroup group;
  group.Add(complete);
  group.Add(partial);
  complete.Value(true);
  ShownView shown;
  auto& completeView = shown.Add<OptionButtonView>(complete);
  auto& partialView = shown.Add<OptionButtonView>(partial);
  shown.Open();
  const auto state = [&] {
    EXPECT_EQ(completeView.isChecked(), complete.Value());
    EXPECT_EQ(partialView.isChecked(), partial.Value());
    return std::string(complete.Value() ? "complete" : "") + (partial.Value() ? "partial" : "");
  };
  EXPECT_EQ(state(), "complete");
  QTest::mouseClick(&partialView, Qt::LeftButton, {}, QPoint(8, partialView.height() / 2));
  EXPECT_EQ(state(), "partial");
  QTest::mouseClick(&partialView, Qt::LeftButton, {}, QPoint(8, partialView.height() / 2));
  EXPECT_EQ(state(), "partial");
  QTest::keyClick(&partialView, Qt::Key_Down);
  EXPECT_EQ(state(), "complete");
  EXPECT_TRUE(completeView.hasFocus());
  QTest::keyClick(&completeView, Qt::Key_Up);
  EXPECT_EQ(state(), "partial");
  // Not chosen, and still a stop of the tab key.
  EXPECT_NE(completeView.focusPolicy() & Qt::TabFocus, 0);
}

TEST(ProgressBarViewTest, ShowsAnyRangeInThousandths) {
  controls::ProgressBar bar("prg");
  ShownView shown;
  auto& view = shown.Add<ProgressBarView>(bar);
  EXPECT_EQ(view.value(), 0);
  bar.Max(3'000'000'000);
  bar.Value(1'500'000'000);
  EXPECT_EQ(view.value(), 500);
  bar.Min(1'000'000'000);
  EXPECT_EQ(view.value(), 250);
  bar.Min(0);
  bar.Max(0);
  EXPECT_EQ(view.value(), view.maximum()) << "nothing to do is done, and is no endless task";
  EXPECT_GT(view.maximum(), view.minimum());
}

}  // namespace
}  // namespace velmar::qt
