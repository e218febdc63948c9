#include "platform/error/ErrObject.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmar {
namespace {

TEST(ErrObject, KeepsTheLastFailureUntilCleared) {
  ErrObject Err;
  bool ranAfterFailure = false;
  EXPECT_FALSE(Err.Try([] { throw RuntimeError(kFileNotFound, "No existe el fichero.", "Kill"); }));
  EXPECT_TRUE(Err.Try([&] { ranAfterFailure = true; }));
  EXPECT_TRUE(ranAfterFailure);
  EXPECT_EQ(Err.Number(), kFileNotFound) << "a statement that succeeds leaves the pending error";
  EXPECT_EQ(Err.Source(), "Kill");

  EXPECT_FALSE(Err.Try([] { throw std::length_error("too long"); }));
  EXPECT_EQ(Err.Number(), kInternalError) << "a failure of the standard library is a failure too";
  EXPECT_EQ(Err.Description(), "too long");

  Err.Clear();
  EXPECT_EQ(Err.Number(), 0);
  EXPECT_TRUE(Err.Description().empty());
}

}  // namespace
}  // namespace velmar
