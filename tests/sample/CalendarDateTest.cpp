#include "sample/CalendarDate.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

TEST(CalendarDateTest, ReadsRealDatesOnly) {
  for (const char* text : {"2024-02-29", "2025-12-31", "1999-01-01"}) {
    const auto date = ParseDate(text);
    ASSERT_TRUE(date) << text;
    std::string digits(text);
    std::erase(digits, '-');
    EXPECT_EQ(StoredDate(*date), digits);
  }
  for (const char* text :
       {"2025-02-29", "2025-13-01", "2025-00-10", "2025-1-01", "01-01-2025", "2025-01-0x", ""}) {
    EXPECT_FALSE(ParseDate(text)) << text;
  }
}

TEST(CalendarDateTest, CountsDaysAndMonthsOverTheYearsEnd) {
  const CalendarDate date = *ParseDate("2025-12-31");
  EXPECT_EQ(StoredDate(AddDays(date, 1)), "20260101");
  EXPECT_EQ(StoredDate(AddDays(date, -365)), "20241231");
}

}  // namespace
}  // namespace velmar::sample
