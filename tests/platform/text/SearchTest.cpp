#include "platform/text/Search.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

TEST(Search, FindsByCharacterPosition) {
  struct Case {
    std::size_t start;
    const char *text, *sought;
    Comparison comparison;
    std::size_t expected;
  };
  for (const Case& c : {Case{1, "Año nuevo", "n", Comparison::kBinary, 5},
                        {1, "Año Nuevo", "n", Comparison::kBinary, 0},
                        {1, "Año Nuevo", "n", Comparison::kText, 5},
                        {1, "ÁRBOL ñu", "ÑU", Comparison::kText, 7},
                        {1, "arbol", "á", Comparison::kText, 0},
                        {2, "aaa", "a", Comparison::kBinary, 2},
                        {3, "aab", "a", Comparison::kBinary, 0},
                        {1, "aaab", "AAB", Comparison::kText, 2},
                        {1, "ñññb", "ÑÑB", Comparison::kText, 2},
                        {1, "abc", "", Comparison::kBinary, 1},
                        {3, "abc", "", Comparison::kText, 3},
                        {1, "", "", Comparison::kBinary, 0},
                        {1, "", "a", Comparison::kText, 0},
                        {9, "abc", "c", Comparison::kBinary, 0},
                        {1, "abc", "abcd", Comparison::kText, 0}}) {
    SCOPED_TRACE(std::string(c.text) + " / " + c.sought);
    EXPECT_EQ(InStr(c.start, c.text, c.sought, c.comparison), c.expected);
  }
  EXPECT_THROW(InStr(0, "abc", "a"), RuntimeError);
  EXPECT_TRUE(Contains("Exportación", "CIÓN", Comparison::kText));
  EXPECT_FALSE(Contains("Exportación", "CIÓN"));
  EXPECT_TRUE(Contains("", ""));
}

TEST(Search, ReplacesEveryOccurrence) {
  EXPECT_EQ(Replace("O'Hara 'x'", "'", "''"), "O''Hara ''x''");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("Y no y", "y", "AND"), "Y no AND");
  EXPECT_EQ(Replace("Ñ no ñ", "ñ", "n", Comparison::kText), "n no n");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
  EXPECT_EQ(Replace("aaaa", "a", "aa", Comparison::kBinary, 2), "aaaaaa");
  EXPECT_EQ(Replace("aaaa", "a", "b", Comparison::kBinary, 0), "aaaa");
  EXPECT_EQ(Replace("a\tb\tc", "\t", ""), "abc");
}

TEST(Search, SplitsAndJoins) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(Split("a\tñ\t", "\t"), (Pieces{"a", "ñ", ""}));
  EXPECT_EQ(Split("abc", ", "), (Pieces{"abc"}));
  EXPECT_EQ(Split("abc", ""), (Pieces{"abc"}));
  EXPECT_EQ(Split("", ","), Pieces{});
  EXPECT_EQ(Join({"a", "", "c"}, "; "), "a; ; c");
  EXPECT_EQ(Join({}, ";"), "");
}

}  // namespace
}  // namespace velmar::text
