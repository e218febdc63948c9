#include "platform/controls/ListBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

class ListBoxTest : public testing::Test {
 protected:
  ListBoxTest() {
    for (const char* text : {"a", "b", "c", "d"}) list.AddItem(text);
    list.Click = [this] { events += "C"; };
    list.DblClick = [this] { events += "D"; };
  }

  std::string Marked() const {
    std::string marked;
    for (long i = 0; i < list.ListCount(); ++i) {
      if (list.Selected(i)) marked += list.List(i);
    }
    return marked;
  }

  ListBox list{"lst"};
  std::string events;
};

TEST_F(ListBoxTest, TheProgramSelectsOneOrManyWithoutAClickOfTheUser) {
  for (const long item : {1L, 3L}) list.Selected(item, true);
  EXPECT_EQ(Marked(), "d");
  EXPECT_EQ(list.SelCount(), 1);
  list.Selected(3, false);
  EXPECT_EQ(list.ListIndex(), -1);
  events.clear();
  list.MultiSelect(2);
  for (const long item : {0L, 2L, 2L}) list.Selected(item, true);
  EXPECT_EQ(list.SelCount(), 2);
  list.AddItem("x", 0);
  EXPECT_EQ(Marked(), "ac");
  list.RemoveItem(1);
  EXPECT_EQ(list.SelCount(), 1);
  list.Clear();
  EXPECT_EQ(list.SelCount(), 0);
  EXPECT_EQ(events, "");
}

TEST_F(ListBoxTest, TheUserSelectsOneOrARange) {
  EXPECT_TRUE(list.UserClick(1) && list.UserClick(1));
  EXPECT_EQ(events, "CC");
  list.MultiSelect(2);
  EXPECT_EQ(Marked(), "");
  EXPECT_TRUE(list.UserSelect(3, 1));
  EXPECT_EQ(Marked(), "bcd");
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_TRUE(list.UserSelectItems({0, 3}, 3));
  EXPECT_EQ(Marked(), "ad");
  EXPECT_TRUE(list.UserClick(0));
  EXPECT_EQ(Marked(), "a");
}

TEST_F(ListBoxTest, ADoubleClickSelectsFirstButNothingBesideTheItems) {
  EXPECT_TRUE(list.UserDoubleClick(2));
  EXPECT_EQ(list.Text(), "c");
  list.ListIndex(-1);
  EXPECT_TRUE(list.UserDoubleClick(-1));
  EXPECT_EQ(list.ListIndex(), -1);
  list.Enabled(false);
  EXPECT_FALSE(list.UserClick(0) || list.UserDoubleClick(0) || list.UserDoubleClick(-1));
  EXPECT_EQ(events, "CDD");
}

TEST_F(ListBoxTest, ScrollsWithinItsItems) {
  list.TopIndex(3);
  list.RemoveItem(0);
  list.RemoveItem(0);
  EXPECT_LT(list.TopIndex(), list.ListCount());
  EXPECT_EQ(FailureOf([&] { list.TopIndex(2); }), kInvalidPropertyValue);
}

}  // namespace
}  // namespace velmar::controls
