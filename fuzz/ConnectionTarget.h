#pragma once

#include "fuzz/Input.h"

namespace velmar::fuzz {

/// The input is a connection text. It is refused with a place inside it, or the text that it is written as
/// reads back with the same keys and values, through a closed connection too.
void FuzzConnection(Bytes input);

}  // namespace velmar::fuzz
