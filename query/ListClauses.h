#pragma once

#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "query/Selection.h"

namespace velmar {

// Clauses are made to be joined with nothing between them: SELECT has no blank at its end, each of the other
// clauses opens with one.

/// "SELECT DISTINCT " and the fields' SELECT texts in the order of the rows. A failure (a field that the
/// catalogue does not hold, no row at all) is reported, and the result is empty.
std::string GenerarSQLSELECT(const Selection& selection, const Collection<cCampos>& mcolCampos,
                             const FailureReport& report);

/// " ORDER BY " and the sort fields' ORDER BY texts in order of priority; empty without sort fields. A field
/// that the catalogue does not hold is reported, and the result is empty.
std::string GenerarSQLORDERBY(const Selection& selection, const Collection<cCampos>& mcolCampos,
                              const FailureReport& report);

}  // namespace velmar
