#include "platform/text/CodePoints.h"

#include <gtest/gtest.h>

namespace velmar::text {
namespace {

TEST(CodePoints, ReadAndWrittenOnlyBrokenBytesChange) {
  std::string written;
  const std::string_view text = "añ€𝄞z\xF1o\xC3";
  for (std::size_t offset = 0; offset < text.size();) AppendCodePoint(written, NextCodePoint(text, offset));
  AppendCodePoint(written, 0xD800);
  EXPECT_EQ(written, "añ€𝄞z\uFFFDo\uFFFD\uFFFD");
}

TEST(CodePoints, TellsPlainText) {
  EXPECT_TRUE(IsAscii("Hoja1\t\x7F"));
  EXPECT_FALSE(IsAscii("Exportación"));
}

}  // namespace
}  // namespace velmar::text
