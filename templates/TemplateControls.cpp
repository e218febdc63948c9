#include "templates/TemplateControls.h"

#include "templates/GridRow.h"

namespace velmar::templates {

TemplateContent TemplateControls::Read() const {
  TemplateContent content;
  for (long row = 1; row < msgSeleccionados_.Rows(); ++row) {
    content.fields.push_back(ReadRow(msgSeleccionados_, row));
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
    InsertRow(msgSeleccionados_, field, msgSeleccionados_.Rows());
  }
  for (const TemplateContent::SortItem& item : content.order) {
    lstOrden_.AddItem(item.text);
    lstOrden_.ItemData(lstOrden_.NewIndex(), item.idCampo);
  }
}

}  // namespace velmar::templates
