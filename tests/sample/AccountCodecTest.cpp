#include "sample/AccountCodec.h"

#include <gtest/gtest.h>

#include "sample/Random.h"

namespace velmar::sample {
namespace {

TEST(AccountCodecTest, DecodingUndoesEncodingAndTheStoredFormDiffers) {
  Random random(11);
  for (int i = 0; i < 1000; ++i) {
    std::string tail;
    for (int k = 0; k < 10; ++k) tail += static_cast<char>('0' + random.Below(10));
    const std::string stored = AccountCodec::Encode(tail);
    EXPECT_NE(stored, tail);
    EXPECT_EQ(stored.size(), tail.size());
    EXPECT_EQ(stored.find_first_not_of("0123456789"), std::string::npos) << stored;
    EXPECT_EQ(AccountCodec::Decode(stored), tail);
    // A search for the beginning of a number finds the beginning of its stored form.
    const std::size_t length = random.Below(10);
    EXPECT_EQ(AccountCodec::Encode(tail.substr(0, length)), stored.substr(0, length));
  }
}

TEST(AccountCodecTest, LeavesWhatIsNoDigit) {
  for (const char* text : {"", "%", "´ [Y]", "ñ-€"}) {
    EXPECT_EQ(AccountCodec::Encode(text), text);
    EXPECT_EQ(AccountCodec::Decode(text), text);
  }
  const std::string mixed = "12 34-ñ56%";
  EXPECT_EQ(AccountCodec::Decode(AccountCodec::Encode(mixed)), mixed);
}

}  // namespace
}  // namespace velmar::sample
