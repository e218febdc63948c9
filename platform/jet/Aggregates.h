#pragma once

struct sqlite3;

namespace velmar::jet {

/// Registers the functions on groups: jet_sum and jet_avg, exact to four decimals, and jet_first and
/// jet_last, whose optional second argument is the place of the row. Throws RuntimeError kEngineFailure.
void RegisterAggregates(sqlite3* database);

}  // namespace velmar::jet
