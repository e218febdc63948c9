#include "sample/command/Arguments.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "sample/command/UsageError.h"

namespace velmar::sample {
namespace {

constexpr std::array<Arguments::Option, 3> kKnown = {{{"--carpeta"}, {"--filas"}, {"--todo", true}}};

TEST(ArgumentsTest, ReadsBothFormsAndSwitches) {
  const std::vector<std::string> words = {"--carpeta=/tmp/a=b", "--filas", "12", "--todo"};
  const Arguments arguments(words, kKnown);
  EXPECT_EQ(arguments.Require("--carpeta"), "/tmp/a=b");
  EXPECT_EQ(arguments.Number("--filas", 1, 1, 100), 12);
  EXPECT_TRUE(arguments.Has("--todo"));
  EXPECT_EQ(Arguments({}, kKnown).Number("--filas", 1, 1, 100), 1);
}

TEST(ArgumentsTest, RefusesWhatItDoesNotUnderstand) {
  const std::vector<std::vector<std::string>> wrong = {
      {"--carpetas", "x"}, {"carpeta"}, {"--filas"}, {"--todo=1"}, {"--filas", "1", "--filas", "2"}, {"-f"}};
  for (const auto& words : wrong) EXPECT_THROW(Arguments(words, kKnown), UsageError) << words[0];

  for (const std::string number : {"0", "101", "12x", "", "1e2", "99999999999999999999"}) {
    const std::vector<std::string> words = {"--filas", number};
    EXPECT_THROW(Arguments(words, kKnown).Number("--filas", 1, 1, 100), UsageError) << number;
  }
  EXPECT_THROW(Arguments({}, kKnown).Require("--carpeta"), UsageError);
}

}  // namespace
}  // namespace velmar::sample
