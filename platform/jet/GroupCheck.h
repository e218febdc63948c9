#pragma once

#include <string_view>

#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Fails with the place if a SELECT that forms groups shows, tests or sorts by a column that has no one value
/// in a group: it is neither grouped by nor within an aggregate. The engine would take the value of any row.
void RefuseUngrouped(std::string_view jetText, const Query& query);

}  // namespace velmar::jet
