#include "wizard/FilterEditor.h"

#include <cstddef>

#include "platform/text/Characters.h"
#include "query/FilterBalance.h"
#include "templates/GridRow.h"
#include "wizard/ExportControls.h"
#include "wizard/FilterOperators.h"
#include "wizard/SelectionGrid.h"

namespace velmar::wizard {

namespace {

constexpr int kEnter = 13;

long LengthOf(const controls::TextBox& box) {
  return static_cast<long>(text::Len(box.Text()));
}

}  // namespace

FilterEditor::FilterEditor(controls::TextBox& txtFiltro, const controls::ListBox& lstOperadores,
                           controls::Grid& msgSeleccionados, controls::CommandButton& cmdExportar,
                           const UserMessages& messages)
    : txtFiltro_(txtFiltro),
      lstOperadores_(lstOperadores),
      msgSeleccionados_(msgSeleccionados),
      cmdExportar_(cmdExportar),
      messages_(messages) {}

void FilterEditor::InsertValue(std::string_view value) {
  InsertAtCaret(value, txtFiltro_.SelLength());
}

void FilterEditor::InsertAtCaret(std::string_view piece, long replaced) {
  const std::string old = txtFiltro_.Text();
  const auto caret = static_cast<std::size_t>(txtFiltro_.SelStart()) + 1;
  const std::size_t before = text::ByteOffset(old, caret);
  const std::size_t behind = text::ByteOffset(old, caret + static_cast<std::size_t>(replaced));
  txtFiltro_.Text(old.substr(0, before).append(piece).append(old, behind));
  txtFiltro_.SelStart(LengthOf(txtFiltro_));
}

void FilterEditor::lstOperadores_DblClick() {
  // Beside the items of a list with room left, no operator is chosen.
  if (!HasFieldRow(msgSeleccionados_) || lstOperadores_.ListIndex() < 0) return;
  InsertAtCaret(OperatorText(lstOperadores_.List(lstOperadores_.ListIndex())));
}

void FilterEditor::cmdFiltro_Click(int index) {
  switch (index) {
    case ExportControls::kFilterClear:
      txtFiltro_.Text("");
      return;
    case ExportControls::kFilterAssign:
      return Assign();
    case ExportControls::kFilterRemove:
      return Remove();
    default:
      return;
  }
}

void FilterEditor::Assign() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  if (txtFiltro_.Text().empty()) {
    messages_.Warn(AboutField("¡No puede asignar al campo (- ", " -) un filtro vacío!"));
    return;
  }
  if (!ValidarFiltro()) return;
  if (!messages_.Confirm(
          AboutField("¿Desea asignar el filtro al campo (- ", " -), seleccionado en la rejilla?"))) {
    return;
  }
  msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kFiltroColumn, txtFiltro_.Text());
  txtFiltro_.Text("");
}

void FilterEditor::Remove() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  if (msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kFiltroColumn).empty()) return;
  if (!messages_.Confirm(AboutField("¿Desea eliminar el filtro asignado al campo (- ",
                                    " -), seleccionado en la rejilla?"))) {
    return;
  }
  msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kFiltroColumn, "");
  txtFiltro_.Text("");
}

void FilterEditor::mnuAgregarFiltro_Click() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  InsertAtCaret("{" + msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kCampoColumn) + "}");
}

void FilterEditor::mnuEliminarFiltro_Click() {
  cmdFiltro_Click(ExportControls::kFilterRemove);
}

void FilterEditor::mnuVerFiltro_Click() {
  if (!HasFieldRow(msgSeleccionados_)) return;
  txtFiltro_.Text(msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kFiltroColumn));
  txtFiltro_.SelStart(LengthOf(txtFiltro_));
}

void FilterEditor::txtFiltro_GotFocus() {
  cmdExportar_.Default(false);
}

void FilterEditor::txtFiltro_LostFocus() {
  cmdExportar_.Default(true);
}

void FilterEditor::txtFiltro_KeyPress(int& keyAscii) {
  if (keyAscii == kEnter) keyAscii = 0;
}

bool FilterEditor::ValidarFiltro() const {
  const auto fault = velmar::ValidarFiltro(txtFiltro_.Text());
  if (fault) messages_.Warn(*fault);
  return !fault;
}

std::string FilterEditor::AboutField(std::string_view before, std::string_view behind) const {
  return std::string(before)
      .append(msgSeleccionados_.TextMatrix(msgSeleccionados_.Row(), templates::kCampoColumn))
      .append(behind);
}

}  // namespace velmar::wizard
