#include "sample/SpanishIds.h"

#include <gtest/gtest.h>

#include <array>

#include "sample/Random.h"

namespace velmar::sample {
namespace {

TEST(SpanishIdsTest, KnowsPublishedNumbers) {
  struct Row {
    const char* id;
    bool valid;
  };
  constexpr std::array<Row, 26> kRows = {{
      {"12345678Z", true},  {"00000000T", true},           {"00000001R", true},   {"12345678z", true},
      {"12345678A", false}, {"1234567L", false},           {"012345678Z", false}, {"X1234567L", true},
      {"x1234567l", true},  {"Y1234567X", true},           {"Z1234567R", true},   {"X1234567T", false},
      {"A58818501", true},  {"A58818502", false},          {"A28015865", true},   {"Q2826000H", true},
      {"Q28260008", false}, {"B58378431", true},           {"", false},           {"12.345.67", false},
      {"I58818501", false}, {"1234 678Z", false},          {"ABCDEFGHI", false},  {"K1234567L", true},
      {"12345678É", false}, {"PASAPORTE 12345678", false},
  }};
  for (const Row& row : kRows) EXPECT_EQ(IsValidTaxId(row.id), row.valid) << row.id;
}

TEST(SpanishIdsTest, WhatIsMadeIsValidAndOneWrongDigitIsFound) {
  Random random(3);
  for (int i = 0; i < 2000; ++i) {
    const std::array<std::string, 3> made = {MakeNif(random.Below(100'000'000)),
                                             MakeNie("XYZ"[random.Below(3)], random.Below(10'000'000)),
                                             MakeCif("ABGPQRSNW"[random.Below(9)], random.Below(10'000'000))};
    for (std::string id : made) {
      EXPECT_TRUE(IsValidTaxId(id)) << id;
      char& digit = id[1 + random.Below(7)];
      digit = digit == '9' ? '0' : static_cast<char>(digit + 1);
      EXPECT_FALSE(IsValidTaxId(id)) << id;
    }
  }
}

}  // namespace
}  // namespace velmar::sample
