#include "platform/excel/SharedStrings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/excel/WorkbookCheck.h"

namespace velmar::excel {
namespace {

std::u16string Units(const std::string& utf8) {
  BiffString text;
  text.Assign(utf8);
  return text.Units();
}

std::string Repeat(const std::string& text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

TEST(SharedStrings, GivesEachTextOneNumber) {
  SharedStrings strings(40, {});
  EXPECT_EQ(strings.Index("uno"), 40u);
  EXPECT_EQ(strings.Index("Uno"), 41u);
  EXPECT_EQ(strings.Index("uno"), 40u);
  EXPECT_EQ(strings.Index(""), SharedStrings::kNone);
  EXPECT_EQ(strings.Index(std::string_view("\0\0", 2)), SharedStrings::kNone);
  for (int twice = 0; twice < 2; ++twice) {
    for (std::uint32_t i = 0; i < 100'000; ++i) ASSERT_EQ(strings.Index(std::to_string(i)), 42 + i);
  }
  EXPECT_EQ(strings.Count(), 100'002u);
}

// A first text of every length near the end of a record puts each kind of text at each place around the cut.
TEST(SharedStrings, CutsTextsOnlyWhereTheFormatAllows) {
  const std::vector<std::string> texts = {"a",
                                          "ñ",
                                          "€",
                                          "😀",
                                          Repeat("abc", 4000),
                                          Repeat("ñé", 5000),
                                          Repeat("€", 32'767),
                                          Repeat("😀", 16'383),
                                          "x" + Repeat("😀", 16'383)};
  for (std::size_t length = 8224 - 3 - 14; length <= 8224; ++length) {
    SCOPED_TRACE(length);
    for (const std::string& text : texts) {
      SharedStrings strings(1, {});
      const std::string first(length, 'f');
      strings.Index(first);
      strings.Index(text);
      strings.Index("fin");
      strings.Finish();
      std::vector<std::u16string> read;
      ASSERT_NO_THROW(read = WorkbookCheck::Strings(strings.Records())) << text.substr(0, 10);
      ASSERT_EQ(read.size(), 3 + strings.FillerCount());
      EXPECT_EQ(read[0], Units(first));
      EXPECT_EQ(read[1], Units(text));
      EXPECT_EQ(read[2], u"fin");
    }
  }
}

TEST(SharedStrings, EndsItsLastSectorWhateverStandsBefore) {
  for (std::size_t tail = 0; tail < 512; ++tail) {
    SCOPED_TRACE(tail);
    const std::vector<std::uint8_t> before(tail, 0xEE);
    SharedStrings strings(1, before);
    strings.Index("uno");
    const std::size_t filler = strings.Finish();
    const auto records = strings.Records();
    ASSERT_EQ(records.size() % 512, 0u);
    EXPECT_EQ(filler, tail + 10);
    const auto read = WorkbookCheck::Strings(records.subspan(tail));
    EXPECT_EQ(read.size(), 1 + strings.FillerCount());
    EXPECT_EQ(read[0], u"uno");
  }
}

}  // namespace
}  // namespace velmar::excel
