#include "platform/com/CreateObject.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/com/ClassRegistry.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::com {
namespace {

TEST(CreateObject, MakesANewObjectEachTimeOfTheClassRegisteredLast) {
  const files::TemporaryFolder empty;
  setenv("XDG_DATA_HOME", (empty / "datos").c_str(), 1);
  const Guid old{76, 0, 0, {}};
  const Guid id{77, 0, 0, {}};
  auto& registry = ClassRegistry::Instance();
  registry.Register({"VelmarApi.cPrincipal", old, [] { return nullptr; }});
  registry.Register({"VELMARAPI.cPrincipal", id, [] { return std::make_shared<Object>(); }});
  EXPECT_EQ(registry.Find(old), nullptr) << "another took its name";
  const auto first = CreateObject("velmarapi.cprincipal");
  EXPECT_NE(first, CreateObject(id));
  EXPECT_THROW(Query<ClassRegistry>(first), RuntimeError) << "it offers no such thing";
  registry.Unregister(id);
  EXPECT_THROW(CreateObject("VelmarApi.cPrincipal"), RuntimeError);
  unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace velmar::com
