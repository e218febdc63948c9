#include "wizard/FieldSelection.h"

#include <string>

#include "query/Selection.h"
#include "templates/GridRow.h"
#include "wizard/ExportControls.h"
#include "wizard/SelectionGrid.h"

namespace velmar::wizard {

namespace {

constexpr const char* kNothingMarked = "¡Debe seleccionar un elemento de la lista!";
constexpr const char* kNoRow = "¡Debe seleccionar un elemento de la rejilla!";

}  // namespace

FieldSelection::FieldSelection(const controls::ComboBox& cboExportar, controls::ListBox& lstDisponibles,
                               controls::Grid& msgSeleccionados, OrderEditor& order,
                               const UserMessages& messages)
    : cboExportar_(cboExportar),
      lstDisponibles_(lstDisponibles),
      msgSeleccionados_(msgSeleccionados),
      order_(order),
      messages_(messages) {}

void FieldSelection::cmdAgregarQuitar_Click(int index) {
  switch (index) {
    case ExportControls::kAdd:
      return AddMarked();
    case ExportControls::kAddAll:
      return AddAll();
    case ExportControls::kTake:
      return TakeSelected();
    case ExportControls::kTakeAll:
      return TakeAll();
    default:
      return;
  }
}

void FieldSelection::lstDisponibles_DblClick() {
  cmdAgregarQuitar_Click(ExportControls::kAdd);
}

void FieldSelection::msgSeleccionados_DblClick() {
  cmdAgregarQuitar_Click(ExportControls::kTake);
}

void FieldSelection::AddMarked() {
  if (lstDisponibles_.SelCount() == 0) {
    messages_.Warn(kNothingMarked);
    return;
  }
  AgregarCamposARejilla();
  QuitarDisponiblesSeleccionados();
}

void FieldSelection::AddAll() {
  if (lstDisponibles_.ListCount() == 0) return;
  for (long item = 0; item < lstDisponibles_.ListCount(); ++item) {
    lstDisponibles_.Selected(item, true);
    // Marking scrolls; the list is to stay at its top.
    lstDisponibles_.TopIndex(0);
  }
  AgregarCamposARejilla();
  lstDisponibles_.Clear();
}

void FieldSelection::TakeSelected() {
  if (!HasFieldRow(msgSeleccionados_) && msgSeleccionados_.Rows() == 1) {
    messages_.Warn(kNoRow);
    return;
  }
  DevolverCamposDeRejilla();
  const long first = msgSeleccionados_.Row();
  for (long row = msgSeleccionados_.RowSel(); row >= first; --row) {
    if (msgSeleccionados_.Rows() == 2) {
      msgSeleccionados_.Rows(1);
      break;
    }
    msgSeleccionados_.RemoveItem(row);
  }
}

void FieldSelection::TakeAll() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  msgSeleccionados_.Col(0);
  msgSeleccionados_.Row(1);
  msgSeleccionados_.ColSel(2);
  msgSeleccionados_.RowSel(msgSeleccionados_.Rows() - 1);
  DevolverCamposDeRejilla();
  msgSeleccionados_.Rows(1);
  lstDisponibles_.TopIndex(0);
}

void FieldSelection::AgregarCamposARejilla() {
  const std::string node = cboExportar_.Text();
  for (long item = 0; item < lstDisponibles_.ListCount(); ++item) {
    if (!lstDisponibles_.Selected(item)) continue;
    templates::InsertRow(msgSeleccionados_,
                         {node, lstDisponibles_.List(item), {}, lstDisponibles_.ItemData(item)},
                         msgSeleccionados_.Rows());
  }
}

void FieldSelection::QuitarDisponiblesSeleccionados() {
  for (long item = 0; item < lstDisponibles_.ListCount();) {
    if (lstDisponibles_.Selected(item)) {
      lstDisponibles_.RemoveItem(item);
    } else {
      ++item;
    }
  }
}

void FieldSelection::DevolverCamposDeRejilla() {
  const std::string shownNode = cboExportar_.Text();
  for (long row = msgSeleccionados_.Row(); row <= msgSeleccionados_.RowSel(); ++row) {
    const Selection::Row field = templates::ReadRow(msgSeleccionados_, row);
    if (field.tabla == shownNode) {
      lstDisponibles_.AddItem(field.campo);
      lstDisponibles_.ItemData(lstDisponibles_.NewIndex(), field.idCampo);
    }
    order_.EliminarDeOrden(OrderText(msgSeleccionados_, row));
  }
}

void FieldSelection::cmdCampos_Click(int index) {
  if (!HasFieldRow(msgSeleccionados_)) {
    messages_.Warn(kNoRow);
    return;
  }
  const bool up = index == ExportControls::kFieldUp;
  const long from = msgSeleccionados_.Row();
  if (from == (up ? 1 : msgSeleccionados_.Rows() - 1)) return;
  const long to = up ? from - 1 : from + 1;
  const Selection::Row field = templates::ReadRow(msgSeleccionados_, from);
  msgSeleccionados_.RemoveItem(from);
  templates::InsertRow(msgSeleccionados_, field, to);
  msgSeleccionados_.Row(to);
  msgSeleccionados_.TopRow(to);
}

}  // namespace velmar::wizard
