#include "templates/GridRow.h"

namespace velmar::templates {

Selection::Row ReadRow(const controls::Grid& msgSeleccionados, long row) {
  return {msgSeleccionados.TextMatrix(row, kTablaColumn), msgSeleccionados.TextMatrix(row, kCampoColumn),
          msgSeleccionados.TextMatrix(row, kFiltroColumn), msgSeleccionados.RowData(row)};
}

void InsertRow(controls::Grid& msgSeleccionados, const Selection::Row& field, long row) {
  // Cell by cell, since a tab that was pasted into a filter would part it in AddItem.
  msgSeleccionados.AddItem("", row);
  msgSeleccionados.TextMatrix(row, kTablaColumn, field.tabla);
  msgSeleccionados.TextMatrix(row, kCampoColumn, field.campo);
  msgSeleccionados.TextMatrix(row, kFiltroColumn, field.filtro);
  msgSeleccionados.RowData(row, field.idCampo);
}

}  // namespace velmar::templates
