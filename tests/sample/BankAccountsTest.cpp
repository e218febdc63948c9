#include "sample/BankAccounts.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

TEST(BankAccountsTest, ControlDigitsOfPublishedAccounts) {
  EXPECT_EQ(AccountControl("2100", "0418", "0200051332"), "45");
  EXPECT_EQ(AccountControl("1234", "5678", "1234567890"), "06");
  // A rest of 0, as in the digit above, and of 1 give the digits 0 and 1.
  EXPECT_EQ(AccountControl("0000", "0000", "0000000002"), "01");
}

}  // namespace
}  // namespace velmar::sample
