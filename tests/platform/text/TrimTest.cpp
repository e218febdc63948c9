#include "platform/text/Trim.h"

#include <gtest/gtest.h>

namespace velmar::text {
namespace {

TEST(Trim, TakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim(" a  "), " a");
  EXPECT_EQ(Trim("\t\u00A0 a \u00A0\r\n\t"), "\t\u00A0 a \u00A0\r\n\t");
  for (const char* blank : {"", "    "}) EXPECT_EQ(Trim(blank) + LTrim(blank) + RTrim(blank), "");
}

}  // namespace
}  // namespace velmar::text
