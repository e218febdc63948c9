#pragma once

#include "fuzz/Input.h"

namespace velmar::fuzz {

/// The input says what one of two users does with templates, up to eight calls: a letter ("s" saves, "d"
/// deletes, "e" asks whether there is one, any other loads) and a name up to the end of the line. To save, a
/// byte for the number of fields follows, and literal and filter of each, a line each.
///
/// The other user's rows stay as they are, whatever the texts hold. A name with an apostrophe fails before
/// any statement runs; what was saved comes back as it was.
void FuzzTemplate(Bytes input);

}  // namespace velmar::fuzz
