#include "catalogue/Collection.h"

#include <gtest/gtest.h>

#include <memory>

#include "catalogue/FieldLookup.h"

namespace velmar {
namespace {

TEST(Collection, KeepsTheOrderOfArrivalAndStableReferences) {
  Collection<std::string> collection;
  collection.Add("first", " 9");
  const std::string& first = collection.Item(" 9");
  std::string expected = "first";
  for (int number = 1000; number > 500; --number) {
    collection.Add(std::to_string(number), FieldKey(number));
    expected += std::to_string(number);
  }
  std::string all;
  for (const std::string& item : collection) all += item;
  EXPECT_EQ(all, expected);
  EXPECT_EQ(collection.Count(), 501U);
  EXPECT_EQ(first, "first");
  EXPECT_EQ(collection.Item(" 777"), "777");
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

TEST(Collection, KeysAreTheTextsOfNumbers) {
  Collection<int> collection;
  for (const int number : {12, 0, -12, -32768, 32767}) collection.Add(number, FieldKey(number));
  for (const auto& [key, number] : {std::pair(" 12", 12), std::pair(" 0", 0), std::pair("-12", -12),
                                    std::pair("-32768", -32768), std::pair(" 32767", 32767)}) {
    EXPECT_EQ(collection.Item(key), number);
  }
  for (const char* key : {"12", "", " 13", " -12"}) {
    EXPECT_EQ(collection.Find(key), nullptr) << key;
    EXPECT_THROW(collection.Item(key), RuntimeError) << key;
  }
}

}  // namespace
}  // namespace velmar
