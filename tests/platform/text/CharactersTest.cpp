#include "platform/text/Characters.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

constexpr const char* kText = "año €𝄞z";  // one, two, three and four bytes a character

TEST(Characters, CountsCodePoints) {
  EXPECT_EQ(Len(""), 0U);
  EXPECT_EQ(Len("abc"), 3U);
  EXPECT_EQ(Len(kText), 7U);
}

TEST(Characters, CutsBetweenCharacters) {
  struct Case {
    std::size_t start, length;
    const char* expected;
  };
  for (const Case& c : {Case{1, 2, "añ"}, {2, 1, "ñ"}, {5, 2, "€𝄞"}, {7, 9, "z"}, {8, 1, ""}, {2, 0, ""}}) {
    SCOPED_TRACE(c.start);
    EXPECT_EQ(Mid(kText, c.start, c.length), c.expected);
  }
  EXPECT_EQ(Mid(kText, 6), "𝄞z");
  EXPECT_EQ(Mid(kText, 20), "");
  EXPECT_EQ(Left(kText, 5), "año €");
  EXPECT_EQ(Left(kText, 8), kText);
  EXPECT_EQ(Left(kText, 0), "");
  EXPECT_EQ(Right(kText, 3), "€𝄞z");
  EXPECT_EQ(Right(kText, 7), kText);
  EXPECT_EQ(Right(kText, 8), kText);
  EXPECT_EQ(Right(kText, 0), "");
}

TEST(Characters, GivesTheByteOfACharacter) {
  EXPECT_EQ(ByteOffset(kText, 1), 0U);
  EXPECT_EQ(ByteOffset(kText, 3), 3U);
  EXPECT_EQ(ByteOffset(kText, 6), 8U);
  EXPECT_EQ(ByteOffset(kText, 99), std::string_view(kText).size());
}

TEST(Characters, RefusesPositionZero) {
  try {
    Mid("abc", 0, 1);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), kInvalidProcedureCall);
  }
  EXPECT_THROW(Mid("abc", 0), RuntimeError);
}

TEST(Characters, TellsWellFormedText) {
  EXPECT_TRUE(IsValid(kText));
  EXPECT_TRUE(IsValid(""));
  for (const char* bad : {"a\xC3", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "ni\xF1o"}) {
    EXPECT_FALSE(IsValid(bad)) << testing::PrintToString(bad);
  }
}

}  // namespace
}  // namespace velmar::text
