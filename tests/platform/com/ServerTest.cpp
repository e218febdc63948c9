#include "platform/com/Server.h"

#include <gtest/gtest.h>

#include "platform/com/CHost.h"
#include "platform/com/ClassRegistry.h"
#include "platform/com/Greeter.h"
#include "platform/com/Unknown.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

TEST(Server, AHostInPlainCMakesAnObject) {
  EXPECT_EQ(CHostRun(TEST_SERVER, &kGreeterClass), 0);
  EXPECT_EQ(GetClassObject(ClassRegistry(), &kGreeterClass, &Unknown::kId, nullptr), kEPointer);
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
