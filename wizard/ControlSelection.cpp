#include "wizard/ControlSelection.h"

#include "templates/GridRow.h"

namespace velmar::wizard {

Selection ReadSelection(const controls::Grid& msgSeleccionados, const controls::ListBox& lstOrden,
                        const controls::OptionButton& optCompleta) {
  Selection selection;
  for (long row = 1; row < msgSeleccionados.Rows(); ++row) {
    selection.rows.push_back(templates::ReadRow(msgSeleccionados, row));
  }
  for (long item = 0; item < lstOrden.ListCount(); ++item) selection.order.push_back(lstOrden.ItemData(item));
  selection.relation = optCompleta.Value() ? Selection::Relation::kComplete : Selection::Relation::kPartial;
  return selection;
}

}  // namespace velmar::wizard
