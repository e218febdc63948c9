#include <QPixmap>

#include "qt/views/CommandButtonView.h"
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
