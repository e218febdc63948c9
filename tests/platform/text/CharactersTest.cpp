#include "platform/text/Characters.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

constexpr const char* kText = "año €𝄞z";  // one, two, three and four bytes a character

TEST(Characters, CountsAndCutsBetweenCodePoints) {
  EXPECT_EQ(Len(kText), 7U);
  struct Case {
    std::size_t start, length;
    const char* expected;
  };
  const Case cases[] = {{1, 2, "añ"}, {2, 1, "ñ"}, {5, 2, "€𝄞"}, {7, 9, "z"}, {8, 1, ""}, {2, 0, ""}};
  for (const Case& c : cases) EXPECT_EQ(Mid(kText, c.start, c.length), c.expected) << c.start;
  EXPECT_EQ(Mid(kText, 6), "𝄞z");
  EXPECT_EQ(Left(kText, 5), "año €");
  EXPECT_EQ(Right(kText, 3), "€𝄞z");
  for (const std::size_t all : {7U, 8U}) {
    EXPECT_EQ(Left(kText, all), kText);
    EXPECT_EQ(Right(kText, all), kText);
  }
  EXPECT_EQ(Left(kText, 0) + Right(kText, 0) + Mid(kText, 20), "");
}

TEST(Characters, GivesTheByteOfACharacter) {
  EXPECT_EQ(ByteOffset(kText, 3), 3U);
  EXPECT_EQ(ByteOffset(kText, 6), 8U);
  EXPECT_EQ(ByteOffset(kText, 99), std::string_view(kText).size());
  try {
    ByteOffset(kText, 0);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), kInvalidProcedureCall);
  }
}

TEST(Characters, TellsWellFormedText) {
  EXPECT_TRUE(IsValid(kText));
  for (const char* bad : {"a\xC3", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "ni\xF1o"}) {
    EXPECT_FALSE(IsValid(bad)) << testing::PrintToString(bad);
  }
}

}  // namespace
}  // namespace velmar::text
