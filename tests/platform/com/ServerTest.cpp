#include "platform/com/Server.h"

#include <gtest/gtest.h>

#include "platform/error/Failure.h"

extern "C" int CHostRun(const char* library, const void* classId);

namespace velmar::com {
namespace {

constexpr Guid kServed{77, 0, 0, {}};

TEST(Server, AHostInPlainCOrOfThisProjectMakesAnObject) {
  EXPECT_NE(CreateFromLibrary(TEST_SERVER, kServed), nullptr);
  EXPECT_EQ(CHostRun(TEST_SERVER, &kServed), 0) << "also tells what the other one has not let go";
}

TEST(Server, TellsWhichLibraryGivesNoObject) {
  const std::pair<std::string, Guid> cases[] = {
      {"/no/existe.so", kServed}, {TEST_SERVER, Guid{}}, {"libm.so.6", kServed}};
  for (const auto& each : cases) {
    const auto failure = FailureIn([&] { CreateFromLibrary(each.first, each.second); });
    EXPECT_EQ(failure.Number(), kCannotCreateObject);
    EXPECT_NE(failure.Description().find(each.first), std::string::npos);
  }
}

}  // namespace
}  // namespace velmar::com
