#include "platform/jet/Dates.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar::jet {
namespace {

struct Row {
  std::string_view text;
  DayOrder order;
  std::string_view shown;  // empty: no date
};

TEST(Dates, ReadsWhatPeopleWrite) {
  constexpr auto kDay = DayOrder::kDayFirst;
  constexpr auto kMonth = DayOrder::kMonthFirst;
  for (const Row& row : {
           Row{"31/01/2024", kDay, "31/01/2024"},
           Row{"01/02/2024", kDay, "01/02/2024"},
           Row{"01/02/2024", kMonth, "02/01/2024"},
           Row{"31/01/2024", kMonth, "31/01/2024"},
           Row{"2024-02-29", kDay, "29/02/2024"},
           Row{"2023-02-29", kDay, ""},
           Row{"1-3-29", kDay, "01/03/2029"},
           Row{"1.3.30", kDay, "01/03/1930"},
           Row{" 1/1/2024 8:05 ", kDay, "01/01/2024 8:05:00"},
           Row{"2024-01-01T23:59:59", kDay, "01/01/2024 23:59:59"},
           Row{"12:30 AM", kDay, "0:30:00"},
           Row{"1/1/2024 1:00 pm", kDay, "01/01/2024 13:00:00"},
           Row{"29/12/1899", kDay, "29/12/1899"},
           Row{"1/1/1800 6:00", kDay, "01/01/1800 6:00:00"},
           Row{"//", kDay, ""},
           Row{"", kDay, ""},
           Row{"20240131", kDay, ""},
           Row{"1/1/2024x", kDay, ""},
           Row{"24:00", kDay, ""},
           Row{"1/1-2024", kDay, ""},
           Row{"99999999999/1/1", kDay, ""},
           Row{"0/1/2024", kDay, ""},
       }) {
    SCOPED_TRACE(row.text);
    const auto date = ParseDate(row.text, row.order);
    EXPECT_EQ(row.shown, date ? DateText(*date) : "");
  }
}

TEST(Dates, EveryDayComesBack) {
  for (double day = -657434; day <= 2958465; day += 977) {
    const auto parts = PartsOf(day);
    ASSERT_TRUE(parts.has_value()) << day;
    EXPECT_EQ(day, DateOf(*parts)) << day;
  }
  EXPECT_FALSE(PartsOf(2958466).has_value());
  EXPECT_FALSE(PartsOf(-657435).has_value());
  EXPECT_FALSE(PartsOf(1e300).has_value());
}

TEST(Dates, TheLastHalfSecondBelongsToTheNextDay) {
  EXPECT_EQ("01/02/2024", DateText(45322 + 0.9999999));
  EXPECT_EQ(45323.0, AddSeconds(45322 + 86399.0 / 86400, 1));
  EXPECT_EQ(-1.0, AddSeconds(0, -86400));
}

}  // namespace
}  // namespace velmar::jet
