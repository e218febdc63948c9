#pragma once

#include <functional>

namespace velmar::qt {

/// Runs what the user has done at a view. Failures are dealt with there: none may pass through Qt.
using UserEvents = std::function<void(const std::function<void()>& action)>;

}  // namespace velmar::qt
