#include "platform/jet/Money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace velmar::jet {
namespace {

TEST(Money, SumsAndProductsAreThoseOnPaper) {
  EXPECT_EQ(0.3, Add(0.1, 0.2));
  EXPECT_EQ(0.0, Subtract(Add(0.1, 0.2), 0.3));
  EXPECT_EQ(29.0, Multiply(0.29, 100));
  EXPECT_EQ(1.21, Multiply(1.1, 1.1));
  EXPECT_EQ(-0.0001, Subtract(922337203.6854, 922337203.6855));
  EXPECT_EQ(1e300 * 10, Multiply(1e300, 10));
  EXPECT_EQ(1.0 / 3 + 1, Add(1.0 / 3, 1));
}

// A balance of a million bookings, against whole cents.
TEST(Money, LongSumsKeepEveryCent) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> cents(-100000, 100000);
  double sum = 0;
  long long exact = 0;
  for (int i = 0; i < 1000000; ++i) {
    const int booking = cents(random);
    exact += booking;
    sum = Add(sum, booking / 100.0);
  }
  EXPECT_EQ(static_cast<double>(exact) / 100, sum);
}

TEST(Money, RefusesWhatHasMoreDecimals) {
  EXPECT_FALSE(TenThousandths(0.00001).has_value());
  EXPECT_FALSE(TenThousandths(1e12).has_value());
  EXPECT_FALSE(TenThousandths(std::nan("")).has_value());
  EXPECT_EQ(-12345, TenThousandths(-1.2345));
}

struct Row {
  double number;
  int decimals;
  double even;
  double away;
};

TEST(Money, Rounds) {
  for (const Row& row :
       {Row{2.5, 0, 2, 3}, Row{3.5, 0, 4, 4}, Row{-2.5, 0, -2, -3}, Row{2.675, 2, 2.68, 2.68},
        Row{2.665, 2, 2.66, 2.67}, Row{1.005, 2, 1, 1.01}, Row{-1.005, 2, -1, -1.01}, Row{2.4999, 0, 2, 2},
        Row{0.00005, 4, 0, 0.0001}, Row{1234.5678, 2, 1234.57, 1234.57}, Row{1e20, 2, 1e20, 1e20}}) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(row.even, RoundTo(row.number, row.decimals, Half::kToEven));
    EXPECT_EQ(row.away, RoundTo(row.number, row.decimals, Half::kAway));
  }
}

}  // namespace
}  // namespace velmar::jet
