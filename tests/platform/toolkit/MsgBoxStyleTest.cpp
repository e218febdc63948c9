#include "platform/toolkit/MsgBoxStyle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar::toolkit {
namespace {

TEST(MsgBoxStyle, TellsTheButtonsWhateverTheIcon) {
  EXPECT_THAT(MsgBoxButtons(48), testing::ElementsAre(kOk));
  EXPECT_THAT(MsgBoxButtons(36), testing::ElementsAre(kYes, kNo));
  EXPECT_THAT(MsgBoxButtons(3 + 32 + 256), testing::ElementsAre(kYes, kNo, kCancel));
  EXPECT_FALSE(IsQuestion(64));
  EXPECT_TRUE(IsQuestion(17));
}

}  // namespace
}  // namespace velmar::toolkit
