#include "sample/AccountCodec.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

TEST(AccountCodecTest, DecodingUndoesEncodingOfDigitsAndLeavesTheRest) {
  for (const std::string tail : {"0000000000", "0123456789", "9876543210", "5555555555", "12 34-ñ56%"}) {
    const std::string stored = AccountCodec::Encode(tail);
    EXPECT_NE(stored, tail);
    EXPECT_EQ(AccountCodec::Decode(stored), tail);
    // A search for the beginning of a number finds the beginning of its stored form.
    EXPECT_EQ(AccountCodec::Encode(tail.substr(0, 4)), stored.substr(0, 4));
  }
  for (const char* text : {"", "%", "´ [Y]", "ñ-€"}) EXPECT_EQ(AccountCodec::Encode(text), text);
}

}  // namespace
}  // namespace velmar::sample
