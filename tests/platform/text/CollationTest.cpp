#include "platform/text/Collation.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace velmar::text {
namespace {

int Sign(int value) {
  return (value > 0) - (value < 0);
}

TEST(Collation, OrdersAsASpanishOfficeDoes) {
  const std::vector<std::string> ordered = {
      "",       " ",   "-",     "(COL) A", "1",     "10",   "2",      "a",       "Alba", "alba 2", "Álba z",
      "albano", "ana", "Ánade", "año",     "aoz",   "cazo", "coche",  "cuna",    "cuña", "Díaz",   "diazepam",
      "llama",  "luz", "nube",  "Núñez",   "ñandú", "Oca",  "peña 1", "Peñarol", "zumo"};
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    for (std::size_t j = 0; j < ordered.size(); ++j) {
      SCOPED_TRACE(ordered[i] + " | " + ordered[j]);
      EXPECT_EQ(Sign(CompareText(ordered[i], ordered[j])), i < j ? -1 : (i > j ? 1 : 0));
    }
  }
}

TEST(Collation, EqualityIsEqualityButForCase) {
  struct Case {
    const char *a, *b;
    bool equal;
  };
  for (const Case& c : {Case{"García", "GARCÍA", true},
                        {"García", "Garcia", false},
                        {"Pe\u00F1a", "PEN\u0303A", true},
                        {"\u00E9", "E\u0301", true},
                        {"\u1E69", "S\u0323\u0307", true},
                        {"s\u0323\u0307", "s\u0307\u0323", true},
                        {"ano", "año", false},
                        {"a b", "ab", false},
                        {"a-b", "ab", false},
                        {"a\x01", "a", false},
                        {"a\x01", "A\x01", true},
                        {"1º", "1o", false},
                        {"ＡＢ", "AB", false},
                        {"a ", "a", false},
                        {"", "\x01", false},
                        {"co\u00ADop", "coop", false}}) {
    SCOPED_TRACE(testing::PrintToString(c.a) + " " + testing::PrintToString(c.b));
    EXPECT_EQ(EqualText(c.a, c.b), c.equal);
    EXPECT_EQ(EqualText(c.b, c.a), c.equal);
  }
}

// The order of SortKey is a total preorder by construction and knows no shortcut: if every pair agrees with
// it, CompareText is antisymmetric and transitive, and its shortcuts decide as the collation does.
TEST(Collation, ShortcutsAgreeWithSortKeysForRandomTexts) {
  const std::vector<std::string> alphabet = {
      "a",      "A",      "b",      "n",      "N",      "\u00F1", "\u00D1", "\u0303", "e",      "E",
      "\u00E9", "\u00C9", "l",      "L",      "\u00B7", "\u0301", " ",      "-",      "'",      "\x01",
      "\x7F",   "\t",     "\u00AA", "\u00BA", "o",      "z",      "\u00DF", "s",      "\u00FC", "\u0327",
      "c",      "\u00E7", "\u00AD", "\u20AC", "1",      "\u0345", "9",      "_",      "\u0E40", "\u0E01",
      "\u3042", "\u030C", "\u0338", "<",      "\u1E9E", "\u0323", "k",      "\u212A"};
  std::mt19937 random(20011);  // NOLINT: the same texts in every run
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 5);
  std::uniform_int_distribution<int> change(0, 3);
  const auto tail = [&] {
    std::string text;
    for (int i = length(random); i > 0; --i) text += alphabet[letter(random)];
    return text;
  };
  for (int round = 0; round < 60000; ++round) {
    const std::string start = change(random) == 0 ? std::string() : "xy" + tail();
    const std::string a = start + tail();
    const std::string b = start + tail();
    const int expected = Sign(SortKey(a).compare(SortKey(b)));
    ASSERT_EQ(Sign(CompareText(a, b)), expected)
        << testing::PrintToString(a) << " " << testing::PrintToString(b);
    ASSERT_EQ(Sign(CompareText(b, a)), -expected);
  }
}

TEST(Collation, EveryPairOfPlainCharactersAgreesWithSortKeys) {
  for (char a = 1; a > 0; a = static_cast<char>(a + 1)) {
    for (char b = 1; b > 0; b = static_cast<char>(b + 1)) {
      const std::string left{'x', a, 'y'};
      const std::string right{'x', b};
      ASSERT_EQ(Sign(CompareText(left, right)), Sign(SortKey(left).compare(SortKey(right))))
          << int{a} << " " << int{b};
      if (b == 127) break;
    }
    if (a == 127) break;
  }
}

TEST(Collation, BrokenBytesKeepTheOrderTotal) {
  const std::vector<std::string> texts = {
      "a", "a\xC3", "a\xF1", "a\xF1o", "a\xC3\xB1", "b\x80", std::string("a\0b", 3)};
  for (const auto& a : texts) {
    for (const auto& b : texts) {
      EXPECT_EQ(Sign(CompareText(a, b)), Sign(SortKey(a).compare(SortKey(b))))
          << testing::PrintToString(a) << " " << testing::PrintToString(b);
    }
  }
}

TEST(Collation, BinaryComparisonIsByCodePoint) {
  EXPECT_GT(Compare("a", "B", Comparison::kBinary), 0);
  EXPECT_LT(Compare("a", "B", Comparison::kText), 0);
  EXPECT_LT(Compare("z", "ñ", Comparison::kBinary), 0);
  EXPECT_FALSE(Equal("Ana", "ANA", Comparison::kBinary));
  EXPECT_TRUE(Equal("Ana", "ANA", Comparison::kText));
}

}  // namespace
}  // namespace velmar::text
