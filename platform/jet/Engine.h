#pragma once

struct sqlite3;

namespace velmar::jet {

/// Makes a connection able to run translated texts: registers the collation JET and every function that the
/// texts use, and turns off the reading of double-quoted names as text. Call it once for each connection,
/// before the first statement. Throws RuntimeError kEngineFailure if the engine refuses.
///
/// Functions raise their failures as engine errors with a Spanish description (a division by zero, a text
/// where a number is needed); their result code is kFunctionFailure, or SQLITE_MISMATCH for a wrong type.
void RegisterFunctions(sqlite3* database);

/// An extended code of SQLITE_ERROR that is none of the engine's own: its message is for the user.
inline constexpr int kFunctionFailure = 1 | 128 << 8;

}  // namespace velmar::jet
