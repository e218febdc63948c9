#include "platform/text/Numbers.h"

#include <gtest/gtest.h>

#include <utility>

#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

using Case = std::pair<const char*, double>;

TEST(Numbers, StrKeepsAPlaceForTheSign) {
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(12) + Str(-7), " 12-7");
}

TEST(Numbers, DoublesReadAsPeopleWriteThem) {
  const Case cases[] = {{"10", 10.0},
                        {"0.3", 0.1 + 0.2},
                        {"0", -0.0},
                        {"1234567.891", 1234567.891},
                        {"-0.666666666666667", -2.0 / 3},
                        {"100000000000000", 1e14},
                        {"1E+15", 1e15},
                        {"0.0001", 0.0001},
                        {"1E-05", 0.00001}};
  for (const auto& [text, number] : cases) EXPECT_EQ(FromDouble(number), text);
}

TEST(Numbers, ValTakesTheNumberAtTheStart) {
  const Case cases[] = {{" 1 6\t1\n5th Av", 1615},
                        {"1e3x", 1000},
                        {"-3.5 euros", -3.5},
                        {"+4", 4},
                        {"1,5", 1},
                        {".5", 0.5},
                        {"1d-2", 0.01},
                        {"2e", 2},
                        {"2e+", 2},
                        {"&HFF", 255},
                        {"&HFFFF", -1},
                        {"&h10000", 65536},
                        {"&O17", 15},
                        {"&HFFFFFFFF", -1}};
  for (const auto& [text, number] : cases) EXPECT_DOUBLE_EQ(Val(text), number) << text;
  for (const char* none : {"", "-.", "abc", "&", "&HG", "1e-400", "inf"}) EXPECT_EQ(Val(none), 0) << none;
  for (const char* text : {"1e400", "&H123456789"}) EXPECT_THROW(Val(text), RuntimeError) << text;
}

}  // namespace
}  // namespace velmar::text
