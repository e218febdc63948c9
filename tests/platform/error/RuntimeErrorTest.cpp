#include "platform/error/RuntimeError.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"

namespace velmar {
namespace {

TEST(RuntimeError, TellsWhatWhereAndWho) {
  try {
    throw RuntimeError(kQuerySyntax, "Falta FROM.", "jet", TextSpan{7, 4});
  } catch (const std::exception& caught) {
    const auto* error = dynamic_cast<const RuntimeError*>(&caught);
    ASSERT_NE(error, nullptr);
    EXPECT_STREQ(caught.what(), "Falta FROM.");
    EXPECT_EQ(error->Number(), kQuerySyntax);
    EXPECT_EQ(error->Source(), "jet");
    ASSERT_TRUE(error->Span());
    EXPECT_EQ(error->Span()->offset, 7U);
    EXPECT_EQ(error->Span()->length, 4U);
  }
}

TEST(RuntimeError, NeedsNoPlace) {
  const RuntimeError error(kFileNotFound, "No existe.");
  EXPECT_FALSE(error.Span());
  EXPECT_EQ(error.Source(), "");
}

}  // namespace
}  // namespace velmar
