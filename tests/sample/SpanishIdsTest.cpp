#include "sample/SpanishIds.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

TEST(SpanishIdsTest, KnowsPublishedNumbers) {
  for (const char* good : {"12345678Z", "00000000T", "00000001R", "12345678z", "X1234567L", "x1234567l",
                           "Y1234567X", "Z1234567R", "A58818501", "Q2826000H", "B58378431", "K1234567L"}) {
    EXPECT_TRUE(IsValidTaxId(good)) << good;
  }
  for (const char* bad :
       {"12345678A", "1234567L", "012345678Z", "X1234567T", "12345678ZZ", "A58818502", "Q28260008", "",
        "12.345.67", "I58818501", "1234 678Z", "ABCDEFGHI", "12345678É", "PASAPORTE 12345678"}) {
    EXPECT_FALSE(IsValidTaxId(bad)) << bad;
  }
}

TEST(SpanishIdsTest, MakesPublishedNumbers) {
  EXPECT_EQ(MakeNie('Y', 1234567), "Y1234567X");
  EXPECT_EQ(MakeCif('A', 5881850), "A58818501");
  EXPECT_EQ(MakeCif('Q', 2826000), "Q2826000H");
  EXPECT_EQ(MakeNif(1), "00000001R");
}

}  // namespace
}  // namespace velmar::sample
