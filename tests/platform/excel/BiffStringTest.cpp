#include "platform/excel/BiffString.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar::excel {
namespace {

TEST(BiffString, TellsPlainTextsWhereverTheOtherByteStands) {
  for (std::size_t length = 1; length < 20; ++length) {
    EXPECT_TRUE(BiffString::IsPlain(std::string(length, '\x7F')));
    for (std::size_t i = 0; i < length; ++i) {
      for (const char other : {'\0', '\x80', '\xFF'}) {
        std::string text(length, '\x01');
        text[i] = other;
        EXPECT_FALSE(BiffString::IsPlain(text)) << length << " " << i;
      }
    }
  }
}

TEST(BiffString, ConvertsUtf8) {
  const struct {
    std::string utf8;
    std::u16string units;
    bool narrow;
  } cases[] = {
      {"Muñoz ÿ", u"Mu\u00F1oz \u00FF", true},
      {"Ā", u"\u0100", false},
      {"10 €😀", u"10 \u20AC\xD83D\xDE00", false},
      {std::string("a\0b", 3), u"ab", true},
      {"x\xFFy\xC3", u"x\uFFFDy\uFFFD", false},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", false},  // a surrogate by itself: three bytes that are no text
  };
  for (const auto& test : cases) {
    BiffString text;
    text.Assign(test.utf8);
    EXPECT_EQ(text.Units(), test.units) << test.utf8;
    EXPECT_EQ(text.Narrow(), test.narrow) << test.utf8;
  }
}

}  // namespace
}  // namespace velmar::excel
