#include "wizard/NodeList.h"

#include <string>
#include <unordered_set>

#include "platform/controls/User32.h"

namespace velmar::wizard {

void NodeList::BeginNodes() {
  controls::ValidateRect(cboExportar_.hWnd());
}

void NodeList::AddNode(const std::string& literalTabla, std::int16_t idTabla) {
  cboExportar_.AddItem(literalTabla);
  cboExportar_.ItemData(cboExportar_.NewIndex(), idTabla);
}

void NodeList::EndNodes() noexcept {
  controls::InvalidateRect(cboExportar_.hWnd());
}

void fillCamposDisponibles(const controls::ComboBox& cboExportar, const Collection<cCampos>& mcolCampos,
                           const controls::Grid& msgSeleccionados, controls::ListBox& lstDisponibles) {
  if (cboExportar.Text().empty()) return;
  const long idTabla = cboExportar.ItemData(cboExportar.ListIndex());
  // The head row counts too: its number is 0, so no field may have that.
  std::unordered_set<long> selected;
  for (long row = 0; row < msgSeleccionados.Rows(); ++row) selected.insert(msgSeleccionados.RowData(row));

  lstDisponibles.Clear();
  for (const cCampos& field : mcolCampos) {
    if (field.IDTabla() != idTabla || selected.contains(field.IDCampo())) continue;
    lstDisponibles.AddItem(field.LiteralCampo());
    lstDisponibles.ItemData(lstDisponibles.NewIndex(), field.IDCampo());
  }
}

}  // namespace velmar::wizard
