#include "platform/ado/Variant.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(Variant, ConvertsAsTheEngineShowsValues) {
  struct Case {
    Variant value;
    const char* text;
    long long whole;
    double number;
    bool boolean;
  };
  const Case cases[] = {
      {true, "-1", -1, -1, true},
      {false, "0", 0, 0, false},
      {10.0, "10", 10, 10, true},
      {2.5, "2.5", 2, 2.5, true},
      {3.5, "3.5", 4, 3.5, true},
      {" -12,5 ", " -12,5 ", -12, -12.5, true},
      {"+3", "+3", 3, 3, true},
      {"1.234,5", "1.234,5", 1234, 1234.5, true},
      {0.1 + 0.2, "0.3", 0, 0.1 + 0.2, true},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    EXPECT_EQ(each.value.AsText(), each.text);
    EXPECT_EQ(each.value.AsLong(), each.whole);
    EXPECT_EQ(each.value.AsDouble(), each.number);
    EXPECT_EQ(each.value.AsBoolean(), each.boolean);
  }
}

TEST(Variant, RefusesWhatHasNoMeaning) {
  EXPECT_EQ(FailureOf([] { Variant().AsText(); }), velmar::kInvalidUseOfNull);
  EXPECT_EQ(FailureOf([] { Variant().AsLong(); }), velmar::kInvalidUseOfNull);
  for (const char* text : {"", "1x", "1 2", "--1", "+-1", "inf", "1e999"})
    EXPECT_EQ(FailureOf([&] { Variant(text).AsDouble(); }), velmar::kTypeMismatch) << text;
  EXPECT_EQ(FailureOf([] { Variant(0x1p63).AsLong(); }), velmar::kOverflow);
}

}  // namespace
}  // namespace ADODB
