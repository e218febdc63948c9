#include "catalogue/Collection.h"

#include <gtest/gtest.h>

#include <memory>

#include "catalogue/FieldLookup.h"

namespace velmar {
namespace {

TEST(Collection, KeepsTheOrderOfArrivalAndStableReferences) {
  Collection<int> collection;
  collection.Add(-1, FieldKey(-1));
  const int& first = collection.Item("-1");
  for (int number = 500; number >= 0; --number) collection.Add(number, FieldKey(number));
  EXPECT_EQ(std::vector<int>(collection.begin(), collection.begin() + 3), (std::vector{-1, 500, 499}));
  EXPECT_EQ(&first, &*collection.begin());
  EXPECT_EQ(collection.Item(" 177"), 177);
  for (const char* key : {"177", "", " -1", " 501"}) {
    EXPECT_EQ(collection.Find(key), nullptr) << key;
    EXPECT_THROW(collection.Item(key), RuntimeError) << key;
  }
}

TEST(Collection, ADuplicateKeyIsRefusedAndLeavesTheCollectionAsItWas) {
  Collection<std::unique_ptr<int>> collection;
  collection.Add(std::make_unique<int>(1), " 12");
  try {
    collection.Add(std::make_unique<int>(2), " 12");
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kKeyAlreadyInUse);
  }
  EXPECT_EQ(collection.Count(), 1U);
  EXPECT_EQ(*collection.Item(" 12"), 1);
}

}  // namespace
}  // namespace velmar
