#pragma once

#include <span>

#include "platform/jet/Arguments.h"

namespace velmar::jet {

/// The functions on numbers, as the engine knows them.
std::span<const EngineFunction> NumberFunctions();

}  // namespace velmar::jet
