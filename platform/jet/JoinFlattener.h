#pragma once

#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Turns joins whose right side is itself a join into a chain from left to right, wherever both give the same
/// rows. The engine runs a chain row by row through its indexes, but writes a nested right side out as a
/// table of its own, which a large export does not survive.
///
/// - `A INNER JOIN (B … C ON p) ON q` becomes `A INNER JOIN B ON q … C ON p` where q needs only A and B;
/// where it
///   needs C as well and the joins up to C are inner, q moves behind C.
/// - `A LEFT JOIN (B LEFT JOIN C ON p) ON q` becomes `A LEFT JOIN B ON q LEFT JOIN C ON p` where q names only
/// A
///   and B, every column in it and in p is qualified, and p cannot hold for a B that is all NULL.
/// - Everything else keeps its nesting.
void FlattenJoins(TableSource& source);

}  // namespace velmar::jet
