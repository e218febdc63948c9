#include "templates/TemplateControls.h"

namespace velmar::templates {

namespace {

constexpr long kTablaColumn = 0;
constexpr long kCampoColumn = 1;
constexpr long kFiltroColumn = 2;

}  // namespace

TemplateContent TemplateControls::Read() const {
  TemplateContent content;
  for (long row = 1; row < msgSeleccionados_.Rows(); ++row) {
    content.fields.push_back(
        {msgSeleccionados_.TextMatrix(row, kTablaColumn), msgSeleccionados_.TextMatrix(row, kCampoColumn),
         msgSeleccionados_.TextMatrix(row, kFiltroColumn), msgSeleccionados_.RowData(row)});
  }
  for (long item = 0; item < lstOrden_.ListCount(); ++item) {
    content.order.push_back({lstOrden_.List(item), lstOrden_.ItemData(item)});
  }
  return content;
}

void TemplateControls::Clear() {
  msgSeleccionados_.Rows(1);
  lstOrden_.Clear();
}

void TemplateControls::Append(const TemplateContent& content) {
  for (const TemplateContent::Field& field : content.fields) {
    // Cell by cell, since a tab that was pasted into a filter would part it in AddItem.
    msgSeleccionados_.AddItem("");
    const long row = msgSeleccionados_.Rows() - 1;
    msgSeleccionados_.TextMatrix(row, kTablaColumn, field.tabla);
    msgSeleccionados_.TextMatrix(row, kCampoColumn, field.campo);
    msgSeleccionados_.TextMatrix(row, kFiltroColumn, field.filtro);
    msgSeleccionados_.RowData(row, field.idCampo);
  }
  for (const TemplateContent::SortItem& item : content.order) {
    lstOrden_.AddItem(item.text);
    lstOrden_.ItemData(lstOrden_.NewIndex(), item.idCampo);
  }
}

}  // namespace velmar::templates
