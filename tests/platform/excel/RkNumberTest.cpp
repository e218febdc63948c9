#include "platform/excel/RkNumber.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace velmar::excel {
namespace {

double Decode(std::uint32_t code) {
  const double value = (code & 2) != 0 ? static_cast<std::int32_t>(code) >> 2
                                       : std::bit_cast<double>(std::uint64_t{code & ~3u} << 32);
  return (code & 1) != 0 ? value / 100 : value;
}

TEST(RkNumber, EncodesWhereTheFormatCan) {
  struct Case {
    double value;
    bool encodable;
  };
  constexpr double kLimit = 536'870'912;
  const Case cases[] = {{0, true},           {-1, true},          {kLimit - 1, true}, {-kLimit, true},
                        {kLimit, true},      {kLimit + 1, false}, {0.5, true},        {12.34, true},
                        {-0.01, true},       {1.005, false},      {1e-300, false},    {5368709.11, true},
                        {5368709.13, false}, {1.0 / 3, false},    {-0.0, false},      {1e200, false}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.value);
    const auto code = RkNumber::Encode(test.value);
    EXPECT_EQ(code.has_value(), test.encodable);
    EXPECT_EQ(code ? Decode(*code) : test.value, test.value);
  }
}

TEST(RkNumber, NeverChangesANumber) {
  std::mt19937_64 random(182);
  for (int i = 0; i < 200'000; ++i) {
    const auto cents = static_cast<std::int32_t>(random());
    for (const double value : {cents / 100.0, std::bit_cast<double>(random()), cents / 8.0}) {
      if (!std::isfinite(value)) continue;
      const auto code = RkNumber::Encode(value);
      if (!code) continue;
      ASSERT_EQ(std::bit_cast<std::uint64_t>(Decode(*code)), std::bit_cast<std::uint64_t>(value)) << value;
    }
  }
}

}  // namespace
}  // namespace velmar::excel
