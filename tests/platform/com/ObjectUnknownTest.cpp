#include "platform/com/ObjectUnknown.h"

#include <gtest/gtest.h>

namespace velmar::com {
namespace {

TEST(ObjectUnknown, KeepsItsObjectWhileThereAreReferences) {
  auto object = std::make_shared<Object>();
  const std::weak_ptr<Object> watched = object;
  Object* expected = object.get();
  auto* unknown = new ObjectUnknown(std::move(object));
  EXPECT_FALSE(Module::CanUnload());

  void* result = unknown;
  EXPECT_EQ(unknown->QueryInterface(Guid{}, &result), kENoInterface);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(unknown->QueryInterface(Unknown::kId, nullptr), kEPointer);
  EXPECT_EQ(unknown->QueryInterface(ObjectUnknown::kObjectId, &result), kSOk);
  EXPECT_EQ(result, expected);
  EXPECT_EQ(unknown->Release(), 1U);
  EXPECT_FALSE(watched.expired());
  EXPECT_EQ(unknown->Release(), 0U);
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(Module::CanUnload());
}

}  // namespace
}  // namespace velmar::com
