#pragma once

#include "fuzz/Input.h"

namespace velmar::fuzz {

/// The input is a Jet statement. It is refused with a place inside it; or it is run, on a small database, for
/// a bounded number of the engine's steps, and undone. The engine may refuse it too, but not for its syntax:
/// then the translation would have been wrong. Memory of the engine does not stay behind.
///
/// A statement that names other files is translated only.
void FuzzSql(Bytes input);

}  // namespace velmar::fuzz
