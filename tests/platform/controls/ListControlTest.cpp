#include "platform/controls/ListControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/ObserverLog.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

std::vector<std::string> Texts(const ListControl& list) {
  std::vector<std::string> texts;
  for (long i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
  return texts;
}

TEST(ListControl, SortedItemsTakeTheirPlaceAndKeepTheirNumber) {
  ListBox list("lstDisponibles");
  list.Sorted(true);
  long number = 0;
  for (const char* text : {"Teléfono", "apellido", "Ñame", "nombre", "Álbum", "NIF", "nombre", "Apellido"}) {
    list.AddItem(text);
    list.ItemData(list.NewIndex(), ++number);
    EXPECT_EQ(list.List(list.NewIndex()), text);
  }
  EXPECT_THAT(Texts(list), testing::ElementsAre("Álbum", "apellido", "Apellido", "NIF", "nombre", "nombre",
                                                "Ñame", "Teléfono"));
  std::string numbers;
  for (long i = 0; i < list.ListCount(); ++i) numbers += std::to_string(list.ItemData(i));
  EXPECT_EQ(numbers, "52864731") << "equal items stand in order of arrival";
}

TEST(ListControl, TheChosenItemStaysChosenWhileOthersComeAndGo) {
  ListBox list("lst");
  for (const char* text : {"a", "b", "c"}) list.AddItem(text);
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.ListIndex(1);
  list.ListIndex(1);
  EXPECT_EQ(clicks, 1) << "a click comes with a new choice only";
  list.AddItem("x", 1);
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(list.Text(), "b");
  list.RemoveItem(0);
  list.RemoveItem(2);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(list.NewIndex(), -1);
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
  list.ListIndex(-1);
  EXPECT_EQ(clicks, 1);
}

TEST(ListControl, FindsWholeTextsWithoutRegardToCase) {
  ListBox list("lstOrden");
  for (const char* text : {"(REC) Año", "(rec) importe", "(REC) Importe total", "(REC) Importe"})
    list.AddItem(text);
  EXPECT_EQ(list.FindStringExact("(REC) IMPORTE"), 1);
  EXPECT_EQ(list.FindStringExact("(rec) AÑO"), 0);
  EXPECT_EQ(list.FindStringExact("(REC) Ano"), -1);
  EXPECT_EQ(list.FindStringExact("(REC) Imp"), -1);
  EXPECT_EQ(list.FindStringExact("(REC) Importe", 1), 3);
  EXPECT_EQ(list.FindStringExact("(REC) Importe", 3), 1) << "the search goes round";
  EXPECT_EQ(ListBox("vacía").FindStringExact("a"), -1);
}

TEST(ListControl, RefusesItemsThatAreNotThere) {
  ListBox list("lst");
  list.AddItem("a");
  EXPECT_EQ(list.List(-1), "");
  EXPECT_EQ(FailureOf([&] { list.List(1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.ItemData(-1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.RemoveItem(1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.AddItem("b", 2); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.ListIndex(1); }), kInvalidPropertyValue);
  EXPECT_EQ(list.ListCount(), 1);
}

TEST(ListControl, TellsEachChangeInPairs) {
  ListBox list("lst");
  list.Sorted(true);
  ObserverLog log(list, [&] { return static_cast<std::size_t>(list.ListCount()); });
  list.AddItem("b");
  list.AddItem("a");
  list.List(1, "c");
  list.RemoveItem(0);
  list.Clear();
  EXPECT_THAT(log.notices, testing::ElementsAre("insert 0+1", "insert 0+1", "row 1", "remove 0+1", "reset"));
}

}  // namespace
}  // namespace velmar::controls
