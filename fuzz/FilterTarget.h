#pragma once

#include "fuzz/Input.h"

namespace velmar::fuzz {

/// The input is a byte and then either filters as a user could type them, a line each, for fields of every
/// kind in turn (the byte is even), or the choices for filters that are well formed (odd).
///
/// A typed filter is refused with its row, or gives a clause without marks. The export's statement with it is
/// refused, or still writes nothing but the export's table. A well-formed one passes the balance test and is
/// taken by the database, with as many texts as it has values.
void FuzzFilter(Bytes input);

}  // namespace velmar::fuzz
