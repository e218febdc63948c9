#include "platform/com/CreateObject.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/com/ClassRegistry.h"
#include "platform/com/Greeter.h"
#include "platform/com/HResult.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::com {
namespace {

class CreateObjectTest : public testing::Test {
 protected:
  CreateObjectTest() { setenv("XDG_DATA_HOME", (folder / "datos").c_str(), 1); }
  ~CreateObjectTest() override { unsetenv("XDG_DATA_HOME"); }

  static long FailureOf(const char* progId) {
    try {
      CreateObject(progId);
    } catch (const RuntimeError& error) {
      EXPECT_NE(error.Description().find(progId), std::string::npos);
      return error.Number();
    }
    return 0;
  }

  static HResult Call(void* library, const char* entry) {
    return reinterpret_cast<HResult (*)()>(dlsym(library, entry))();
  }

  files::TemporaryFolder folder;
};

TEST_F(CreateObjectTest, MakesANewObjectEachTime) {
  const Guid id{77, 0, 0, {}};
  ClassRegistry::Instance().Register({"VelmarApi.cPrincipal", id, [] { return std::make_shared<Object>(); }});
  const auto first = CreateObject("velmarapi.cprincipal");
  const auto second = CreateObject(id);
  EXPECT_NE(first, second);
  ClassRegistry::Instance().Unregister(id);
  EXPECT_EQ(FailureOf("VelmarApi.cPrincipal"), kCannotCreateObject);
}

TEST_F(CreateObjectTest, FindsTheLibraryThatHasRegisteredItself) {
  EXPECT_EQ(FailureOf("Prueba.cSaludo"), kCannotCreateObject);
  void* library = dlopen(TEST_SERVER, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr);
  ASSERT_EQ(Call(library, "DllRegisterServer"), kSOk);
  EXPECT_EQ(Query<Greeter>(CreateObject("prueba.csaludo"))->Greet("Ana"), "Hola, Ana");
  EXPECT_TRUE(CreateObject(kGreeterClass));
  EXPECT_EQ(Call(library, "DllUnregisterServer"), kSOk);
  EXPECT_EQ(FailureOf("Prueba.cSaludo"), kCannotCreateObject);
  dlclose(library);
}

TEST_F(CreateObjectTest, AnObjectOffersWhatItOffers) {
  EXPECT_THROW(Query<Greeter>(nullptr), RuntimeError);
  try {
    Query<Greeter>(std::make_shared<Object>());
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), kMemberNotFound);
  }
}

}  // namespace
}  // namespace velmar::com
