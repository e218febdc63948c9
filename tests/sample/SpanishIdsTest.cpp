#include "sample/SpanishIds.h"

#include <gtest/gtest.h>

#include "sample/Random.h"

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

TEST(SpanishIdsTest, WhatIsMadeIsValidAndOneWrongDigitIsFound) {
  Random random(3);
  for (int i = 0; i < 1000; ++i) {
    for (std::string id :
         {MakeNif(random.Below(100'000'000)), MakeNie("XYZ"[random.Below(3)], random.Below(10'000'000)),
          MakeCif("ABGPQRSNW"[random.Below(9)], random.Below(10'000'000))}) {
      EXPECT_TRUE(IsValidTaxId(id)) << id;
      char& digit = id[1 + random.Below(7)];
      digit = digit == '9' ? '0' : static_cast<char>(digit + 1);
      EXPECT_FALSE(IsValidTaxId(id)) << id;
    }
  }
}

}  // namespace
}  // namespace velmar::sample
