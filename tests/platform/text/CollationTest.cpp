#include "platform/text/Collation.h"

#include <gtest/gtest.h>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/text/Case.h"

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
      EXPECT_EQ(Sign(CompareText(ordered[i], ordered[j])), i < j ? -1 : (i > j ? 1 : 0))
          << ordered[i] << " | " << ordered[j];
    }
  }
}

TEST(Collation, EqualityIsEqualityButForCase) {
  using Pair = std::pair<const char*, const char*>;
  const Pair equal[] = {{"García", "GARCÍA"},
                        {"Pe\u00F1a", "PEN\u0303A"},
                        {"\u1E69", "S\u0323\u0307"},
                        {"s\u0323\u0307", "s\u0307\u0323"},
                        {"a\x01", "A\x01"}};
  const Pair unequal[] = {{"García", "Garcia"}, {"ano", "año"},        {"a b", "ab"},  {"a-b", "ab"},
                          {"a\x01", "a"},       {"1º", "1o"},          {"ＡＢ", "AB"}, {"a ", "a"},
                          {"", "\x01"},         {"co\u00ADop", "coop"}};
  for (const auto& [a, b] : equal) EXPECT_TRUE(EqualText(a, b) && EqualText(b, a)) << a << " " << b;
  for (const auto& [a, b] : unequal) EXPECT_FALSE(EqualText(a, b) || EqualText(b, a)) << a << " " << b;
}

/// Bytes whose binary order is the order that CompareText promises, from the collation's own keys.
class SortKeys {
 public:
  SortKeys() {
    UErrorCode status = U_ZERO_ERROR;
    collator_.reset(icu::Collator::createInstance(icu::Locale("es"), status));
    collator_->setStrength(icu::Collator::SECONDARY);
    collator_->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    EXPECT_TRUE(U_SUCCESS(status));
  }

  std::string Of(const std::string& text) const {
    const icu::UnicodeString utf16 = icu::UnicodeString::fromUTF8(text);
    std::string key(static_cast<std::size_t>(collator_->getSortKey(utf16, nullptr, 0)), '\0');
    collator_->getSortKey(utf16, reinterpret_cast<std::uint8_t*>(key.data()),
                          static_cast<std::int32_t>(key.size()));
    return key + FoldCanonical(text);
  }

 private:
  std::unique_ptr<icu::Collator> collator_;
};

// The order of the keys is a total preorder by construction and knows no shortcut: if every pair agrees with
// it, CompareText is antisymmetric and transitive, and its shortcuts decide as the collation does.
// The alphabet holds what attracts, stacks, expands or has no weight, and bytes that are no text.
TEST(Collation, ShortcutsAgreeWithSortKeysForRandomTexts) {
  std::vector<std::string> alphabet = {
      "a",      "A",      "b",      "n",      "N",      "\u00F1", "\u00D1", "\u0303", "e",
      "E",      "\u00E9", "\u00C9", "l",      "L",      "\u00B7", "\u0301", " ",      "-",
      "'",      "\x01",   "\x7F",   "\t",     "\u00AA", "\u00BA", "o",      "z",      "\u00DF",
      "s",      "\u00FC", "\u0327", "c",      "\u00E7", "\u00AD", "\u20AC", "1",      "\u0345",
      "9",      "_",      "\u0E40", "\u0E01", "\u3042", "\u030C", "\u0338", "<",      "\u1E9E",
      "\u0323", "k",      "\u212A", "\xC3",   "\xF1",   "\x80"};
  alphabet.emplace_back(1, '\0');
  std::mt19937 random(20011);  // NOLINT: the same texts in every run
  const auto draw = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  const auto tail = [&] {
    std::string text;
    for (std::size_t i = draw(6); i > 0; --i) text += alphabet[draw(alphabet.size())];
    return text;
  };
  const SortKeys keys;
  for (int round = 0; round < 60000 && !HasFailure(); ++round) {
    const std::string start = draw(4) == 0 ? std::string() : "xy" + tail();
    const std::string a = start + tail();
    const std::string b = start + tail();
    SCOPED_TRACE(testing::PrintToString(a) + testing::PrintToString(b));
    EXPECT_EQ(Sign(CompareText(a, b)), Sign(keys.Of(a).compare(keys.Of(b))));
    EXPECT_EQ(Sign(CompareText(b, a)), -Sign(CompareText(a, b)));
  }
}

TEST(Collation, BinaryComparisonIsByCodePoint) {
  EXPECT_GT(Compare("a", "B", Comparison::kBinary), 0);
  EXPECT_LT(Compare("z", "ñ", Comparison::kBinary), 0);
  EXPECT_FALSE(Equal("Ana", "ANA", Comparison::kBinary));
}

}  // namespace
}  // namespace velmar::text
