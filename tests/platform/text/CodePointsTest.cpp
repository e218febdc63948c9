#include "platform/text/CodePoints.h"

#include <gtest/gtest.h>

#include "platform/text/Characters.h"

namespace velmar::text {
namespace {

TEST(CodePoints, ReadAndWrittenTheyAreTheSame) {
  const std::string text = "añ€𝄞";
  std::string written;
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count)
    AppendCodePoint(written, NextCodePoint(text, offset));
  EXPECT_EQ(count, 4U);
  EXPECT_EQ(written, text);
}

TEST(CodePoints, BrokenBytesBecomeTheReplacementCharacter) {
  const std::string text = "a\xF1o\xC3";
  std::string written;
  for (std::size_t offset = 0; offset < text.size();) AppendCodePoint(written, NextCodePoint(text, offset));
  EXPECT_EQ(written, "a\uFFFDo\uFFFD");
  std::string surrogate;
  AppendCodePoint(surrogate, 0xD800);
  EXPECT_TRUE(IsValid(surrogate));
}

TEST(CodePoints, TellsPlainText) {
  EXPECT_TRUE(IsAscii("Hoja1\t\x7F"));
  EXPECT_FALSE(IsAscii("Exportación"));
}

}  // namespace
}  // namespace velmar::text
