#include "platform/error/OperationObserver.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace velmar {
namespace {

struct Recorder : OperationObserver {
  void Begins(Operation operation, std::string_view subject) override {
    seen.push_back(std::string(NameOf(operation)) + " " + std::string(subject));
  }
  std::vector<std::string> seen;
};

TEST(OperationObserver, IsTheInnermostOneAndNoneOutside) {
  Recorder outer;
  Recorder inner;
  OperationObserver::Announce(Operation::kStatement, "a");
  {
    const OperationObserver::Scope first(outer);
    OperationObserver::Announce(Operation::kStatement, "b");
    {
      const OperationObserver::Scope second(inner);
      OperationObserver::Announce(Operation::kPublishFile, "c");
    }
    OperationObserver::Announce(Operation::kOpenDatabase, "d");
  }
  OperationObserver::Announce(Operation::kStatement, "e");
  EXPECT_EQ(outer.seen, (std::vector<std::string>{"sentencia b", "abrir base de datos d"}));
  EXPECT_EQ(inner.seen, (std::vector<std::string>{"publicar archivo c"}));
}

TEST(Operation, HasANameOfItsOwn) {
  std::set<std::string_view> names;
  const int last = static_cast<int>(Operation::kPublishFile);
  for (int number = 0; number <= last; ++number) names.insert(NameOf(static_cast<Operation>(number)));
  EXPECT_EQ(names.size(), static_cast<std::size_t>(last) + 1);
}

}  // namespace
}  // namespace velmar
