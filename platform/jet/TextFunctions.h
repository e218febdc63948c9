#pragma once

#include <span>

#include "platform/jet/Arguments.h"

namespace velmar::jet {

/// The functions on texts, as the engine knows them.
std::span<const EngineFunction> TextFunctions();

}  // namespace velmar::jet
