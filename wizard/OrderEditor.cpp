#include "wizard/OrderEditor.h"

#include "platform/controls/User32.h"
#include "wizard/ExportControls.h"
#include "wizard/SelectionGrid.h"

namespace velmar::wizard {

OrderEditor::OrderEditor(controls::ListBox& lstOrden, const controls::Grid& msgSeleccionados,
                         const UserMessages& messages)
    : lstOrden_(lstOrden), msgSeleccionados_(msgSeleccionados), messages_(messages) {}

long OrderEditor::Find(const std::string& text) const {
  return controls::SendMessageA(lstOrden_.hWnd(), controls::LB_FINDSTRINGEXACT, -1, text);
}

void OrderEditor::AgregarAOrden(const std::string& text, long idCampo) {
  if (Find(text) >= 0) return;
  lstOrden_.AddItem(text);
  lstOrden_.ItemData(lstOrden_.NewIndex(), idCampo);
}

void OrderEditor::EliminarDeOrden(const std::string& text) {
  const long index = Find(text);
  if (index >= 0) lstOrden_.RemoveItem(index);
}

void OrderEditor::mnuAgregarOrden_Click() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  const long row = msgSeleccionados_.Row();
  AgregarAOrden(OrderText(msgSeleccionados_, row), msgSeleccionados_.RowData(row));
}

void OrderEditor::mnuEliminarOrden_Click() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  EliminarDeOrden(OrderText(msgSeleccionados_, msgSeleccionados_.Row()));
}

void OrderEditor::cmdOrden_Click(int index) {
  if (lstOrden_.SelCount() == 0) {
    messages_.Warn("¡Debe seleccionar un elemento de la lista!");
    return;
  }
  const long from = lstOrden_.ListIndex();
  if (index == ExportControls::kOrderRemove) {
    lstOrden_.RemoveItem(from);
    return;
  }
  const bool up = index == ExportControls::kOrderUp;
  if (from == (up ? 0 : lstOrden_.ListCount() - 1)) return;
  const long to = up ? from - 1 : from + 1;
  const std::string text = lstOrden_.List(from);
  const long idCampo = lstOrden_.ItemData(from);
  lstOrden_.RemoveItem(from);
  lstOrden_.AddItem(text, to);
  lstOrden_.ItemData(to, idCampo);
  lstOrden_.Selected(to, true);
}

}  // namespace velmar::wizard
