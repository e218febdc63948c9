#pragma once

#include <span>

#include "platform/jet/Arguments.h"

namespace velmar::jet {

/// The engine's name for the hash of a list of values: 64 bits, the same for lists that DISTINCT takes for
/// equal under the collation JET or byte by byte. No Jet text can name it.
inline constexpr const char* kRowHash = "jet_rowhash";
/// The greatest number of values in one call of it.
inline constexpr int kRowHashValues = 100;

std::span<const EngineFunction> RowHashFunctions();

}  // namespace velmar::jet
