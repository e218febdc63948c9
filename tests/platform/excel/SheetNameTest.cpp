#include "platform/excel/SheetName.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar::excel {
namespace {

TEST(SheetName, AcceptsAndRefuses) {
  const std::string emoji = "😀";
  std::string fifteen;
  for (int i = 0; i < 15; ++i) fifteen += emoji;
  for (const std::string& good :
       {std::string("Hoja1"), std::string(31, 'x'), std::string("Años d'abril"), fifteen + "x"})
    EXPECT_EQ(SheetName::Problem(good), "") << good;
  for (const std::string& bad :
       {std::string(), std::string(32, 'x'), fifteen + emoji, std::string("a[b"), std::string("a]b"),
        std::string("a:b"), std::string("a*b"), std::string("a?b"), std::string("a/b"), std::string("a\\b"),
        std::string("'a"), std::string("a'"), std::string("a\nb"), std::string("a\0b", 3),
        std::string("a\xFF")})
    EXPECT_NE(SheetName::Problem(bad), "") << bad;
}

TEST(SheetName, ComparesRegardlessOfCase) {
  EXPECT_TRUE(SheetName::Same("HOJA ÑÉ", "hoja ñé"));
  EXPECT_FALSE(SheetName::Same("hoja e", "hoja é"));
  EXPECT_FALSE(SheetName::Same("hoja", "hoja1"));
}

}  // namespace
}  // namespace velmar::excel
