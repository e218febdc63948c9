#include "platform/text/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

TEST(Numbers, StrKeepsAPlaceForTheSign) {
  EXPECT_EQ(Str(12), " 12");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-7), "-7");
  EXPECT_EQ(Str(std::numeric_limits<long long>::min()), "-9223372036854775808");
}

TEST(Numbers, DoublesReadAsPeopleWriteThem) {
  struct Case {
    double number;
    const char* text;
  };
  for (const Case& c : {Case{10.0, "10"},
                        {0.1 + 0.2, "0.3"},
                        {-0.0, "0"},
                        {-2.5, "-2.5"},
                        {1234567.891, "1234567.891"},
                        {1.0 / 3, "0.333333333333333"},
                        {2.0 / 3, "0.666666666666667"},
                        {1e14, "100000000000000"},
                        {1e15, "1E+15"},
                        {0.0001, "0.0001"},
                        {0.00001, "1E-05"},
                        {1.5e300, "1.5E+300"}}) {
    EXPECT_EQ(FromDouble(c.number), c.text);
  }
  EXPECT_EQ(FromDouble(-std::numeric_limits<double>::infinity()), "-1.#INF");
}

TEST(Numbers, ValTakesTheNumberAtTheStart) {
  struct Case {
    const char* text;
    double number;
  };
  for (const Case& c : {Case{"", 0},
                        {"12", 12},
                        {" 1 6 15 198th Street", 1615198},
                        {"-3.5 euros", -3.5},
                        {"+4", 4},
                        {"1,5", 1},
                        {".5", 0.5},
                        {"-.", 0},
                        {"1e3x", 1000},
                        {"1d-2", 0.01},
                        {"2e", 2},
                        {"2e+", 2},
                        {"abc", 0},
                        {"&HFF", 255},
                        {"&HFFFF", -1},
                        {"&h10000", 65536},
                        {"&O17", 15},
                        {"&", 0},
                        {"&HG", 0},
                        {"1e-400", 0},
                        {"20010101", 20010101},
                        {"inf", 0}}) {
    SCOPED_TRACE(c.text);
    EXPECT_DOUBLE_EQ(Val(c.text), c.number);
  }
  for (const char* text : {"1e400", "&H123456789"}) {
    try {
      Val(text);
      ADD_FAILURE() << text;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), kOverflow);
    }
  }
}

}  // namespace
}  // namespace velmar::text
