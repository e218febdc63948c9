#include "platform/com/Server.h"

#include <gtest/gtest.h>

#include "platform/com/CHost.h"
#include "platform/com/Greeter.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

TEST(Server, AHostInPlainCOrOfThisProjectMakesAnObject) {
  EXPECT_EQ(CHostRun(TEST_SERVER, &kGreeterClass), 0);
  EXPECT_EQ(Query<Greeter>(CreateFromLibrary(TEST_SERVER, kGreeterClass))->Greet("Ana"), "Hola, Ana");
}

TEST(Server, TellsWhichLibraryGivesNoObject) {
  const std::pair<std::string, Guid> cases[] = {
      {"/no/existe.so", kGreeterClass}, {TEST_SERVER, Guid{}}, {"libm.so.6", kGreeterClass}};
  for (const auto& [library, classId] : cases) {
    try {
      CreateFromLibrary(library, classId);
      ADD_FAILURE() << library;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), kCannotCreateObject);
      EXPECT_NE(error.Description().find(library), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace velmar::com
