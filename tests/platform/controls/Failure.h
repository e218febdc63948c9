#pragma once

#include "platform/error/RuntimeError.h"

namespace velmar::controls {

/// The number of the error that `action` raises, 0 for none.
template <typename Action>
long FailureOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Description().empty() ? -1 : error.Number();
  }
  return 0;
}

}  // namespace velmar::controls
