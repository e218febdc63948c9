#include <QPixmap>

#include "platform/controls/OptionGroup.h"
#include "qt/views/CommandButtonView.h"
#include "qt/views/OptionButtonView.h"
#include "qt/views/ProgressBarView.h"
#include "qt/views/ShownView.h"

namespace velmar::qt {
namespace {

TEST(CommandButtonViewTest, ShowsItsDrawingInTheColoursOfThePalette) {
  controls::CommandButton button("cmd");
  ShownView shown;
  const auto& view = shown.Add<CommandButtonView>(button, Glyph::kUp);
  for (const auto& [mode, group] :
       {std::pair(QIcon::Normal, QPalette::Active), {QIcon::Disabled, QPalette::Disabled}}) {
    const QImage image = view.icon().pixmap({32, 32}, mode).toImage();
    EXPECT_EQ(image.pixelColor(11, 11), QApplication::palette().color(group, QPalette::ButtonText));
    EXPECT_EQ(image.pixelColor(11, 20).alpha(), 0) << "it points upwards";
  }
}

TEST(OptionButtonViewTest, OneOfAGroupIsChosen) {
  controls::OptionButton complete("opt", "Completa");
  controls::OptionButton partial("opt", "Parcial");
  controls::OptionGroup group;
  group.Add(complete);
  group.Add(partial);
  ShownView shown;
  const auto& completeView = shown.Add<OptionButtonView>(complete);
  auto& partialView = shown.Add<OptionButtonView>(partial);
  shown.Open();
  complete.Value(true);
  EXPECT_TRUE(completeView.isChecked());
  for (int click = 0; click < 2; ++click) {
    QTest::mouseClick(&partialView, Qt::LeftButton, {}, QPoint(8, partialView.height() / 2));
    EXPECT_TRUE(partialView.isChecked() && partial.Value());
    EXPECT_FALSE(completeView.isChecked());
  }
  QTest::keyClick(&partialView, Qt::Key_Down);
  EXPECT_TRUE(completeView.isChecked() && complete.Value() && completeView.hasFocus());
}

TEST(ProgressBarViewTest, ShowsAnyRangeInThousandths) {
  controls::ProgressBar bar("prg");
  ShownView shown;
  const auto& view = shown.Add<ProgressBarView>(bar);
  bar.Max(3'000'000'000);
  bar.Value(1'500'000'000);
  EXPECT_EQ(view.value(), 500);
  bar.Min(1'000'000'000);
  EXPECT_EQ(view.value(), 250);
  bar.Min(0);
  bar.Max(0);
  EXPECT_EQ(view.value(), 1000) << "nothing to do is done, and is no endless task";
}

}  // namespace
}  // namespace velmar::qt
