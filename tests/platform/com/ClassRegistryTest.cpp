#include "platform/com/ClassRegistry.h"

#include <gtest/gtest.h>

namespace velmar::com {
namespace {

TEST(ClassRegistry, FindsClassesByNameAndIdentifier) {
  ClassRegistry registry;
  const Guid one{1, 0, 0, {}};
  const Guid two{2, 0, 0, {}};
  const auto make = [] { return std::make_shared<Object>(); };
  registry.Register({"VelmarApi.cPrincipal", one, make});
  registry.Register({"VelmarApi.cCodec", two, make});
  ASSERT_NE(registry.Find("velmarapi.CPRINCIPAL"), nullptr);
  EXPECT_EQ(registry.Find("velmarapi.CPRINCIPAL")->classId, one);
  ASSERT_NE(registry.Find(two), nullptr);
  EXPECT_EQ(registry.Find("VelmarApi"), nullptr);

  registry.Register({"VELMARAPI.cPrincipal", two, make});
  EXPECT_EQ(registry.Classes().size(), 1U) << "it takes the place of both";
  registry.Unregister(two);
  registry.Unregister(two);
  EXPECT_TRUE(registry.Classes().empty());
}

}  // namespace
}  // namespace velmar::com
