#pragma once

namespace velmar::excel {

/// Thrown inside this room where bytes of a file are not what they must be. WorkbookStore, which knows the
/// file's name, turns it into a RuntimeError.
struct DamagedFile {};

}  // namespace velmar::excel
