#include "platform/com/ObjectFactory.h"

#include <gtest/gtest.h>

#include <new>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

HResult ResultOf(ObjectFactory::Maker maker) {
  auto* factory = new ObjectFactory(std::move(maker));
  void* result = factory;
  const HResult answer = factory->CreateInstance(nullptr, Unknown::kId, &result);
  EXPECT_EQ(result == nullptr, answer < 0);
  factory->Release();
  if (answer >= 0) {
    auto* unknown = static_cast<Unknown*>(result);
    EXPECT_EQ(unknown->QueryInterface(Guid{}, &result), kENoInterface);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(unknown->Release(), 0U);
  }
  return answer;
}

TEST(ObjectFactory, NoFailureCrossesTheBorder) {
  EXPECT_EQ(ResultOf([] { return std::make_shared<Object>(); }), kSOk);
  EXPECT_EQ(ResultOf([] { return nullptr; }), kEFail);
  EXPECT_EQ(ResultOf([]() -> std::shared_ptr<Object> { throw std::bad_alloc(); }), kEOutOfMemory);
  EXPECT_EQ(ResultOf([]() -> std::shared_ptr<Object> { throw RuntimeError(kDiskFull, "x"); }), kEFail);
}

TEST(ObjectFactory, ALockKeepsTheLibrary) {
  auto* factory = new ObjectFactory([] { return std::make_shared<Object>(); });
  factory->LockServer(1);
  factory->Release();
  EXPECT_FALSE(Module::CanUnload());
  Module::Leave();
  EXPECT_TRUE(Module::CanUnload());
}

}  // namespace
}  // namespace velmar::com
