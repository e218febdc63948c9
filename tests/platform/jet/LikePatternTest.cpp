#include "platform/jet/LikePattern.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar::jet {
namespace {

struct Row {
  std::string_view pattern;
  std::string_view text;
  bool matches;
};

TEST(LikePattern, Matches) {
  for (const Row& row : {
           Row{"ana%", "ANA MARÍA", true},
           Row{"ana%", "Aná", false},
           Row{"%ñ_", "Íñigoñá", true},
           Row{"ÍÑ%", "íñigo", true},
           Row{"Ii%", "Íñigo", false},
           Row{"", "", true},
           Row{"", "a", false},
           Row{"%", "", true},
           Row{"_", "", false},
           Row{"_", "ñ", true},
           Row{"%%a%%", "bab", true},
           Row{"%ab%ab", "abab", true},
           Row{"%ab%ab", "ab", false},
           Row{"[a-c]x", "Bx", true},
           Row{"[!a-c]x", "Bx", false},
           Row{"[!a-c]x", "dx", true},
           Row{"[a-c]", "á", false},
           Row{"[%]", "%", true},
           Row{"10[%]", "100", false},
           Row{"[_]a", "_a", true},
           Row{"a[b", "A[B", true},
           Row{"[]a", "a", true},
           Row{"[a-]", "-", true},
           Row{"*", "abc", false},
           Row{"a%b%c%d", "a1b2c3", false},
           Row{"%a%b%", "xxbxxaxxbxx", true},
           Row{"[áé]%", "Éter", true},
           Row{"%z", "abcz", true},
           Row{"a_c", "a\nc", true},
       }) {
    SCOPED_TRACE(std::string(row.pattern) + " on " + std::string(row.text));
    EXPECT_EQ(row.matches, LikePattern(row.pattern).Matches(row.text));
  }
}

// Many % over a text that fails at its end: the time must not grow with each of them.
TEST(LikePattern, ManyWildcardsStayQuick) {
  std::string pattern;
  for (int i = 0; i < 40; ++i) pattern += "%a";
  EXPECT_FALSE(LikePattern(pattern + "%b").Matches(std::string(20000, 'a')));
}

}  // namespace
}  // namespace velmar::jet
