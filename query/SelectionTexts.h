#pragma once

#include <string>
#include <vector>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "query/DistinctList.h"
#include "query/Selection.h"

namespace velmar {

/// The distinct nodes of the rows, in the order of the rows.
DistinctList CollectNodes(const Selection& selection);

/// The distinct nodes, sorted and joined by ", ": "(COL) Colaboradores, (REC) Recibos". A selection without
/// rows is kInvalidProcedureCall.
std::string ObtenerStrTablasSeleccionadas(const Selection& selection);

/// The distinct internal names of the rows' fields in the order of the rows, joined by ", ". A row whose
/// field the catalogue does not hold, or a selection without rows, is reported, and the result is empty.
std::string ObtenerStrCamposSeleccionados(const Selection& selection, const Collection<cCampos>& mcolCampos,
                                          const FailureReport& report);

/// Sorts in ascending order of the characters' codes.
void OrdenarTextos(std::vector<std::string>& textos);

}  // namespace velmar
