#include "platform/controls/ListControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/controls/ListBox.h"
#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(ListControl, SortedItemsTakeTheirPlaceAndKeepTheirNumber) {
  ListBox list("lstDisponibles");
  list.Sorted(true);
  long number = 0;
  for (const char* text : {"Teléfono", "apellido", "Ñame", "nombre", "Álbum", "NIF", "nombre", "Apellido"}) {
    list.AddItem(text);
    list.ItemData(list.NewIndex(), ++number);
  }
  std::string items;
  for (long i = 0; i < list.ListCount(); ++i) items += list.List(i) + std::to_string(list.ItemData(i)) + " ";
  EXPECT_EQ(items, "Álbum5 apellido2 Apellido8 NIF6 nombre4 nombre7 Ñame3 Teléfono1 ");
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
  list.RemoveItem(1);
  list.RemoveItem(2);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(list.NewIndex(), -1);
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
}

TEST(ListControl, FindsWholeTextsWithoutRegardToCase) {
  ListBox list("lstOrden");
  for (const char* text : {"(REC) Año", "(rec) importe", "(REC) Importe"}) list.AddItem(text);
  EXPECT_EQ(list.FindStringExact("(rec) AÑO"), 0);
  EXPECT_EQ(list.FindStringExact("(REC) Ano"), -1);
  EXPECT_EQ(list.FindStringExact("(REC) Imp"), -1);
  EXPECT_EQ(list.FindStringExact("(REC) Importe"), 1);
  EXPECT_EQ(list.FindStringExact("(REC) Importe", 1), 2);
  EXPECT_EQ(list.FindStringExact("(REC) Importe", 2), 1) << "the search goes round";
}

TEST(ListControl, RefusesItemsThatAreNotThere) {
  ListBox list("lst");
  list.AddItem("a");
  EXPECT_EQ(list.List(-1), "");
  EXPECT_EQ(FailureOf([&] { list.List(1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.RemoveItem(-1); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.AddItem("b", 2); }), kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { list.ListIndex(1); }), kInvalidPropertyValue);
}

}  // namespace
}  // namespace velmar::controls
