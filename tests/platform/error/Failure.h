#pragma once

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

/// The failure that the action raises; its number is 0 if there is none.
template <typename Action>
RuntimeError FailureIn(Action&& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    EXPECT_NE(error.Description(), "");
    return error;
  }
  return {0, "no failure"};
}

template <typename Action>
long FailureOf(Action&& action) {
  return FailureIn(action).Number();
}

}  // namespace velmar
