#include "platform/text/Trim.h"

#include <gtest/gtest.h>

namespace velmar::text {
namespace {

TEST(Trim, TakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim(" a  "), " a");
  EXPECT_EQ(Trim("\t a \r\n"), "\t a \r\n");
  EXPECT_EQ(Trim("\u00A0a\u00A0"), "\u00A0a\u00A0");
  for (const char* blank : {"", " ", "    "}) {
    EXPECT_EQ(Trim(blank), "");
    EXPECT_EQ(LTrim(blank), "");
    EXPECT_EQ(RTrim(blank), "");
  }
}

}  // namespace
}  // namespace velmar::text
