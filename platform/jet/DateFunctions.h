#pragma once

#include <span>

#include "platform/jet/Arguments.h"

namespace velmar::jet {

/// The functions on dates, as the engine knows them.
std::span<const EngineFunction> DateFunctions();

}  // namespace velmar::jet
