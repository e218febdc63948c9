#include "catalogue/Collection.h"

#include <gtest/gtest.h>

#include "catalogue/FieldLookup.h"

namespace velmar {
namespace {

TEST(Collection, KeepsTheOrderOfArrivalAndStableReferences) {
  Collection<int> collection;
  collection.Add(-1, FieldKey(-1));
  const int& first = collection.Item("-1");
  for (int number = 500; number >= 0; --number) collection.Add(number, FieldKey(number));
  EXPECT_THROW(collection.Add(7, " 177"), RuntimeError);
  EXPECT_EQ(*std::next(collection.begin()), 500);
  EXPECT_EQ(&first, &*collection.begin());
  EXPECT_EQ(collection.Item(" 177"), 177);
  for (const char* key : {"177", "", " -1", " 501"}) {
    EXPECT_EQ(collection.Find(key), nullptr) << key;
    EXPECT_THROW(collection.Item(key), RuntimeError) << key;
  }
}

}  // namespace
}  // namespace velmar
