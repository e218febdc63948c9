#pragma once

#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "query/Selection.h"

namespace velmar {

/// " FROM " and the joins that the selection needs: the fixed nesting of its combination of nodes, with one
/// further join around it for each field that shows a value of a lookup table. All joins are inner joins, or
/// all are left joins, by the selection's relation.
///
/// Nodes that cannot be related give the lookup joins alone, which no database accepts. A field that the
/// catalogue does not hold is reported and leaves out the lookup joins; a selection without rows is a failure
/// for the caller (kInvalidProcedureCall).
std::string GenerarSQLFROM(const Selection& selection, const Collection<cCampos>& mcolCampos,
                           const FailureReport& report);

}  // namespace velmar
