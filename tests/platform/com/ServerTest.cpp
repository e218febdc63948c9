#include "platform/com/Server.h"

#include <gtest/gtest.h>

#include "platform/com/CHost.h"
#include "platform/com/Greeter.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

TEST(Server, AHostInPlainCMakesAnObject) {
  EXPECT_EQ(CHostRun(TEST_SERVER, &kGreeterClass), 0);
}

TEST(Server, AnObjectOfALibraryIsQueriedLikeAnyOther) {
  const auto object = CreateFromLibrary(TEST_SERVER, kGreeterClass);
  EXPECT_EQ(Query<Greeter>(object)->Greet("mundo"), "Hola, mundo");
}

TEST(Server, TellsWhyALibraryGivesNoObject) {
  const auto failure = [](const std::string& library, const Guid& classId) {
    try {
      CreateFromLibrary(library, classId);
    } catch (const RuntimeError& error) {
      EXPECT_NE(error.Description().find(library), std::string::npos);
      return error.Number();
    }
    return 0L;
  };
  EXPECT_EQ(failure("/no/existe.so", kGreeterClass), kCannotCreateObject);
  EXPECT_EQ(failure(TEST_SERVER, Guid{}), kCannotCreateObject);
  EXPECT_EQ(failure("libm.so.6", kGreeterClass), kCannotCreateObject);
}

}  // namespace
}  // namespace velmar::com
