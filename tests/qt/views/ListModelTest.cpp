#include "qt/views/ListModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "platform/controls/ListBox.h"
#include "qt/views/ModelCheck.h"

namespace velmar::qt {
namespace {

TEST(ListModelTest, StaysInStepThroughAnyChanges) {
  for (const bool sorted : {false, true}) {
    SCOPED_TRACE(sorted);
    controls::ListBox list("lst");
    list.Sorted(sorted);
    list.MultiSelect(2);
    ListModel model(list);
    const ModelCheck check(model);
    std::mt19937 random(7);
    for (int step = 0; step < 1500; ++step) {
      const auto pick = [&](long count) {
        return static_cast<long>(random() % static_cast<unsigned long>(count));
      };
      const std::string text = "Campo " + std::to_string(random() % 1000);
      switch (random() % 8) {
        case 0:
          if (step % 50 == 0) list.Clear();
          break;
        case 1:
        case 2:
          if (list.ListCount() > 0) list.RemoveItem(pick(list.ListCount()));
          break;
        case 3:
          if (list.ListCount() > 0) list.List(pick(list.ListCount()), text);
          break;
        case 4:
          if (list.ListCount() > 0) list.Selected(pick(list.ListCount()), step % 2 == 0);
          break;
        case 5:
          list.AddItem(text, pick(list.ListCount() + 1));
          break;
        default:
          list.AddItem(text);
      }
      ASSERT_EQ(model.rowCount(), list.ListCount());
    }
    for (int row = 0; row < model.rowCount(); ++row) {
      ASSERT_EQ(model.index(row).data().toString().toStdString(), list.List(row));
    }
  }
}

TEST(ListModelTest, IsEmptyOnceTheListIsGone) {
  auto list = std::make_unique<controls::ListBox>("lst");
  list->AddItem("uno");
  ListModel model(*list);
  const ModelCheck check(model);
  list.reset();
  EXPECT_EQ(model.rowCount(), 0);
}

}  // namespace
}  // namespace velmar::qt
