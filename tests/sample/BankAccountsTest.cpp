#include "sample/BankAccounts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace velmar::sample {
namespace {

TEST(BankAccountsTest, ControlDigitsOfPublishedAccounts) {
  struct Row {
    const char *bank, *branch, *control, *number;
  };
  // The last two rows have a rest of 0 and of 1, which give the digits 0 and 1.
  constexpr std::array<Row, 4> kRows = {{
      {"2100", "0418", "45", "0200051332"},
      {"1234", "5678", "06", "1234567890"},
      {"0000", "0000", "00", "0000000000"},
      {"0000", "0000", "01", "0000000002"},
  }};
  for (const Row& row : kRows) {
    EXPECT_EQ(AccountControl(row.bank, row.branch, row.number), row.control)
        << row.bank << row.branch << row.number;
  }
}

TEST(BankAccountsTest, BankNumbersAreFourDigitsAndDiffer) {
  std::array<std::string_view, kBankCount> numbers;
  for (std::size_t i = 0; i < kBankCount; ++i) numbers[i] = Banks()[i].number;
  std::sort(numbers.begin(), numbers.end());
  EXPECT_EQ(std::adjacent_find(numbers.begin(), numbers.end()), numbers.end());
  for (const std::string_view number : numbers) EXPECT_EQ(number.size(), 4U);
}

}  // namespace
}  // namespace velmar::sample
