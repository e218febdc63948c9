#include "platform/excel/BiffString.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar::excel {
namespace {

TEST(BiffString, TellsPlainTextsWhereverTheOtherByteStands) {
  for (std::size_t length = 1; length < 20; ++length) {
    const std::string plain(length, '\x7F');
    EXPECT_TRUE(BiffString::IsPlain(plain));
    for (std::size_t i = 0; i < length; ++i) {
      for (const char other : {'\0', '\x80', '\xFF'}) {
        std::string text(length, '\x01');
        EXPECT_TRUE(BiffString::IsPlain(text));
        text[i] = other;
        EXPECT_FALSE(BiffString::IsPlain(text)) << length << " " << i;
      }
    }
  }
}

TEST(BiffString, ConvertsUtf8) {
  struct Case {
    std::string utf8;
    std::u16string units;
    bool narrow;
  };
  const Case cases[] = {
      {"Muñoz", u"Mu\u00F1oz", true},
      {"10 €", u"10 \u20AC", false},
      {"😀", u"\xD83D\xDE00", false},
      {std::string("a\0b", 3), u"ab", true},
      {std::string("\0", 1), u"", true},
      {"x\xFFy", u"x\uFFFDy", false},
      {"\xC3", u"\uFFFD", false},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", false},  // a surrogate by itself: three bytes that are no text
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.utf8);
    BiffString text;
    text.Assign(test.utf8);
    EXPECT_EQ(text.Units(), test.units);
    EXPECT_EQ(text.Narrow(), test.narrow);
  }
}

}  // namespace
}  // namespace velmar::excel
