#include "platform/text/Search.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

TEST(Search, FindsByCharacterPosition) {
  constexpr auto kBinary = Comparison::kBinary;
  constexpr auto kText = Comparison::kText;
  struct Case {
    std::size_t start;
    const char *text, *sought;
    Comparison comparison;
    std::size_t expected;
  };
  const Case cases[] = {
      {1, "Año nuevo", "n", kBinary, 5}, {1, "Año Nuevo", "n", kBinary, 0}, {1, "ÁRBOL ñu", "ÑU", kText, 7},
      {1, "arbol", "á", kText, 0},       {2, "aaa", "a", kBinary, 2},       {3, "aab", "a", kBinary, 0},
      {2, "añaña", "ÑA", kText, 2},      {3, "añaña", "ÑA", kText, 4},      {1, "ñññb", "ÑÑB", kText, 2},
      {1, "abc", "", kBinary, 1},        {3, "abc", "", kText, 3},          {1, "", "", kBinary, 0},
      {9, "abc", "c", kBinary, 0},       {1, "abc", "abcd", kText, 0}};
  for (const Case& c : cases) {
    EXPECT_EQ(InStr(c.start, c.text, c.sought, c.comparison), c.expected) << c.text << " / " << c.sought;
  }
  EXPECT_THROW(InStr(0, "abc", "a"), RuntimeError);
  EXPECT_TRUE(Contains("Exportación", "CIÓN", kText));
  EXPECT_FALSE(Contains("Exportación", "CIÓN"));
}

TEST(Search, ReplacesEveryOccurrence) {
  EXPECT_EQ(Replace("O'Hara 'x'", "'", "''"), "O''Hara ''x''");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("Ñ no ñ", "ñ", "n"), "Ñ no n");
  EXPECT_EQ(Replace("Ñ no ñ", "ñ", "n", Comparison::kText), "n no n");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
  EXPECT_EQ(Replace("aaaa", "a", "aa", Comparison::kBinary, 2), "aaaaaa");
  EXPECT_EQ(Replace("aaaa", "a", "b", Comparison::kBinary, 0), "aaaa");
}

TEST(Search, SplitsAndJoins) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(Split("a\tñ\t", "\t"), (Pieces{"a", "ñ", ""}));
  EXPECT_EQ(Split("abc", ""), (Pieces{"abc"}));
  EXPECT_EQ(Split("", ","), Pieces{});
  EXPECT_EQ(Join({"a", "", "c"}, "; "), "a; ; c");
}

}  // namespace
}  // namespace velmar::text
