#include "platform/text/Characters.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

constexpr const char* kText = "año €𝄞z";  // one, two, three and four bytes a character

TEST(Characters, CountsAndCutsBetweenCodePoints) {
  EXPECT_EQ(Len(kText), 7U);
  EXPECT_EQ(Mid(kText, 1, 2), "añ");
  EXPECT_EQ(Mid(kText, 5, 2), "€𝄞");
  EXPECT_EQ(Mid(kText, 7, 9) + Mid(kText, 8, 1) + Mid(kText, 2, 0), "z");
  EXPECT_EQ(Mid(kText, 6), "𝄞z");
  EXPECT_EQ(Left(kText, 5), "año €");
  EXPECT_EQ(Right(kText, 3), "€𝄞z");
  EXPECT_EQ(Left(kText, 7), kText);
  EXPECT_EQ(Right(kText, 8), kText);
  EXPECT_EQ(Left(kText, 0) + Right(kText, 0) + Mid(kText, 20), "");
}

TEST(Characters, GivesTheByteOfACharacter) {
  EXPECT_EQ(ByteOffset(kText, 3), 3U);
  EXPECT_EQ(ByteOffset(kText, 6), 8U);
  EXPECT_EQ(ByteOffset(kText, 99), std::string_view(kText).size());
  EXPECT_THROW(ByteOffset(kText, 0), RuntimeError);
}

TEST(Characters, TellsWellFormedText) {
  EXPECT_TRUE(IsValid(kText));
  for (const char* bad : {"a\xC3", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "ni\xF1o"}) {
    EXPECT_FALSE(IsValid(bad)) << testing::PrintToString(bad);
  }
}

}  // namespace
}  // namespace velmar::text
