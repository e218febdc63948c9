#pragma once

#include "platform/controls/Grid.h"
#include "query/Selection.h"

namespace velmar::templates {

// Columns of the grid `msgSeleccionados`; its RowData is the field's number in the catalogue.
inline constexpr long kTablaColumn = 0;
inline constexpr long kCampoColumn = 1;
inline constexpr long kFiltroColumn = 2;

/// The field that a row holds.
Selection::Row ReadRow(const controls::Grid& msgSeleccionados, long row);

/// Puts the field in before `row`, or at the end if it is the number of rows.
void InsertRow(controls::Grid& msgSeleccionados, const Selection::Row& field, long row);

}  // namespace velmar::templates
